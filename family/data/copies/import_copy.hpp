#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/long_work.hpp"

#include <string>

namespace kova::family {

/// How many of the copies that imports make stay.
inline constexpr std::size_t ImportCopiesKept = 5;

/// Copies a database file beside itself, as BackUpDatabase, before a file of records goes into it:
/// "PATH.antes-da-importacao-yyyy-mm-dd-hhmmss.bak", with "-02", "-03"... behind the second where several
/// begin in it. Removes all but the newest ones; of other files only the rests of former attempts. Answers
/// the copy's name; "" for a server, which has copies of its own. Fails with a DatabaseFailure, and leaves
/// the former ones then.
std::string CopyBeforeImport(const std::string& path, DateTime moment, const LongWork& work);

} // namespace kova::family
