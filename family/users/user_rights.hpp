#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/users/rights.hpp"

#include <map>
#include <string>

namespace kova::family {

class Database;

/// Somebody wants what he has no right to. Its text says so and whom to ask.
class RightDenied : public DatabaseFailure {
public:
    RightDenied(Right right, std::string text) : DatabaseFailure(std::move(text)), right_(right) { }

    Right DeniedRight() const { return right_; }

private:
    Right right_;
};

/// Whether the shop has users at all: somebody active with a role. Where it has none everybody may do
/// everything, as in a shop that was made before there were users.
bool HasUsers(Database& database);

/// Whether the user of that code is active and has a role.
bool IsUser(Database& database, Key user);

/// What the user of that code may do: all of it in a shop without users, nothing for the code of nobody who
/// is active and has a role.
Rights RightsOf(Database& database, Key user);

/// Why the author may not do it, as sentences; empty where he may: "Recepção não pode excluir agendamentos.
/// Peça a quem administra os usuários."
std::string WhyDenied(Database& database, const Author& author, Right right);

/// The same of every right that the author lacks.
using DeniedRights = std::map<Right, std::string>;
DeniedRights DeniedRightsOf(Database& database, const Author& author);

/// Why that one is denied; empty where it is not.
inline std::string WhyOf(const DeniedRights& denied, Right right)
{
    const auto found = denied.find(right);
    return found == denied.end() ? std::string() : found->second;
}

/// Fails with RightDenied where the author may not do it.
void RequireRight(Database& database, const Author& author, Right right);

/// All of them go by what stood there when the writing transaction that is open began, or by what stands
/// there now where none is; it stays in memory with the connection until a change of it is counted. A
/// transaction that changes who may do what asks before it does. They fail as Database::With.

} // namespace kova::family
