#include "toolkits/qt/command_button.hpp"

#include "toolkits/qt/theme.hpp"

namespace kova::qt {

CommandButtonView::CommandButtonView(QtToolkit& toolkit, toolkit::CommandButtonModel& model, QWidget* parent)
    : ViewOf(toolkit, model, new FlatButton(parent))
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
    const QColor ground = ToColor(design.backColor, QColor(240, 242, 245));
    const bool captioned = !FromText(design.caption).trimmed().isEmpty();
    const bool light = Contrast(ground, look::Paper) < 1.05;
    Shown().SetColours({ground, ToColor(design.highlightColor, ground.darker(106)),
                        ToColor(design.fontColor, look::Ink), captioned && !light ? look::Paper : look::Ink});
    Shown().SetIconName(design.icon);
    Shown().SetBordered(light);
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
