#pragma once

#include "family/data/archive/archive_file.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/long_work.hpp"

#include <memory>
#include <optional>
#include <string>

/// Old lines of a shop's audit, with their links, in a file of their own: an SQLite file with the tables
/// `auditoria` and `elo_da_auditoria` as the shop has them, from the first line of all on. A shop has one
/// archive, which grows; its own chain goes on behind the archive's last link.
namespace kova::family {

/// Where the archive of a shop's file lies unless it is told otherwise.
std::string ArchiveBeside(const std::string& source);

struct ArchivedYears {
    /// Lines that went into the archive now; 0 where there were none of those years.
    long long lines = 0;
    std::string file;
    /// Lines of those years that stay, because they were written behind one of a later year.
    long long left = 0;
    /// What the shop's file takes on the disk before and after; 0 where it was left as it is.
    long long bytesBefore = 0, bytesAfter = 0;
    /// Why a file has not become smaller, a sentence; else empty.
    std::string whyNotSmaller{};
};

/// Moves the lines of all years up to `until` into the archive: into the file where the shop's is already,
/// else into `file`, or beside the shop's. They go from the shop only when they are in the archive and on the
/// disk; what was cut off between is gone on with the next time. A line of the audit tells of it. Fails with
/// a DatabaseFailure where the author is not the owner, where there is no place for the file, and where the
/// file is not this shop's archive; the shop is as it was then. At last the file of a shop gives back the
/// room that they took.
ArchivedYears ArchiveAudit(const std::string& source, int until, const std::optional<std::string>& file,
                           const Author& author, const LongWork& work);

/// Where the shop's archive is: `file`, or where the shop says, or beside it. Empty where nothing was
/// archived or the file is not to be found. Fails with a DatabaseFailure where a file that was named is not
/// there.
std::string PlaceOfArchive(Database& shop, const std::optional<std::string>& file = {});

/// Reads the archive that is there. Everything that reads lines of the audit over a connection reads those of
/// an archive as well (audit_lines.hpp). Null where there is none. Fails with a DatabaseFailure, a sentence,
/// where the file cannot be read, is none of an audit or not the shop's.
std::unique_ptr<Database> OpenArchive(Database& shop, const std::optional<std::string>& file = {});

/// The same, ready to be searched as the shop is: an archive of a former program becomes so where it can be
/// written.
std::unique_ptr<Database> OpenSearchableArchive(Database& shop, const std::optional<std::string>& file = {});

/// The same, to be cleaned.
std::unique_ptr<ArchiveFile> OpenArchiveForWriting(Database& shop,
                                                   const std::optional<std::string>& file = {});

} // namespace kova::family
