#pragma once

#include "family/users/sign_in.hpp"

#include <string>

/// A shop of one person need not ask at a computer that keeps a token of him. It is made of what the data
/// keep of the password and says nothing about it: whoever has one has read the data, which on a file is all
/// that a password holds off anyway. It ends with that password, and with a second user.
namespace kova::family {

class Database;

/// What this computer may keep of the user of that code; "" where somebody else enters too, or he has no
/// password. Fails as Database::With.
std::string SignInToken(Database& database, Key user);

/// Lets in whoever that token is of, with a line in the audit. Otherwise nobody is let in and nothing
/// is counted: Wrong, without a text. Fails as SignIn.
SignInAnswer SignInByToken(Database& database, const std::string& token, const Clock& clock);

} // namespace kova::family
