#pragma once

#include "agenda/contracts/value.hpp"
#include "family/data/audit/audit_lines.hpp"

#include <optional>

namespace kova::family {

// What a user reads who wanted to write something that somebody else has written in the meantime. The form
// may go with its text, so the text repeats what was typed.

/// How the texts speak of the thing.
struct ClashWords {
    /// "Este agendamento foi alterado depois que você o abriu."
    const char* changed;
    /// What shows how it is now.
    const char* lookAgain;
};
extern const ClashWords OfAppointment;
extern const ClashWords OfRegister;

/// What stands in a field and what was typed into it.
struct FieldStates {
    std::string caption, stored, typed;
};

/// A field that both have changed, and the write that changed it last.
struct Clash {
    FieldStates field;
    /// Nothing where the audit does not tell.
    std::optional<AuditLine> line;
};

/// A write by somebody else, with the captions of the fields that it changed.
struct OthersWrite {
    AuditLine line;
    std::vector<std::string> fields;
};

/// `others` are the fields that this user alone has changed: they are not written either.
Text ClashText(const std::vector<Clash>& clashes, const std::vector<FieldStates>& others,
               const ClashWords& words = OfAppointment);
/// What it says of one of the fields, the caption aside: who has written what, and what was typed.
Text ClashOf(const Clash& clash);
/// The first half of that: who has written what, without a full stop.
Text WriteOf(const Clash& clash);
/// Of an appointment. Newest write first.
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
