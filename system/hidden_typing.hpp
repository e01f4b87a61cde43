#pragma once

#include <memory>

namespace kova::system {

/// Whether a person types what the program reads from its standard input, at a console.
bool IsInputTyped();

/// As long as one is there, the console shows nothing of what is typed. Without a console it does nothing.
class HiddenTyping {
public:
    HiddenTyping();
    ~HiddenTyping();
    HiddenTyping(const HiddenTyping&) = delete;
    HiddenTyping& operator=(const HiddenTyping&) = delete;

private:
    /// How the console was before; null where nothing was changed.
    struct Before;
    std::unique_ptr<Before> before_;
};

} // namespace kova::system
