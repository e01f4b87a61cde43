#pragma once

#include "family/data/audit/audit.hpp"

#include <string>
#include <vector>

namespace kova::family {

class Database;

/// A row of the audit's chain (family/data/migrations/chained_audit.hpp).
struct LinkRow {
    static constexpr const char* Table = "elo_da_auditoria";
    /// The place in the chain.
    Key ordem = 0;
    Key codigoDaLinha = 0;
    std::string sal, elo;

    template <class Visit> void Columns(Visit visit)
    {
        visit("ordem", ordem);
        visit("codigo_da_linha", codigoDaLinha);
        visit("sal", sal);
        visit("elo", elo);
    }
};

/// A line about something that is done with the shop as a whole; `table` stands in a table's place.
AuditRow EventOf(const Database& database, const Author& author, const char* table, Key key,
                 const char* operation, const AuditValues& what);

/// Writes a new line of the audit and its link, in the transaction that is open; a server writes the link by
/// itself when the transaction is kept. Fails as Database::With.
void AddLine(Database& database, const AuditRow& row);
/// Many of them, in their order, with few statements.
void AddLines(Database& database, std::vector<AuditRow> rows);

/// The same for a line whose texts were replaced in the transaction that is open. Of its former links the
/// salts go: by them could be found out what it told before.
void LinkAnew(Database& database, Key code);

/// The same for a line that lies in the shop's archive, as it is now: its further link is the shop's. To be
/// run as the last thing before the line that names it, since desks of a server wait from then on.
void LinkArchivedAnew(Database& shop, const AuditRow& line);
/// Takes the salts from all links of a line.
void RemoveSalts(Database& database, Key code);

/// Whether lines of the audit may be replaced over this connection; on a server its owner alone should. Fails
/// with a DatabaseFailure.
bool MayRewriteAudit(Database& database);

} // namespace kova::family
