#pragma once

#include <unistd.h>

#include <cstdlib>

namespace kova::test {

/// Gives up the rights of the superuser for a while, for whom no folder is closed.
class OrdinaryRights {
public:
    OrdinaryRights() : given_(geteuid() == 0 && seteuid(65534) == 0) { }
    ~OrdinaryRights()
    {
        if (given_ && seteuid(0) != 0)
            std::abort();
    }
    OrdinaryRights(const OrdinaryRights&) = delete;
    OrdinaryRights& operator=(const OrdinaryRights&) = delete;

private:
    bool given_;
};

} // namespace kova::test
