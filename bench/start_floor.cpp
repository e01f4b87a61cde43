// The smallest program of the toolkit that opens the database and paints a day: prints "desenhado" after
// its first painting and ends. Usage: bench_start_floor DATABASE STATEMENT yyyy-mm-dd WIDTH HEIGHT

#include "bench/floor_day.hpp"

#include <QApplication>
#include <QTimer>

#include <iostream>

namespace kova::bench {

namespace {

std::vector<FloorRow> SelectDay(const std::string& path, const std::string& text, const std::string& day)
{
    RawDatabase database(path);
    RawStatement statement(database, text);
    BindDay(statement, day);
    return ReadDay(statement);
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
