#pragma once

#include "family/data/engine/server_client.hpp"

#include <optional>
#include <string>

/// A connection that leaves this computer is protected by TLS, and the server's certificate is checked,
/// unless the owner says otherwise in so many words: by "sslmode" in the address, or in the service file that
/// it names. Whoever listens on the way would read what customers have told, and could change it.
namespace kova::family {

/// Whether one of the hosts is not literally this computer: a socket of its own, "localhost", 127.x.x.x or
/// ::1. A name that leads back here counts as another computer. `complete` is ServerClient::Complete.
bool LeavesTheComputer(const AddressParts& complete);

/// What is added to a connection so that it is protected; nothing where it stays here, or where the owner
/// has said otherwise. `address` is ServerClient::Read.
AddressParts DemandedProtection(const AddressParts& address, const AddressParts& complete);

/// What to think of before one goes on where the owner wants less than that, in Portuguese; nothing where he
/// does not, where the address is a file's, or cannot be understood. Asks nobody; fails with a
/// DatabaseFailure where this installation cannot speak with servers.
std::optional<std::string> WarningOfAddress(const std::string& address);

/// Why a connection could not be protected, and what to do; the attempt ended there. `connection` is what was
/// tried, by keyword.
std::string WhyUnprotected(const ConnectionAttempt& attempt, const AddressParts& connection);

} // namespace kova::family
