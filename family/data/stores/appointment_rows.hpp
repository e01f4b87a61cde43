#pragma once

#include "family/data/rows/rows.hpp"

namespace kova::family {

/// `tipoDoAgendamento` 0 has a customer and an animal; 1, a simplified one, has neither and carries the
/// typed texts.
struct AppointmentRow {
    static constexpr const char* Table = "agendamento";
    Key numero = 0;
    std::string dataInicial, horaInicial, dataFinal, horaFinal;
    int tipoDoAgendamento = 0;
    Nullable<Key> codigoDoCliente, codigoDoAnimal;
    std::string nomeDoCliente, canaisDoCliente, nomeDoAnimal, sexoDoAnimal, especieDoAnimal, racaDoAnimal,
        corDoAnimal;
    Key numeroDoTipoDeServico = 0, codigoDoServico = 0, codigoDoFuncionario = 0;
    Nullable<Key> codigoDoPacote;
    Nullable<std::string> observacao;
    int transporteBuscar = 0, transporteLevar = 0;
    /// 1 booked, 2 attended, 3 cancelled, 4 attended with a pre-sale.
    int situacao = 1;
    std::string incluidoEm, incluidoPor;
    Nullable<std::string> alteradoEm, alteradoPor;
    /// Composed by Compose.
    std::string textoDeBusca;
    /// 1 when it is added; every write raises it by one.
    Key versao = 1;

    /// Fills the column that follows from the others. Call it before every write.
    void Compose();

    template <class Visit> void Columns(Visit visit)
    {
        visit("numero", numero);
        visit("data_inicial", dataInicial);
        visit("hora_inicial", horaInicial);
        visit("data_final", dataFinal);
        visit("hora_final", horaFinal);
        visit("tipo_do_agendamento", tipoDoAgendamento);
        visit("codigo_do_cliente", codigoDoCliente);
        visit("codigo_do_animal", codigoDoAnimal);
        visit("nome_do_cliente", nomeDoCliente);
        visit("canais_do_cliente", canaisDoCliente);
        visit("nome_do_animal", nomeDoAnimal);
        visit("sexo_do_animal", sexoDoAnimal);
        visit("especie_do_animal", especieDoAnimal);
        visit("raca_do_animal", racaDoAnimal);
        visit("cor_do_animal", corDoAnimal);
        visit("numero_do_tipo_de_servico", numeroDoTipoDeServico);
        visit("codigo_do_servico", codigoDoServico);
        visit("codigo_do_funcionario", codigoDoFuncionario);
        visit("codigo_do_pacote", codigoDoPacote);
        visit("observacao", observacao);
        visit("transporte_buscar", transporteBuscar);
        visit("transporte_levar", transporteLevar);
        visit("situacao", situacao);
        visit("incluido_em", incluidoEm);
        visit("incluido_por", incluidoPor);
        visit("alterado_em", alteradoEm);
        visit("alterado_por", alteradoPor);
        visit("texto_de_busca", textoDeBusca);
        visit("versao", versao);
    }
};

/// The same row read by a transaction that is going to write it.
struct LockedAppointmentRow : AppointmentRow {
    static constexpr bool LocksRow = true;
};

struct PackageRow {
    static constexpr const char* Table = "pacote";
    Key codigo = 0, codigoDoServico = 0;
    std::string criadoEm, criadoPor;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_servico", codigoDoServico);
        visit("criado_em", criadoEm);
        visit("criado_por", criadoPor);
    }
};

/// `situacao` 1 open, 2 cancelled, 3 billed.
struct PreSaleRow {
    static constexpr const char* Table = "pre_venda";
    Key codigo = 0, numeroDoAgendamento = 0, valorEmCentavos = 0;
    int situacao = 1;
    std::string criadaEm;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("numero_do_agendamento", numeroDoAgendamento);
        visit("valor_em_centavos", valorEmCentavos);
        visit("situacao", situacao);
        visit("criada_em", criadaEm);
    }
};

} // namespace kova::family
