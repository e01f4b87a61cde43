#include "toolkits/qt/look/flat_style.hpp"

#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAbstractItemView>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOptionButton>

namespace kova::qt {

namespace {

constexpr QSize SmallestButton(96, 34);
constexpr QSize RoomBesideText(16, 0);
constexpr int FieldFrameWidth = 3;

const QStyleOptionButton* ButtonOf(const QStyleOption* option)
{
    return qstyleoption_cast<const QStyleOptionButton*>(option);
}

bool IsOffered(const QStyleOptionButton& button)
{
    return button.features & QStyleOptionButton::DefaultButton;
}

QColor GroundOf(const QStyleOption& option, bool isOffered)
{
    const bool isDown = option.state & QStyle::State_Sunken;
    const bool isUnderMouse = option.state & QStyle::State_MouseOver;
    if (!(option.state & QStyle::State_Enabled))
        return look::LockedPaper;
    if (isOffered)
        return isDown ? look::Accent.darker(125) : isUnderMouse ? look::Accent.darker(112) : look::Accent;
    return isDown ? look::AccentTint.darker(108) : isUnderMouse ? look::AccentTint : look::Paper;
}

void PaintButton(QPainter& painter, const QStyleOption& option, bool isOffered)
{
    const QColor ground = GroundOf(option, isOffered);
    PaintPlate(painter, option.rect, ground, look::CornerRadius);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isOffered ? ground : look::Border, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), look::CornerRadius,
                            look::CornerRadius);
    painter.restore();
    if (option.state & QStyle::State_HasFocus)
        PaintFocusRing(painter, option.rect, ground);
}

void PaintCheckBox(QPainter& painter, const QStyleOption& option)
{
    const bool isEnabled = option.state & QStyle::State_Enabled;
    const bool isChecked = option.state & QStyle::State_On;
    const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor edge = isEnabled ? look::MutedInk : look::DisabledInk;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isChecked && isEnabled ? look::Accent : edge, 1));
    painter.setBrush(!isChecked ? look::Paper : isEnabled ? look::Accent : look::DisabledInk);
    painter.drawRoundedRect(box, look::CornerRadius - 1, look::CornerRadius - 1);
    if (isChecked) {
        painter.setPen(QPen(look::Paper, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const auto at = [&box](double x, double y) {
            return box.topLeft() + QPointF(box.width() * x, box.height() * y);
        };
        painter.drawPolyline(QPolygonF({at(0.24, 0.52), at(0.43, 0.72), at(0.77, 0.3)}));
    }
    painter.restore();
}

/// Around lists and menus, which else would not stand out from what lies below them. Each side is as wide as
/// the frame that is kept free for it, at every scale: a line would lie half below what stands inside.
void PaintFrame(QPainter& painter, const QRect& area, const QColor& colour)
{
    painter.fillRect(QRect(area.topLeft(), QSize(area.width(), 1)), colour);
    painter.fillRect(QRect(area.bottomLeft(), QSize(area.width(), 1)), colour);
    painter.fillRect(QRect(area.topLeft(), QSize(1, area.height())), colour);
    painter.fillRect(QRect(area.topRight(), QSize(1, area.height())), colour);
}

/// A list that has the keyboard says so as a field does: its marked row looks the same without it.
QColor FrameOf(const QStyleOption& option, const QWidget* widget)
{
    const bool isList = qobject_cast<const QAbstractItemView*>(widget) != nullptr;
    return isList && (option.state & QStyle::State_HasFocus) ? look::Accent : look::BorderUnderMouse;
}

/// A box of several lines to type in, which looks like one of a single line.
bool IsTypedInto(const QWidget* widget)
{
    const auto* box = qobject_cast<const QPlainTextEdit*>(widget);
    return box && !box->isReadOnly();
}

FieldState StateOf(const QStyleOption& option)
{
    return {.enabled = (option.state & QStyle::State_Enabled) != 0,
            .underMouse = (option.state & QStyle::State_MouseOver) != 0,
            .focused = (option.state & QStyle::State_HasFocus) != 0};
}

/// The mark of a list or of a step, pointing up or down.
void PaintChevron(QPainter& painter, const QRectF& area, bool isUp, bool isEnabled)
{
    constexpr double reach = 3.5;
    const double tip = isUp ? -reach / 2 : reach / 2;
    const QPointF centre = area.center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled ? look::MutedInk : look::DisabledInk, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre + QPointF(-reach, -tip), centre + QPointF(0, tip));
    painter.drawLine(centre + QPointF(0, tip), centre + QPointF(reach, -tip));
    painter.restore();
}

} // namespace

FlatStyle::FlatStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) { }

void FlatStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const QStyleOptionButton* button = ButtonOf(option);
    if (element == CE_PushButtonBevel && button)
        return PaintButton(*painter, *button, IsOffered(*button));
    if (element != CE_PushButtonLabel || !button || !IsOffered(*button))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionButton offered = *button;
    offered.palette.setColor(QPalette::Active, QPalette::ButtonText, look::Paper);
    offered.palette.setColor(QPalette::Inactive, QPalette::ButtonText, look::Paper);
    QProxyStyle::drawControl(element, &offered, painter, widget);
}

void FlatStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const bool isButton = widget && widget->inherits("QPushButton");
    if (element == PE_PanelButtonTool && widget && widget->inherits("QToolButton")
        && !(option->state & State_AutoRaise))
        return PaintButton(*painter, *option, false);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == PE_PanelLineEdit && frame && frame->lineWidth > 0)
        return PaintField(*painter, option->rect, StateOf(*option),
                          (option->state & State_ReadOnly) != 0 ? look::LockedPaper : look::Paper);
    if (element == PE_Frame && IsTypedInto(widget))
        return PaintField(*painter, option->rect, StateOf(*option), look::Paper);
    if (element == PE_IndicatorCheckBox)
        return PaintCheckBox(*painter, *option);
    if (element == PE_PanelMenu)
        painter->fillRect(option->rect, look::Paper);
    if (element == PE_Frame || element == PE_FrameMenu || element == PE_PanelMenu)
        return PaintFrame(*painter, option->rect, FrameOf(*option, widget));
    // The ring is drawn with the plate.
    if (element != PE_FrameFocusRect || !isButton)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void FlatStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    const bool isEnabled = option->state & State_Enabled;
    const auto place = [&](SubControl part) { return QRectF(subControlRect(control, option, part, widget)); };
    if (control == CC_ComboBox) {
        PaintField(*painter, option->rect, StateOf(*option), look::Paper);
        return PaintChevron(*painter, place(SC_ComboBoxArrow), false, isEnabled);
    }
    if (control != CC_SpinBox)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    PaintField(*painter, option->rect, StateOf(*option), look::Paper);
    PaintChevron(*painter, place(SC_SpinBoxUp), true, isEnabled);
    PaintChevron(*painter, place(SC_SpinBoxDown), false, isEnabled);
}

QSize FlatStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    const QStyleOptionButton* button = ButtonOf(option);
    // A button with nothing but an icon, as in a row of them, stays as small as it is.
    return type == CT_PushButton && button && !button->text.isEmpty()
        ? (usual + RoomBesideText).expandedTo(SmallestButton)
        : usual;
}

// A frame asks for its width while the box is being made, when nobody can tell yet what becomes of it.
void FlatStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (IsTypedInto(widget)) {
        auto* box = static_cast<QPlainTextEdit*>(widget);
        box->setFrameStyle(box->frameStyle());
    }
}

// The corners of a field are round, what stands inside of it is not.
int FlatStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    return metric == PM_DefaultFrameWidth && IsTypedInto(widget)
        ? FieldFrameWidth
        : QProxyStyle::pixelMetric(metric, option, widget);
}

int FlatStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

} // namespace kova::qt
