#pragma once

#include <QLabel>

namespace kova::qt {

/// A label that draws a plain caption without laying it out again each time. Captions that wrap or
/// underline a letter are drawn as every label draws them.
class CaptionLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace kova::qt
