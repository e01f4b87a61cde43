// The smallest program of the toolkit that opens the database and paints a day: prints "desenhado" after
// its first painting and ends. Usage: bench_start_floor DATABASE STATEMENT yyyy-mm-dd WIDTH HEIGHT

#include "bench/floor_view.hpp"
#include "bench/raw_database.hpp"

#include <QApplication>
#include <QTimer>

#include <iostream>

namespace kova::bench {

namespace {

/// Places of the statement's columns that the view shows, in the order of VisibleColumns; the status
/// column has no text.
constexpr std::array<int, VisibleColumns.size()> Places{0, 2, 5, 7, 12, 22, 24, -1};
constexpr int StatusPlace = 32;

std::vector<FloorRow> SelectDay(const std::string& path, const std::string& text, const std::string& day)
{
    RawDatabase database(path);
    RawStatement statement(database, text);
    BindDay(statement, day);
    std::vector<FloorRow> rows;
    while (statement.Step()) {
        FloorRow& row = rows.emplace_back();
        for (std::size_t column = 0; column < Places.size(); ++column) {
            if (Places[column] < 0)
                continue;
            const std::string_view shown = statement.TextAt(Places[column]);
            row.texts[column] = QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
        }
        row.status = static_cast<int>(statement.NumberAt(StatusPlace));
    }
    return rows;
}

/// The view of the day; ends the program once it has been painted.
class FirstPaint : public FloorView {
public:
    using FloorView::FloorView;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        FloorView::paintEvent(event);
        QTimer::singleShot(0, this, [] {
            std::cout << "desenhado" << std::endl;
            QApplication::quit();
        });
    }
};

int Run(int count, char** words)
{
    if (count != 6) {
        std::cerr << "usage: bench_start_floor DATABASE STATEMENT yyyy-mm-dd WIDTH HEIGHT" << std::endl;
        return 2;
    }
    const QSize size(std::stoi(words[4]), std::stoi(words[5]));
    QApplication application(count, words);
    FirstPaint view(size.width());
    view.Page().Show(SelectDay(words[1], words[2], words[3]));
    view.resize(size);
    view.show();
    return QApplication::exec();
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    try {
        return kova::bench::Run(count, words);
    } catch (const std::exception& failure) {
        std::cerr << "bench_start_floor: " << failure.what() << std::endl;
        return 1;
    }
}
