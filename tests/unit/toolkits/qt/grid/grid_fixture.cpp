#include "tests/unit/toolkits/qt/grid/grid_fixture.hpp"

#include <QPaintEvent>

namespace kova::qt::test {

namespace {

constexpr Colour Odd = Rgb(242, 242, 242);
constexpr Colour Selected = Rgb(217, 217, 217);

} // namespace

bool PaintCounter::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        region += static_cast<QPaintEvent*>(event)->region();
    return false;
}

void Grid::SetUp()
{
    form_ = Show({Design(WidgetKind::MSFlexGrid, "msfgGrade", 0, 0, 9000, 6000)});
    grid_ = &Bind<MSFlexGrid>(form_, "msfgGrade");
    Fill();
    Settle();
}

void Grid::Fill()
{
    grid_->Redraw(false);
    grid_->FixedCols(0);
    grid_->Rows(11);
    grid_->Cols(3);
    grid_->RowHeight(0, 600);
    grid_->GridLines(0);
    grid_->GridLinesFixed(0);
    grid_->BorderStyle(0);
    grid_->ScrollBars(0);
    grid_->WordWrap(true);
    grid_->BackColorBkg(colours::White);
    grid_->BackColorSel(Selected);
    grid_->ForeColorSel(colours::ButtonText);
    grid_->ColWidth(0, 1500);
    grid_->ColWidth(1, 0);
    grid_->ColWidth(2, 3000);
    for (Long row = 1; row < 11; ++row)
        FillRow(row);
    grid_->Redraw(true);
}

void Grid::FillRow(Long row)
{
    grid_->RowHeight(row, 570);
    for (Long col = 0; col < 3; ++col) {
        grid_->Row(row);
        grid_->Col(col);
        grid_->CellBackColor(row % 2 == 1 ? Odd : colours::White);
        grid_->CellForeColor(colours::Red);
    }
}

void Grid::SelectRow(Long row)
{
    grid_->SelectionMode(1);
    grid_->Col(0);
    grid_->Row(row);
    grid_->ColSel(2);
}

int Grid::Ink(const QRect& area)
{
    const QImage image = Picture(&Canvas());
    const QRgb ground = image.pixel(area.left() + 1, area.top() + 1);
    int ink = 0;
    for (int y = area.top() + 1; y < area.bottom(); ++y) {
        for (int x = area.left() + 1; x < area.right(); ++x)
            ink += image.pixel(x, y) != ground;
    }
    return ink;
}

} // namespace kova::qt::test
