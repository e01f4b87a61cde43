#include "timetable/grid_measures.hpp"

#include <algorithm>

namespace kova::timetable {

QRect GridMeasures::Block(int column, family::PartOfDay part, Lane lane) const
{
    constexpr int Gap = 2, RoomForTheHand = 8;
    const int breadth = columnWidth - RoomForTheHand;
    const int left = breadth * lane.at / lane.of, right = breadth * (lane.at + 1) / lane.of;
    const int height = std::max(HeightOf(part.until) - HeightOf(part.from), lineHeight);
    const int top = std::min(Top(part.from), Top(MinutesOfDay) - height);
    return {Left(column) + left + 1, top + 1, right - left - Gap, height - Gap};
}

int GridMeasures::MinuteAt(int y) const
{
    return std::clamp((y - namesHeight) * step / lineHeight, 0, MinutesOfDay - 1);
}

int GridMeasures::ColumnAt(int x) const
{
    const int column = x < hoursWidth ? -1 : (x - hoursWidth) / columnWidth;
    return column < columns ? column : -1;
}

} // namespace kova::timetable
