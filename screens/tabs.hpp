#pragma once

#include <QTabBar>

namespace kova::screens {

/// Flat words, the one on show underlined. They never take the keyboard by a press.
class Tabs : public QTabBar {
public:
    /// `name` is for those who cannot see them.
    Tabs(const QString& name, QWidget* parent);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintTab(QPainter& painter, int index) const;
};

} // namespace kova::screens
