#pragma once

#include "agenda/contracts/support/memory_record_set.hpp"
#include "tests/unit/agenda/module_fixture.hpp"
#include "toolkits/common/access_observer.hpp"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace kova::agenda {

/// Notes every write and call of the forms at the widget border, as "control.Member".
class WidgetTrace : public toolkit::AccessObserver {
public:
    void Read(const toolkit::MemberAccess&) override { }
    void Write(const toolkit::MemberAccess& access, const Value&) override { Note(access); }
    void Call(const toolkit::MemberAccess& access, const Value&) override { Note(access); }

    /// Place of an access in the trace, counted from 0; -1 where it never came.
    int Place(const std::string& access) const
    {
        const auto found = std::find(notes_.begin(), notes_.end(), access);
        return found == notes_.end() ? -1 : static_cast<int>(found - notes_.begin());
    }
    int LastPlace(const std::string& access) const
    {
        const auto found = std::find(notes_.rbegin(), notes_.rend(), access);
        return static_cast<int>(notes_.rend() - found) - 1;
    }

private:
    void Note(const toolkit::MemberAccess& access)
    {
        notes_.push_back(std::string(access.control) + "." + std::string(access.member));
    }

    std::vector<std::string> notes_;
};

/// The search dialogs without a list behind them: the application is called "Kova".
class SearchTest : public ModuleTest {
protected:
    SearchTest()
    {
        Principal.NomeDaAplicacao = "Kova";
        Principal.DadosDoUsuario = std::make_shared<scenario::NamedObject>("<user>");
    }

    /// Shows the dialog modally; the user does `action` in it and then, where it is still open, nothing more.
    template <class Dialog> void Use(Dialog& dialog, std::function<void()> action)
    {
        toolkit.Queue().QueueAction(std::move(action));
        dialog.Formulario->Show(ShowMode::Modal);
    }

    /// What the members of a failed selection say.
    static scenario::ScriptedAnswer Failed()
    {
        return {
            .result = Long{1},
            .members = {{"NumeroDoErro", Long{9}}, {"DescricaoDoErro", "sem rede"}, {"LocalDoErro", "srv"}}};
    }
    static std::string FailedReport()
    {
        return R"(call KOVA_A_MsgErro.clsMensagem.Exibir(Long& 9, Text& "sem rede", Text& "srv", Text& "Kova") )"
               "-> Integer 0";
    }

    static toolkit::GridModel& ModelOf(MSFlexGrid& grade) { return dynamic_cast<toolkit::GridModel&>(grade); }
    /// Rows of a table as a record set.
    static MemoryRecordSet Records(const scenario::RecordTable& table) { return {table.fields, table.rows}; }
};

} // namespace kova::agenda
