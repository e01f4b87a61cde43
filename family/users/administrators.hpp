#pragma once

#include "family/data/engine/key.hpp"

#include <string>

/// Somebody has to be able to administer the users of a shop that has some: somebody active who has the right
/// to, by the role, and a password to sign in with. All of it is asked of what is stored now, and fails with
/// a DatabaseFailure.
namespace kova::family {

class Database;

bool HasAdministrator(Database& database);
/// Beside that user; beside those who have that role.
bool HasAdministratorBesideUser(Database& database, Key user);
bool HasAdministratorBesideRole(Database& database, Key role);
/// Whether that user would be one, being active, in that role.
bool CouldAdminister(Database& database, Key user, Key role);

/// Why what the transaction that is open has written cannot stay, as sentences: nobody administers the users
/// any more, or nobody ever did of those who have a role. `had` is HasAdministrator before. Empty where it
/// can.
std::string WhyNobodyAdministers(Database& database, bool had);

/// The same two, of one who would be the last, and of one who would be the first.
inline constexpr const char* LastAdministrator = "Ninguém mais poderia administrar os usuários desta loja. "
                                                 "Antes dê a outro usuário ativo, com senha, um papel"
                                                 " que administra os usuários.";
inline constexpr const char* FirstAdministrator =
    "O primeiro usuário com um papel precisa poder administrar os usuários e ter uma senha. Escolha o papel"
    " Administração e defina a senha.";

} // namespace kova::family
