#pragma once

#include "toolkits/common/toolkit.hpp"
#include "tools/scenario/language/words.hpp"

#include <string>
#include <vector>

namespace kova::scenario {

/// A place in a form, as scripts write it: FORM, FORM.CONTROL, FORM.CONTROL.MEMBER, FORM.MEMBER, with an
/// index behind a control of a group and behind an indexed member: "frmLista.msfgGrade.ColWidth(8)".
struct Place {
    std::string form;
    std::string control;
    /// -1 where the control is in no group.
    int controlIndex = -1;
    std::string member;
    std::vector<Long> indexes;

    /// "frmLista.kvcmbSituacao", "frmSelecionarDatas.kvdtpDataInicial(3)".
    std::string ControlName() const;
};

/// Throws ScriptError where the word is no place.
Place ParsePlace(const std::string& word, const ScriptLine& line);

/// The lines of a `show` statement. Raises no event, moves no cursor and is not seen by the observer.
/// Throws ScriptError where form, control or member does not exist or can only be written.
std::vector<std::string> ShowPlace(toolkit::ToolkitModel& toolkit, const Place& place,
                                   const ScriptLine& line);
/// The cells of one row, a line each.
std::vector<std::string> ShowGridRow(toolkit::ToolkitModel& toolkit, const Place& place, Long row,
                                     const ScriptLine& line);

} // namespace kova::scenario
