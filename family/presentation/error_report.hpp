#pragma once

#include "agenda/contracts/value.hpp"

namespace kova::family {

/// What an error screen shows, as texts.
struct ErrorReport {
    Text number;
    Text description;
    Text place;
    /// Title of the screen.
    Text application;
};

/// The text that a reader sees for any value. Never fails: Null, Empty and what has no text read "".
Text ReadableText(const Value& value);

/// All four in lines, for the clipboard and for the standard error output. Ends with a line break.
Text AsText(const ErrorReport& report);

} // namespace kova::family
