#pragma once

#include <windows.h>

#include <vector>

namespace kova::test {

/// As long as it lives, the program and every library that is loaded now reach another function where they
/// ask for the system's of that name.
class ReplacedCall {
public:
    ReplacedCall(const char* name, void* replacement);
    ~ReplacedCall();
    ReplacedCall(const ReplacedCall&) = delete;
    ReplacedCall& operator=(const ReplacedCall&) = delete;

private:
    /// Where a library keeps the address that it calls.
    struct Place {
        void** address;
        void* former;
    };

    void ReplaceIn(HMODULE library, const char* name, void* replacement);

    std::vector<Place> places_;
};

} // namespace kova::test
