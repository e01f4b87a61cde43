#include "family/data/migrations/schemas.hpp"

#include <span>
#include <utility>

namespace kova::family {

namespace {

/// Puts the engine's own types in the place of the marks @key, @big and @sorted.
std::string InDialect(std::string text, const Dialect& dialect)
{
    const std::pair<std::string, const std::string&> marks[] = {
        {"@key", dialect.identity},
        {"@big", dialect.bigInteger},
        {"@sorted", dialect.orderedText},
    };
    for (const auto& [mark, type] : marks) {
        for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
            text.replace(at, mark.size(), type);
    }
    return text;
}

// Flags are 0 or 1, prices are cents, dates "yyyy-mm-dd", times "hh:mm", moments "yyyy-mm-dd hh:mm:ss".
// nome_de_busca and texto_de_busca hold folded text: lower case without accents.
constexpr const char* Registers[] = {
    "create table empresa (codigo @key, nome_fantasia text not null, razao_social text not null,"
    " cnpj text not null, endereco text not null, telefone text not null)",

    "create table usuario (codigo @key, nome text not null, situacao integer not null default 1)",

    // Numbers below 4 are clinical.
    "create table tipo_de_servico (numero @key, nome text not null, nome_de_busca @sorted not null,"
    " situacao integer not null default 1)",

    // A number of sessions makes it a package service.
    "create table servico (codigo @key, nome text not null, nome_de_busca @sorted not null,"
    " descricao text not null, numero_do_tipo_de_servico @big not null references tipo_de_servico (numero),"
    " duracao_em_minutos integer not null, preco_em_centavos @big not null, custo_em_centavos @big not null,"
    " quantidade_de_sessoes integer, situacao integer not null default 1)",

    // agendamentos_simultaneos: 0 is unlimited.
    "create table funcionario (codigo @key, apelido text not null, nome text not null,"
    " nome_de_busca @sorted not null, agendamentos_simultaneos integer not null default 1,"
    " situacao integer not null default 1)",

    "create table especie (codigo @key, nome text not null, nome_de_busca @sorted not null)",

    "create table raca (codigo @key, codigo_da_especie @big not null references especie (codigo),"
    " nome text not null, nome_de_busca @sorted not null)",

    // Either a day and a month of every year, or one whole date.
    "create table feriado (codigo @key, nome text not null, dia integer, mes integer, data text)",
};

constexpr const char* People[] = {
    // situacao: 1 active, 2 inactive, 3 blocked, 4 deleted. The composed address and the composed
    // channels are kept in the row because every list shows them.
    "create table cliente (codigo @key, tipo_de_pessoa text not null, apelido text not null,"
    " nome text not null, documento text not null, situacao integer not null default 1,"
    " vip integer not null default 0, categoria_da_curva_abc text not null, logradouro text not null,"
    " numero text not null, complemento text not null, bairro text not null, cidade text not null,"
    " uf text not null, cep text not null, endereco_completo text not null,"
    " endereco_completo_com_cep text not null, tipos_e_canais text not null,"
    " nome_de_busca @sorted not null, texto_de_busca text not null)",

    "create table canal_de_comunicacao (codigo @key,"
    " codigo_do_cliente @big not null references cliente (codigo), tipo text not null,"
    " canal text not null)",

    // sexo "M" or "F"; porte 1 to 4; situacao: 1 active, 2 inactive or deceased.
    "create table animal (codigo @key, codigo_do_cliente @big not null references cliente (codigo),"
    " nome text not null, sexo text not null, codigo_da_raca @big not null references raca (codigo),"
    " porte integer not null, cor text not null, microchip text, observacao text,"
    " situacao integer not null default 1, nome_de_busca @sorted not null)",
};

constexpr const char* Appointments[] = {
    "create table pacote (codigo @key, codigo_do_servico @big not null references servico (codigo),"
    " criado_em text not null, criado_por text not null)",

    // tipo_do_agendamento 0 is a full record with customer and animal, 1 a simplified one that carries
    // their texts in the row.
    "create table agendamento (numero @key, data_inicial text not null, hora_inicial text not null,"
    " data_final text not null, hora_final text not null, tipo_do_agendamento integer not null,"
    " codigo_do_cliente @big references cliente (codigo), codigo_do_animal @big references animal (codigo),"
    " nome_do_cliente text not null default '', canais_do_cliente text not null default '',"
    " nome_do_animal text not null default '', sexo_do_animal text not null default '',"
    " especie_do_animal text not null default '', raca_do_animal text not null default '',"
    " cor_do_animal text not null default '',"
    " numero_do_tipo_de_servico @big not null references tipo_de_servico (numero),"
    " codigo_do_servico @big not null references servico (codigo),"
    " codigo_do_funcionario @big not null references funcionario (codigo),"
    " codigo_do_pacote @big references pacote (codigo), observacao text,"
    " transporte_buscar integer not null default 0, transporte_levar integer not null default 0,"
    " situacao integer not null, incluido_em text not null, incluido_por text not null,"
    " alterado_em text, alterado_por text, texto_de_busca text not null default '')",

    // situacao: 1 open, 2 cancelled, 3 billed. It outlives its appointment, as a receipt does.
    "create table pre_venda (codigo @key, numero_do_agendamento @big not null,"
    " valor_em_centavos @big not null, situacao integer not null default 1, criada_em text not null)",

    "create table auditoria (codigo @key, momento text not null, usuario text not null,"
    " tabela text not null, chave @big not null, operacao text not null, antes text, depois text)",
};

constexpr const char* Indexes[] = {
    "create index agendamento_por_inicio on agendamento (data_inicial, hora_inicial, numero)",
    "create index agendamento_por_funcionario on agendamento (codigo_do_funcionario, data_inicial)",
    "create index agendamento_por_pacote on agendamento (codigo_do_pacote)"
    " where codigo_do_pacote is not null",
    "create index cliente_por_nome on cliente (nome_de_busca, codigo)",
    "create index cliente_por_documento on cliente (documento)",
    "create index canal_por_cliente on canal_de_comunicacao (codigo_do_cliente)",
    "create index animal_por_cliente on animal (codigo_do_cliente)",
    "create index animal_por_nome on animal (nome_de_busca, codigo)",
    "create index animal_por_microchip on animal (microchip) where microchip is not null",
    "create index servico_por_tipo on servico (numero_do_tipo_de_servico)",
    "create index raca_por_especie on raca (codigo_da_especie)",
    "create index pre_venda_por_agendamento on pre_venda (numero_do_agendamento)",
    "create index auditoria_por_chave on auditoria (tabela, chave)",
};

} // namespace

std::vector<std::string> SchemaOfVersion1(const Dialect& dialect)
{
    std::vector<std::string> statements;
    for (const std::span<const char* const> group :
         {std::span<const char* const>(Registers), std::span<const char* const>(People),
          std::span<const char* const>(Appointments), std::span<const char* const>(Indexes)}) {
        for (const char* statement : group)
            statements.push_back(InDialect(statement, dialect));
    }
    return statements;
}

} // namespace kova::family
