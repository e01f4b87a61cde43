#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace kova::family {

/// A translucent layer over a whole window, behind the dialogs that stand in front of it. It follows the
/// window's size, fades in, and lets the user's input through.
class DimmingLayer : public QWidget {
public:
    /// Dims the window of that widget; a window that is dimmed already stays as it is.
    static void Apply(QWidget& window);
    /// Takes the layer away; nothing happens where there is none.
    static void Remove(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    explicit DimmingLayer(QWidget& window);
    static DimmingLayer* Of(QWidget& window);

    QVariantAnimation fade_;
};

} // namespace kova::family
