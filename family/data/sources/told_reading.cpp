#include "family/data/sources/told_reading.hpp"

#include "family/data/engine/file_checks.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family {

void TellOfSource(const std::string& source, const std::function<void(Database&)>& tell)
{
    if (!IsServer(source) && (source.ends_with(".bak") || !MayWriteDatabase(source)))
        return;
    const std::shared_ptr<Database> database = OpenDatabase(source);
    WriteSafely(*database, [&] {
        tell(*database);
        return true;
    });
}

} // namespace kova::family
