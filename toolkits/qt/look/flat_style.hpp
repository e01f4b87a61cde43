#pragma once

#include <QProxyStyle>

namespace kova::qt {

/// Draws the plain buttons and fields of boxes, of the help, of the error and label windows and of the
/// desktop's own dialogs as flat as those of the forms: whatever library of the process makes them, they are
/// asked here.
class FlatStyle : public QProxyStyle {
public:
    /// On the toolkit's own style, the same on every desktop.
    FlatStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
};

} // namespace kova::qt
