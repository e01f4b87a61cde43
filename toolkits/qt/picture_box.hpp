#pragma once

#include "toolkits/common/picture_box.hpp"
#include "toolkits/qt/plain_panel.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

/// A panel with its own ground. Its round corners are drawn smooth, see SetRoundRectRegion.
class PanelWindow : public PlainPanel {
public:
    explicit PanelWindow(QWidget* parent);
    void SetGround(const QColor& ground);
    void SetCorners(double radius);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor ground_;
    double radius_ = 0;
};

/// Where a panel on the form reaches below the form's lower edge, its lines stand closer, as close as they
/// can be read, and it lies a little higher.
class PictureBoxView : public ViewOf<toolkit::PictureBoxModel, PanelWindow> {
public:
    PictureBoxView(toolkit::PictureBoxModel& model, QWidget* parent) : ViewOf(model, new PanelWindow(parent))
    {
    }

    int TopInside(int top) const override;

protected:
    void ShowLook() override;
    void ShowGeometry() override;

private:
    /// Pixels that are missing below.
    int Missing() const;

    /// What is taken from the panel's height.
    int squeezed_ = 0;
};

} // namespace kova::qt
