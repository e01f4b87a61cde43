#include "tests/support/little_memory.hpp"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

namespace kova::test {

struct LittleMemory::Former {
    rlimit limit{};
};

LittleMemory::LittleMemory() : former_(std::make_unique<Former>())
{
    constexpr rlim_t More = rlim_t{32} << 20U;
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    getrlimit(RLIMIT_AS, &former_->limit);
    const rlimit little{pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + More, former_->limit.rlim_max};
    setrlimit(RLIMIT_AS, &little);
}

LittleMemory::~LittleMemory() { setrlimit(RLIMIT_AS, &former_->limit); }

} // namespace kova::test
