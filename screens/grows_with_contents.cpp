#include "screens/grows_with_contents.hpp"

#include "screens/scrolled_body.hpp"
#include "toolkits/common/form_window.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialog>
#include <QEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdlib>

namespace kova::screens {

namespace {

/// A screen that is magnified by a fraction may take that much of a window's height.
constexpr int Rounding = 2;

/// Zero before the desktop has given the window one.
QSize KnownFrameOf(const QWidget& window) { return window.frameGeometry().size() - window.size(); }

/// Windows of one desktop have frames alike.
QSize FrameOf(const QDialog& dialog)
{
    QSize frame = KnownFrameOf(dialog);
    if (frame.isNull() && dialog.parentWidget() != nullptr)
        frame = KnownFrameOf(*dialog.parentWidget()->window());
    return frame.isNull() ? QSize(qt::Pixels(toolkit::FrameWidth), qt::Pixels(toolkit::FrameHeight)) : frame;
}

QRect RoomOf(const QDialog& dialog) { return dialog.screen()->availableGeometry(); }

void MoveInto(QDialog& dialog, QRect frame)
{
    const QRect room = RoomOf(dialog);
    frame.moveRight(std::min(frame.right(), room.right()));
    frame.moveBottom(std::min(frame.bottom(), room.bottom()));
    frame.moveLeft(std::max(frame.left(), room.left()));
    frame.moveTop(std::max(frame.top(), room.top()));
    if (frame.topLeft() != dialog.pos())
        dialog.move(frame.topLeft());
}

/// Puts all but the last row of the dialog's column into a body that scrolls. Its bar lies at the window's
/// edge.
ScrolledBody* PutIntoBody(QDialog& dialog)
{
    auto* column = static_cast<QVBoxLayout*>(dialog.layout());
    const QMargins margins = column->contentsMargins();
    const int spacing = column->spacing();
    QLayoutItem* last = column->takeAt(column->count() - 1);
    auto* content = new QWidget(&dialog);
    content->setLayout(column);
    column->setContentsMargins(margins.left(), 0, margins.right(), 0);
    auto* body = new ScrolledBody(content, &dialog);
    auto* foot = new QVBoxLayout;
    foot->setContentsMargins(margins.left(), 0, margins.right(), 0);
    if (last->layout() != nullptr)
        foot->addLayout(last->layout());
    else
        foot->addItem(last);
    auto* outer = new QVBoxLayout(&dialog);
    outer->setContentsMargins(0, margins.top(), 0, margins.bottom());
    outer->setSpacing(spacing);
    outer->addWidget(body, 1);
    outer->addLayout(foot);
    return body;
}

class Growth : public QObject {
public:
    Growth(QDialog& dialog, const QSize& usual)
        : QObject(&dialog), dialog_(dialog), usual_(usual), body_(PutIntoBody(dialog))
    {
        dialog.resize(SizeFor(usual.width()));
        dialog.installEventFilter(this);
        body_->widget()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &dialog_ && event->type() == QEvent::Show && !isPlaced_)
            Place();
        // Now the frame is known.
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::WindowActivate)
            Follow();
        return false;
    }

private:
    QSize SizeFor(int wishedWidth) const
    {
        const QSize room = RoomOf(dialog_).size() - FrameOf(dialog_);
        QLayout& content = *body_->widget()->layout();
        const int width = std::min(wishedWidth, room.width());
        const QLayout& outer = *dialog_.layout();
        const int around = outer.contentsMargins().top() + outer.spacing() + Foot().sizeHint().height()
            + outer.contentsMargins().bottom();
        const int inside = content.hasHeightForWidth() ? content.totalHeightForWidth(width)
                                                       : content.totalSizeHint().height();
        return {width, std::min(std::max(around + inside + Rounding, usual_.height()), room.height())};
    }

    QLayoutItem& Foot() const { return *dialog_.layout()->itemAt(1); }

    void Place()
    {
        isPlaced_ = true;
        const QSize size = SizeFor(usual_.width());
        fitted_ = size.height();
        dialog_.resize(size);
        const QWidget* over = dialog_.parentWidget() != nullptr ? dialog_.parentWidget()->window() : nullptr;
        QRect frame(QPoint(), size + FrameOf(dialog_));
        frame.moveCenter(over != nullptr && over->isVisible() ? over->frameGeometry().center()
                                                              : RoomOf(dialog_).center());
        MoveInto(dialog_, frame);
    }

    // Whoever has made it higher keeps it so.
    void Follow()
    {
        if (!isPlaced_ || !dialog_.isVisible())
            return;
        const QSize size = SizeFor(dialog_.width());
        const bool isFitted = std::abs(dialog_.height() - fitted_) <= Rounding;
        if ((isFitted && size.height() != fitted_) || size.height() > dialog_.height() + Rounding) {
            fitted_ = size.height();
            dialog_.resize(size);
        }
        MoveInto(dialog_, dialog_.frameGeometry());
    }

    QDialog& dialog_;
    const QSize usual_;
    ScrolledBody* body_;
    /// The height that was given to it last.
    int fitted_ = 0;
    bool isPlaced_ = false;
};

} // namespace

void GrowWithContents(QDialog& dialog, const QSize& usual) { new Growth(dialog, usual); }

} // namespace kova::screens
