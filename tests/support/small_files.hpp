#pragma once

#include <sys/resource.h>

#include <csignal>

namespace kova::test {

/// As long as it lives, no file of this process can grow beyond so many bytes: to whoever writes, the disk is
/// full.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &former_);
        formerHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{bytes, former_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &former_);
        std::signal(SIGXFSZ, formerHandler_);
    }
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    rlimit former_{};
    void (*formerHandler_)(int) = nullptr;
};

} // namespace kova::test
