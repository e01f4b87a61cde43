// What is asked about users and their secrets, what is said of it, and that it is so.

#include "tests/unit/host/sign_in/door_fixture.hpp"

#include "family/users/sign_in.hpp"
#include "host/sign_in/idle_minutes_dialog.hpp"
#include "host/sign_in/user_dialogs.hpp"
#include "tests/support/little_memory.hpp"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <functional>
#include <utility>
#include <vector>

namespace kova::host::test {

namespace {

using Outcome = family::SignInAnswer::Outcome;

class StillClock : public Clock {
public:
    DateTime Now() const override { return {{2026, 11, 20}, {9, 0, 0}}; }
    Double Timer() const override { return 0; }
};

class TheDialogsOfUsers : public TheDoor {
protected:
    using Typed = std::vector<std::pair<const char*, const char*>>;

    static inline const Typed AnaWithAPin = {{"nome", "Ana"},
                                             {"senha", "Gato-Preto 1"},
                                             {"senhaDeNovo", "Gato-Preto 1"},
                                             {"pin", "2580"},
                                             {"pinDeNovo", "2580"}};

    Door& WithoutUsers()
    {
        MakeShop(false);
        Door& door = Open();
        EXPECT_TRUE(door.Enter());
        door.Watch(window_);
        return door;
    }
    /// What is done with the dialog that opens next, which is left then where it is still open.
    void InDialog(std::function<void(QDialog& dialog)> act)
    {
        QTimer::singleShot(0, &window_, [act = std::move(act)] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
    }
    static void Save(QDialog& dialog, const Typed& typed = {})
    {
        for (const auto& [name, text] : typed)
            dialog.findChild<QLineEdit*>(QLatin1String(name))->setText(QString::fromUtf8(text));
        dialog.findChild<QPushButton*>(QStringLiteral("salvar"))->click();
    }
    static std::string TextOf(const QDialog& dialog, const char* label)
    {
        return dialog.findChild<QLabel*>(QLatin1String(label))->text().toStdString();
    }
    Outcome Enter(const char* name, const char* secret)
    {
        const family::Secret typed{std::string(secret)};
        return family::SignIn(*family::OpenDatabase(file_), {name, typed, family::SignInTry::Kind::Either},
                              StillClock(), Cheap)
            .outcome;
    }
    int Count(const char* of) const
    {
        int count = 0;
        family::OpenDatabase(file_)->Session() << std::string("select count(*) from ") + of,
            soci::into(count);
        return count;
    }
};

} // namespace

TEST_F(TheDialogsOfUsers, SayWhatTheFirstUserIsAndWhatBeginsWithHim)
{
    Door& door = WithoutUsers();
    const auto look = [](const QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Começar a usar usuários");
        EXPECT_EQ(TextOf(dialog, "explicacao"),
                  "O primeiro usuário administra a loja: pode fazer tudo, e cadastra os outros em Cadastros, "
                  "Usuários. A partir de agora só entra na loja quem tem um usuário com senha, em todos os "
                  "postos, e o que cada um grava fica com o nome dele.");
    };
    InDialog(look);
    BeginWithUsers(door, window_);
    EXPECT_FALSE(door.HasUsers()) << "whoever leaves it goes on without users";
    InDialog([&](QDialog& dialog) {
        look(dialog);
        Save(dialog, {{"nome", "Bia"}, {"senha", "Gato-Preto 1"}, {"senhaDeNovo", "Gato-Preto 1"}});
    });
    BeginWithUsers(door, window_);
    EXPECT_TRUE(door.IsAdministrator());
    EXPECT_EQ(user_->Name(), "Bia");
    EXPECT_TRUE(family::HasUsers(*family::OpenDatabase(file_))) << "at every desk";
    EXPECT_EQ(Enter("Bia", "Gato-Preto 1"), Outcome::Done);
    EXPECT_EQ(Enter("Ana", "Gato-Preto 1"), Outcome::Wrong) << "a name alone enters no more";
}

TEST_F(TheDialogsOfUsers, AskForOnesOwnSecretsAndLeaveWhatStaysBlank)
{
    Door& door = AnaAtWork();
    InDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Mudar minha senha");
        EXPECT_EQ(TextOf(dialog, "explicacao"),
                  "Ana: a senha e o PIN são só seus. O que fica em branco continua como está.");
        Save(dialog, {{"senhaAtual", "Gato-Preto 1"}, {"pin", "2580"}, {"pinDeNovo", "2580"}});
        EXPECT_EQ(TextOf(dialog, "falha"), "");
    });
    ChangeMySecrets(door, window_);
    for (const char* secret : {"Gato-Preto 1", "2580"})
        EXPECT_EQ(Enter("Ana", secret), Outcome::Done) << secret;
}

TEST_F(TheDialogsOfUsers, GiveAnotherANewSecretWhoWaitsNoLonger)
{
    Door& door = AnaAtWork();
    AddBia();
    for (int time = 0; time < 3; ++time)
        EXPECT_EQ(Enter("Bia", "errada 123"), Outcome::Wrong);
    EXPECT_EQ(Enter("Bia", "Laço Azul 22"), Outcome::Wait);
    family::Key bia = 0;
    family::OpenDatabase(file_)->Session() << "select codigo from usuario where nome = 'Bia'",
        soci::into(bia);
    const registers::Desk desk = door.OpenDesk();
    const auto run = [&](const Typed& typed) {
        InDialog([&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Senha e PIN: Bia");
            EXPECT_EQ(TextOf(dialog, "explicacao"),
                      "O que fica em branco continua como está. Quem tentou senhas erradas não precisa mais "
                      "esperar.");
            if (!typed.empty())
                Save(dialog, typed);
        });
        return SecretsAction().run({window_, desk, bia}).told.toStdString();
    };
    EXPECT_EQ(run({}), "");
    EXPECT_EQ(Enter("Bia", "Laço Azul 22"), Outcome::Wait) << "nothing was saved";
    EXPECT_EQ(run({{"pin", "2580"}, {"pinDeNovo", "2580"}}), "Salvo.");
    for (const char* secret : {"Laço Azul 22", "2580"})
        EXPECT_EQ(Enter("Bia", secret), Outcome::Done) << secret;
}

TEST_F(TheDialogsOfUsers, StayOpenWhereThereIsNoMemoryForAPassword)
{
    Door& door = WithoutUsers();
    InDialog([&](QDialog& dialog) {
        {
            const kova::test::LittleMemory memory;
            Save(dialog, {{"nome", "Bia"}, {"senha", "Gato-Preto 1"}, {"senhaDeNovo", "Gato-Preto 1"}});
        }
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(TextOf(dialog, "falha"), kova::test::LittleMemory::Told);
        EXPECT_EQ(Count("usuario where senha is not null"), 0);
        Save(dialog);
        EXPECT_FALSE(dialog.isVisible()) << TextOf(dialog, "falha");
    });
    BeginWithUsers(door, window_);
    EXPECT_EQ(Enter("Bia", "Gato-Preto 1"), Outcome::Done);
}

TEST_F(TheDialogsOfUsers, KeepTheFirstUserAndAskForThePinAloneWhereOnlyThatWasNotSaved)
{
    Door& door = WithoutUsers();
    RefusePins();
    InDialog([&](QDialog& dialog) {
        Save(dialog, AnaWithAPin);
        const std::string told = TextOf(dialog, "falha");
        EXPECT_TRUE(
            told.starts_with("Ana está salvo, com a senha, e a loja já tem usuários. O PIN não foi salvo. "))
            << told;
        EXPECT_TRUE(
            told.ends_with("\nTente de novo, ou continue sem ele: Mudar minha senha, no menu, o define "
                           "depois."))
            << told;
        EXPECT_EQ(dialog.findChild<QPushButton*>(QStringLiteral("cancelar"))->text(), "&Continuar sem PIN");
        for (const char* closed : {"nome", "senha"})
            EXPECT_FALSE(dialog.findChild<QLineEdit*>(QLatin1String(closed))->isEnabled()) << closed;
        Execute("drop trigger nada");
        Save(dialog);
    });
    BeginWithUsers(door, window_);
    EXPECT_TRUE(door.HasUsers());
    EXPECT_EQ(user_->Name(), "Ana");
    EXPECT_EQ(Count("usuario where senha is not null and pin is not null"), 1);
}

TEST_F(TheDialogsOfUsers, LetTheFirstUserGoOnWithoutAPin)
{
    Door& door = WithoutUsers();
    RefusePins();
    InDialog([](QDialog& dialog) {
        Save(dialog, AnaWithAPin);
        dialog.findChild<QPushButton*>(QStringLiteral("cancelar"))->click();
    });
    BeginWithUsers(door, window_);
    EXPECT_TRUE(door.HasUsers());
    EXPECT_TRUE(door.IsAdministrator());
    EXPECT_EQ(user_->Name(), "Ana");
}

TEST_F(TheDialogsOfUsers, AskForTheIdleMinutesAndStayWhereTheyCannotBeSaved)
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

} // namespace kova::host::test
