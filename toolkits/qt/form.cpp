#include "toolkits/qt/form.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/burial.hpp"
#include "toolkits/qt/form_area.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/look/tool_tip.hpp"
#include "toolkits/qt/top_window.hpp"
#include "toolkits/qt/widget_view.hpp"

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <functional>

namespace kova::qt {

namespace {

class ContainerWatch : public QObject {
public:
    ContainerWatch(QWidget& watched, std::function<void()> resized, std::function<void()> ended)
        : watched_(&watched), resized_(std::move(resized)), ended_(std::move(ended))
    {
        watched.installEventFilter(this);
        connect(&watched, &QObject::destroyed, this, [this] { End(); });
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            resized_();
        else if (event->type() == QEvent::Close)
            // The container itself has not said yet whether it closes.
            QTimer::singleShot(0, this, [this] { EndWhereClosed(); });
        return false;
    }

private:
    void EndWhereClosed()
    {
        if (watched_ && !watched_->isVisible())
            End();
    }

    // The end of the form is the end of its watch too.
    void End()
    {
        const auto ended = ended_;
        ended();
    }

    QPointer<QWidget> watched_;
    std::function<void()> resized_, ended_;
};

Qt::WindowFlags FlagsOf(const FormDesign& design)
{
    if (!design.bordered)
        return Qt::Dialog | Qt::FramelessWindowHint;
    Qt::WindowFlags flags =
        Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
    if (design.resizable)
        flags |= Qt::WindowMaximizeButtonHint;
    return flags;
}

// What a window, or its container, that the model does not size leaves the form.
toolkit::InnerSize InnerSizeOf(const FormDesign& design, const QWidget& widget)
{
    const QSize inner = InnerSizeWithin(design, widget.size());
    return {ToTwips(inner.width()), ToTwips(inner.height())};
}

QSize SizeOf(toolkit::InnerSize inner) { return QSize(Pixels(inner.width), Pixels(inner.height)); }

// The room below a panel goes with the form's height, also where the form leaves the panel where it was.
void PlacePanels(const toolkit::FormModel& model)
{
    for (const auto& core : model.Widgets()) {
        if (core->KindOfWidget() == WidgetKind::PictureBox && core->GetView())
            core->GetView()->Update(toolkit::Aspect::Geometry);
    }
}

// The form has got that inner area from its container or its user.
void Take(FormWidget& widget, toolkit::InnerSize inner)
{
    const QPointer<FormWidget> living(&widget);
    widget.Area().Hold(SizeOf(inner));
    widget.Model().UserResizes(inner);
    if (living)
        PlacePanels(widget.Model());
}

} // namespace

FormWidget::FormWidget(toolkit::FormModel& model)
    : PlainPanel(nullptr), model_(model), area_(new FormArea(model.Design(), this))
{
    const FormDesign& design = model.Design();
    setWindowFlags(FlagsOf(design));
    setWindowTitle(FromText(design.caption));
    setObjectName(FromText(design.name));
    setAccessibleName(FromText(design.caption));
    // Takes the keys where no control has the focus, so that Tab and Escape still reach the form.
    setFocusPolicy(Qt::ClickFocus);
    setFont(MakeFont("Arial", 9.75));
}

bool FormWidget::Forward(toolkit::FormKey key)
{
    model_.UserPressesKey(key);
    return true;
}

bool FormWidget::ForwardShortcut(const QString& key) { return model_.UserPressesShortcut(ToText(key)); }

void FormWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), GroundColor(model_.Design().backColor, look::Paper));
    if (isWindow() && !model_.Design().bordered) {
        painter.setPen(QPen(look::Border, 1));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void FormWidget::closeEvent(QCloseEvent* event)
{
    event->ignore();
    model_.UserCloses();
}

void FormWidget::resizeEvent(QResizeEvent*)
{
    area_->setGeometry(rect());
    // A form that gives its own size keeps it whatever a desktop makes of its window.
    if (followsModel || !isVisible() || !model_.Design().resizable)
        return;
    Take(*this, InnerSizeOf(model_.Design(), *this));
}

void FormWidget::moveEvent(QMoveEvent*)
{
    if (!followsModel && isWindow() && isVisible())
        model_.UserMoves(ToTwips(x()), ToTwips(y()));
}

// A click beside the widgets, or on a disabled one, does not take the focus from the one that has it.
void FormWidget::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::MouseFocusReason && model_.Focused())
        ShowFocusOf(model_);
}

FormWindow::FormWindow(const TopWindow& top, toolkit::FormModel& model)
    : top_(top), model_(model), widget_(new FormWidget(model)), handle_(HandleOf(*widget_))
{
    ShowGeometry();
}

// No event is on the stack when a form dies.
FormWindow::~FormWindow()
{
    containerWatch_.reset();
    delete widget_.data();
}

Long FormWindow::Handle() const { return handle_; }

std::optional<toolkit::InnerSize> FormWindow::SetParent(Long containerHandle)
{
    QWidget* container = ContainerOfHandle(containerHandle);
    if (!container || !widget_)
        return std::nullopt;
    container_ = container;
    containerWatch_ = std::make_unique<ContainerWatch>(
        *container, [this] { FitToContainer(); }, [this] { model_.ContainerEnds(); });
    widget_->followsModel = true;
    widget_->setParent(container, Qt::Widget);
    widget_->setMinimumSize(0, 0);
    widget_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    widget_->setGeometry(container->rect());
    widget_->followsModel = false;
    const toolkit::InnerSize inner = InnerOf(*container);
    widget_->Area().Hold(SizeOf(inner));
    return inner;
}

toolkit::InnerSize FormWindow::InnerOf(const QWidget& container) const
{
    return InnerSizeOf(model_.Design(), container);
}

void FormWindow::FitToContainer()
{
    if (!widget_ || !container_)
        return;
    widget_->followsModel = true;
    widget_->setGeometry(container_->rect());
    widget_->followsModel = false;
    Take(*widget_, InnerOf(*container_));
}

void FormWindow::Update(toolkit::FormAspect aspect)
{
    if (!widget_)
        return;
    switch (aspect) {
    case toolkit::FormAspect::Caption: widget_->setWindowTitle(FromText(model_.Current().caption)); return;
    case toolkit::FormAspect::Geometry: ShowGeometry(); return;
    // Input is held back at the gate; greying a whole form for a second's work would only flicker.
    case toolkit::FormAspect::Enabled: return;
    }
}

void FormWindow::ShowGeometry()
{
    if (!widget_ || container_)
        return;
    widget_->Area().Hold(SizeOf(model_.Inner()));
    const QSize size =
        widget_->Area().SizeWithin(RoomFor(model_.Design(), placed_ ? widget_ : WindowBelow()));
    const QPoint place(Pixels(model_.Current().left), Pixels(model_.Current().top));
    widget_->followsModel = true;
    if (model_.Design().resizable)
        widget_->resize(size);
    else
        widget_->setFixedSize(size);
    if (placed_ && widget_->pos() != place)
        widget_->move(place);
    widget_->followsModel = false;
    FollowArea();
}

// A form that is shrunk to nothing leaves the screen and comes back where it was; its modal loop goes on.
void FormWindow::FollowArea()
{
    if (!vanished_ && widget_->isVisible() && !model_.IsOnScreen()) {
        vanished_ = true;
        widget_->hide();
    } else if (vanished_ && model_.IsOnScreen()) {
        vanished_ = false;
        Appear();
    }
}

// A form whose size is the user's takes what the screen has; any other one scrolls.
void FormWindow::FitToScreen()
{
    ShowGeometry();
    const FormDesign& design = model_.Design();
    const QSize room = RoomFor(design, WindowBelow());
    const QSize wanted = SizeOf(model_.Inner());
    if (!design.resizable || wanted == wanted.boundedTo(room))
        return;
    widget_->followsModel = true;
    widget_->resize(wanted.boundedTo(room));
    widget_->followsModel = false;
    Take(*widget_, InnerSizeOf(design, *widget_));
}

void FormWindow::CentreOver(const QWidget* other)
{
    const QScreen* screen = other ? other->screen() : QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    const QPoint centre = other ? other->frameGeometry().center() : room.center();
    QRect area(QPoint(), widget_->size());
    area.moveCenter(centre);
    // The frame is counted in the least that every desktop has.
    const QSize outer = area.size() + (room.size() - RoomFor(model_.Design(), other));
    area.moveLeft(std::clamp(area.left(), room.left(), std::max(room.left(), room.right() - outer.width())));
    area.moveTop(std::clamp(area.top(), room.top(), std::max(room.top(), room.bottom() - outer.height())));
    widget_->followsModel = true;
    widget_->move(area.topLeft());
    widget_->followsModel = false;
    model_.UserMoves(ToTwips(area.left()), ToTwips(area.top()));
}

void FormWindow::TellViews() const
{
    for (const auto& core : model_.Widgets()) {
        if (auto* view = dynamic_cast<WidgetView*>(core->GetView()))
            view->FormAppears();
    }
}

// A form that is shown over a modal one belongs to it: Qt would keep the user out of any other.
QWidget* FormWindow::WindowBelow() const
{
    const toolkit::FormModel* modal = model_.GetToolkit().ModalForm();
    if (modal && modal != &model_) {
        const QWidget* widget = static_cast<const FormWindow&>(modal->Window()).Window();
        if (widget && widget->isVisible())
            return widget->window();
    }
    return top_.Below(widget_);
}

void FormWindow::Show(ShowMode mode)
{
    if (!widget_)
        return;
    modalEnded_ = false;
    if (!container_ && !widget_->isVisible())
        widget_->setWindowModality(mode == ShowMode::Modal ? Qt::ApplicationModal : Qt::NonModal);
    vanished_ = !container_ && !model_.IsOnScreen();
    PlacePanels(model_);
    if (!vanished_)
        Appear();
}

void FormWindow::Appear()
{
    if (!container_ && !widget_->isVisible()) {
        QWidget* below = WindowBelow();
        if (!placed_) {
            FitToScreen();
            CentreOver(below);
        }
        placed_ = true;
        widget_->winId();
        if (below && below->windowHandle())
            widget_->windowHandle()->setTransientParent(below->windowHandle());
    }
    TellViews();
    widget_->followsModel = true;
    widget_->show();
    widget_->followsModel = false;
    widget_->raise();
    if (!container_)
        widget_->activateWindow();
}

void FormWindow::Hide()
{
    vanished_ = false;
    if (widget_)
        widget_->hide();
}

void FormWindow::Remove()
{
    containerWatch_.reset();
    if (!widget_)
        return;
    widget_->followsModel = true;
    Bury(*widget_);
}

void FormWindow::RunModal()
{
    if (modalEnded_)
        return;
    QEventLoop loop;
    loop_ = &loop;
    loop.exec();
    loop_ = nullptr;
}

void FormWindow::EndModal()
{
    modalEnded_ = true;
    if (loop_)
        loop_->quit();
}

void FormWindow::TakeFocus()
{
    if (widget_)
        widget_->setFocus(Qt::OtherFocusReason);
}

void FormWindow::Refresh()
{
    if (widget_ && widget_->isVisible())
        widget_->repaint();
}

toolkit::MenuModel* FormWindow::PopupMenu(toolkit::MenuModel&,
                                          const std::vector<toolkit::MenuModel*>& entries, Twips x, Twips y)
{
    if (!widget_)
        return nullptr;
    QMenu menu(widget_);
    menu.setFont(MakeFont("Arial", 9.75));
    menu.setToolTipsVisible(true);
    QHash<QAction*, toolkit::MenuModel*> entryOf;
    for (toolkit::MenuModel* entry : entries) {
        if (entry->IsRule()) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(FromText(entry->ShownCaption()));
        action->setEnabled(entry->IsChoosable());
        action->setToolTip(ToolTipOf(entry->Denial()));
        entryOf.insert(action, entry);
    }
    const QPoint place = widget_->Area().ToScreen(QPoint(Pixels(x), Pixels(y)));
    return entryOf.value(menu.exec(place));
}

FormWidget* FormAround(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (auto* form = dynamic_cast<FormWidget*>(widget))
            return form;
        if (widget->isWindow())
            return nullptr;
    }
    return nullptr;
}

} // namespace kova::qt
