#pragma once

#include <memory>

namespace kova::test {

/// As long as it lives, this process gets little more memory than it has: enough for what it does anyway, and
/// too little for what looks at a password or keeps one.
class LittleMemory {
public:
    LittleMemory();
    ~LittleMemory();
    LittleMemory(const LittleMemory&) = delete;
    LittleMemory& operator=(const LittleMemory&) = delete;

    /// What is told of a password then.
    static constexpr const char* Told =
        "A memória do computador acabou, e sem ela uma senha não pode ser conferida nem guardada. "
        "Feche outros programas e tente novamente.";

private:
    struct Former;
    std::unique_ptr<Former> former_;
};

} // namespace kova::test
