#pragma once

#include "agenda/contracts/platform.hpp"

#include <string>

/// Wrong tries to sign in under a name, whoever has it or nobody: all desks of the shop wait after them.
namespace kova::family {

class Database;

/// Seconds since 1970 by the server's clock, or by the computer's where the data lie in a file of its own.
/// Fails with a DatabaseFailure.
long long SecondsNow(Database& database, const Clock& clock);

/// How long the next try has to wait behind the last of so many wrong ones: nothing before the third, 2
/// seconds behind it, twice as long behind each other one, and never more than five minutes.
long long WaitAfter(int wrong);

/// What is known of the tries under one name; see FindTries.
struct Tries {
    int wrong = 0;
    /// When the last wrong one was, in seconds since 1970.
    long long last = 0;

    /// Seconds before another one is looked at.
    long long WaitAt(long long now) const;
};

/// Those under the name of that digest, from then on nobody else's before the transaction that is open ends.
/// A last one that lies ahead was written while the clock was wrong, or the clock has been set back since: it
/// is written as one of now, so that it is waited for, and for no longer than any other. All four fail with a
/// DatabaseFailure.
Tries FindTries(Database& database, const std::string& digest, long long now);
/// One more wrong try. What is older than a day, of whatever name, is forgotten.
void CountWrongTry(Database& database, const std::string& digest, long long now);
/// A right one makes all before it forgotten.
void ForgetTries(Database& database, const std::string& digest);

/// "1 segundo", "2 minutos e 8 segundos"
std::string WordsOfWait(long long seconds);

} // namespace kova::family
