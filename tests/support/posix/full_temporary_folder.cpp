#include "tests/support/full_temporary_folder.hpp"

#include "tests/support/environment_variable.hpp"

namespace kova::test {

/// What lies there takes no room, and there is none.
struct FullTemporaryFolder::Former {
    EnvironmentVariable folder{"TMPDIR", Place()};
};

FullTemporaryFolder::FullTemporaryFolder() : former_(std::make_unique<Former>()) { }

FullTemporaryFolder::~FullTemporaryFolder() = default;

std::string FullTemporaryFolder::Place() { return "/proc"; }

} // namespace kova::test
