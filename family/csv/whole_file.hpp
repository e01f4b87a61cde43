#pragma once

#include "family/data/engine/unfinished_file.hpp"

#include <fstream>
#include <string>
#include <string_view>

namespace kova::family::csv {

/// A new file that gets its name only when it is whole; what is not finished leaves nothing behind.
/// Everything fails with a family::DatabaseFailure.
class WholeFile {
public:
    /// Refused where anything stands at the path already, or another program is making it.
    explicit WholeFile(const std::string& path);

    void Write(std::string_view bytes);
    /// Waits until the disk has it, then gives it its name. What came to stand there meanwhile stays.
    void Finish();

private:
    family::UnfinishedFile place_;
    std::ofstream file_;
};

} // namespace kova::family::csv
