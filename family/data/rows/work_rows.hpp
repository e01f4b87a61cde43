#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/engine/nullable.hpp"

#include <string>

/// The rows that tell when the shop is open and who is at work. Days of the week are 1 Sunday to 7 Saturday,
/// dates "yyyy-mm-dd", times "hh:mm"; a time that ends something may be "24:00".
namespace kova::family {

/// The shop is open then. It is closed on a day of the week without a row.
struct OpeningHoursRow {
    static constexpr const char* Table = "expediente";
    Key codigo = 0;
    int diaDaSemana = 0;
    std::string horaInicial, horaFinal;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("dia_da_semana", diaDaSemana);
        visit("hora_inicial", horaInicial);
        visit("hora_final", horaFinal);
    }
};

/// An employee works then, and at no other time. One without a row works whenever the shop is open.
struct EmployeeHoursRow {
    static constexpr const char* Table = "horario_do_funcionario";
    Key codigo = 0, codigoDoFuncionario = 0;
    int diaDaSemana = 0;
    std::string horaInicial, horaFinal;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_funcionario", codigoDoFuncionario);
        visit("dia_da_semana", diaDaSemana);
        visit("hora_inicial", horaInicial);
        visit("hora_final", horaFinal);
    }
};

/// An employee, or everybody where none is named, is away from the first moment up to, and without, the last.
struct AbsenceRow {
    static constexpr const char* Table = "ausencia";
    Key codigo = 0;
    Nullable<Key> codigoDoFuncionario;
    std::string dataInicial, horaInicial, dataFinal, horaFinal, motivo;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_funcionario", codigoDoFuncionario);
        visit("data_inicial", dataInicial);
        visit("hora_inicial", horaInicial);
        visit("data_final", dataFinal);
        visit("hora_final", horaFinal);
        visit("motivo", motivo);
    }
};

} // namespace kova::family
