#pragma once

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/users/accounts.hpp"
#include "family/users/kept_sign_in.hpp"
#include "family/users/user_rights.hpp"
#include "host/session/session_clock.hpp"
#include "host/session/session_user.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "host/sign_in/door.hpp"
#include "tests/unit/host/program_run.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QLabel>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace kova::host::test {

/// The door of a shop, and the window that it watches.
class TheDoor : public WithApplication {
protected:
    /// The shop that Ana alone enters, or without users.
    void MakeShop(bool hasUsers)
    {
        family::NewShop shop;
        shop.company.nomeFantasia = "Céu";
        shop.user = shop.employee = "Ana";
        if (hasUsers)
            shop.password = family::HashOf(family::Secret(std::string("Gato-Preto 1")), {1, 8192});
        family::CreateNewShop(file_, shop);
    }
    Door& Open()
    {
        door_.emplace(Door::Surroundings{
            file_, "Céu", kept_, user_, change_, clock_, {}, family::HasUsers(*family::OpenDatabase(file_))});
        return *door_;
    }
    static constexpr family::PasswordCost Cheap{1, 8192};
    /// Ana alone is a user, and is asked again when she comes back; the window is open.
    Door& AnaAtWork()
    {
        MakeShop(true);
        KeepToken();
        Door& door = Open();
        EXPECT_TRUE(door.Enter());
        kept_.SetToken(file_, "");
        door.Watch(window_);
        window_.Open(WindowSize{1000, 700});
        return door;
    }
    /// Another one who administers the users.
    void AddBia() const
    {
        const family::Secret password(std::string("Laço Azul 22"));
        EXPECT_EQ(
            family::SaveAccount(*family::OpenDatabase(file_), {0, "Bia", 1, true}, &password, owner_, Cheap)
                .why,
            "");
    }
    /// What the dialog in front says.
    static std::string Why()
    {
        return QApplication::activeModalWidget()
            ->findChild<QLabel*>(QStringLiteral("motivo"))
            ->text()
            .toStdString();
    }
    void Execute(const std::string& statement) const { family::OpenDatabase(file_)->Session() << statement; }
    void RefusePins() const
    {
        Execute("create trigger nada before update of pin on usuario when new.pin is not null begin select"
                " raise(abort, 'nada'); end");
    }
    void KeepToken() { kept_.SetToken(file_, family::SignInToken(*family::OpenDatabase(file_), 1)); }
    std::chrono::minutes PatienceOf(const Door& door)
    {
        const auto* timer = door.findChild<QTimer*>();
        return timer->isActive()
            ? std::chrono::duration_cast<std::chrono::minutes>(timer->intervalAsDuration())
            : std::chrono::minutes(0);
    }

    const family::Author owner_{
        .code = "0", .name = "root", .moment = "2026-11-20 09:00:00", .isOwner = true};
    TemporaryFolder home_;
    const std::string file_ = home_ / "loja.db";
    const KeptEntries kept_{home_ / "kovaris.ini"};
    std::shared_ptr<SessionUser> user_ = std::make_shared<SessionUser>(1, "Recepção");
    UserChange change_;
    SessionClock clock_;
    MainWindow window_{{"Céu", false, "Recepção"}};
    std::optional<Door> door_;
};

} // namespace kova::host::test
