#pragma once

#include "timetable/lanes.hpp"

#include <QRect>
#include <QSize>

namespace kova::timetable {

/// Where things lie on a timetable: hours downwards, columns beside each other, a strip of hours at the left
/// and one of names at the top. In logical pixels, from the upper left corner of the whole.
struct GridMeasures {
    static constexpr int MinutesOfDay = 24 * 60;

    /// Minutes of a line, and its height.
    int step = 15, lineHeight = 22;
    int columns = 0, columnWidth = 140;
    int hoursWidth = 52, namesHeight = 40;

    QSize Size() const { return {hoursWidth + columns * columnWidth, namesHeight + HeightOf(MinutesOfDay)}; }
    int HeightOf(int minutes) const { return minutes * lineHeight / step; }
    int Top(int minute) const { return namesHeight + HeightOf(minute); }
    int Left(int column) const { return hoursWidth + column * columnWidth; }
    QRect Part(int column, family::PartOfDay part) const
    {
        return {Left(column), Top(part.from), columnWidth, HeightOf(part.until) - HeightOf(part.from)};
    }
    /// Of a block in its lane: what is too short to be read is as high as a line, as far as the day goes.
    QRect Block(int column, family::PartOfDay part, Lane lane) const;
    /// The minute that lies at that height, from 0 up to, and without, the end of the day.
    int MinuteAt(int y) const;
    /// -1 where there is none.
    int ColumnAt(int x) const;
    /// The beginning of the line that holds the minute.
    int LineOf(int minute) const { return minute / step * step; }
};

} // namespace kova::timetable
