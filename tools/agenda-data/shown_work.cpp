#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

family::LongWork ShownWork(std::ostream& output, const std::string& what)
{
    family::LongWork work;
    work.progress = [&output, what, told = std::shared_ptr<Progress>()](long long done,
                                                                        long long total) mutable {
        if (!told)
            told = std::make_shared<Progress>(output, what, total);
        told->Reach(done);
    };
    return work;
}

family::LongWork LongWorkOf(std::ostream& output, const std::string& what, long long withoutProgress)
{
    family::LongWork work = ShownWork(output, what);
    work.progress = [tell = work.progress, withoutProgress](long long done, long long total) {
        if (total > withoutProgress)
            tell(done, total);
    };
    return work;
}

void WriteCounts(std::ostream& output, const std::vector<family::TableCount>& counts)
{
    for (const family::TableCount& table : counts)
        output << table.name << ": " << table.rows << "\n";
}

} // namespace kova::data
