#include "host/session/agenda_guard.hpp"

#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/contracts/widgets.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"

#include <algorithm>
#include <vector>

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

/// Null where the form, or what is called so on it, is not there.
template <class Kind>
const Kind* Find(const toolkit::ToolkitModel& toolkit, std::string_view form, std::string_view control)
{
    const toolkit::FormModel* there = toolkit.FindForm(form);
    toolkit::WidgetCore* found = there != nullptr ? there->Find(control) : nullptr;
    return found != nullptr ? dynamic_cast<const Kind*>(&found->Face()) : nullptr;
}

/// Of the row of the list that its buttons stand on, and a record form was opened for; 0 of none.
Double StatusOfRow(const toolkit::ToolkitModel& toolkit)
{
    const auto* grid = Find<MSFlexGrid>(toolkit, "frmLista", "msfgGrade");
    if (grid == nullptr || grid->RowSel() < 1 || grid->RowSel() >= grid->Rows()
        || grid->Cols() <= agenda::colunas::Situacao)
        return 0;
    return Val(grid->TextMatrix(grid->RowSel(), agenda::colunas::Situacao));
}

bool RowHasPreSale(const toolkit::ToolkitModel& toolkit)
{
    return StatusOfRow(toolkit) == agenda::situacao::AtendidoEGeradoPreVenda;
}

/// What is chosen in a record; the row's where nothing is.
Double ChosenStatus(const toolkit::ToolkitModel& toolkit, std::string_view form)
{
    const auto* status = Find<KVComboBox>(toolkit, form, "kvcmbSituacao");
    return status != nullptr && status->ListIndex() >= 0 ? status->ItemData(status->ListIndex())
                                                         : StatusOfRow(toolkit);
}

/// What saving a record needs: by what is done, which its title tells, and by the status that is chosen.
std::vector<Right> RightsToSave(const toolkit::ToolkitModel& toolkit, std::string_view form)
{
    const auto* title = Find<KVTheme>(toolkit, form, "KVTheme");
    if (title != nullptr && title->Caption().starts_with("Adicionar"))
        return {Right::Book};
    std::vector<Right> rights = {Right::ChangeAppointments};
    const Double chosen = ChosenStatus(toolkit, form);
    if (chosen == StatusOfRow(toolkit))
        return rights;
    if (chosen == agenda::situacao::Cancelado)
        rights.push_back(Right::CancelAppointments);
    if (RowHasPreSale(toolkit))
        rights.push_back(Right::UndoPreSales);
    return rights;
}

bool IsRecord(std::string_view form) { return form == "frmFichaCompleta" || form == "frmFichaSimplificada"; }

bool UndoesPreSale(const toolkit::GuardedControl& control)
{
    return control.form == "frmLista"
        ? std::ranges::find(UndoPreSales, control.control) != std::end(UndoPreSales)
        : control.form == "frmFichaCompleta" && control.control == "kvcmbSituacao";
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
    if (IsRecord(control.form) && control.control == "kvcmdSalvarFecharConfirmar"
        && control.caption == "Salvar")
        return WhyNotSaved(control.form);
    const std::string undo = family::WhyOf(denied_, Right::UndoPreSales);
    return !undo.empty() && UndoesPreSale(control) && RowHasPreSale(toolkit_) ? undo : Text();
}

Text AgendaGuard::WhyNotSaved(std::string_view form) const
{
    for (const Right right : RightsToSave(toolkit_, form)) {
        if (std::string why = family::WhyOf(denied_, right); !why.empty())
            return why;
    }
    return {};
}

} // namespace kova::host
