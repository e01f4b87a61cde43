#pragma once

#include <QLabel>
#include <QStaticText>

namespace kova::qt {

/// A label that draws a plain caption without laying it out again each time. Captions that wrap or
/// underline a letter are drawn as every label draws them.
class CaptionLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// The caption as it was drawn last; empty where it is to be laid out anew.
    QStaticText drawn_;
};

} // namespace kova::qt
