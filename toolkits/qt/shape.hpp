#pragma once

#include "toolkits/common/shape.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

/// A rule or the outline of a rectangle; the mouse reaches what lies under it.
class ShapeWindow : public QWidget {
public:
    ShapeWindow(const toolkit::ShapeModel& model, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const toolkit::ShapeModel& model_;
};

class ShapeView : public ViewOf<toolkit::ShapeModel, ShapeWindow> {
public:
    ShapeView(toolkit::ShapeModel& model, QWidget* parent) : ViewOf(model, new ShapeWindow(model, parent)) { }

protected:
    void ShowGeometry() override;
};

} // namespace kova::qt
