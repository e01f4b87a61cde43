#pragma once

#include "reports/pages.hpp"

#include <QWidget>

namespace kova::family {

/// One label in its size on paper, or smaller where there is less room.
class LabelPicture : public QWidget {
public:
    explicit LabelPicture(QWidget* parent);

    /// `label` stands in a box at 0, 0 of that size, in twips.
    void Show(reports::Page label, const reports::Box& box);
    /// Room for the largest label, so that the window does not move with the sheets.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    reports::Page label_;
    reports::Box box_;
};

} // namespace kova::family
