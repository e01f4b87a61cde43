#pragma once

#include "family/data/audit/audit.hpp"
#include "family/data/audit/code_ranges.hpp"

#include <optional>
#include <string>
#include <vector>

namespace kova::family {

class Database;

/// In the place of a table where a line is about lines that went into an archive; its key is the place of the
/// last archived link.
inline constexpr const char* ArchiveTable = "auditoria";

/// What the shop knows of the lines of its audit that are in the archive, from the first of all on. The last
/// archived link stays in the shop, without its line: its chain goes on from there.
struct ArchivedPart {
    /// The last archived link, and its place.
    Key order = 0;
    std::string link;
    /// The last year of which the archive has lines.
    int until = 0;
    std::string file;
    /// The codes of all archived lines.
    std::string lines;
    /// The number of the last archived import; 0 where there is none.
    Key lastImport = 0;
    /// The code of the line that tells it.
    Key code = 0;
};

/// What the newest line about an archive tells; nothing where nothing was archived. Fails as Database::With.
std::optional<ArchivedPart> LastArchived(Database& database);

/// Writes such a line in the transaction that is open. Fails as Database::With.
void AuditArchiving(Database& database, const Author& author, const ArchivedPart& part);

/// "A auditoria até 2024 está em um arquivo à parte (\"...\")."; empty where nothing was archived.
std::string ToldArchive(Database& database);

} // namespace kova::family
