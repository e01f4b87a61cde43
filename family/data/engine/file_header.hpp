#pragma once

#include <string>

namespace kova::family {

/// Whether a file begins as an SQLite database does. It is read through the engine: on some systems a program
/// that closes a file loses all its locks on it, those of its open connections among them, and another
/// program would then take the log from under them. The engine closes what it opened when no lock is left.
bool HasSqliteHeader(const std::string& path);

} // namespace kova::family
