#pragma once

#include <QColor>
#include <QWidget>

namespace kova::qt {

/// A widget that Qt moves no focus out of by itself: the form's model decides where the focus goes.
class PlainPanel : public QWidget {
public:
    using QWidget::QWidget;

protected:
    bool focusNextPrevChild(bool) override { return false; }
};

} // namespace kova::qt
