// What the dialogs of the secrets say, and when.

#include "family/registers/access/access_registers.hpp"
#include "family/registers/description/register.hpp"
#include "host/sign_in/secrets_dialog.hpp"
#include "host/sign_in/sign_in_dialog.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace kova::host::test {

namespace {

class TheSecrets : public WithApplication {
protected:
    template <class Kind> static Kind& In(QWidget& dialog, const char* name)
    {
        return *dialog.findChild<Kind*>(QLatin1String(name));
    }
    static std::string TextOf(const QWidget& dialog)
    {
        std::string text;
        for (const QLabel* label : dialog.findChildren<QLabel*>())
            text += label->text().remove(QLatin1Char('&')).toStdString() + "\n";
        return text;
    }
    int saved_ = 0;
    SecretsDialog::Save save_ = [this](const SecretsDialog::Typed&) {
        ++saved_;
        return std::string();
    };
};

} // namespace

TEST_F(TheSecrets, AskForThePasswordOfTodayBeforeAnotherIsSaved)
{
    SecretsDialog dialog({.title = QStringLiteral("Mudar minha senha"), .asksForCurrent = true}, save_,
                         nullptr);
    In<QPushButton>(dialog, "salvar").click();
    EXPECT_NE(TextOf(dialog).find("Digite a senha atual."), std::string::npos) << TextOf(dialog);
    In<QLineEdit>(dialog, "senhaAtual").setText(QStringLiteral("Gato-Preto 1"));
    In<QPushButton>(dialog, "salvar").click();
    EXPECT_EQ(In<QLabel>(dialog, "falha").text(), "Digite uma senha nova ou um PIN novo.");
    EXPECT_EQ(saved_, 0);
    for (const char* box : {"pin", "pinDeNovo"})
        In<QLineEdit>(dialog, box).setText(QStringLiteral("2580"));
    In<QPushButton>(dialog, "salvar").click();
    EXPECT_EQ(saved_, 1);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(TheSecrets, OfferToTakeThePinAwayAndTellWhatAGoodPasswordIs)
{
    bool removes = false;
    SecretsDialog dialog(
        {.title = QStringLiteral("Senha e PIN: Lia"), .mayRemovePin = true},
        [&](const SecretsDialog::Typed& typed) {
            removes = typed.removesPin;
            return std::string();
        },
        nullptr);
    EXPECT_EQ(In<QCheckBox>(dialog, "tirarPin").text(), "&Tirar o PIN");
    const std::string text = TextOf(dialog);
    for (const char* part :
         {"A mesma senha, outra vez", "PIN, se quiser", "O mesmo PIN, outra vez",
          "Uma boa senha tem oito caracteres ou mais, como três palavras que só você juntaria. "
          "O PIN tem de quatro a oito algarismos e serve para trocar de usuário depressa; para "
          "abrir o programa é preciso a senha."})
        EXPECT_NE(text.find(part), std::string::npos) << part;
    In<QCheckBox>(dialog, "tirarPin").setChecked(true);
    In<QPushButton>(dialog, "salvar").click();
    EXPECT_TRUE(removes);
}

TEST_F(TheSecrets, SayThatCapitalsAreOnAsLongAsTheyAre)
{
    SecretsDialog dialog({.title = QStringLiteral("Senha"), .asksForCurrent = true}, save_, nullptr);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto& capitals = In<QLabel>(dialog, "maiusculas");
    EXPECT_EQ(capitals.text(), "Caps Lock está ligado.");
    EXPECT_FALSE(capitals.isVisible());
    for (const char* name : {"senhaAtual", "senha", "senhaDeNovo"}) {
        auto& box = In<QLineEdit>(dialog, name);
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("G"), Qt::NoModifier);
        EXPECT_TRUE(capitals.isVisible()) << name;
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_1, QStringLiteral("1"), Qt::NoModifier);
        EXPECT_TRUE(capitals.isVisible()) << "a digit tells nothing of it";
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("G"), Qt::ShiftModifier);
        EXPECT_FALSE(capitals.isVisible()) << name;
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("g"), Qt::ShiftModifier);
        EXPECT_TRUE(capitals.isVisible()) << name;
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("g"), Qt::NoModifier);
        EXPECT_FALSE(capitals.isVisible()) << name;
        EXPECT_EQ(box.text(), "G1Ggg") << "it is typed all the same";
    }
}

TEST_F(TheSecrets, AreAskedOnAComputerThatMayKeepTheAnswer)
{
    SignInDialog dialog(
        {.title = QStringLiteral("Entrar - Kovaris"),
         .leave = QStringLiteral("Sair do &programa"),
         .why = QStringLiteral("Entre com o seu usuário desta loja."),
         .mayKeep = true},
        [](const std::string&, std::string, SignInForm::Tell) {}, nullptr);
    const auto& keep = In<QCheckBox>(dialog, "naoPerguntar");
    EXPECT_EQ(keep.text(), "Não perguntar neste &computador");
    EXPECT_EQ(keep.toolTip(),
              "Só vale enquanto houver um só usuário, e até que a senha mude. Quem usa este computador com a "
              "mesma conta entra sem senha.");
    EXPECT_EQ(In<QPushButton>(dialog, "cancelar").text(), "Sair do &programa");
    EXPECT_EQ(In<QLabel>(dialog, "motivo").text(), "Entre com o seu usuário desta loja.");
}

TEST_F(TheSecrets, WaitWhileTheyAreLookedAt)
{
    SignInForm::Tell tell;
    SignInDialog dialog(
        {.names = {"Ana"}, .name = "Ana"},
        [&](const std::string&, std::string, SignInForm::Tell one) { tell = std::move(one); }, nullptr);
    auto& enter = In<QPushButton>(dialog, "entrar");
    In<QLineEdit>(dialog, "segredo").setText(QStringLiteral("errada 123"));
    enter.click();
    EXPECT_EQ(enter.text(), "Conferindo...");
    EXPECT_FALSE(enter.isEnabled());
    tell({.outcome = family::SignInAnswer::Outcome::Wrong, .text = "Não."});
    EXPECT_EQ(enter.text(), "&Entrar");
    EXPECT_EQ(In<QLabel>(dialog, "recusa").text(), "Não.");
}

TEST(TheAccessRegisters, HelpWithWhatAUserIs)
{
    const auto helpOf = [](const char* label) {
        const auto& users = family::registers::UserRegister();
        return std::string(users.Fields()[family::registers::FieldNamed(users.Fields(), label)].help);
    };
    EXPECT_EQ(helpOf("Nome"), "É com ele que se entra; maiúsculas e acentos não importam.");
    EXPECT_EQ(helpOf("Código do papel"), "O que pode fazer. Quem não tem papel não entra.");
    EXPECT_EQ(helpOf("Situação"), "Quem está inativo não entra.");
}

} // namespace kova::host::test
