#pragma once

#include "family/data/engine/key.hpp"

#include <string>

namespace kova::family {

/// Who writes, and when.
struct Author {
    std::string code;
    /// What the lists show as the one who made or changed a record.
    std::string name;
    /// "yyyy-mm-dd hh:mm:ss" by the session's clock; what is written down is told by stamp.hpp.
    std::string moment;
    /// Name of the computer; empty where it has none.
    std::string desk{};
    /// Number of the import in which the rows come; 0 where they come in none.
    Key importNumber = 0;
    /// Code of the line of the audit that is undone by what is written; 0 where none is.
    Key undoneLine = 0;
    /// Whether the rows that are added were there before.
    bool isRestoring = false;
    /// Whoever has the database itself at hand, at the tools for it: no user's rights bind him.
    bool isOwner = false;
    /// The moment is by the computer's own clock (Clock::IsComputersOwn).
    bool isByComputersClock = false;
};

} // namespace kova::family
