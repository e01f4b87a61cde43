#pragma once

#include "toolkits/common/header_band.hpp"
#include "toolkits/qt/widget_view.hpp"

namespace kova::qt {

/// Large title at the left, two small grey lines at the right, a rule below.
class HeaderWindow : public QWidget {
public:
    HeaderWindow(const toolkit::HeaderBandModel& model, QWidget* parent) : QWidget(parent), model_(model) { }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const toolkit::HeaderBandModel& model_;
};

class HeaderBandView : public ViewOf<toolkit::HeaderBandModel, HeaderWindow> {
public:
    HeaderBandView(toolkit::HeaderBandModel& model, QWidget* parent)
        : ViewOf(model, new HeaderWindow(model, parent))
    {
    }

protected:
    void ShowContent() override;
};

} // namespace kova::qt
