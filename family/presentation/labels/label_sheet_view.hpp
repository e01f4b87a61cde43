#pragma once

#include "family/presentation/labels/label_pages.hpp"

#include <QWidget>

#include <functional>

namespace kova::family {

/// The sheets as they will come out of the printer, one at a time: used places are grey, the others are
/// white. On the first sheet a click or the arrow keys choose the first free place.
class LabelSheetView : public QWidget {
public:
    explicit LabelSheetView(QWidget* parent);

    /// Hears of another first free place, from 0, that the user has chosen.
    std::function<void(int position)> chosen = [](int) {};

    /// Both must outlive the next call.
    void Show(const LabelRun& run, const reports::Document& pages);
    /// The sheet on show, from 0; one that is not there is the last.
    int Sheet() const { return sheet_; }
    void ShowSheet(int sheet);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    double PixelsOfTwip() const;
    /// The paper's upper left corner.
    QPointF Corner() const;
    void Choose(int position);
    void PaintPlaces(QPainter& painter) const;
    void PaintPlace(QPainter& painter, int position) const;

    LabelRun run_;
    const reports::Document* pages_ = nullptr;
    int sheet_ = 0;
};

} // namespace kova::family
