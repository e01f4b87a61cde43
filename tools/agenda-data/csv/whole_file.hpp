#pragma once

#include "family/data/unfinished_file.hpp"

#include <cstdio>
#include <string>
#include <string_view>

namespace kova::data {

/// A new file that gets its name only when it is whole; what is not finished leaves nothing behind.
/// Everything fails with a family::StoreFailure.
class WholeFile {
public:
    /// Refused where anything stands at the path already, or another program is making it.
    explicit WholeFile(const std::string& path);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view bytes);
    /// Waits until the disk has it, then gives it its name. What came to stand there meanwhile stays.
    void Finish();

private:
    family::UnfinishedFile place_;
    std::FILE* file_ = nullptr;
};

} // namespace kova::data
