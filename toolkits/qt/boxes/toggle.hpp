#pragma once

#include <QAbstractButton>

#include <functional>

namespace kova::qt {

/// A check mark in a box, or a dot in a circle, with a caption at its right. The value on show is what
/// code sets; a press only tells that the user wants another.
class Toggle : public QAbstractButton {
public:
    enum class Mark { Box, Circle };

    Toggle(QWidget* parent, Mark mark);

    /// 0 clear, 1 marked, 2 greyed.
    void SetValue(int value);
    int Value() const { return value_; }
    bool IsOption() const { return mark_ == Mark::Circle; }

    /// The user pressed it.
    std::function<void()> pressed;

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    void PaintBox(QPainter& painter, const QRectF& square) const;
    void PaintCircle(QPainter& painter, const QRectF& square) const;

    Mark mark_;
    int value_ = 0;
};

} // namespace kova::qt
