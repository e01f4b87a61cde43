#pragma once

#include "family/data/audit/audit_lines.hpp"
#include "family/registers/description/register.hpp"

#include <functional>

namespace kova::family::registers {

/// The texts of a row that was changed in a form. All of them are written in one way, so that two can be
/// compared.
struct FormTexts {
    /// As the form was opened, as the row is now, as the user wants it.
    Texts before, stored, typed;
};

struct MergedTexts {
    /// What is to be written, where nothing clashes.
    Texts wanted;
    std::vector<RefusedField> clashes;
    /// For a message.
    std::string text;
};

/// The last write that changed a column of the field, of lines that come newest first; nothing where none
/// tells.
std::optional<AuditLine> LastChange(const std::vector<AuditLine>& lines, const FieldInfo& field);

/// Brings what others have changed and what the user has changed together, field by field. `lines` reads the
/// row's lines of the audit, newest first; it is asked only where something clashes.
MergedTexts MergeTexts(const std::vector<FieldInfo>& fields, const FormTexts& texts,
                       const std::function<std::vector<AuditLine>()>& lines);

} // namespace kova::family::registers
