#pragma once

#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"

#include <QObject>
#include <QRegion>

namespace kova::qt::test {

/// Adds up what a widget is asked to repaint.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override;

    QRegion region;
};

/// A grid with one header row of 40 pixels and ten rows of 38, odd ones grey and even ones white; column 1 is
/// hidden.
class Grid : public QtTest {
protected:
    void SetUp() override;
    void Fill();
    void SelectRow(Long row);

    GridCanvas& Canvas() { return dynamic_cast<GridCanvas&>(*WindowOf(*grid_)); }
    QRect Cell(Long row, Long col) { return Canvas().CellArea(row, col); }
    /// Pixels of an area that are not of its ground.
    int Ink(const QRect& area);

    FormRef form_;
    MSFlexGrid* grid_ = nullptr;

private:
    void FillRow(Long row);
};

} // namespace kova::qt::test
