#include "family/data/audit/stamp.hpp"

#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"

namespace kova::family {

std::string StampOfLine(const Database& database, const Author& author)
{
    const std::string& onServer = database.ServersMoment();
    return author.isByComputersClock && !onServer.empty() ? onServer : author.moment;
}

std::string StampOfRow(const Database& database, const Author& author)
{
    return std::string(WithoutZone(StampOfLine(database, author)));
}

} // namespace kova::family
