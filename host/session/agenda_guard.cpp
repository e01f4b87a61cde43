#include "host/session/agenda_guard.hpp"

#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/contracts/widgets/grid.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

#include <algorithm>

namespace kova::host {

namespace {

using family::Right;

/// A control that does what not everybody may do.
struct Guarded {
    std::string_view form, control;
    /// Only while the control says so; always where it is empty.
    std::string_view caption;
    Right right;
};
constexpr Guarded Table[] = {
    {"frmLista", "kvcmdAdicionar", "", Right::Book},
    {"frmLista", "mnuAdicionarAgendamentoCompleto", "", Right::Book},
    {"frmLista", "mnuAdicionarAgendamentoSimplificado", "", Right::Book},
    {"frmLista", "kvcmdMarcarAgendamentoComoAgendado", "", Right::ChangeAppointments},
    {"frmLista", "kvcmdMarcarAgendamentoComoAtendido", "", Right::ChangeAppointments},
    {"frmLista", "kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda", "", Right::ChangeAppointments},
    {"frmLista", "kvcmdMarcarAgendamentoComoCancelado", "", Right::CancelAppointments},
    {"frmLista", "kvcmdAlterar", "", Right::ChangeAppointments},
    {"frmLista", "kvcmdExcluir", "", Right::DeleteAppointments},
    {"frmFichaCompleta", "kvcmdCancelarAlterar", "Alterar", Right::ChangeAppointments},
    {"frmFichaCompleta", "kvcmdSalvarFecharConfirmar", "Confirmar", Right::DeleteAppointments},
    {"frmFichaSimplificada", "kvcmdCancelarAlterar", "Alterar", Right::ChangeAppointments},
    {"frmFichaSimplificada", "kvcmdSalvarFecharConfirmar", "Confirmar", Right::DeleteAppointments},
};

/// Those that take a row away from a generated pre-sale, and so undo it.
constexpr std::string_view UndoPreSales[] = {"kvcmdMarcarAgendamentoComoAgendado",
                                             "kvcmdMarcarAgendamentoComoAtendido",
                                             "kvcmdMarcarAgendamentoComoCancelado"};

/// Whether the row of the list that its buttons stand on has a generated pre-sale.
bool RowHasPreSale(const toolkit::ToolkitModel& toolkit)
{
    const toolkit::FormModel* list = toolkit.FindForm("frmLista");
    toolkit::WidgetCore* found = list != nullptr ? list->Find("msfgGrade") : nullptr;
    const auto* grid = found != nullptr ? dynamic_cast<const MSFlexGrid*>(&found->Face()) : nullptr;
    if (grid == nullptr || grid->RowSel() < 1 || grid->RowSel() >= grid->Rows()
        || grid->Cols() <= agenda::colunas::Situacao)
        return false;
    return Val(grid->TextMatrix(grid->RowSel(), agenda::colunas::Situacao))
        == agenda::situacao::AtendidoEGeradoPreVenda;
}

} // namespace

AgendaGuard::AgendaGuard(toolkit::ToolkitModel& toolkit, AskRights ask)
    : toolkit_(toolkit), ask_(std::move(ask))
{
}

AgendaGuard::~AgendaGuard() { toolkit_.SetGuard({}); }

void AgendaGuard::Look()
{
    try {
        denied_ = ask_();
    } catch (const Failure&) {
        return;
    }
    // Where everything is allowed nobody is asked at all.
    if (denied_.empty())
        return toolkit_.SetGuard({});
    toolkit_.SetGuard([this](const toolkit::GuardedControl& control) { return Why(control); });
}

Text AgendaGuard::Why(const toolkit::GuardedControl& control) const
{
    for (const Guarded& one : Table) {
        const bool isMeant = one.control == control.control && one.form == control.form
            && (one.caption.empty() || one.caption == control.caption);
        if (const std::string why = isMeant ? family::WhyOf(denied_, one.right) : std::string(); !why.empty())
            return why;
    }
    const std::string undo = family::WhyOf(denied_, Right::UndoPreSales);
    const bool mayUndo = !undo.empty() && control.form == "frmLista"
        && std::ranges::find(UndoPreSales, control.control) != std::end(UndoPreSales);
    return mayUndo && RowHasPreSale(toolkit_) ? undo : Text();
}

} // namespace kova::host
