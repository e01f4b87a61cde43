#include "toolkits/qt/label.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::qt {

namespace {

Qt::Alignment AlignmentOf(int alignment)
{
    switch (alignment) {
    case 1: return Qt::AlignRight | Qt::AlignTop;
    case 2: return Qt::AlignHCenter | Qt::AlignTop;
    default: return Qt::AlignLeft | Qt::AlignTop;
    }
}

} // namespace

LabelView::LabelView(toolkit::LabelModel& model, QWidget* parent) : ViewOf(model, new CaptionLabel(parent))
{
    const ControlDesign& design = model.Design();
    Shown().setTextFormat(Qt::PlainText);
    Shown().setAlignment(AlignmentOf(design.alignment));
    Shown().setWordWrap(design.wordWrap);
    Shown().setMargin(0);
    Shown().setIndent(0);
    if (design.backColor != -1)
        Shown().setAutoFillBackground(true);
}

void LabelView::ShowContent()
{
    Shown().setText(Lines(GetModel().CaptionWithMnemonic()));
    if (Core().Design().accessibleName.empty())
        Shown().setAccessibleName(Lines(GetModel().ShownCaption()));
}

void LabelView::ShowLook()
{
    QPalette palette = Shown().palette();
    const QColor ground = GroundColor(Core().Design().backColor, GroundBehind());
    palette.setColor(QPalette::WindowText, InkColor(GetModel().ShownForeColor(), look::Ink, ground));
    palette.setColor(QPalette::Window, ground);
    Shown().setPalette(palette);
}

QColor LabelView::GroundBehind() const
{
    const toolkit::WidgetCore* container = Core().Container();
    const Colour colour = container ? container->Design().backColor : Core().GetForm().Design().backColor;
    return GroundColor(colour, look::Paper);
}

void LabelView::FormAppears()
{
    const std::string& name = Core().Design().labelOf;
    // A label of an indexed group names its like in the other group.
    const toolkit::WidgetCore* named =
        name.empty() ? nullptr : Core().GetForm().Find(name, Core().Design().index);
    const auto* view = named ? dynamic_cast<const WidgetView*>(named->GetView()) : nullptr;
    if (Window() && view && view->FocusWindow())
        Shown().setBuddy(view->FocusWindow());
}

} // namespace kova::qt
