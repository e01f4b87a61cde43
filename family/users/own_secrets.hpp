#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/users/accounts.hpp"

namespace kova::family {

/// What somebody changes of his own.
struct OwnSecrets {
    /// Null leaves it as it is.
    const Secret* password = nullptr;
    const Secret* pin = nullptr;
    /// From then on there is no PIN.
    bool removesPin = false;
};

/// Has the author, who needs no right for it, bear another password or PIN, once `current` has proved to be
/// his password. Wrong ones slow down those behind them as they do at signing in, and stand in the audit. In
/// a transaction of its own; fails as SetPassword.
AccountAnswer ChangeOwnSecrets(Database& database, const Secret& current, const OwnSecrets& wanted,
                               const Author& author, const Clock& clock,
                               const PasswordCost& cost = FrontDeskCost);

} // namespace kova::family
