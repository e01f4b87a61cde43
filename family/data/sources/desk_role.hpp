#pragma once

#include <string>
#include <vector>

namespace kova::family {

/// The statements that give a role of a server what a desk needs of the agenda's tables at `address`, and
/// take from it what it has beyond that: it reads the audit and adds to it, and nobody but the owner of the
/// tables changes what is stored there. To be run by that owner. Fails with a DatabaseFailure, also where the
/// role owns the tables, or may do what their owner may, so that nothing could be kept from it.
std::vector<std::string> StatementsForDesks(const std::string& address, const std::string& role);

/// Runs them, all or none. Fails with a DatabaseFailure where there is no such role, or where the connection
/// is not the owner's.
void GiveToDesks(const std::string& address, const std::string& role);

} // namespace kova::family
