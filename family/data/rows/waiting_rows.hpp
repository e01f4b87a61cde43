#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/engine/nullable.hpp"

#include <string>

/// The rows of the waiting list. Dates are "yyyy-mm-dd", times "hh:mm".
namespace kova::family {

/// A customer who waits for room for an animal.
struct WaitingRow {
    static constexpr const char* Table = "lista_de_espera";
    Key codigo = 0, codigoDoCliente = 0, codigoDoAnimal = 0;
    /// The first and the last day that would do.
    std::string dataInicial, dataFinal;
    /// A digit for each day of the week that would do, ascending: 1 Sunday to 7 Saturday.
    std::string diasDaSemana;
    /// The hours that an appointment has to lie in; the end may be "24:00".
    std::string horaInicial, horaFinal;
    Nullable<std::string> observacao;
    /// One of waiting_status.
    int situacao = 1;
    /// The appointment that came of it, which may have been deleted since; Null until it is booked.
    Nullable<Key> numeroDoAgendamento;
    std::string incluidoEm, incluidoPor;
    Nullable<std::string> alteradoEm, alteradoPor;
    /// 1 when it is added; every write raises it by one.
    Key versao = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_cliente", codigoDoCliente);
        visit("codigo_do_animal", codigoDoAnimal);
        visit("data_inicial", dataInicial);
        visit("data_final", dataFinal);
        visit("dias_da_semana", diasDaSemana);
        visit("hora_inicial", horaInicial);
        visit("hora_final", horaFinal);
        visit("observacao", observacao);
        visit("situacao", situacao);
        visit("numero_do_agendamento", numeroDoAgendamento);
        visit("incluido_em", incluidoEm);
        visit("incluido_por", incluidoPor);
        visit("alterado_em", alteradoEm);
        visit("alterado_por", alteradoPor);
        visit("versao", versao);
    }
};

namespace waiting_status {
inline constexpr int Waiting = 1;
/// A desk has it in hand.
inline constexpr int BeingBooked = 2;
inline constexpr int Booked = 3;
inline constexpr int GivenUp = 4;

inline bool IsOpen(int status) { return status == Waiting || status == BeingBooked; }
} // namespace waiting_status

/// A service that would do.
struct WaitingServiceRow {
    static constexpr const char* Table = "espera_servico";
    Key codigo = 0, codigoDaEspera = 0, codigoDoServico = 0;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_da_espera", codigoDaEspera);
        visit("codigo_do_servico", codigoDoServico);
    }
};

/// An employee who would do; without any it is whoever has room.
struct WaitingEmployeeRow {
    static constexpr const char* Table = "espera_funcionario";
    Key codigo = 0, codigoDaEspera = 0, codigoDoFuncionario = 0;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_da_espera", codigoDaEspera);
        visit("codigo_do_funcionario", codigoDoFuncionario);
    }
};

} // namespace kova::family
