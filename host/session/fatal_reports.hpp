#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace kova::host {

/// Reports of the failures that have ended the program, in a folder beside the settings. They name versions
/// and places of the program, and nothing of a shop; nobody sends them anywhere.
class FatalReports {
public:
    explicit FatalReports(std::filesystem::path folder) : folder_(std::move(folder)) { }

    const std::filesystem::path& Folder() const { return folder_; }

    /// From now on a fault leaves one, which says of the source only whether it is a file or a server. Of
    /// those that are there the last ten stay. Where the folder cannot be made the program does without.
    void Begin(const std::string& source) const;

    /// Whether there is one that nobody has been told of, and none from then on.
    bool TakeNews() const;

private:
    std::filesystem::path folder_;
};

} // namespace kova::host
