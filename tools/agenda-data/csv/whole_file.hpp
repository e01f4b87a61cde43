#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace kova::data {

/// A new file that gets its name only when it is whole. Until then it stands beside it under the name
/// "PATH.parcial"; what is not finished leaves nothing behind. Everything throws std::runtime_error, in
/// Portuguese with the path and what to do.
class WholeFile {
public:
    /// Refused where anything stands at the path already.
    explicit WholeFile(std::string path);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view bytes);
    /// Waits until the disk has it, then gives it its name. What came to stand there meanwhile stays.
    void Finish();

private:
    [[noreturn]] void Fail(int cause) const;

    std::string path_, unfinished_;
    std::FILE* file_ = nullptr;
};

} // namespace kova::data
