#pragma once

#include "family/data/engine/database_failure.hpp"

#include <optional>
#include <string>

namespace kova::family {

/// Whether a data source is a database server ("postgresql://...") and not a file. What is written like an
/// address in any way counts as one, also where CheckAddress refuses it: a file of such a name is told by a
/// folder before it, "./host=...". The only one here that does not need the client library: the others fail
/// with a DatabaseFailure where this installation lacks it.
bool IsServer(const std::string& source);

/// Why a server's address cannot be used, in Portuguese; nothing where it can. Asks nobody. The text never
/// repeats a password.
std::optional<std::string> CheckAddress(const std::string& address);

/// The address as the client library is given it, with what it leaves open: waits that end when the server or
/// the network is gone, the name of this program, the encoding of its texts, and the protection of a
/// connection that leaves this computer (server_protection.hpp).
std::string ConnectionTo(const std::string& address);

/// Asks the server once more, to find out why it let nobody in. `cause` is what was reported at first.
DatabaseFailure RefusalOfServer(const std::string& address, const std::string& connection,
                                const std::runtime_error& cause);

} // namespace kova::family
