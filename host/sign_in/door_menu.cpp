#include "host/sign_in/door_menu.hpp"

#include "host/shell/main_window.hpp"
#include "host/sign_in/door.hpp"
#include "host/sign_in/user_dialogs.hpp"

#include <QMenu>

#include <utility>
#include <vector>

namespace kova::host {

namespace {

using Act = std::function<void()>;

/// The entries, by those who see them.
struct Entries {
    std::vector<QAction*> ofUsers, ofNoUsers, ofAdministrators;

    void Offer(const Door& door, bool mayBegin) const
    {
        for (QAction* one : ofUsers)
            one->setVisible(door.HasUsers());
        for (QAction* one : ofNoUsers)
            one->setVisible(!door.HasUsers() && mayBegin);
        for (QAction* one : ofAdministrators)
            one->setVisible(door.HasUsers() && door.IsAdministrator());
    }
};

/// The user's name becomes a button as soon as another can take the place.
void OfferChange(Door& door, MainWindow& window)
{
    if (door.HasUsers())
        window.OfferChange([&door] { door.Change(); });
}

} // namespace

void AddDoorToMenu(Door& door, MainWindow& window, bool mayBegin)
{
    QMenu& menu = window.Menu();
    Entries entries;
    const auto add = [&](const QString& text, Act act) {
        QAction* entry = menu.addAction(text);
        QObject::connect(entry, &QAction::triggered, &window, std::move(act));
        return entry;
    };
    entries.ofUsers.push_back(
        add(QStringLiteral("&Trocar usuário...\tCtrl+Shift+U"), [&door] { door.Change(); }));
    entries.ofUsers.push_back(add(QStringLiteral("&Bloquear agora\tCtrl+Shift+L"), [&door] { door.Lock(); }));
    entries.ofUsers.push_back(
        add(QStringLiteral("&Mudar minha senha..."), [&door, &window] { ChangeMySecrets(door, window); }));
    entries.ofAdministrators.push_back(add(QStringLiteral("Bloqueio por &inatividade..."),
                                           [&door, &window] { AskForIdleMinutes(door, window); }));
    entries.ofNoUsers.push_back(add(QStringLiteral("&Começar a usar usuários..."), [&door, &window] {
        BeginWithUsers(door, window);
        OfferChange(door, window);
    }));
    menu.addSeparator();
    entries.Offer(door, mayBegin);
    OfferChange(door, window);
    QObject::connect(&menu, &QMenu::aboutToShow, &window, [&door, &window, entries, mayBegin] {
        door.LookAgain();
        entries.Offer(door, mayBegin);
        OfferChange(door, window);
    });
}

} // namespace kova::host
