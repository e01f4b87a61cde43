#include "timetable/lanes.hpp"

#include <algorithm>

namespace kova::timetable {

std::vector<Lane> LanesOf(const std::vector<family::PartOfDay>& parts)
{
    std::vector<Lane> lanes(parts.size());
    // Of the group that is being laid out: where each lane ends, and where all have ended.
    std::vector<int> ends;
    int groupEnd = 0;
    std::size_t groupBegin = 0;
    const auto closeGroup = [&](std::size_t until) {
        for (std::size_t at = groupBegin; at < until; ++at)
            lanes[at].of = static_cast<int>(ends.size());
        groupBegin = until;
        ends.clear();
    };
    for (std::size_t at = 0; at < parts.size(); ++at) {
        if (parts[at].from >= groupEnd)
            closeGroup(at);
        auto lane = std::ranges::find_if(ends, [&](int end) { return end <= parts[at].from; });
        if (lane == ends.end())
            lane = ends.insert(lane, 0);
        *lane = parts[at].until;
        lanes[at].at = static_cast<int>(lane - ends.begin());
        groupEnd = std::max(groupEnd, parts[at].until);
    }
    closeGroup(parts.size());
    return lanes;
}

} // namespace kova::timetable
