#include "family/data/engine/unfinished_file.hpp"

#include "family/data/engine/file_checks.hpp"
#include "system/flush.hpp"
#include "system/path_text.hpp"
#include "system/rename.hpp"

namespace kova::family {

namespace {

namespace fs = std::filesystem;

/// With the log files that the engine may have put beside it. What cannot be removed stays.
void RemoveUnfinished(const std::string& path)
{
    std::error_code ignored;
    for (const char* companion : {"", "-wal", "-shm", "-journal"})
        fs::remove(system::PathOf(UnfinishedName(path) + companion), ignored);
}

} // namespace

std::string UnfinishedName(const std::string& path) { return path + ".parcial"; }

UnfinishedFile::UnfinishedFile(std::string path) : path_(std::move(path)), name_(UnfinishedName(path_))
{
    if (const auto refusal = CheckNewFile(path_))
        throw DatabaseFailure(*refusal);
    RemoveAbandoned(path_);
    std::error_code cause;
    lock_ = system::FileLock::Try(name_, system::FileLock::Missing::Make, cause);
    if (lock_.IsHeld())
        return;
    if (cause == std::errc::resource_unavailable_try_again)
        throw DatabaseFailure("O arquivo \"" + path_
                              + "\" está sendo feito por outro programa. Espere que ele termine.");
    throw UnwritableFile(path_, cause);
}

UnfinishedFile::~UnfinishedFile()
{
    if (!finished_)
        RemoveUnfinished(path_);
}

void UnfinishedFile::Finish()
{
    try {
        system::FlushFile(name_);
        system::RenameWithoutReplacing(name_, path_);
        system::FlushFolder(system::TextOf(system::PathOf(path_).parent_path()));
    } catch (const fs::filesystem_error& cause) {
        throw UnwritableFile(path_, cause.code());
    }
    finished_ = true;
}

bool RemoveAbandoned(const std::string& path)
{
    std::error_code cause;
    const system::FileLock lock =
        system::FileLock::Try(UnfinishedName(path), system::FileLock::Missing::Fail, cause);
    if (!lock.IsHeld())
        return cause == std::errc::resource_unavailable_try_again;
    RemoveUnfinished(path);
    return false;
}

} // namespace kova::family
