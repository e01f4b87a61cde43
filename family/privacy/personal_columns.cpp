#include "family/privacy/personal_columns.hpp"

namespace kova::family::privacy {

namespace {

constexpr ColumnsThatHold Columns[] = {
    {"cliente", Holds::Figure, "codigo tipo_de_pessoa situacao vip categoria_da_curva_abc"},
    {"cliente", Holds::Name, "nome"},
    {"cliente", Holds::Text, "apelido documento logradouro numero complemento bairro cidade uf cep"},
    // The audit tells of the channels by this column alone.
    {"cliente", Holds::Text, "tipos_e_canais"},
    {"cliente", Holds::Composed,
     "endereco_completo endereco_completo_com_cep nome_de_busca nomes_de_busca endereco_de_busca"},

    // The rows go when their customer is made anonymous.
    {"canal_de_comunicacao", Holds::Figure, "codigo codigo_do_cliente"},
    {"canal_de_comunicacao", Holds::Text, "tipo canal"},

    {"animal", Holds::Figure, "codigo codigo_do_cliente sexo codigo_da_raca porte situacao"},
    {"animal", Holds::Name, "nome"},
    {"animal", Holds::Text, "cor"},
    {"animal", Holds::OptionalText, "microchip observacao"},
    {"animal", Holds::Composed, "nome_de_busca"},

    {"agendamento", Holds::Figure,
     "numero data_inicial hora_inicial data_final hora_final tipo_do_agendamento codigo_do_cliente"
     " codigo_do_animal sexo_do_animal especie_do_animal raca_do_animal numero_do_tipo_de_servico"
     " codigo_do_servico codigo_do_funcionario codigo_do_pacote transporte_buscar transporte_levar situacao"
     " incluido_em alterado_em"},
    {"agendamento", Holds::Name, "nome_do_cliente nome_do_animal"},
    {"agendamento", Holds::Text, "canais_do_cliente cor_do_animal"},
    {"agendamento", Holds::OptionalText, "observacao"},
    {"agendamento", Holds::Composed, "texto_de_busca"},
    {"agendamento", Holds::Staff, "incluido_por alterado_por"},
    {"agendamento", Holds::NoPerson, "versao"},

    {"lista_de_espera", Holds::Figure,
     "codigo codigo_do_cliente codigo_do_animal data_inicial data_final dias_da_semana hora_inicial"
     " hora_final situacao numero_do_agendamento incluido_em alterado_em"},
    {"lista_de_espera", Holds::OptionalText, "observacao"},
    {"lista_de_espera", Holds::Staff, "incluido_por alterado_por"},
    {"lista_de_espera", Holds::NoPerson, "versao"},
    {"espera_servico", Holds::Figure, "codigo codigo_da_espera codigo_do_servico"},
    {"espera_funcionario", Holds::Figure, "codigo codigo_da_espera codigo_do_funcionario"},

    {"pacote", Holds::Figure, "codigo codigo_do_servico criado_em"},
    {"pacote", Holds::Staff, "criado_por"},
    {"pre_venda", Holds::Figure, "codigo numero_do_agendamento valor_em_centavos situacao criada_em"},

    {"auditoria", Holds::Figure, "codigo momento tabela chave operacao"},
    {"auditoria", Holds::ValuesOfRows, "antes depois"},
    {"auditoria", Holds::Staff, "usuario posto"},
    {"elo_da_auditoria", Holds::NoPerson, "ordem codigo_da_linha"},
    // Digests of the lines.
    {"elo_da_auditoria", Holds::Composed, "sal elo"},

    {"empresa", Holds::Staff, "codigo nome_fantasia razao_social cnpj endereco telefone"},
    {"usuario", Holds::Staff, "codigo nome situacao"},
    {"usuario", Holds::NoPerson, "codigo_do_papel senha pin"},
    {"funcionario", Holds::Staff, "codigo apelido nome nome_de_busca agendamentos_simultaneos situacao"},
    {"horario_do_funcionario", Holds::Staff,
     "codigo codigo_do_funcionario dia_da_semana hora_inicial hora_final"},
    {"ausencia", Holds::Staff,
     "codigo codigo_do_funcionario data_inicial hora_inicial data_final hora_final motivo"},

    {"tipo_de_servico", Holds::NoPerson, "numero nome nome_de_busca situacao"},
    {"servico", Holds::NoPerson,
     "codigo nome nome_de_busca descricao numero_do_tipo_de_servico duracao_em_minutos preco_em_centavos"
     " custo_em_centavos quantidade_de_sessoes situacao"},
    {"especie", Holds::NoPerson, "codigo nome nome_de_busca situacao"},
    {"raca", Holds::NoPerson, "codigo codigo_da_especie nome nome_de_busca situacao"},
    {"feriado", Holds::NoPerson, "codigo nome dia mes data"},
    {"expediente", Holds::NoPerson, "codigo dia_da_semana hora_inicial hora_final"},
    {"papel", Holds::NoPerson, "codigo nome"},
    {"papel_direito", Holds::NoPerson, "codigo codigo_do_papel direito"},
    {"ajuste", Holds::NoPerson, "codigo nome valor"},
    {"tentativa_de_entrada", Holds::NoPerson, "identificador erros ultimo_erro"},
    {"gravacao", Holds::NoPerson, "identificador momento"},
    {"contador_de_alteracoes", Holds::NoPerson, "tabela alteracoes"},
    {"versao_do_esquema", Holds::NoPerson, "versao"},
};

/// Whether the name is one of those that blanks separate.
bool IsOneOf(std::string_view names, std::string_view name)
{
    while (!names.empty()) {
        const std::size_t end = names.find(' ');
        if (names.substr(0, end) == name)
            return true;
        names.remove_prefix(end == std::string_view::npos ? names.size() : end + 1);
    }
    return false;
}

} // namespace

std::span<const ColumnsThatHold> AllColumns() { return Columns; }

std::optional<Holds> HoldsOf(std::string_view table, std::string_view column)
{
    for (const ColumnsThatHold& one : Columns) {
        if (one.table == table && IsOneOf(one.columns, column))
            return one.holds;
    }
    return std::nullopt;
}

bool IsExported(std::string_view table, std::string_view column)
{
    const Holds holds = HoldsOf(table, column).value_or(Holds::Text);
    return holds != Holds::NoPerson && holds != Holds::Composed;
}

} // namespace kova::family::privacy
