// Who is at the desk: signing in, changing places and the lock, in the application's own window.

#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"
#include "family/users/user_rights.hpp"
#include "host/folders.hpp"
#include "host/session/session.hpp"
#include "host/sign_in/kept_entries.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <cstdlib>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";
constexpr const char* Form = "frmFichaSimplificada";
constexpr family::Key Administration = 1, Reception = 3;

class ShopWithUsers : public Shop {
protected:
    void AddUser(const std::string& name, family::Key role, const std::string& password,
                 const std::string& pin = "")
    {
        const auto database = family::OpenDatabase(Database());
        const family::Secret secret{std::string(password)};
        const auto made = family::SaveAccount(*database, {0, name, role, true}, &secret, owner_);
        EXPECT_EQ(made.why, "");
        if (pin.empty())
            return;
        const family::Secret short_{std::string(pin)};
        EXPECT_EQ(family::SetPin(*database, made.code, &short_, owner_).why, "");
    }
    void AddAnaAndLia()
    {
        AddUser("Ana", Administration, "Gato-Preto 1");
        AddUser("Lia", Reception, "Laço Azul 22", "2580");
    }

    static QWidget* Window()
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top->findChild<QWidget*>(QStringLiteral("container")))
                return top;
        }
        return nullptr;
    }
    static QWidget* Dialog(const char* name)
    {
        QWidget* modal = QApplication::activeModalWidget();
        return modal != nullptr && modal->objectName() == QLatin1String(name) ? modal : nullptr;
    }
    static QWidget* Question() { return Dialog("Entrada"); }
    template <class Kind> static Kind& In(QWidget* dialog, const char* name)
    {
        return *dialog->findChild<Kind*>(QString::fromUtf8(name));
    }
    static std::string Told() { return In<QLabel>(Question(), "recusa").text().toStdString(); }
    /// Whether the question takes a try.
    static bool IsReady()
    {
        return Question() != nullptr && In<QPushButton>(Question(), "entrar").isEnabled();
    }

    static void Fill(QLineEdit& box, const QString& text)
    {
        box.setFocus();
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    static void Enter(const QString& name, const QString& secret)
    {
        if (!name.isEmpty())
            Fill(*In<QComboBox>(Question(), "nome").lineEdit(), name);
        Fill(In<QLineEdit>(Question(), "segredo"), secret);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    /// "" leaves the name as it stands there.
    Receptionist& Enters(const char* name, const char* secret)
    {
        return receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); })
            .Does(std::string("enter as ") + name,
                  [name, secret] { Enter(QString::fromUtf8(name), QString::fromUtf8(secret)); });
    }
    Receptionist& WaitsForAnswer()
    {
        return receptionist->WaitsUntil("there is an answer",
                                        [] { return Question() != nullptr && !Told().empty(); });
    }
    static std::string Title() { return Window()->windowTitle().toStdString(); }
    std::string LastAuthor() const
    {
        return Value(
            "select usuario from auditoria where tabela = 'agendamento' order by codigo desc limit 1");
    }

    const family::Author owner_{
        .code = "0", .name = "root", .moment = "2026-11-20 09:00:00", .isOwner = true};
};

} // namespace

TEST_F(ShopWithUsers, IsEnteredByNameAndPasswordAndWrittenInThatName)
{
    AddAnaAndLia();
    Execute("update agendamento set situacao = 1, alterado_por = null");
    std::string title, names;
    receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("look", [&] {
        const auto& box = In<QComboBox>(Question(), "nome");
        for (int at = 0; at < box.count(); ++at)
            names += box.itemText(at).toStdString() + ";";
    });
    Enters("lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("Ctrl+2").WaitsFor(List).Looks(
        [&] { title = Title(); });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(names, "Ana;Lia;");
    EXPECT_EQ(title, "Pet Shop Amigo Fiel - Lia - Kovaris");
    EXPECT_TRUE(LastAuthor().ends_with(" - Lia")) << LastAuthor();
    EXPECT_EQ(Value("select count(*) from agendamento where alterado_por = 'Lia'"), "1");
}

TEST_F(ShopWithUsers, IsLeftCalmlyWhereNobodySignsIn)
{
    AddAnaAndLia();
    bool isThereAWindow = true;
    receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("leave", [&] {
        isThereAWindow = Window() != nullptr;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    Run();
    EXPECT_FALSE(isThereAWindow);
}

TEST_F(ShopWithUsers, SlowsDownWhoeverGuesses)
{
    AddAnaAndLia();
    std::vector<std::string> told;
    for (int guess = 0; guess < 3; ++guess) {
        Enters("Lia", "errada 123");
        WaitsForAnswer().Does("read", [&] { told.push_back(Told()); });
    }
    bool waits = false;
    receptionist->Does("look", [&] { waits = !In<QPushButton>(Question(), "entrar").isEnabled(); });
    Enters("", "Laço Azul 22");
    receptionist->WaitsFor(List).Leaves();
    Run();
    ASSERT_EQ(told.size(), 3U);
    EXPECT_TRUE(told[0].starts_with("O nome ou a senha não confere. Tente de novo.")) << told[0];
    EXPECT_NE(told[2].find(" A próxima tentativa pode ser feita em 2 segundos."), std::string::npos)
        << told[2];
    EXPECT_TRUE(waits);
    EXPECT_EQ(Value("select count(*) from auditoria where operacao = 'entrada_recusada'"), "3");
}

TEST_F(ShopWithUsers, LetsNobodyInWhateverIsTypedForAName)
{
    AddAnaAndLia();
    std::vector<std::string> told;
    const QString broken = QStringLiteral("Jos") + QChar(0xD800) + QStringLiteral("é");
    for (const QString& name : {QStringLiteral("' or '1'='1"), QStringLiteral("D'Ávila \"Lia\""),
                                QString(1000, QLatin1Char('x')), broken}) {
        receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("try", [name] {
            Question()->findChild<QComboBox*>(QStringLiteral("nome"))->setEditText(name);
            Enter({}, QStringLiteral("' or 1=1 --"));
        });
        WaitsForAnswer().Does("read", [&] { told.push_back(Told()); });
    }
    receptionist->Does("leave", [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    Run();
    ASSERT_EQ(told.size(), 4U);
    for (const std::string& one : told)
        EXPECT_TRUE(one.starts_with("O nome ou a senha não confere.")) << one;
    EXPECT_EQ(Value("select count(distinct usuario) from auditoria where operacao = 'entrada_recusada'"),
              "1");
    EXPECT_EQ(Value("select usuario from auditoria where operacao = 'entrada_recusada' limit 1"),
              "0 - Desconhecido");
}

TEST_F(ShopWithUsers, ChangesPlacesByPinOverAnOpenFormAndLosesNothing)
{
    AddAnaAndLia();
    Enters("Ana", "Gato-Preto 1");
    std::string typed, title;
    receptionist->WaitsFor(List).Presses("F2").Picks("Agendamento Simplificado").WaitsFor(Form);
    receptionist->Types("José").Presses("Ctrl+Shift+U");
    Enters("Lia", "2580");
    receptionist->WaitsFor(Form).Types(" Peçanha").Looks([&] {
        typed = As<KVTextBox>(Receptionist::Control(Form, "kvtxtNomeOuRazaoSocialDoCliente"))->Text();
        title = Title();
    });
    receptionist->Presses("Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(typed, "José Peçanha");
    EXPECT_EQ(title, "Pet Shop Amigo Fiel - Lia - Kovaris");
    EXPECT_EQ(Value("select count(*) from auditoria where operacao = 'entrada' and usuario like '% - Lia'"),
              "1");
}

TEST_F(ShopWithUsers, ChangesPlacesByTheNameInTheBarOrStays)
{
    AddAnaAndLia();
    Execute("update agendamento set situacao = 1");
    Enters("Ana", "Gato-Preto 1");
    const auto pressName = [] {
        auto& user = In<QToolButton>(Window(), "usuario");
        QTest::mouseClick(Window()->windowHandle(), Qt::LeftButton, {},
                          user.mapTo(Window(), user.rect().center()));
    };
    std::string stayed, changed;
    receptionist->WaitsFor(List).Looks(pressName);
    receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("stay", [] {
        QTest::mouseClick(&In<QPushButton>(Question(), "cancelar"), Qt::LeftButton);
    });
    receptionist->WaitsFor(List).Looks([&] { stayed = Title(); }).Looks(pressName);
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Looks(
        [&] { changed = In<QToolButton>(Window(), "usuario").text().toStdString(); });
    receptionist->Presses("F7").Presses("Down").Presses("Ctrl+2").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(stayed, "Pet Shop Amigo Fiel - Ana - Kovaris");
    EXPECT_EQ(changed, "Lia");
    EXPECT_TRUE(LastAuthor().ends_with(" - Lia")) << LastAuthor();
}

TEST_F(ShopWithUsers, IsLockedAndCoveredUntilSomebodySignsIn)
{
    AddAnaAndLia();
    Enters("Ana", "Gato-Preto 1");
    std::string name, title;
    bool isCovered = false, isStillLocked = false, isCoveredAfter = true;
    const auto cover = [] { return Window()->findChild<QWidget*>(QStringLiteral("cobertura")); };
    receptionist->WaitsFor(List).Presses("Ctrl+L");
    receptionist->WaitsUntil("it is locked", [] { return IsReady(); }).Does("look", [&, cover] {
        name = In<QComboBox>(Question(), "nome").currentText().toStdString();
        isCovered = cover() != nullptr && cover()->isVisible() && cover()->geometry() == Window()->rect();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        isStillLocked = Question() != nullptr && Question()->isVisible();
    });
    Enters("", "errada 123");
    WaitsForAnswer();
    Enters("Lia", "2580");
    receptionist->WaitsFor(List).Looks([&, cover] {
        isCoveredAfter = cover() != nullptr;
        title = Title();
    });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(name, "Ana");
    EXPECT_TRUE(isCovered);
    EXPECT_TRUE(isStillLocked);
    EXPECT_FALSE(isCoveredAfter);
    EXPECT_EQ(title, "Pet Shop Amigo Fiel - Lia - Kovaris");
}

TEST_F(ShopWithUsers, OfOnePersonNeedNotAskAtThisComputer)
{
    AddUser("Ana", Administration, "Gato-Preto 1");
    receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("ask no more", [] {
        QTest::keyClick(&In<QCheckBox>(Question(), "naoPerguntar"), Qt::Key_Space);
    });
    Enters("", "Gato-Preto 1");
    receptionist->WaitsFor(List).Leaves();
    Run();
    const std::string kept = host::KeptEntries(host::SettingsFile()).Token(Database());
    EXPECT_EQ(kept.size(), 32U);
    EXPECT_EQ(kept.find("Gato"), std::string::npos);

    std::string title;
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    Run();
    EXPECT_EQ(title, "Pet Shop Amigo Fiel - Ana - Kovaris");

    // A second user has everybody asked again, and offered no more.
    AddUser("Lia", Reception, "Laço Azul 22");
    bool isOffered = true;
    receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("look", [&] {
        isOffered = In<QCheckBox>(Question(), "naoPerguntar").isVisible();
    });
    Enters("Ana", "Gato-Preto 1");
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_FALSE(isOffered);
}

TEST_F(ShopWithUsers, BeginsWithTheFirstByTheMenu)
{
    int offered = 0;
    std::string title;
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+U").Presses("Ctrl+L").WaitsFor(List).Looks([&] {
        offered = Question() != nullptr;
    });
    receptionist->Presses("F10").Picks("&Começar a usar usuários...");
    receptionist->WaitsUntil("the first is asked for", [] { return Dialog("SenhaEPin") != nullptr; })
        .Does("answer", [] {
            QWidget* dialog = Dialog("SenhaEPin");
            Fill(In<QLineEdit>(dialog, "nome"), QStringLiteral("Antônia"));
            for (const char* box : {"senha", "senhaDeNovo"})
                Fill(In<QLineEdit>(dialog, box), QStringLiteral("Gato-Preto 1"));
            for (const char* box : {"pin", "pinDeNovo"})
                Fill(In<QLineEdit>(dialog, box), QStringLiteral("2580"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+U");
    Enters("Antônia", "2580");
    receptionist->WaitsFor(List).Looks([&] { title = Title(); }).Leaves();
    host::Options options;
    options.database = Database();
    options.size = host::WindowSize{1366, 768};
    EXPECT_EQ(host::RunSession(options, host::Outlet::Window).status, EXIT_SUCCESS);
    EXPECT_EQ(offered, 0);
    EXPECT_EQ(title, "Pet Shop Amigo Fiel - Antônia - Kovaris");
    EXPECT_TRUE(family::HasUsers(*family::OpenDatabase(Database())));
}

TEST_F(ShopWithUsers, ShowsItsUsersToThoseWhoAdministerThemAlone)
{
    AddAnaAndLia();
    Enters("Lia", "Laço Azul 22");
    const auto shown = [] {
        const auto& names = In<QListWidget>(Window(), "cadastros");
        std::string titles;
        for (int row = 0; row < names.count(); ++row) {
            if (!names.item(row)->isHidden() && row > 10)
                titles += names.item(row)->text().toStdString() + ";";
        }
        return titles;
    };
    std::string toLia, toAna;
    receptionist->WaitsFor(List).Presses("Alt+2");
    const auto isOpen = [] {
        return Window()->findChild<QListWidget*>(QStringLiteral("cadastros")) != nullptr;
    };
    receptionist->WaitsUntil("the registers are there", isOpen).Does("change", [&, shown] {
        toLia = shown();
        QTest::keyClick(Window()->windowHandle(), Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    });
    Enters("Ana", "Gato-Preto 1");
    receptionist
        ->WaitsUntil("Ana is there",
                     [] { return Question() == nullptr && Title().find("Ana") != std::string::npos; })
        .Does("look", [&, shown] {
            toAna = shown();
            Window()->close();
        });
    Run();
    EXPECT_EQ(toLia, "Empresa;");
    EXPECT_EQ(toAna, "Empresa;Usuários;Papéis;");
}

} // namespace kova::window_test
