#include "toolkits/qt/widget_view.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/shortcuts.hpp"
#include "toolkits/qt/form_area.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/look/tool_tip.hpp"

#include <QFocusEvent>
#include <QStringList>

namespace kova::qt {

using toolkit::Aspect;

namespace {

constexpr const char* LayerProperty = "kovaLayer";

// Grounds lie below texts and grids, and these below what the user operates.
int LayerOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::Shape:
    case WidgetKind::KVTheme: return 1;
    case WidgetKind::Label:
    case WidgetKind::MSFlexGrid: return 2;
    default: return 3;
    }
}

// Forwards the focus that Qt moves, by mouse or mnemonic, to the model.
class FocusWatch : public QObject {
public:
    FocusWatch(QWidget* watched, toolkit::WidgetCore& core) : QObject(watched), core_(core)
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::FocusIn || core_.HasFocus())
            return false;
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::MouseFocusReason)
            Forward(toolkit::Entry::Press);
        else if (reason == Qt::ShortcutFocusReason || reason == Qt::TabFocusReason)
            Forward(toolkit::Entry::Key);
        return false;
    }

private:
    // Qt has moved its focus already, which a form that takes no input has not wanted.
    void Forward(toolkit::Entry entry)
    {
        toolkit::WidgetCore& core = core_;
        core.UserFocuses(entry);
        if (!core.HasFocus())
            ShowFocusOf(core.GetForm());
    }

    toolkit::WidgetCore& core_;
};

QString LabelFor(const toolkit::WidgetCore& core)
{
    for (const auto& other : core.GetForm().Widgets()) {
        if (other->KindOfWidget() == WidgetKind::Label && other->Design().labelOf == core.Design().name
            && other->Design().index == core.Design().index)
            return FromText(other->Design().caption).remove(QLatin1Char('&'));
    }
    return QString();
}

} // namespace

WidgetView::WidgetView(toolkit::WidgetCore& core, QWidget* widget) : core_(core), widget_(widget)
{
    const ControlDesign& design = core.Design();
    widget->setObjectName(FromText(core.FullName()));
    widget->setFont(MakeFont(design.fontName, static_cast<double>(design.fontSize), design.fontBold));
    widget->setAccessibleName(AccessibleNameOf(core));
    Describe();
    StackByKind();
}

WidgetView::~WidgetView() { delete widget_.data(); }

void WidgetView::Begin()
{
    for (Aspect aspect :
         {Aspect::Look, Aspect::Content, Aspect::Geometry, Aspect::ToolTip, Aspect::Enabled, Aspect::Visible})
        Update(aspect);
}

void WidgetView::Update(Aspect aspect)
{
    if (!widget_)
        return;
    ReviewDenial();
    switch (aspect) {
    case Aspect::Geometry: return ShowGeometry();
    case Aspect::Visible: return ShowVisible();
    case Aspect::Enabled: return ShowEnabled();
    case Aspect::TabStop: return;
    case Aspect::ToolTip: return ShowToolTip();
    case Aspect::Content: return ShowContent();
    case Aspect::Selection: return ShowSelection();
    case Aspect::Look: return ShowLook();
    case Aspect::Order: return ShowOrder();
    }
}

void WidgetView::TakeFocus()
{
    if (widget_ && FocusWindow())
        FocusWindow()->setFocus(Qt::OtherFocusReason);
    RevealInForm(widget_);
}

void WidgetView::WatchFocus(QWidget* widget) { new FocusWatch(widget, core_); }

void WidgetView::ShowGeometry()
{
    const toolkit::WidgetState& state = core_.State();
    QRect area = PixelRect(state.left, state.top, state.width, state.height);
    const toolkit::WidgetCore* panel = core_.Container();
    if (const auto* view = panel ? dynamic_cast<const WidgetView*>(panel->GetView()) : nullptr)
        area.moveTop(view->TopInside(area.top()));
    widget_->setGeometry(area);
}

void WidgetView::ShowVisible()
{
    if (!core_.State().visible)
        LeaveFocus();
    widget_->setVisible(core_.State().visible);
}

void WidgetView::ShowEnabled()
{
    const bool open = core_.State().enabled && denial_.empty();
    if (!open)
        LeaveFocus();
    OpenWindow(open);
}

// What the guard says of a control may hang on where it stands, and on what is written on it.
void WidgetView::ReviewDenial()
{
    const Text denial = core_.Denial();
    if (denial == denial_)
        return;
    denial_ = denial;
    ShowEnabled();
    ShowToolTip();
    Describe();
}

void WidgetView::Describe()
{
    QStringList sentences;
    if (!denial_.empty())
        sentences << FromText(denial_);
    if (const std::string& key = core_.Design().shortcut; !key.empty())
        sentences << QStringLiteral("Tecla: ") + FromText(toolkit::KeyName(key));
    widget_->setAccessibleDescription(sentences.join(QLatin1Char(' ')));
}

void WidgetView::OpenWindow(bool open) { widget_->setEnabled(open); }

// A widget that goes away leaves the focus to its window, not to a neighbour of Qt's choice.
void WidgetView::LeaveFocus()
{
    const QWidget* focus = widget_->window()->focusWidget();
    if (!focus || (focus != widget_ && !widget_->isAncestorOf(focus)))
        return;
    for (QWidget* parent = widget_->parentWidget(); parent; parent = parent->parentWidget()) {
        if (parent->focusPolicy() != Qt::NoFocus) {
            parent->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

void WidgetView::ShowToolTip()
{
    widget_->setToolTip(ToolTipOf(denial_.empty() ? core_.State().toolTipText : denial_));
}

void WidgetView::ShowOrder()
{
    widget_->setProperty(LayerProperty, LayerOf(WidgetKind::PictureBox));
    widget_->raise();
}

void WidgetView::StackByKind()
{
    const int layer = LayerOf(core_.KindOfWidget());
    widget_->setProperty(LayerProperty, layer);
    const auto siblings = widget_->parentWidget()->children();
    for (QObject* object : siblings) {
        auto* sibling = qobject_cast<QWidget*>(object);
        if (sibling && sibling->property(LayerProperty).toInt() > layer) {
            widget_->stackUnder(sibling);
            return;
        }
    }
}

void ShowFocusOf(const toolkit::FormModel& form)
{
    if (form.Current().unloaded)
        return;
    if (form.Focused() && form.Focused()->GetView())
        form.Focused()->GetView()->TakeFocus();
    else
        form.Window().TakeFocus();
}

QString AccessibleNameOf(const toolkit::WidgetCore& core)
{
    const ControlDesign& design = core.Design();
    const QString caption = FromText(design.caption).trimmed();
    for (const QString& name : {FromText(design.accessibleName), caption, LabelFor(core)}) {
        if (!name.isEmpty())
            return name;
    }
    return FromText(design.toolTipText);
}

} // namespace kova::qt
