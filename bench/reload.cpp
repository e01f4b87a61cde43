// A filter chosen on the real list, without the deliberate second, against a plain program that runs the same
// statement and shows the same page. Usage: bench_reload DATABASE dd/mm/yyyy

#include "bench/floor_day.hpp"
#include "bench/list_program.hpp"
#include "bench/measure.hpp"
#include "bench/paint_watch.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/selections/day_selection.hpp"

#include <stdexcept>

namespace kova::bench {

namespace {

constexpr QSize WindowSize(1900, 1000);
constexpr Integer RowsOfPage = 30;
constexpr int DaysWalked = 6;
constexpr double ReloadLimit = 1.4;

/// One choice of the filter: a day and a service type.
struct Choice {
    Date day;
    Integer row = 0;
    Long serviceType = 0;
};

/// Every service type on each of the days; no page comes twice, so that no text was laid out before.
std::vector<Choice> ChoicesOf(const KVComboBox& filter, Date first)
{
    std::vector<Choice> choices;
    for (int distance = 0; distance < DaysWalked; ++distance)
        for (Integer row = 1; row < filter.ListCount(); ++row)
            choices.push_back({AddDays(first, distance), row, filter.ItemData(row)});
    return choices;
}

/// What choosing a filter does after the wait plate's second: selection, first page, painting.
void ChooseOnList(ListProgram& program, const Choice& choice)
{
    program.List().IgnorarClick = true;
    program.List().kvcmbTiposDeServicos.ListIndex(choice.row);
    program.ShowDay(choice.day, RowsOfPage);
}

void ChooseOnFloor(FloorView& floor, RawStatement& statement, const Choice& choice)
{
    BindDay(statement, family::IsoDate(choice.day));
    statement.Bind("tipo", std::int64_t{choice.serviceType});
    floor.Page().Show(ReadDay(statement, RowsOfPage));
    Settle();
}

void Measure(const std::string& path, Date day)
{
    ListProgram program(path, day, WindowSize);
    program.ShowPanel(false);
    FloorView floor(program.Grid().width());
    floor.resize(program.Grid().size());
    floor.show();
    RawDatabase database(path);
    RawStatement statement(database, family::DayStatement());

    std::vector<double> list;
    std::vector<double> plain;
    Long rows = 0;
    for (const Choice& choice : ChoicesOf(program.List().kvcmbTiposDeServicos, day)) {
        list.push_back(Milliseconds([&] { ChooseOnList(program, choice); }));
        plain.push_back(Milliseconds([&] { ChooseOnFloor(floor, statement, choice); }));
        if (floor.Page().rowCount() != program.List().msfgGrade.Rows() - 1)
            throw std::runtime_error("the two do not show the same rows");
        rows += program.RecordCount();
    }
    PrintNote("(f) " + std::to_string(list.size()) + " filters chosen, " + std::to_string(rows)
              + " rows selected");
    PrintLine("(f) filter reload, selection to paint", {Median(std::move(list)), Median(std::move(plain))},
              "ms", ReloadLimit);
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    return kova::bench::MeasureOnDay(count, words, "bench_reload", kova::bench::Measure);
}
