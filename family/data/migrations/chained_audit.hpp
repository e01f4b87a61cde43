#pragma once

#include "family/data/engine/dialect.hpp"

#include <soci/soci.h>

#include <string>
#include <vector>

/// The chain of the audit, elo_da_auditoria: for each line of `auditoria` a link (LinkOf) that holds it and
/// the link before it. In a file a link is written with its line (family/data/audit/audit_chain.hpp); a
/// server links by itself what a transaction has written, as the last thing before it is kept, so that desks
/// wait for each other no longer than that takes. All of these fail with soci::soci_error.
namespace kova::family {

/// Its table, and on a server what links new and changed lines from then on, with the rights of the schema's
/// owner: who writes a line cannot write its link.
std::vector<std::string> ChainAudit(const Dialect& dialect);

/// From then on links have LinkLetters, and only those that stand elsewhere than at the place of their line's
/// code are found by an index: of the others the place is known.
std::vector<std::string> ShortenLinks(const Dialect& dialect);

/// Links the lines that are there and have no link, in the order of their codes. For a database without
/// links.
void ChainLines(soci::session& session, const Dialect& dialect);

/// From now on, until HoldChain, lines come with links of their own, in the transaction that is open.
void LiftChain(soci::session& session, const Dialect& dialect);
void HoldChain(soci::session& session, const Dialect& dialect);

} // namespace kova::family
