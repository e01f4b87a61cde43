#include "host/sign_in/door.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/users/accounts.hpp"
#include "family/users/kept_sign_in.hpp"
#include "host/session/session_clock.hpp"
#include "host/session/session_user.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "tests/unit/host/program_run.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QTimer>

#include <optional>

namespace kova::host::test {

namespace {

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
        door_.emplace(Door::Surroundings{file_, "Céu", kept_, user_, change_, clock_});
        return *door_;
    }
    void KeepToken() { kept_.SetToken(file_, family::SignInToken(*family::OpenDatabase(file_), 1)); }
    std::chrono::minutes PatienceOf(const Door& door)
    {
        const auto* timer = door.findChild<QTimer*>();
        return timer->isActive()
            ? std::chrono::duration_cast<std::chrono::minutes>(timer->intervalAsDuration())
            : std::chrono::minutes(0);
    }

    TemporaryFolder home_;
    const std::string file_ = home_ / "loja.db";
    const KeptEntries kept_{home_ / "kovaris.ini"};
    std::shared_ptr<SessionUser> user_ = std::make_shared<SessionUser>(1, "Recepção");
    UserChange change_;
    SessionClock clock_;
    MainWindow window_{{"Céu", false, "Recepção"}};
    std::optional<Door> door_;
};

} // namespace

TEST_F(TheDoor, StandsOpenInAShopWithoutUsersAndLocksNobodyOut)
{
    MakeShop(false);
    Door& door = Open();
    EXPECT_FALSE(door.HasUsers());
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    door.Lock();
    door.Change();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(0));
    EXPECT_EQ(user_->Name(), "Recepção");
}

TEST_F(TheDoor, IsNoLongerOpenOnceTheShopHasAUserFromElsewhere)
{
    MakeShop(false);
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    window_.Open(WindowSize{1000, 700});
    const auto database = family::OpenDatabase(file_);
    const family::Secret password(std::string("Gato-Preto 1"));
    EXPECT_EQ(family::SaveAccount(
                  *database, {0, "Bia", 1, true}, &password,
                  {.code = "0", .name = "root", .moment = "2026-11-20 09:00:00", .isOwner = true}, {1, 8192})
                  .why,
              "");
    EXPECT_FALSE(door.HasUsers());
    door.Change();
    EXPECT_TRUE(door.HasUsers());
    EXPECT_NE(QApplication::activeModalWidget(), nullptr);
    door_.reset();
}

TEST_F(TheDoor, LetsInWhomThisComputerKnowsAndTellsTheAreas)
{
    MakeShop(true);
    KeepToken();
    int told = 0;
    change_.Follow(window_, [&] { ++told; });
    Door& door = Open();
    EXPECT_TRUE(door.HasUsers());
    EXPECT_TRUE(door.Enter());
    EXPECT_EQ(user_->Name(), "Ana");
    EXPECT_EQ(user_->Code(), 1);
    EXPECT_TRUE(door.IsAdministrator());
    EXPECT_EQ(told, 1);
    door.Watch(window_);
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(0)) << "whoever is never asked is not locked out";
}

TEST_F(TheDoor, LetsInOnceWhoeverHasJustMadeTheShop)
{
    MakeShop(true);
    const std::string entry = family::SignInToken(*family::OpenDatabase(file_), 1);
    door_.emplace(Door::Surroundings{file_, "Céu", kept_, user_, change_, clock_, entry});
    EXPECT_TRUE(door_->Enter());
    EXPECT_EQ(user_->Name(), "Ana");
    EXPECT_EQ(kept_.Token(file_), "") << "the next start asks";
    door_->Watch(window_);
    EXPECT_EQ(PatienceOf(*door_), std::chrono::minutes(15));
    door_.reset();
}

TEST_F(TheDoor, LocksAfterAsManyIdleMinutesAsAreSet)
{
    MakeShop(true);
    KeepToken();
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    kept_.SetToken(file_, "");
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(0)) << "there is no window yet";
    door.Watch(window_);
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(15));
    door.SetIdleMinutes(3);
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(3));
    door.SetIdleMinutes(0);
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(0));
    EXPECT_EQ(door.IdleMinutes(), 0);
}

/// What this computer keeps is of the only user; once there is another it keeps nobody's place.
TEST_F(TheDoor, LocksWhereThisComputerKnewTheOnlyUserAndThereIsAnotherNow)
{
    MakeShop(true);
    KeepToken();
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(0));
    const auto database = family::OpenDatabase(file_);
    const family::Secret password(std::string("Laço Azul 22"));
    EXPECT_EQ(family::SaveAccount(
                  *database, {0, "Lia", 3, true}, &password,
                  {.code = "0", .name = "root", .moment = "2026-11-20 09:00:00", .isOwner = true}, {1, 8192})
                  .why,
              "");
    change_.Tell();
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(15));
}

TEST_F(TheDoor, AsksOnceForALockAndChangesNoPlaceMeanwhile)
{
    MakeShop(true);
    KeepToken();
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    window_.Open(WindowSize{1000, 700});
    door.Change();
    const QPointer<QWidget> changing = QApplication::activeModalWidget();
    ASSERT_TRUE(changing);
    EXPECT_EQ(changing->windowTitle(), "Trocar usuário");
    door.Lock();
    EXPECT_FALSE(changing);
    const QPointer<QWidget> lock = QApplication::activeModalWidget();
    ASSERT_TRUE(lock);
    door.Lock();
    door.Change();
    EXPECT_EQ(QApplication::activeModalWidget(), lock);
    EXPECT_EQ(lock->windowTitle(), "Bloqueado - Kovaris");
    door_.reset();
}

} // namespace kova::host::test
