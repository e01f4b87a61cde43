#include "tools/hand/hand.hpp"

#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/whole_number.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeySequence>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <climits>

namespace kova::hand {

namespace {

constexpr double UnitsOfNotch = 120;

/// Where the mouse is.
struct Mouse {
    QPointer<QWindow> window;
    QPoint place;
};

Mouse& TheMouse()
{
    static Mouse mouse;
    return mouse;
}

void Send(QWindow& window, const QPoint& place, Qt::MouseButton button, QEvent::Type type)
{
    TheMouse() = {&window, place};
    const QPoint onScreen = window.mapToGlobal(place);
    qt_handleMouseEvent(&window, place, onScreen, QTestPrivate::qtestMouseButtons, button, type,
                        QGuiApplication::keyboardModifiers(), QTest::lastMouseTimestamp);
    QCoreApplication::processEvents();
}

QPoint InWindow(const Spot& spot) { return spot.widget->mapTo(spot.widget->window(), spot.place); }

QMessageBox::ButtonRole RoleOf(Reply reply)
{
    switch (reply) {
    case Reply::Yes: return QMessageBox::YesRole;
    case Reply::No: return QMessageBox::NoRole;
    case Reply::Ok: break;
    }
    return QMessageBox::AcceptRole;
}

/// The application's window: one that shows a form inside, else any.
QWidget* OwnWindow()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        const auto* form = dynamic_cast<qt::FormWidget*>(widget);
        if (form && form->isVisible() && form->window()->isVisible())
            return form->window();
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

/// The window manager's part in a press: the window gets the keyboard.
void Activate(const QWidget& widget)
{
    QWidget* window = widget.window();
    if (window->isActiveWindow() || window->windowType() == Qt::Popup)
        return;
    window->activateWindow();
    QCoreApplication::processEvents();
}

/// A window of nobody's, out of sight.
QWindow& Unseen()
{
    static auto* const unseen = [] {
        auto* window = new QWindow;
        window->setFlags(Qt::Tool | Qt::FramelessWindowHint);
        window->create();
        return window;
    }();
    return *unseen;
}

/// Lets a key go where the keyboard is by then: the window of the press may be gone.
void LetGo(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    if (QWindow* window = Hand::WindowOfKeys())
        QTest::sendKeyEvent(QTest::Release, window, key, text, modifiers);
}

bool Stroke(Qt::Key key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    QWindow* window = Hand::WindowOfKeys();
    if (!window)
        return false;
    QTest::sendKeyEvent(QTest::Press, window, key, text, modifiers);
    LetGo(key, text, modifiers);
    return true;
}

QString TextOfKey(Qt::Key key)
{
    const char text = QTest::keyToAscii(key);
    return text ? QString(QLatin1Char(text)) : QString();
}

} // namespace

void Hand::MoveAt(QWindow& window, const QPoint& place)
{
    ++QTest::lastMouseTimestamp;
    Send(window, place, Qt::NoButton, QEvent::MouseMove);
}

void Hand::PressAt(QWindow& window, const QPoint& place, Qt::MouseButton button)
{
    ++QTest::lastMouseTimestamp;
    QTestPrivate::qtestMouseButtons.setFlag(button, true);
    Send(window, place, button, QEvent::MouseButtonPress);
}

void Hand::ReleaseAt(QWindow& window, const QPoint& place, Qt::MouseButton button)
{
    ++QTest::lastMouseTimestamp;
    QTestPrivate::qtestMouseButtons.setFlag(button, false);
    Send(window, place, button, QEvent::MouseButtonRelease);
}

void Hand::ClickAt(QWindow& window, const QPoint& place, Qt::MouseButton button)
{
    const QPointer<QWindow> watched(&window);
    QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval;
    // A person looks before pressing: a window that has just gone has left the screen by then.
    QCoreApplication::processEvents();
    if (watched)
        PressAt(window, place, button);
    if (watched)
        ReleaseAt(window, place, button);
    else
        QTestPrivate::qtestMouseButtons.setFlag(button, false);
}

// A mouse that has come to the place above another window is there already: that window takes the move that a
// press at a new place would tell the window of.
void Hand::TapAt(QWindow& window, const QPoint& place)
{
    MoveAt(Unseen(), Unseen().mapFromGlobal(window.mapToGlobal(place)));
    ClickAt(window, place);
}

void Hand::PassOn()
{
    constexpr QPoint farAway(-10000, -10000);
    MoveAt(Unseen(), farAway);
}

void Hand::WheelAt(QWindow& window, const QPoint& place, double notches)
{
    const QPoint onScreen = window.mapToGlobal(place);
    QWheelEvent event(place, onScreen, QPoint(), QPoint(0, static_cast<int>(notches * UnitsOfNotch)),
                      QTestPrivate::qtestMouseButtons, QGuiApplication::keyboardModifiers(),
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&window, &event);
    QCoreApplication::processEvents();
}

std::string Hand::MoveTo(const Spot& spot)
{
    std::string reason = WhyNot(spot);
    // A disabled widget can be passed over, and shows its tool tip.
    if (reason.empty() || (spot.widget && reason.ends_with(" is disabled"))) {
        MoveAt(*WindowUnder(spot.widget), InWindow(spot));
        return {};
    }
    return reason;
}

std::string Hand::Press(const Spot& spot, Qt::MouseButton button)
{
    if (std::string reason = WhyNot(spot); !reason.empty())
        return reason;
    QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval;
    Activate(*spot.widget);
    MoveAt(*WindowUnder(spot.widget), InWindow(spot));
    // What the mouse passes over may change what lies there.
    if (std::string reason = WhyNot(spot); !reason.empty())
        return reason;
    PressAt(*WindowUnder(spot.widget), InWindow(spot), button);
    return {};
}

void Hand::Release(Qt::MouseButton button)
{
    const Mouse mouse = TheMouse();
    if (mouse.window)
        return ReleaseAt(*mouse.window, mouse.place, button);
    QTestPrivate::qtestMouseButtons.setFlag(button, false);
    if (QWindow* window = QGuiApplication::focusWindow())
        ReleaseAt(*window, QPoint(-1, -1), button);
}

std::string Hand::Click(const Spot& spot, Qt::MouseButton button)
{
    std::string reason = Press(spot, button);
    if (reason.empty())
        Release(button);
    return reason;
}

std::string Hand::Tap(const Spot& spot)
{
    if (std::string reason = WhyNot(spot); !reason.empty())
        return reason;
    Activate(*spot.widget);
    TapAt(*WindowUnder(spot.widget), InWindow(spot));
    return {};
}

std::string Hand::DoubleClick(const Spot& spot)
{
    std::string reason = Click(spot);
    const Mouse mouse = TheMouse();
    if (!reason.empty() || !mouse.window)
        return reason;
    PressAt(*mouse.window, mouse.place, Qt::LeftButton);
    Release();
    return {};
}

std::string Hand::Drag(const Spot& from, const Spot& to)
{
    if (std::string reason = Press(from); !reason.empty())
        return reason;
    QWindow* window = to.widget ? WindowUnder(to.widget) : nullptr;
    if (window)
        MoveAt(*window, InWindow(to));
    Release();
    return {};
}

std::string Hand::Wheel(const Spot& spot, double notches)
{
    if (std::string reason = WhyNot(spot); !reason.empty())
        return reason;
    WheelAt(*WindowUnder(spot.widget), InWindow(spot), notches);
    return {};
}

std::string Hand::Reveal(const Spot& spot)
{
    constexpr int mostTurns = 200;
    for (QWidget* around = spot.widget; around; around = around->parentWidget()) {
        auto* area = dynamic_cast<QAbstractScrollArea*>(around);
        if (!area || area == spot.widget)
            continue;
        QWidget* port = area->viewport();
        QPoint last(-1, -1);
        for (int turn = 0; turn < mostTurns && spot.widget; ++turn) {
            const QPoint place = spot.widget->mapTo(port, spot.place);
            if (port->rect().contains(place) || place == last)
                break;
            last = place;
            WheelAt(*WindowUnder(port), InWindow(Spot(port)), place.y() < 0 ? 0.5 : -0.5);
        }
    }
    return WhyNot(spot);
}

bool Hand::Key(const std::string& name)
{
    const QString text = QString::fromStdString(name);
    if (text.size() == 1)
        return Stroke(static_cast<Qt::Key>(text.at(0).toUpper().unicode()), text, Qt::NoModifier);
    QString portable = text;
    portable.replace(QLatin1String("PageDown"), QLatin1String("PgDown"))
        .replace(QLatin1String("PageUp"), QLatin1String("PgUp"))
        .replace(QLatin1String("Escape"), QLatin1String("Esc"))
        .replace(QLatin1String("Delete"), QLatin1String("Del"));
    const QKeySequence sequence = QKeySequence::fromString(portable, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        return false;
    return Key(sequence[0].key(), sequence[0].keyboardModifiers());
}

bool Hand::Key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    return Stroke(key, TextOfKey(key), modifiers);
}

void Hand::Type(const std::string& text)
{
    for (const QChar character : QString::fromStdString(text)) {
        const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
        if (!Stroke(key, QString(character), Qt::NoModifier))
            return;
    }
}

void Hand::CloseWindow(QWidget& window)
{
    if (QWindow* handle = WindowUnder(&window))
        handle->close();
    QCoreApplication::processEvents();
}

QMessageBox* Hand::OpenBox() { return dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()); }

QMenu* Hand::OpenMenu() { return dynamic_cast<QMenu*>(QApplication::activePopupWidget()); }

QListWidget* Hand::OpenList()
{
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup->findChild<QListWidget*>() : nullptr;
}

std::string Hand::Answer(QMessageBox& box, Reply reply)
{
    for (QAbstractButton* button : box.buttons()) {
        if (box.buttonRole(button) == RoleOf(reply))
            return Click(Spot(button));
    }
    return "the box does not offer that answer";
}

std::string Hand::Pick(QMenu& menu, const QString& entry)
{
    for (QAction* action : menu.actions()) {
        if (action->text() != entry)
            continue;
        if (!action->isEnabled())
            return entry.toStdString() + " is disabled";
        return Click({&menu, menu.actionGeometry(action).center()});
    }
    return entry.toStdString() + " is not in the menu";
}

std::string Hand::Pick(QListWidget& list, int row)
{
    if (row < 0 || row >= list.count())
        return "the list has no row " + std::to_string(row);
    QWidget* port = list.viewport();
    const auto place = [&] { return list.visualItemRect(list.item(row)).center(); };
    for (int last = INT_MIN; !port->rect().contains(place()) && place().y() != last;) {
        last = place().y();
        WheelAt(*WindowUnder(port), InWindow(Spot(port)), last < 0 ? 1.0 / 3 : -1.0 / 3);
    }
    return Click({port, place()});
}

Spot Hand::RevealRow(QWidget& grid, Long row)
{
    // A wheel turns three rows by a notch.
    constexpr double notchesOfRow = 1.0 / 3;
    const toolkit::GridModel& model = dynamic_cast<const qt::GridCanvas&>(grid).Model();
    const toolkit::GridAxis& rows = model.RowAxis();
    const auto height = toolkit::WholeNumber<Long>(model.State().height);
    const auto outside = [&] { return row < rows.First() || row >= rows.First() + rows.PageSize(height); };
    if (row < 0 || row >= rows.Count() || row < rows.Fixed() || !outside() || !WindowUnder(&grid))
        return RowOf(grid, row);
    for (Long last = -1; rows.First() != row && rows.First() != last;) {
        last = rows.First();
        WheelAt(*WindowUnder(&grid), InWindow(Spot(&grid)), row < last ? notchesOfRow : -notchesOfRow);
    }
    return RowOf(grid, row);
}

QWindow* Hand::WindowOfKeys()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->windowHandle();
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* front = modal ? modal : OwnWindow();
    QWidget* active = QApplication::activeWindow();
    const bool lost =
        !active || !active->isVisible() || (modal && active != modal && !modal->isAncestorOf(active));
    if (lost && front) {
        front->activateWindow();
        QCoreApplication::processEvents();
    }
    return QGuiApplication::focusWindow() ? QGuiApplication::focusWindow() : WindowUnder(front);
}

} // namespace kova::hand
