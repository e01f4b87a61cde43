#pragma once

#include "family/data/audit/author.hpp"
#include "family/users/passwords.hpp"
#include "family/users/rights.hpp"
#include "family/users/user_names.hpp"

/// Users, their secrets and their roles, as those who administer them write them. Each runs in a transaction
/// of its own, as WriteSafely, asks for the right to (RightDenied, whose line stands in the audit then),
/// leaves its line in the audit, which never tells a secret, and is refused where nobody could administer the
/// users after it. All desks that write users or registers wait for each other. They fail with a
/// DatabaseFailure.
namespace kova::family {

class Database;

struct Account {
    /// 0 of a new one.
    Key code = 0;
    std::string name;
    /// 0 of one who cannot sign in.
    Key role = 0;
    bool isActive = true;
};

struct Role {
    /// 0 of a new one.
    Key code = 0;
    std::string name;
    Rights rights;
};

struct AccountAnswer {
    bool IsDone() const { return why.empty(); }

    /// Of the row that was written.
    Key code = 0;
    /// Sentences; nothing was written then.
    std::string why{};
};

/// Writes a user, with a new password where one is given. Refused without a name, with one that another user
/// who has a role bears too (FoldUserName), and with a password that will not do.
AccountAnswer SaveAccount(Database& database, const Account& account, const Secret* password,
                          const Author& author, const PasswordCost& cost = FrontDeskCost);

/// Gives a user another password. Whoever has tried wrong ones need not wait any longer.
AccountAnswer SetPassword(Database& database, Key user, const Secret& password, const Author& author,
                          const PasswordCost& cost = FrontDeskCost);

/// The same of the PIN; without one the user has none from then on.
AccountAnswer SetPin(Database& database, Key user, const Secret* pin, const Author& author,
                     const PasswordCost& cost = FrontDeskCost);

/// Writes a role with its rights; a right that this program does not know stays. Refused without a name, and
/// with one that another role bears too.
AccountAnswer SaveRole(Database& database, const Role& role, const Author& author);

} // namespace kova::family
