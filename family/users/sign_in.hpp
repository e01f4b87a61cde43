#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/data/engine/key.hpp"
#include "family/users/passwords.hpp"
#include "family/users/rights.hpp"

#include <string>

namespace kova::family {

class Database;

/// Somebody who wants to sign in.
struct SignInTry {
    /// As it was typed; case and accents do not count.
    std::string name;
    const Secret& secret;
    /// What the secret is: at a desk where places are changed it may be either.
    enum class Kind { Password, Pin, Either } kind = Kind::Password;
};

/// What a try to sign in answers, technical failures aside.
struct SignInAnswer {
    enum class Outcome {
        Done,
        /// The name or the secret is wrong, or the user has no such secret.
        Wrong,
        /// Too many were wrong before: this one was not looked at.
        Wait,
        /// The secret is right, and the user inactive.
        Inactive,
    };

    bool IsDone() const { return outcome == Outcome::Done; }

    Outcome outcome = Outcome::Done;
    /// Why not, as sentences.
    std::string text{};
    /// Seconds before another try is looked at.
    long long wait = 0;

    // Who it is, on Done.
    Key code = 0;
    std::string name{}, role{};
    Rights rights{};
};

/// Looks whether the secret is that of the user who is called so. Wrong tries slow down those behind them, at
/// all desks: the data tell how many there were and when, a server by its own clock. A name of nobody costs
/// as much time and waits as long as that of a user. Who has signed in, and who was refused, stands in the
/// audit. A secret that was kept at another cost is kept anew. In a transaction of its own, as WriteSafely;
/// fails with a DatabaseFailure, and with 7 where there is not the memory that the cost wants.
SignInAnswer SignIn(Database& database, const SignInTry& wanted, const Clock& clock,
                    const PasswordCost& cost = FrontDeskCost);

} // namespace kova::family
