#pragma once

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
};

/// Moves the lines of all years up to `until` into the archive: into the file where the shop's is already,
/// else into `file`, or beside the shop's. They go from the shop only when they are in the archive and on the
/// disk; what was cut off between is gone on with the next time. A line of the audit tells of it. Fails with
/// a DatabaseFailure where the author is not the owner, where there is no place for the file, and where the
/// file is not this shop's archive; the shop is as it was then.
ArchivedYears ArchiveAudit(const std::string& source, int until, const std::optional<std::string>& file,
                           const Author& author, const LongWork& work);

/// Reads a shop's archive: the one in `file`, or where the shop says that it is, or beside it. Everything
/// that reads lines of the audit over a connection reads those of an archive as well (audit_lines.hpp). Null
/// where nothing was archived or the file is not to be found. Fails with a DatabaseFailure where a file that
/// was named cannot be read.
std::unique_ptr<Database> OpenArchive(Database& shop, const std::optional<std::string>& file = {});

} // namespace kova::family
