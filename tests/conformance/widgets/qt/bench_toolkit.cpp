#include "tests/conformance/widgets/qt/bench_toolkit.hpp"

#include "tests/conformance/widgets/qt/input.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

namespace kova::conformance {

namespace {

QMessageBox::ButtonRole RoleOf(Reply reply)
{
    switch (reply) {
    case Reply::Yes: return QMessageBox::YesRole;
    case Reply::No: return QMessageBox::NoRole;
    case Reply::Ok: break;
    }
    return QMessageBox::AcceptRole;
}

QAbstractButton* ButtonOf(const QMessageBox& box, Reply reply)
{
    for (QAbstractButton* button : box.buttons()) {
        if (box.buttonRole(button) == RoleOf(reply))
            return button;
    }
    return nullptr;
}

std::string LineOf(const QMenu& menu)
{
    std::string line;
    for (const QAction* action : menu.actions()) {
        const std::string caption = action->isSeparator() ? "-" : action->text().toStdString();
        const bool open = action->isSeparator() || action->isEnabled();
        line += (line.empty() ? "" : "|") + (open ? caption : "(" + caption + ")");
    }
    return line;
}

void ClickEntry(QMenu& menu, const Text& caption)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == qt::FromText(caption))
            return ClickOn(&menu, menu.actionGeometry(action).center());
    }
}

} // namespace

void BenchToolkit::FormShows(const toolkit::FormModel& form, ShowMode mode)
{
    if (mode != ShowMode::Modal)
        return;
    const auto watched = form.weak_from_this();
    QTimer::singleShot(0, qApp, [this, watched] { ActInside(watched); });
}

// A loop inside an action takes actions of its own; what is left goes on when it has ended.
void BenchToolkit::ActInside(std::weak_ptr<const toolkit::FormModel> watched)
{
    const auto form = watched.lock();
    if (!form || !form->Current().visible)
        return;
    if (script_.actions.empty()) {
        ADD_FAILURE() << form->Design().name << " waits for the user";
        std::const_pointer_cast<toolkit::FormModel>(form)->Hide();
        return;
    }
    const auto action = std::move(script_.actions.front());
    script_.actions.pop_front();
    action();
    QTimer::singleShot(0, qApp, [this, watched] { ActInside(watched); });
}

void BenchToolkit::FormPopsUp(const toolkit::FormModel&, const toolkit::MenuModel&, Twips, Twips)
{
    QTimer::singleShot(0, qApp, [this] { ChooseEntry(); });
}

void BenchToolkit::ChooseEntry()
{
    const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return;
    script_.menusShown.push_back(LineOf(*menu));
    if (script_.menus.empty())
        ADD_FAILURE() << "a menu came up";
    Menu* entry = script_.menus.empty() ? nullptr : script_.menus.front();
    if (!script_.menus.empty())
        script_.menus.pop_front();
    if (entry)
        ClickEntry(*menu, dynamic_cast<toolkit::MenuModel&>(*entry).ShownCaption());
    // An entry that cannot be chosen leaves the menu open.
    if (menu && menu->isVisible())
        KeyOn(menu, Qt::Key_Escape);
}

Reply BenchToolkit::AskUser(MessageKind kind, const Text& text, const Text& title)
{
    script_.questions.push_back({kind, text, title});
    QTimer::singleShot(0, qApp, [this] { AnswerBox(); });
    return QtToolkit::AskUser(kind, text, title);
}

void BenchToolkit::AnswerBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    if (script_.replies.empty())
        ADD_FAILURE() << "message box: " << box->text().toStdString();
    const auto reply = script_.replies.empty() ? std::nullopt : script_.replies.front();
    if (!script_.replies.empty())
        script_.replies.pop_front();
    if (reply)
        ClickOn(ButtonOf(*box, *reply));
    else
        KeyOn(box, Qt::Key_Escape);
}

} // namespace kova::conformance
