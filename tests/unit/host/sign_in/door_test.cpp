#include "host/sign_in/door.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/users/accounts.hpp"
#include "family/users/idle_lock.hpp"
#include "family/users/kept_sign_in.hpp"
#include "family/users/user_rights.hpp"
#include "host/session/session_clock.hpp"
#include "host/session/session_user.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "host/sign_in/idle_minutes_dialog.hpp"
#include "host/sign_in/user_dialogs.hpp"
#include "tests/unit/host/program_run.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
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

TEST_F(TheDoor, AsksForTheIdleMinutesAndStaysWhereTheyCannotBeSaved)
{
    Door& door = AnaAtWork();
    IdleMinutesDialog dialog(door, nullptr);
    dialog.show();
    auto& minutes = *dialog.findChild<QSpinBox*>(QStringLiteral("minutos"));
    EXPECT_EQ(dialog.windowTitle(), "Bloqueio por inatividade");
    EXPECT_EQ(
        dialog.findChild<QLabel*>(QStringLiteral("explicacao"))->text(),
        "Vale para todos os postos da loja: a tela de um posto sem uso é bloqueada, e continua quem entrar "
        "com o PIN ou a senha. Com 0 minutos ela nunca é bloqueada sozinha.");
    EXPECT_EQ(minutes.accessibleName(), "Minutos sem uso");
    EXPECT_EQ(minutes.value(), 15);
    minutes.setValue(5);
    Execute("create trigger nada before insert on ajuste begin select raise(abort, 'nada'); end");
    dialog.findChild<QPushButton*>(QStringLiteral("salvar"))->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.findChild<QLabel*>(QStringLiteral("falha"))->text().isEmpty());
    Execute("drop trigger nada");
    dialog.findChild<QPushButton*>(QStringLiteral("salvar"))->click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(door.IdleMinutes(), 5);
}

TEST_F(TheDoor, KeepsTheFirstUserAndAsksForThePinAloneWhereOnlyThatWasNotSaved)
{
    MakeShop(false);
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    RefusePins();
    std::string told, leave;
    bool isNameOpen = true, isPasswordOpen = true;
    QTimer::singleShot(0, [&] {
        QWidget& dialog = *QApplication::activeModalWidget();
        const auto box = [&](const char* name) { return dialog.findChild<QLineEdit*>(QLatin1String(name)); };
        auto* save = dialog.findChild<QPushButton*>(QStringLiteral("salvar"));
        box("nome")->setText(QStringLiteral("Ana"));
        for (const char* name : {"senha", "senhaDeNovo"})
            box(name)->setText(QStringLiteral("Gato-Preto 1"));
        for (const char* name : {"pin", "pinDeNovo"})
            box(name)->setText(QStringLiteral("2580"));
        save->click();
        told = dialog.findChild<QLabel*>(QStringLiteral("falha"))->text().toStdString();
        leave = dialog.findChild<QPushButton*>(QStringLiteral("cancelar"))->text().toStdString();
        isNameOpen = box("nome")->isEnabled();
        isPasswordOpen = box("senha")->isEnabled();
        Execute("drop trigger nada");
        save->click();
    });
    BeginWithUsers(door, window_);
    EXPECT_TRUE(
        told.starts_with("Ana está salvo, com a senha, e a loja já tem usuários. O PIN não foi salvo. "))
        << told;
    EXPECT_TRUE(told.ends_with("\nTente de novo, ou continue sem ele: Mudar minha senha, no menu, o define "
                               "depois."))
        << told;
    EXPECT_EQ(leave, "&Continuar sem PIN");
    EXPECT_FALSE(isNameOpen);
    EXPECT_FALSE(isPasswordOpen);
    EXPECT_TRUE(door.HasUsers());
    EXPECT_EQ(user_->Name(), "Ana");
    int pins = 0;
    family::OpenDatabase(file_)->Session() << "select count(pin) from usuario where senha is not null",
        soci::into(pins);
    EXPECT_EQ(pins, 1);
}

TEST_F(TheDoor, IsThatOfTheFirstUserWhoGoesOnWithoutAPin)
{
    MakeShop(false);
    Door& door = Open();
    EXPECT_TRUE(door.Enter());
    door.Watch(window_);
    RefusePins();
    QTimer::singleShot(0, [&] {
        QWidget& dialog = *QApplication::activeModalWidget();
        for (const auto& [name, text] : {std::pair("nome", "Ana"),
                                         {"senha", "Gato-Preto 1"},
                                         {"senhaDeNovo", "Gato-Preto 1"},
                                         {"pin", "2580"},
                                         {"pinDeNovo", "2580"}})
            dialog.findChild<QLineEdit*>(QLatin1String(name))->setText(QLatin1String(text));
        dialog.findChild<QPushButton*>(QStringLiteral("salvar"))->click();
        dialog.findChild<QPushButton*>(QStringLiteral("cancelar"))->click();
    });
    BeginWithUsers(door, window_);
    EXPECT_TRUE(door.HasUsers());
    EXPECT_TRUE(door.IsAdministrator());
    EXPECT_EQ(user_->Name(), "Ana");
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
