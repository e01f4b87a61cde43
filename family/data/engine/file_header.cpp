#include "family/data/engine/file_header.hpp"

#include <soci/sqlite3/soci-sqlite3.h>

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace kova::family {

namespace {

constexpr std::string_view Header("SQLite format 3\0", 16);

/// A file that the engine's way to files has opened; its memory is the engine's.
class EngineFile {
public:
    explicit EngineFile(const std::string& path)
        : system_(sqlite_api::sqlite3_vfs_find(nullptr)),
          memory_(static_cast<std::size_t>(system_->szOsFile)),
          path_(static_cast<std::size_t>(system_->mxPathname) + 1)
    {
        constexpr int PrimaryCode = 0xff;
        // Also where a link led there, which the engine tells.
        const int named =
            system_->xFullPathname(system_, path.c_str(), system_->mxPathname, path_.data()) & PrimaryCode;
        if (named != SQLITE_OK)
            return;
        // The engine expects a second end behind a name.
        path_.resize(path_.size() + 1);
        isOpen_ =
            system_->xOpen(system_, path_.data(), File(), SQLITE_OPEN_READONLY | SQLITE_OPEN_MAIN_DB, nullptr)
            == SQLITE_OK;
    }
    ~EngineFile()
    {
        if (isOpen_)
            File()->pMethods->xClose(File());
    }
    EngineFile(const EngineFile&) = delete;
    EngineFile& operator=(const EngineFile&) = delete;

    bool Begins(std::string_view with)
    {
        std::string read(with.size(), ' ');
        return isOpen_
            && File()->pMethods->xRead(File(), read.data(), static_cast<int>(read.size()), 0) == SQLITE_OK
            && read == with;
    }

private:
    sqlite_api::sqlite3_file* File() { return reinterpret_cast<sqlite_api::sqlite3_file*>(memory_.data()); }

    sqlite_api::sqlite3_vfs* system_;
    std::vector<std::max_align_t> memory_;
    std::vector<char> path_;
    bool isOpen_ = false;
};

} // namespace

bool HasSqliteHeader(const std::string& path)
{
    sqlite_api::sqlite3_initialize();
    return EngineFile(path).Begins(Header);
}

} // namespace kova::family
