#pragma once

#include <QAbstractButton>
#include <QStringList>

namespace kova::host {

/// A quiet word about what others have done, in a place that it has to itself, whether or not it is there:
/// nothing moves where it comes and goes. A press of the mouse is its only event; it never takes the
/// keyboard.
class NewsBar : public QAbstractButton {
public:
    explicit NewsBar(QWidget* parent);

    /// The same said at different lengths, the longest first: of those the longest is shown that there is
    /// room for. The first one is told to screen readers and under the mouse. None takes the bar away.
    void Show(const QStringList& wordings);
    /// Whether what it is about is on show; without that it is away.
    void SetOnShow(bool isOnShow);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Appear();

    QStringList wordings_;
    bool isOnShow_ = true;
};

} // namespace kova::host
