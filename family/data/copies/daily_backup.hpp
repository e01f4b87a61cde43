#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/long_work.hpp"

#include <string>

namespace kova::family {

/// How many of the daily copies stay.
inline constexpr std::size_t DailyBackupsKept = 14;

/// Name of a day's copy beside the database: "PATH.copia-yyyy-mm-dd.bak".
std::string DailyBackupName(const std::string& path, Date day);

/// Makes the copy of that day where it is not there yet, as BackUpDatabase, and removes all but the newest
/// ones; of other files only the rests of its own former attempts. Answers whether it made one: false also
/// while another program is at it, and for a server, which has copies of its own. Fails with a
/// DatabaseFailure.
bool MakeDailyBackup(const std::string& path, Date day, const LongWork& work);

} // namespace kova::family
