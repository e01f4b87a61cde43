#pragma once

#include <cstdint>
#include <memory>

namespace kova::test {

/// As long as it lives, no file of this process can grow beyond so many bytes: to whoever writes, the disk is
/// full.
class SmallFiles {
public:
    explicit SmallFiles(std::uint64_t bytes);
    ~SmallFiles();
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;

private:
    struct Former;
    std::unique_ptr<Former> former_;
};

} // namespace kova::test
