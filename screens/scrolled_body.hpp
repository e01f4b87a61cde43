#pragma once

#include <QPointer>
#include <QScrollArea>

namespace kova::screens {

/// What a window or a page shows above its buttons. It scrolls where it has less room than it wants, and
/// brings into sight what gets the keyboard, and what is told.
class ScrolledBody : public QScrollArea {
public:
    /// Takes the body over.
    explicit ScrolledBody(QWidget* body, QWidget* parent = nullptr);

    /// As wide as the body and the bar beside it: it scrolls downwards.
    QSize minimumSizeHint() const override;

    /// Brings a part of the body into sight, and keeps it there while what stands around it finds its place;
    /// until the user turns elsewhere.
    void Reveal(QWidget& part);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Seek();

    QPointer<QWidget> sought_;
};

/// Brings a part of whatever body it stands in into sight.
void RevealInBody(QWidget& part);

} // namespace kova::screens
