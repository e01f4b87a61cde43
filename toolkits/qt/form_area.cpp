#include "toolkits/qt/form_area.hpp"

#include "toolkits/common/form_window.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kova::qt {

namespace {

constexpr int BarThickness = 14;
/// A window that is smaller shows nothing that one could work with.
constexpr QSize SmallestRoom(240, 180);

bool LiesOnForm(const ControlDesign& control)
{
    return control.container.empty() && control.kind != WidgetKind::Menu && control.kind != WidgetKind::Image;
}

// A plate is put where it belongs at run time.
bool HasPlace(const ControlDesign& control)
{
    return LiesOnForm(control) && control.kind != WidgetKind::PictureBox;
}

QScrollBar* MakeBar(Qt::Orientation orientation, QWidget* parent)
{
    auto* bar = new QScrollBar(orientation, parent);
    bar->setFocusPolicy(Qt::NoFocus);
    bar->setContextMenuPolicy(Qt::NoContextMenu);
    bar->hide();
    return bar;
}

void SetRange(QScrollBar& bar, bool needed, int whole, int seen)
{
    constexpr int step = 30;
    bar.setVisible(needed);
    bar.setRange(0, needed ? std::max(0, whole - seen) : 0);
    bar.setPageStep(seen);
    bar.setSingleStep(step);
}

// How far a bar must go so that the span lies within what is seen; the start counts where both ends do not
// fit.
int ValueFor(const QScrollBar& bar, int start, int end, int seen)
{
    int value = bar.value();
    if (end > value + seen)
        value = end - seen;
    return std::min(value, start);
}

// Where the last button of that row ends, in pixels, and a margin.
int ButtonsEndOf(const FormDesign& design, Twips footTop)
{
    constexpr int margin = 12;
    int end = 0;
    for (const ControlDesign& control : design.controls) {
        if (control.kind == WidgetKind::KVCommandButton && LiesOnForm(control) && control.top >= footTop)
            end = std::max(end, Pixels(control.left + control.width) + margin);
    }
    return end;
}

// Null for a control in a window of its own.
FormArea* AreaAround(QWidget* control)
{
    for (QWidget* widget = control; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (auto* area = dynamic_cast<FormArea*>(widget))
            return area;
    }
    return nullptr;
}

} // namespace

Twips FootTopOf(const FormDesign& design)
{
    constexpr Twips above = 120;
    Twips top = 0;
    for (const ControlDesign& control : design.controls) {
        if (LiesOnForm(control) && (control.isCancel || control.isDefault))
            top = top > 0 ? std::min(top, control.top - above) : control.top - above;
    }
    const auto crosses = [top](const ControlDesign& control) {
        return HasPlace(control) && control.top < top && control.top + control.height > top;
    };
    const bool isRow =
        top > design.height / 2 && std::none_of(design.controls.begin(), design.controls.end(), crosses);
    return isRow && !design.resizable && design.bordered ? top : 0;
}

QSize InnerSizeWithin(const FormDesign& design, const QSize& given)
{
    const QSize least(Pixels(design.leastWidth), Pixels(design.leastHeight));
    bool tall = given.height() < least.height();
    const bool wide = given.width() - (tall ? BarThickness : 0) < least.width();
    tall = given.height() - (wide ? BarThickness : 0) < least.height();
    const QSize bars(tall ? BarThickness : 0, wide ? BarThickness : 0);
    return (given - bars).expandedTo(least);
}

QSize RoomFor(const FormDesign& design, const QWidget* near)
{
    const QScreen* screen = near ? near->screen() : QGuiApplication::primaryScreen();
    QSize room = screen->availableGeometry().size();
    if (design.bordered) {
        // Windows of one desktop have frames alike.
        const QSize frame =
            near ? near->window()->frameGeometry().size() - near->window()->size() : QSize(0, 0);
        room -= frame.expandedTo(QSize(Pixels(toolkit::FrameWidth), Pixels(toolkit::FrameHeight)));
    }
    return room.expandedTo(SmallestRoom);
}

void RevealInForm(QWidget* control)
{
    FormArea* area = AreaAround(control);
    if (area && QGuiApplication::mouseButtons() == Qt::NoButton)
        area->Reveal(*control);
}

FormArea::FormArea(const FormDesign& design, QWidget* window)
    : QWidget(window),
      footTop_(Pixels(FootTopOf(design))),
      buttonsEnd_(ButtonsEndOf(design, FootTopOf(design))),
      body_(new QWidget(this)),
      bodyPlane_(new QWidget(body_)),
      foot_(new QWidget(this)),
      footPlane_(new QWidget(foot_)),
      vertical_(MakeBar(Qt::Vertical, this)),
      horizontal_(MakeBar(Qt::Horizontal, this))
{
    foot_->setVisible(footTop_ > 0);
    for (QScrollBar* bar : {vertical_, horizontal_})
        connect(bar, &QScrollBar::valueChanged, this, [this] { MovePlanes(); });
}

QWidget* FormArea::PlaneOf(const ControlDesign& control) const
{
    const bool isFoot = footTop_ > 0 && HasPlace(control) && Pixels(control.top) >= footTop_;
    return isFoot ? footPlane_ : bodyPlane_;
}

QPoint FormArea::ToScreen(const QPoint& place) const { return bodyPlane_->mapToGlobal(place); }

void FormArea::Hold(const QSize& inner)
{
    inner_ = inner;
    Arrange();
}

QSize FormArea::SizeWithin(const QSize& room) const
{
    const bool tall = inner_.height() > room.height();
    const bool wide = inner_.width() + (tall ? BarThickness : 0) > room.width();
    const QSize bars(tall ? BarThickness : 0, wide ? BarThickness : 0);
    return (inner_ + bars).boundedTo(room);
}

void FormArea::resizeEvent(QResizeEvent*) { Arrange(); }

// Each bar takes the room that may make the other one needed.
void FormArea::Arrange()
{
    bool tall = inner_.height() > height();
    const bool wide = inner_.width() > width() - (tall ? BarThickness : 0);
    tall = inner_.height() > height() - (wide ? BarThickness : 0);
    const QSize seen(width() - (tall ? BarThickness : 0), height() - (wide ? BarThickness : 0));
    const int footHeight = FootHeight();
    // Where all fits, nothing that reaches down into the row of buttons is cut.
    const int bodyHeight = tall ? std::max(0, seen.height() - footHeight) : seen.height();
    body_->setGeometry(0, 0, seen.width(), bodyHeight);
    foot_->setGeometry(0, (tall ? seen.height() : inner_.height()) - footHeight, seen.width(), footHeight);
    SetRange(*vertical_, tall, inner_.height() - footHeight, bodyHeight);
    SetRange(*horizontal_, wide, inner_.width(), seen.width());
    vertical_->setGeometry(seen.width(), 0, BarThickness, bodyHeight);
    horizontal_->setGeometry(0, seen.height(), seen.width(), BarThickness);
    MovePlanes();
    update();
}

void FormArea::MovePlanes()
{
    const QSize plane = inner_.expandedTo(body_->size());
    bodyPlane_->setGeometry(QRect(QPoint(-horizontal_->value(), -vertical_->value()), plane));
    const int beyond = std::max(0, std::min(buttonsEnd_, inner_.width()) - foot_->width());
    footPlane_->setGeometry(QRect(QPoint(-beyond, -footTop_), plane));
}

void FormArea::Reveal(const QWidget& control)
{
    // A label stands above its field; what is left of it and below is only for the look.
    constexpr int label = 26;
    constexpr int margin = 12;
    if (!bodyPlane_->isAncestorOf(&control))
        return;
    const QRect area(control.mapTo(bodyPlane_, QPoint(0, 0)), control.size());
    horizontal_->setValue(
        ValueFor(*horizontal_, area.left() - margin, area.right() + 1 + margin, body_->width()));
    vertical_->setValue(
        ValueFor(*vertical_, area.top() - label, area.bottom() + 1 + margin, body_->height()));
}

void FormArea::paintEvent(QPaintEvent*)
{
    if (footTop_ > 0 && vertical_->isVisibleTo(this))
        QPainter(this).fillRect(QRect(0, foot_->y(), width(), 1), look::Rule);
}

void FormArea::wheelEvent(QWheelEvent* event)
{
    const bool across = std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y())
        || !vertical_->isVisibleTo(this);
    QScrollBar* bar = across ? horizontal_ : vertical_;
    if (!bar->isVisibleTo(this))
        return event->ignore();
    const int units =
        across && event->angleDelta().x() != 0 ? event->angleDelta().x() : event->angleDelta().y();
    constexpr int unitsPerStep = 120;
    constexpr int stepsPerNotch = 2;
    bar->setValue(bar->value() - units * bar->singleStep() * stepsPerNotch / unitsPerStep);
    event->accept();
}

} // namespace kova::qt
