#include "family/users/rights.hpp"

#include "agenda/contracts/failure.hpp"

#include <algorithm>
#include <iterator>

namespace kova::family {

namespace {

constexpr RightInfo Table[] = {
    {Right::Book, "agendamento.incluir", "Agendamentos", "Incluir agendamentos"},
    {Right::ChangeAppointments, "agendamento.alterar", "Agendamentos", "Alterar agendamentos"},
    {Right::CancelAppointments, "agendamento.cancelar", "Agendamentos", "Cancelar agendamentos"},
    {Right::DeleteAppointments, "agendamento.excluir", "Agendamentos", "Excluir agendamentos"},
    {Right::UndoPreSales, "agendamento.desfazer_pre_venda", "Agendamentos", "Desfazer pré-vendas geradas"},
    {Right::ChangeRegisters, "cadastro.alterar", "Cadastros", "Alterar cadastros"},
    {Right::SeePrices, "cadastro.precos", "Cadastros", "Ver e alterar preços e custos"},
    {Right::Export, "dados.exportar", "Dados", "Exportar dados"},
    {Right::Anonymise, "dados.anonimizar", "Dados", "Anonimizar clientes"},
    {Right::SeeHistory, "historico.ver", "Dados", "Ver o histórico"},
    {Right::AdministerUsers, "usuarios.administrar", "Usuários", "Administrar usuários"},
};

} // namespace

std::string RightInfo::Act() const
{
    // Every label begins with a plain letter.
    std::string act(label);
    act.front() = static_cast<char>(act.front() - 'A' + 'a');
    return act;
}

std::span<const RightInfo> AllRights() { return Table; }

const RightInfo& InfoOf(Right right)
{
    const auto found = std::ranges::find(Table, right, &RightInfo::right);
    if (found == std::end(Table))
        throw Failure(FailureNumber::InvalidArgument);
    return *found;
}

std::optional<Right> RightNamed(std::string_view name)
{
    const auto found = std::ranges::find(Table, name, &RightInfo::name);
    return found == std::end(Table) ? std::nullopt : std::optional(found->right);
}

} // namespace kova::family
