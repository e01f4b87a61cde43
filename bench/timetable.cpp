// A day and a week of the timetable: read, against the same appointments through the database engine's own
// interface; and 40 employees with 1,000 appointments painted while they scroll, against as many plain
// rectangles with as many texts. Usage: bench_timetable DATABASE

#include "timetable/timetable_view.hpp"

#include "bench/measure.hpp"
#include "bench/measured_days.hpp"
#include "bench/raw_database.hpp"
#include "family/business/places/timetable.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "toolkits/qt/look/apply_look.hpp"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

using family::TimetableColumn;
using family::TimetableWish;

constexpr int Rounds = 15;
constexpr int Employees = 40, AppointmentsOfEach = 25;
constexpr double FrameOfTheScreen = 1000.0 / 60;

/// What begins on days, with the names; what began before them is left out, which only helps the floor.
constexpr const char* BareStatement =
    "select a.numero, a.codigo_do_funcionario, a.data_inicial, a.hora_inicial, a.data_final, a.hora_final,"
    " a.situacao, c.nome, n.nome, s.nome from agendamento a indexed by agendamento_por_inicio"
    " left join cliente c on c.codigo = a.codigo_do_cliente left join animal n on n.codigo = "
    "a.codigo_do_animal"
    " left join servico s on s.codigo = a.codigo_do_servico"
    " where a.data_inicial >= :de and a.data_inicial <= :ate"
    " and (:de_quem = 0 or a.codigo_do_funcionario = :de_quem)";

/// By the times of one day, or one week, each.
class Reading {
public:
    explicit Reading(const std::string& path)
        : raw_(path), bare_(raw_, BareStatement), database_(family::OpenDatabase(path))
    {
        RawStatement days(raw_, AllDaysStatement);
        std::vector<std::string> all;
        while (days.Step())
            all.emplace_back(days.TextAt(0));
        days_ = SpreadDays(all);
    }

    void Measure(const std::string& what, int days, family::Key employee, double limit)
    {
        std::size_t blocks = 0, rows = 0;
        Comparison comparison = Alternate(
            Rounds, [&] { blocks = ReadAll(days, employee); }, [&] { rows = ReadBare(days, employee); });
        if (blocks == 0)
            throw std::runtime_error("nobody is booked");
        const auto count = static_cast<double>(days_.size());
        PrintLine("(p) " + what, {comparison.measured / count, comparison.floor / count}, "ms", limit);
        PrintNote("(p) " + what + ": " + std::to_string(blocks) + " blocks, " + std::to_string(rows)
                  + " appointments that began on the days, ten times");
    }

private:
    std::size_t ReadAll(int days, family::Key employee)
    {
        std::size_t blocks = 0;
        for (const std::string& day : days_) {
            const TimetableWish wish{family::ReadIsoMoment(day, "00:00").date, days, employee};
            for (const TimetableColumn& column : family::ReadTimetable(*database_, wish))
                blocks += column.blocks.size();
        }
        return blocks;
    }

    std::size_t ReadBare(int days, family::Key employee)
    {
        std::size_t rows = 0, characters = 0;
        for (const std::string& day : days_) {
            bare_.Bind("de", day);
            bare_.Bind("ate", family::IsoDate(AddDays(family::ReadIsoMoment(day, "00:00").date, days - 1)));
            bare_.Bind("de_quem", static_cast<std::int64_t>(employee));
            for (; bare_.Step(); ++rows)
                for (int column = 0; column < bare_.ColumnCount(); ++column)
                    characters += bare_.TextAt(column).size();
            bare_.Reset();
        }
        return characters == 0 ? 0 : rows;
    }

    RawDatabase raw_;
    RawStatement bare_;
    std::shared_ptr<family::Database> database_;
    std::vector<std::string> days_;
};

/// Every employee's day is full; every third appointment overlaps the one before.
std::vector<TimetableColumn> FullDay()
{
    constexpr Date Day{2026, 11, 19};
    constexpr int First = 8 * 60, Each = 24;
    std::vector<TimetableColumn> columns;
    for (int employee = 0; employee < Employees; ++employee) {
        TimetableColumn column{Day, employee + 1, "Funcionária " + std::to_string(employee + 1), {}, {}};
        column.closed = {{{0, First}, "A loja está fechada"}, {{18 * 60, 24 * 60}, "A loja está fechada"}};
        for (int at = 0; at < AppointmentsOfEach; ++at) {
            family::TimetableBlock block;
            const int from = First + at * Each;
            block.part = {from, from + (at % 3 == 0 ? 2 * Each : Each)};
            block.row.number = employee * AppointmentsOfEach + at + 1;
            block.row.status = 1 + at % 4;
            block.row.customer = "Cliente Número " + std::to_string(block.row.number);
            block.row.animal = "Animal " + std::to_string(at);
            block.row.service = "Banho e tosa completa";
            column.blocks.push_back(block);
        }
        columns.push_back(std::move(column));
    }
    return columns;
}

/// Paints the same number of rectangles, each with as many lines of text, and nothing else.
void PaintPlain(QImage& image, int blocks, int lines)
{
    QPainter painter(&image);
    painter.fillRect(image.rect(), Qt::white);
    constexpr int Width = 120, Height = 60;
    const int inRow = image.width() / Width;
    for (int block = 0; block < blocks; ++block) {
        const QRect rect(block % inRow * Width, block / inRow * Height % image.height(), Width - 2,
                         Height - 2);
        painter.fillRect(rect, QColor(232, 240, 255));
        for (int line = 0; line < lines; ++line)
            painter.drawText(rect.adjusted(4, line * 15, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                             QStringLiteral("Cliente Número %1").arg(block));
    }
}

void MeasurePainting()
{
    constexpr int Width = 1366, Height = 700, Steps = 40, LinesOfBlock = 3;
    constexpr double LimitOfPainting = 3;
    timetable::BlockModel blocks;
    blocks.Show(FullDay(), true);
    timetable::TimetableView view(blocks, nullptr);
    view.resize(Width, Height);
    view.LayOut(15);
    view.show();
    QApplication::processEvents();
    QImage image(view.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    // Each step shows a line more, and to the right a column more.
    std::vector<int> seen;
    const auto scroll = [&](int step) {
        view.verticalScrollBar()->setValue(step * view.verticalScrollBar()->singleStep());
        view.horizontalScrollBar()->setValue(step * view.horizontalScrollBar()->singleStep() / 4);
    };
    for (int step = 0; step < Steps; ++step) {
        scroll(step);
        int count = 0;
        for (int row = 0; row < blocks.rowCount(); ++row)
            count += view.visualRect(blocks.index(row)).intersects(view.viewport()->rect()) ? 1 : 0;
        seen.push_back(count);
    }
    double slowest = 0;
    const auto paint = [&] {
        for (int step = 0; step < Steps; ++step) {
            const double took = Milliseconds([&] {
                scroll(step);
                view.viewport()->render(&image);
            });
            slowest = std::max(slowest, took);
        }
    };
    const Comparison comparison = Alternate(Rounds, paint, [&] {
        for (const int count : seen)
            PaintPlain(image, count, LinesOfBlock);
    });
    PrintLine("(p) 1,000 blocks, a step scrolled", {comparison.measured / Steps, comparison.floor / Steps},
              "ms", LimitOfPainting);
    PrintLine("(p) the same, against a frame", {comparison.measured / Steps, FrameOfTheScreen}, "ms", 1);
    PrintTold("(p) the slowest step of all, beside a frame", {slowest, FrameOfTheScreen}, "ms");
    PrintNote("(p) 1,000 blocks: " + std::to_string(*std::ranges::max_element(seen))
              + " seen at once at most");
}

void Measure(const std::string& path)
{
    constexpr double LimitOfDay = 4, LimitOfWeek = 4;
    Reading reading(path);
    reading.Measure("a day of everybody read", 1, 0, LimitOfDay);
    reading.Measure("a week of one employee read", 7, 1, LimitOfWeek);
    MeasurePainting();
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    QApplication application(count, words);
    kova::qt::ApplyLook(application);
    if (count != 2) {
        std::cerr << "usage: bench_timetable DATABASE" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_timetable: " << failure.what() << std::endl;
        return 1;
    }
}
