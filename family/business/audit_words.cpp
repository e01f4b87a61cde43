#include "family/business/audit_words.hpp"

#include "family/data/audit/audit.hpp"

#include <algorithm>

namespace kova::family {

namespace {

struct KnownOperation {
    std::string_view operation, one, many, did;
};
constexpr KnownOperation Operations[] = {
    {audit_operation::Insertion, "Inclusão", "Inclusões", "Incluiu"},
    {audit_operation::Change, "Alteração", "Alterações", "Alterou"},
    {audit_operation::Removal, "Exclusão", "Exclusões", "Excluiu"},
    {audit_operation::Restoration, "Restauração", "Restaurações", "Restaurou"},
    {audit_operation::Import, "Importação", "Importações", "Importou"},
    {audit_operation::ImportUndone, "Importação desfeita", "Importações desfeitas", "Desfez"},
    {audit_operation::Anonymisation, "Anonimização", "Anonimizações", "Tornou anônimo"},
    {audit_operation::Merging, "União", "Uniões", "Uniu"},
    {audit_operation::SigningIn, "Entrada", "Entradas", "Entrou como"},
    {audit_operation::SigningInRefused, "Entrada recusada", "Entradas recusadas",
     "Não conseguiu entrar como"},
    {audit_operation::Export, "Exportação", "Exportações", "Exportou dados"},
    {audit_operation::Print, "Impressão", "Impressões", "Imprimiu dados"},
    {audit_operation::CopyRestored, "Cópia restaurada", "Cópias restauradas", "Restaurou uma cópia da loja"},
    {audit_operation::Archiving, "Arquivamento", "Arquivamentos", "Arquivou linhas da auditoria"},
    {audit_operation::Migration, "Atualização do banco", "Atualizações do banco",
     "Atualizou o banco de dados"},
    {audit_operation::Denial, "Direito negado", "Direitos negados", "Foi recusado por falta de direito:"},
};

struct KnownTable {
    std::string_view table, title, one;
};
constexpr KnownTable Tables[] = {
    {"agendamento", "Agendamentos", "o agendamento"},
    {"lista_de_espera", "Lista de espera", "o pedido da lista de espera"},
    {"espera_servico", "Serviços da lista de espera", "o serviço do pedido da lista de espera"},
    {"espera_funcionario", "Funcionários da lista de espera",
     "o(a) funcionário(a) do pedido da lista de espera"},
    {"cliente", "Clientes", "o cliente"},
    {"animal", "Animais", "o animal"},
    {"canal_de_comunicacao", "Canais de comunicação", "o canal de comunicação"},
    {"servico", "Serviços", "o serviço"},
    {"tipo_de_servico", "Tipos de serviço", "o tipo de serviço"},
    {"funcionario", "Funcionários", "o(a) funcionário(a)"},
    {"horario_do_funcionario", "Horários dos funcionários", "o horário de trabalho"},
    {"ausencia", "Ausências", "a ausência"},
    {"especie", "Espécies", "a espécie"},
    {"raca", "Raças", "a raça"},
    {"feriado", "Feriados", "o feriado"},
    {"expediente", "Horário de funcionamento", "o horário de funcionamento"},
    {"empresa", "Empresa", "a empresa"},
    {"usuario", "Usuários", "o usuário"},
    {"papel", "Papéis", "o papel"},
    {"papel_direito", "Direitos dos papéis", "o direito"},
    {"ajuste", "Ajustes da loja", "o ajuste"},
    {"pacote", "Pacotes", "o pacote"},
    {"pre_venda", "Pré-vendas", "a pré-venda"},
    {ImportsTable, "Importações", "a importação"},
};

/// What a name of the schema says by itself: "outra_coisa" is "outra coisa".
std::string Plain(std::string_view name)
{
    std::string plain(name);
    std::ranges::replace(plain, '_', ' ');
    return plain;
}

} // namespace

OperationWords WordsOfOperation(std::string_view operation)
{
    const auto found = std::ranges::find(Operations, operation, &KnownOperation::operation);
    if (found == std::end(Operations))
        return {Plain(operation), Plain(operation), Plain(operation) + ":"};
    return {std::string(found->one), std::string(found->many), std::string(found->did)};
}

TableWords WordsOfTable(std::string_view table)
{
    const auto found = std::ranges::find(Tables, table, &KnownTable::table);
    if (found == std::end(Tables))
        return {Plain(table), Plain(table)};
    return {std::string(found->title), std::string(found->one)};
}

} // namespace kova::family
