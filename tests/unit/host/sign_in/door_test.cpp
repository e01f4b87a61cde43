#include "family/users/idle_lock.hpp"
#include "tests/unit/host/sign_in/door_fixture.hpp"

#include <QPointer>
#include <QTest>

namespace kova::host::test {

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
    door_.emplace(Door::Surroundings{file_, "Céu", kept_, user_, change_, clock_, entry, true});
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
    EXPECT_EQ(door.SetIdleMinutes(3), "");
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(3));
    EXPECT_EQ(door.SetIdleMinutes(0), "");
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(0));
    EXPECT_EQ(door.IdleMinutes(), 0);
    EXPECT_EQ(Open().IdleMinutes(), 0) << "it is the shop's, whatever desk it was set at";
}

TEST_F(TheDoor, FollowsWhatAnotherDeskSets)
{
    Door& door = AnaAtWork();
    EXPECT_EQ(family::SetIdleMinutes(*family::OpenDatabase(file_), 7, owner_), "");
    window_.onTurned();
    EXPECT_TRUE(QTest::qWaitFor([&] { return door.IdleMinutes() == 7; }));
    EXPECT_EQ(PatienceOf(door), std::chrono::minutes(7));
}

TEST_F(TheDoor, TellsTheAreasWhatAnotherDeskHasTakenAway)
{
    Door& door = AnaAtWork();
    AddBia();
    int told = 0;
    change_.Follow(window_, [&] { ++told; });
    EXPECT_EQ(family::SaveAccount(*family::OpenDatabase(file_), {1, "Ana", 3, true}, nullptr, owner_).why,
              "");
    EXPECT_TRUE(door.IsAdministrator());
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window_, &activation);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !door.IsAdministrator(); }));
    EXPECT_EQ(told, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "Ana still works here";
}

TEST_F(TheDoor, IsShownToWhomAnotherDeskHasDeactivated)
{
    Door& door = AnaAtWork();
    AddBia();
    EXPECT_EQ(family::SaveAccount(*family::OpenDatabase(file_), {1, "Ana", 1, false}, nullptr, owner_).why,
              "");
    window_.onTurned();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
    EXPECT_EQ(
        Why(),
        "Ana não entra mais nesta loja. Entre com outro usuário, ou peça a quem administra os usuários. "
        "O que está na tela continua como está.");
    QWidget* const asked = QApplication::activeModalWidget();
    window_.onTurned();
    door.Lock();
    EXPECT_EQ(QApplication::activeModalWidget(), asked);
    door_.reset();
}

TEST_F(TheDoor, IsShownToWhoeverWorksWithoutSigningInOnceTheShopHasUsers)
{
    MakeShop(false);
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    window_.Open(WindowSize{1000, 700});
    // The one that this desk has written as until now.
    const family::Secret password(std::string("Gato-Preto 1"));
    EXPECT_EQ(
        family::SaveAccount(*family::OpenDatabase(file_), {1, "Ana", 1, true}, &password, owner_, Cheap).why,
        "");
    window_.onTurned();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
    EXPECT_EQ(Why(),
              "Esta loja passou a ter usuários: entre com o seu. O que está na tela continua como está.");
    EXPECT_TRUE(door.HasUsers());
    door_.reset();
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
    EXPECT_EQ(Why(), "Quem vai usar este posto agora? O que está na tela continua como está.");
    door.Lock();
    EXPECT_FALSE(changing);
    const QPointer<QWidget> lock = QApplication::activeModalWidget();
    ASSERT_TRUE(lock);
    door.Lock();
    door.Change();
    EXPECT_EQ(QApplication::activeModalWidget(), lock);
    EXPECT_EQ(lock->windowTitle(), "Bloqueado - Kovaris");
    EXPECT_EQ(Why(),
              "A tela está bloqueada. O que estava nela continua como estava, também para outro usuário que "
              "entre agora.");
    door_.reset();
}

} // namespace kova::host::test
