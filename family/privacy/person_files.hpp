#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/engine/key.hpp"
#include "family/data/engine/long_work.hpp"

#include <string>

namespace kova::family::privacy {

/// The two files of an export.
struct PersonFiles {
    std::string page, json;
};

/// Writes everything that the shop at `source` holds about a customer into two new files in a folder that is
/// there: "cliente-CODE.html" to be read and printed, and "cliente-CODE.json". Both are readable by their
/// owner only, and there are both or none. Fails with a DatabaseFailure, also where no customer has that
/// code, where the customer is one with another now, or where one of the files is there already, and with
/// RightDenied where the author may not export.
PersonFiles ExportPerson(const std::string& source, Key code, const std::string& folder, const Author& author,
                         DateTime now, const LongWork& work);

} // namespace kova::family::privacy
