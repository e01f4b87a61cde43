#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

namespace kova::test {

/// As long as it lives, this process gets little more memory than it has: enough for what it does anyway, and
/// too little for what looks at a password or keeps one.
class LittleMemory {
public:
    LittleMemory()
    {
        constexpr rlim_t More = rlim_t{32} << 20U;
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        getrlimit(RLIMIT_AS, &former_);
        const rlimit little{pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + More, former_.rlim_max};
        setrlimit(RLIMIT_AS, &little);
    }
    ~LittleMemory() { setrlimit(RLIMIT_AS, &former_); }
    LittleMemory(const LittleMemory&) = delete;
    LittleMemory& operator=(const LittleMemory&) = delete;

    /// What is told of a password then.
    static constexpr const char* Told =
        "A memória do computador acabou, e sem ela uma senha não pode ser conferida nem guardada. "
        "Feche outros programas e tente novamente.";

private:
    rlimit former_{};
};

} // namespace kova::test
