#include "toolkits/qt/command_button.hpp"

#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

CommandButtonView::CommandButtonView(toolkit::CommandButtonModel& model, QWidget* parent)
    : ViewOf(model, new FlatButton(parent))
{
    Shown().setFocusPolicy(Qt::TabFocus);
    QObject::connect(&Shown(), &QAbstractButton::clicked, &Shown(), [this] { GetModel().UserPresses(); });
    WatchFocus(&Shown());
}

void CommandButtonView::ShowContent()
{
    const QString caption = FromText(GetModel().ShownCaption());
    Shown().setText(caption);
    if (Core().Design().accessibleName.empty() && !caption.trimmed().isEmpty())
        Shown().setAccessibleName(caption.trimmed());
    Shown().update();
}

void CommandButtonView::ShowLook()
{
    const ControlDesign& design = Core().Design();
    const QColor ground = GroundColor(design.backColor, look::Plate);
    const QColor highlight = GroundColor(design.highlightColor, ground.darker(106));
    const bool captioned = !FromText(design.caption).trimmed().isEmpty();
    const bool standsOut = Contrast(ground, look::Paper) >= 1.05;
    const QColor onHighlight = captioned && standsOut ? look::Paper : look::Ink;
    Shown().SetColours({ground, highlight, InkColor(design.fontColor, look::Ink, ground), onHighlight});
    Shown().SetIconName(design.icon);
    Shown().SetBordered(!standsOut);
}

// A button without a caption is called by what it does now.
void CommandButtonView::ShowToolTip()
{
    WidgetView::ShowToolTip();
    const QString tip = FromText(Core().State().toolTipText);
    if (FromText(GetModel().ShownCaption()).trimmed().isEmpty() && Core().Design().accessibleName.empty()
        && !tip.isEmpty())
        Shown().setAccessibleName(tip);
}

} // namespace kova::qt
