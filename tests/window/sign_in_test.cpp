// Who is at the desk: signing in, changing places and the lock, in the application's own window.

#include "tests/window/shop_with_users.hpp"

#include "agenda/contracts/widgets.hpp"
#include "host/folders.hpp"
#include "host/sign_in/kept_entries.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";
constexpr const char* Form = "frmFichaSimplificada";

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
    // The first leaves the field, the second the form.
    receptionist->Presses("Escape").WaitsFor(Form).Presses("Escape").WaitsFor(List).Leaves();
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
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+L");
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

} // namespace kova::window_test
