#include "family/data/sources/online_copy.hpp"

#include <soci/sqlite3/soci-sqlite3.h>

namespace kova::family {

namespace {

using sqlite_api::sqlite3;

/// Between two of them others are let through, progress is told and a stop is heard.
constexpr int PagesAtOnce = 2000;
/// How many instructions of the engine pass between two looks whether to stop.
constexpr int InstructionsAtOnce = 100'000;

sqlite3* HandleOf(Database& database)
{
    return static_cast<soci::sqlite3_session_backend*>(database.Session().get_backend())->conn_;
}

/// The file that is written, through the engine's own interface.
class CopyTarget {
public:
    explicit CopyTarget(const std::string& path)
    {
        const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
        const int result = sqlite_api::sqlite3_open_v2(path.c_str(), &handle_, flags, nullptr);
        if (result != SQLITE_OK) {
            const std::string reason = Reason();
            sqlite_api::sqlite3_close(handle_);
            throw soci::sqlite3_soci_error(reason, result);
        }
    }
    ~CopyTarget() { sqlite_api::sqlite3_close(handle_); }
    CopyTarget(const CopyTarget&) = delete;
    CopyTarget& operator=(const CopyTarget&) = delete;

    sqlite3* Handle() const { return handle_; }

    void Run(const char* statement)
    {
        if (sqlite_api::sqlite3_exec(handle_, statement, nullptr, nullptr, nullptr) != SQLITE_OK)
            Fail();
    }
    [[noreturn]] void Fail() const
    {
        throw soci::sqlite3_soci_error(Reason(), sqlite_api::sqlite3_errcode(handle_));
    }

private:
    std::string Reason() const { return sqlite_api::sqlite3_errmsg(handle_); }

    sqlite3* handle_ = nullptr;
};

/// The copying of the pages that the source's open transaction sees.
class PageCopy {
public:
    PageCopy(Database& source, CopyTarget& target)
        : target_(target),
          copy_(sqlite_api::sqlite3_backup_init(target.Handle(), "main", HandleOf(source), "main"))
    {
        if (copy_ == nullptr)
            target_.Fail();
    }
    ~PageCopy() { sqlite_api::sqlite3_backup_finish(copy_); }
    PageCopy(const PageCopy&) = delete;
    PageCopy& operator=(const PageCopy&) = delete;

    /// Answers whether there is more to do.
    bool Go(const LongWork& work)
    {
        const int result = sqlite_api::sqlite3_backup_step(copy_, PagesAtOnce);
        if (result != SQLITE_OK && result != SQLITE_DONE)
            throw soci::sqlite3_soci_error(sqlite_api::sqlite3_errstr(result), result);
        const int total = sqlite_api::sqlite3_backup_pagecount(copy_);
        if (result != SQLITE_DONE)
            work.Reach(total - sqlite_api::sqlite3_backup_remaining(copy_), total);
        return result != SQLITE_DONE;
    }

    int Pages() const { return sqlite_api::sqlite3_backup_pagecount(copy_); }

private:
    CopyTarget& target_;
    sqlite_api::sqlite3_backup* copy_;
};

void CopyPages(Database& source, const std::string& path, const LongWork& work)
{
    CopyTarget target(path);
    target.Run("pragma journal_mode = off");
    target.Run("pragma synchronous = off");
    int pages = 0;
    {
        PageCopy copy(source, target);
        while (copy.Go(work))
            work.RequireGoingOn();
        pages = copy.Pages();
    }
    // The pages say that changes stand in a log beside the file; none do.
    target.Run("pragma journal_mode = delete");
    work.Reach(pages, pages);
    work.RequireGoingOn();
}

int WhetherToStop(void* stop) { return static_cast<const std::stop_token*>(stop)->stop_requested() ? 1 : 0; }

} // namespace

std::vector<TableCount> CopyOnline(Database& source, const std::string& path, const LongWork& work)
{
    try {
        const soci::transaction snapshot(source.Session());
        // The first row read makes the moment.
        std::vector<TableCount> counts = CountRows(source);
        CopyPages(source, path, work);
        return counts;
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(path, cause);
    }
}

InterruptOnStop::InterruptOnStop(Database& database, const std::stop_token& stop)
    : database_(database), stop_(stop)
{
    sqlite_api::sqlite3_progress_handler(HandleOf(database_), InstructionsAtOnce, WhetherToStop, &stop_);
}

InterruptOnStop::~InterruptOnStop()
{
    sqlite_api::sqlite3_progress_handler(HandleOf(database_), 0, nullptr, nullptr);
}

} // namespace kova::family
