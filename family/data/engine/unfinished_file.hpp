#pragma once

#include "family/data/engine/database_failure.hpp"
#include "system/file_lock.hpp"

#include <string>

namespace kova::family {

/// Where a file is made before it gets its name: "PATH.parcial".
std::string UnfinishedName(const std::string& path);

/// The place where one program makes a file, as long as the object lives; what was not finished by then is
/// removed. Where the program is killed the rest of its attempt stays, which the next attempt removes.
class UnfinishedFile {
public:
    /// An empty file at UnfinishedName. Fails with a DatabaseFailure where the file cannot be made at
    /// `path`, or another program is just making it.
    explicit UnfinishedFile(std::string path);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    /// The name it is to have.
    const std::string& Path() const { return path_; }
    /// The place.
    const std::string& Name() const { return name_; }
    /// Gives the file its name, once its content and then the name itself are on the disk. Never replaces a
    /// file. Fails with a DatabaseFailure.
    void Finish();

private:
    std::string path_;
    std::string name_;
    system::FileLock lock_;
    bool finished_ = false;
};

/// Removes what is left of an attempt to make the file, unless a program is still at it. Answers whether
/// one is.
bool RemoveAbandoned(const std::string& path);

} // namespace kova::family
