#pragma once

#include "agenda/contracts/value.hpp"
#include "family/data/stores/appointment_steps.hpp"

namespace kova::family {

// What a user reads who wanted to write an appointment that somebody else has written in the meantime. The
// form goes with its text, so the text repeats what was typed.

/// What stands in a field and what was typed into it.
struct FieldStates {
    std::string caption, stored, typed;
};

/// A field that both have changed, and the write that changed it last.
struct Clash {
    FieldStates field;
    AuditLine line;
};

/// A write by somebody else, with the captions of the fields that it changed.
struct OthersWrite {
    AuditLine line;
    std::vector<std::string> fields;
};

/// `others` are the fields that this user alone has changed: they are not written either.
Text ClashText(const std::vector<Clash>& clashes, const std::vector<FieldStates>& others);
/// Newest write first.
Text DeletionClashText(const std::vector<OthersWrite>& writes);
/// `status` is what the write has set.
Text StatusClashText(const AuditLine& line, int status);
/// Where nobody can tell who has changed what.
Text UnknownClashText();

/// "NAME (posto DESK)", or the name alone.
Text PersonOf(const AuditLine& line);
/// "dd/mm/yyyy às hh:mm"
Text MomentOf(const AuditLine& line);

} // namespace kova::family
