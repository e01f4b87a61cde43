#pragma once

#include <QAbstractButton>
#include <QColor>

#include <string>

namespace kova::qt {

/// Colours of a flat button: ground, ground under the mouse, text, text under the mouse.
struct ButtonColours {
    QColor ground;
    QColor highlight;
    QColor text;
    QColor highlightText;
};

/// The product's button: a flat plate with an icon of 20 pixels at the left and a text. A button
/// without a text centres its icon.
class FlatButton : public QAbstractButton {
public:
    explicit FlatButton(QWidget* parent);

    void SetColours(const ButtonColours& colours);
    void SetIconName(const std::string& name);
    /// Whether a thin border keeps a light button apart from its ground.
    void SetBordered(bool bordered);
    void SetCornerRadius(double radius);

    QSize sizeHint() const override { return QSize(100, 34); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; }

private:
    QColor Ground() const;
    QColor InkOn(const QColor& ground) const;
    void PaintContent(QPainter& painter, const QColor& ground) const;

    ButtonColours colours_;
    std::string icon_;
    bool bordered_ = false;
    double radius_;
};

} // namespace kova::qt
