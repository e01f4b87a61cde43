#pragma once

#include <string>

namespace kova::test {

/// As long as it lives, whoever of this program asks the system about the file system of a path below the
/// folder is told that it is of that kind, by the system's number of it.
class NetworkDisk {
public:
    static constexpr long Nfs = 0x6969;

    explicit NetworkDisk(const std::string& folder, long kind = Nfs);
    ~NetworkDisk();
    NetworkDisk(const NetworkDisk&) = delete;
    NetworkDisk& operator=(const NetworkDisk&) = delete;
};

} // namespace kova::test
