#pragma once

#include <memory>
#include <string>

namespace kova::test {

/// As long as it lives, this process keeps what is temporary in a folder in which there is no room at all.
class FullTemporaryFolder {
public:
    FullTemporaryFolder();
    ~FullTemporaryFolder();
    FullTemporaryFolder(const FullTemporaryFolder&) = delete;
    FullTemporaryFolder& operator=(const FullTemporaryFolder&) = delete;

    /// As the system tells it.
    static std::string Place();

private:
    struct Former;
    std::unique_ptr<Former> former_;
};

} // namespace kova::test
