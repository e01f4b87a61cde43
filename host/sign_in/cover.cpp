#include "host/sign_in/cover.hpp"

#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

namespace kova::host {

namespace {

const QString SheetName = QStringLiteral("cobertura");

/// Lies over all of its window, whatever size that gets.
class Sheet : public QWidget {
public:
    explicit Sheet(QWidget& window) : QWidget(&window)
    {
        setObjectName(SheetName);
        setAttribute(Qt::WA_OpaquePaintEvent);
        window.installEventFilter(this);
        setGeometry(window.rect());
        raise();
        show();
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(static_cast<QWidget*>(object)->rect());
        // What is made meanwhile comes up below it.
        if (event->type() == QEvent::ChildAdded || event->type() == QEvent::LayoutRequest)
            raise();
        return false;
    }

    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), qt::look::Desk); }
};

} // namespace

Cover::Cover(QWidget& besides) : besides_(besides)
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            Put(*window);
    }
    QCoreApplication::instance()->installEventFilter(this);
}

Cover::~Cover()
{
    for (const QPointer<QWidget>& sheet : sheets_)
        delete sheet;
}

void Cover::Put(QWidget& window)
{
    if (&window != &besides_ && window.findChild<QWidget*>(SheetName, Qt::FindDirectChildrenOnly) == nullptr)
        sheets_.emplace_back(new Sheet(window));
}

// Of the dialog's own there are lists and tips.
bool Cover::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Show || !object->isWidgetType())
        return false;
    auto* widget = static_cast<QWidget*>(object);
    const bool isOfTheDialog = widget == &besides_ || besides_.isAncestorOf(widget);
    const bool isPassing = widget->windowType() == Qt::Popup || widget->windowType() == Qt::ToolTip;
    if (!widget->isWindow() || isOfTheDialog || isPassing)
        return false;
    Put(*widget);
    if (widget->isModal())
        QMetaObject::invokeMethod(
            this, [this] { ComeToTheFront(); }, Qt::QueuedConnection);
    return false;
}

// What is modal and came last has the keys: a question that nobody sees would be answered by whoever types.
void Cover::ComeToTheFront()
{
    besides_.hide();
    besides_.show();
}

} // namespace kova::host
