#include "tests/support/network_disk.hpp"

#include "tests/support/windows/replaced_call.hpp"

#include <memory>

namespace kova::test {

namespace {

std::unique_ptr<ReplacedCall> replaced;

UINT TellRemote(LPCWSTR) { return DRIVE_REMOTE; }

} // namespace

/// Of a path only its drive is asked about here, so that all of them answer so.
NetworkDisk::NetworkDisk(const std::string&, long)
{
    replaced = std::make_unique<ReplacedCall>("GetDriveTypeW", reinterpret_cast<void*>(&TellRemote));
}

NetworkDisk::~NetworkDisk() { replaced.reset(); }

} // namespace kova::test
