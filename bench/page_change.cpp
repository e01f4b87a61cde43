// Page change and hover of the real list against a bare table view that paints the same cells.
// Usage: bench_page_change DATABASE dd/mm/yyyy [PICTURES]
// With a folder for PICTURES it also draws both windows there, to be compared by eye.

#include "bench/floor_view.hpp"
#include "bench/list_program.hpp"
#include "bench/measure.hpp"
#include "bench/paint_watch.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>

#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr QSize WindowSize(1900, 1000);
constexpr Integer RowsOfPage = 30;
constexpr int RowsUnderMouse = 15;
constexpr int HoverPages = 10;
constexpr double PageLimit = 1.3;
constexpr double HoverLimit = 0.1;
constexpr double HoverWithPanelLimit = 0.25;
constexpr int NextPage = 3;

/// The grid's numbers of the columns on show, in the order of VisibleColumns.
constexpr std::array<Long, VisibleColumns.size()> GridColumns{1, 3, 6, 8, 13, 23, 25, 34};
constexpr Long StatusCode = 33;

/// The page that the list shows, for the floor to show the same.
std::vector<FloorRow> PageOnShow(agenda::frmLista& list)
{
    std::vector<FloorRow> rows;
    for (Long row = 1; row < list.msfgGrade.Rows(); ++row) {
        FloorRow& copy = rows.emplace_back();
        for (std::size_t column = 0; column < GridColumns.size(); ++column)
            copy.texts[column] = QString::fromStdString(list.msfgGrade.TextMatrix(row, GridColumns[column]));
        copy.status = std::stoi(list.msfgGrade.TextMatrix(row, StatusCode));
    }
    return rows;
}

/// Days after the one that was asked for.
constexpr int DaysWalked = 6;

struct PageTimes {
    std::vector<double> list;
    std::vector<double> floor;
    long long listArea = 0;
    long long floorArea = 0;
};

/// Goes through the full pages of the day on show, the floor always one step behind: no page comes twice,
/// so that no text was laid out before.
void WalkPages(ListProgram& program, FloorView& floor, PageTimes& times)
{
    PaintWatch watchOfList(program.Window());
    PaintWatch watchOfFloor(floor);
    const Long fullPages = program.RecordCount() / RowsOfPage;
    for (Long page = 2; page <= fullPages; ++page) {
        times.list.push_back(Milliseconds([&] {
            program.PressBar(NextPage);
            Settle();
        }));
        std::vector<FloorRow> rows = PageOnShow(program.List());
        times.floor.push_back(Milliseconds([&] {
            floor.Page().Show(std::move(rows));
            Settle();
        }));
        times.listArea = AreaOf(watchOfList.Take());
        times.floorArea = AreaOf(watchOfFloor.Take());
    }
}

PageTimes MeasurePages(ListProgram& program, FloorView& floor, Date day)
{
    PageTimes warmUp;
    WalkPages(program, floor, warmUp);
    PageTimes times;
    for (int distance = 1; distance <= DaysWalked; ++distance) {
        program.ShowDay(AddDays(day, distance), RowsOfPage);
        WalkPages(program, floor, times);
    }
    if (times.list.empty())
        throw std::runtime_error("the days have fewer than two pages of 30 rows");
    program.ShowDay(day, RowsOfPage);
    return times;
}

/// Median time of one step from a row to the next one, on pages whose texts were not shown before.
double MeasureHover(ListProgram& program)
{
    std::vector<double> times;
    for (int page = 0; page < HoverPages; ++page) {
        program.PressBar(NextPage);
        program.MoveMouseTo(1);
        Settle();
        for (int row = 2; row <= RowsUnderMouse; ++row) {
            times.push_back(Milliseconds([&] {
                program.MoveMouseTo(row);
                Settle();
            }));
        }
    }
    return Median(std::move(times));
}

struct HoverArea {
    long long painted = 0;
    long long twoRows = 0;
    /// Painted outside the two rows.
    long long outside = 0;
};

/// What a step from the fifth row to the sixth paints.
HoverArea WatchHover(ListProgram& program)
{
    program.MoveMouseTo(5);
    Settle();
    PaintWatch watch(program.Window());
    program.MoveMouseTo(6);
    Settle();
    const QRegion painted = watch.Take();
    const QRect bothRows = program.Grid().RowArea(5).united(program.Grid().RowArea(6));
    const QRegion rows(bothRows.translated(program.Grid().mapTo(&program.Window(), QPoint())));
    return {AreaOf(painted), AreaOf(rows), AreaOf(painted - rows)};
}

void NoteHover(const std::string& panel, const HoverArea& area)
{
    PrintNote("(c) hover paints " + std::to_string(area.painted) + " pixels with the panel " + panel
              + ", two rows have " + std::to_string(area.twoRows) + ", outside them "
              + std::to_string(area.outside));
}

void SavePictures(ListProgram& program, FloorView& floor, const QString& folder)
{
    floor.Page().Show(PageOnShow(program.List()));
    Settle();
    program.Window().grab().save(folder + QStringLiteral("/list.png"));
    floor.grab().save(folder + QStringLiteral("/floor.png"));
}

void Measure(const std::string& database, Date day, const QString& pictures)
{
    ListProgram program(database, day, WindowSize);
    FloorView floor(program.Grid().width());
    floor.resize(program.Grid().size());
    floor.show();

    program.ShowPanel(false);
    program.ShowDay(day, RowsOfPage);
    const PageTimes pages = MeasurePages(program, floor, day);
    const Comparison change{Median(pages.list), Median(pages.floor)};
    PrintLine("(b) page change, 30 rows", change, "ms", PageLimit);
    const double hover = MeasureHover(program);
    PrintLine("(c) hover, panel hidden", {hover, change.floor}, "ms", HoverLimit);
    const HoverArea area = WatchHover(program);
    if (!pictures.isEmpty())
        SavePictures(program, floor, pictures);

    program.ShowPanel(true);
    const double hoverWithPanel = MeasureHover(program);
    PrintLine("(c) hover, panel shown", {hoverWithPanel, change.floor}, "ms", HoverWithPanelLimit);
    PrintNote("(b) " + std::to_string(pages.list.size()) + " page changes; the list's paints "
              + std::to_string(pages.listArea) + " pixels, the floor's " + std::to_string(pages.floorArea));
    NoteHover("hidden", area);
    NoteHover("shown", WatchHover(program));
    if (!pictures.isEmpty())
        program.Window().grab().save(pictures + QStringLiteral("/panel.png"));
    program.ShowPanel(false);
}

int Run(int count, char** words)
{
    const std::optional<Date> day = count < 3 ? std::nullopt : ParseDate(words[2]);
    if (!day) {
        std::cerr << "usage: bench_page_change DATABASE dd/mm/yyyy [PICTURES]" << std::endl;
        return 2;
    }
    QApplication application(count, words);
    qt::ApplyLook(application);
    Measure(words[1], *day, count > 3 ? QString::fromLocal8Bit(words[3]) : QString());
    return 0;
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    try {
        return kova::bench::Run(count, words);
    } catch (const std::exception& failure) {
        std::cerr << "bench_page_change: " << failure.what() << std::endl;
        return 1;
    }
}
