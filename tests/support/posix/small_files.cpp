#include "tests/support/small_files.hpp"

#include <sys/resource.h>

#include <csignal>

namespace kova::test {

struct SmallFiles::Former {
    rlimit limit;
    void (*handler)(int);
};

SmallFiles::SmallFiles(std::uint64_t bytes) : former_(std::make_unique<Former>())
{
    getrlimit(RLIMIT_FSIZE, &former_->limit);
    former_->handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{bytes, former_->limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
}

SmallFiles::~SmallFiles()
{
    setrlimit(RLIMIT_FSIZE, &former_->limit);
    std::signal(SIGXFSZ, former_->handler);
}

} // namespace kova::test
