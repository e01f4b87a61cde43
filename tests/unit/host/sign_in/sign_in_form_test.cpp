#include "host/sign_in/sign_in_dialog.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <optional>

namespace kova::host {

namespace {

using family::SignInAnswer;
using Outcome = SignInAnswer::Outcome;

/// A dialog whose answers the test gives.
class SigningInAtTheDesk : public WithApplication {
protected:
    SignInDialog& Open(SignInDialog::Question question)
    {
        dialog_.emplace(
            std::move(question),
            [this](const std::string& name, std::string secret, SignInForm::Tell tell) {
                tried_ += name + "/" + secret + "\n";
                tell_ = std::move(tell);
            },
            nullptr);
        dialog_->onEntered = [this](const SignInAnswer& answer, bool keeps) {
            entered_ = answer.name + (keeps ? " for good" : "");
        };
        dialog_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*dialog_));
        return *dialog_;
    }
    static SignInDialog::Question OfThree()
    {
        return {.title = QStringLiteral("Entrar"),
                .leave = QStringLiteral("&Sair"),
                .shop = QStringLiteral("Céu"),
                .why = QStringLiteral("Entre."),
                .names = {"Ana", "Bia", "D'Ávila \"Lia\""},
                .name = "Bia"};
    }

    template <class Kind> Kind& Find(const char* name)
    {
        return *dialog_->findChild<Kind*>(QString::fromUtf8(name));
    }
    void TypeName(const std::string& name)
    {
        QLineEdit& box = *Find<QComboBox>("nome").lineEdit();
        box.selectAll();
        box.insert(QString::fromStdString(name));
    }
    void TypeSecret(const char* secret)
    {
        QTest::keyClicks(&Find<QLineEdit>("segredo"), QString::fromUtf8(secret));
    }
    void PressReturn() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }
    void Answer(const SignInAnswer& answer) { std::exchange(tell_, nullptr)(answer); }
    std::string Told()
    {
        const auto& label = Find<QLabel>("recusa");
        return label.isVisible() ? label.text().toStdString() : "";
    }
    QPushButton& Enter() { return Find<QPushButton>("entrar"); }

    std::optional<SignInDialog> dialog_;
    std::string tried_, entered_;
    SignInForm::Tell tell_;
};

} // namespace

TEST_F(SigningInAtTheDesk, BeginsWithThePasswordOfTheNameThatStandsThere)
{
    Open(OfThree());
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("segredo"));
    EXPECT_EQ(Find<QLineEdit>("segredo").echoMode(), QLineEdit::Password);
    EXPECT_EQ(Find<QLineEdit>("segredo").accessibleName(), "Senha");
    EXPECT_EQ(Find<QComboBox>("nome").accessibleName(), "Nome");
    TypeSecret("gato");
    PressReturn();
    EXPECT_EQ(tried_, "Bia/gato\n");
    EXPECT_FALSE(Enter().isEnabled()) << "one try at a time";
    EXPECT_EQ(Find<QLineEdit>("segredo").text(), "");
    PressReturn();
    EXPECT_EQ(tried_, "Bia/gato\n");
    Answer({.code = 2, .name = "Bia"});
    EXPECT_EQ(entered_, "Bia");
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(SigningInAtTheDesk, TriesNothingThatIsMissing)
{
    SignInDialog::Question question = OfThree();
    question.name.clear();
    question.takesPin = true;
    Open(question);
    EXPECT_EQ(QApplication::focusWidget(), &Find<QComboBox>("nome"));
    PressReturn();
    EXPECT_EQ(Told(), "Informe ou escolha o nome.");
    TypeName("  ");
    PressReturn();
    EXPECT_EQ(Told(), "Informe ou escolha o nome.");
    TypeName("Ana");
    EXPECT_EQ(Told(), "");
    PressReturn();
    EXPECT_EQ(Told(), "Falta digitar: PIN ou senha.");
    EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("segredo"));
    EXPECT_EQ(tried_, "");
}

TEST_F(SigningInAtTheDesk, TakesANameFromTheListOrTyped)
{
    Open(OfThree());
    auto& names = Find<QComboBox>("nome");
    QTest::keyClick(&names, Qt::Key_Down);
    EXPECT_EQ(names.currentText(), "D'Ávila \"Lia\"");
    for (const std::string& name :
         {std::string("D'Ávila \"Lia\""), std::string("' or '1'='1"), std::string(1000, 'x')}) {
        tried_.clear();
        TypeName(name);
        TypeSecret("gato");
        PressReturn();
        EXPECT_EQ(tried_, name + "/gato\n");
        Answer({.outcome = Outcome::Wrong, .text = "O nome ou a senha não confere."});
        EXPECT_EQ(Told(), "O nome ou a senha não confere.");
    }
}

TEST_F(SigningInAtTheDesk, CountsTheWaitAfterWrongTriesDown)
{
    Open(OfThree());
    TypeSecret("errada");
    PressReturn();
    Answer({.outcome = Outcome::Wrong,
            .text = "O nome ou a senha não confere. A próxima tentativa pode ser feita em 2 segundos.",
            .wait = 2});
    EXPECT_FALSE(Enter().isEnabled());
    EXPECT_NE(Told().find("em 2 segundos."), std::string::npos) << Told();
    TypeSecret("gato");
    PressReturn();
    EXPECT_EQ(tried_, "Bia/errada\n") << "nothing is looked at meanwhile";
    EXPECT_TRUE(QTest::qWaitFor([this] { return Told().find("em 1 segundo.") != std::string::npos; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Enter().isEnabled(); }));
    EXPECT_EQ(Told(), "");
    PressReturn();
    EXPECT_EQ(tried_, "Bia/errada\nBia/gato\n");
}

TEST_F(SigningInAtTheDesk, MakesRoomForWhatItTells)
{
    Open(OfThree());
    const int height = Find<QLineEdit>("segredo").height();
    TypeSecret("errada");
    PressReturn();
    std::string words;
    for (int word = 0; word < 100; ++word)
        words += "senha ";
    Answer({.outcome = Outcome::Wrong, .text = words});
    const auto& told = Find<QLabel>("recusa");
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.height() >= told.heightForWidth(told.width()); }));
    EXPECT_EQ(Find<QLineEdit>("segredo").height(), height);
}

TEST_F(SigningInAtTheDesk, LetsAnotherNameWaitForNobody)
{
    Open(OfThree());
    TypeSecret("errada");
    PressReturn();
    Answer({.outcome = Outcome::Wait, .text = "Espere 5 minutos e tente de novo.", .wait = 300});
    EXPECT_FALSE(Enter().isEnabled());
    TypeName("Ana");
    EXPECT_TRUE(Enter().isEnabled());
    EXPECT_EQ(Told(), "");
}

TEST_F(SigningInAtTheDesk, OffersToAskNoMoreWhereItMay)
{
    Open(OfThree());
    EXPECT_FALSE(Find<QCheckBox>("naoPerguntar").isVisible());
    SignInDialog::Question question = OfThree();
    question.mayKeep = true;
    Open(question);
    QTest::keyClick(&Find<QCheckBox>("naoPerguntar"), Qt::Key_Space);
    TypeSecret("gato");
    QTest::mouseClick(&Enter(), Qt::LeftButton);
    Answer({.code = 2, .name = "Bia"});
    EXPECT_EQ(entered_, "Bia for good");
}

TEST_F(SigningInAtTheDesk, IsLeftByEscapeWhereItMayBe)
{
    Open(OfThree());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_->isVisible());
    SignInDialog::Question question = OfThree();
    question.mayLeave = false;
    Open(question);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible());
    dialog_->close();
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_EQ(dialog_->findChild<QPushButton*>(QStringLiteral("cancelar")), nullptr);
}

TEST_F(SigningInAtTheDesk, MayBeLeftBeforeTheAnswerComes)
{
    Open(OfThree());
    TypeSecret("gato");
    PressReturn();
    dialog_.reset();
    Answer({.code = 2, .name = "Bia"});
    EXPECT_EQ(entered_, "");
}

TEST_F(SigningInAtTheDesk, TellsThatTheKeyForCapitalsIsDown)
{
    Open(OfThree());
    auto& hint = Find<QLabel>("maiusculas");
    auto& box = Find<QLineEdit>("segredo");
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("g"), Qt::NoModifier);
    EXPECT_FALSE(hint.isVisible());
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("G"), Qt::ShiftModifier);
    EXPECT_FALSE(hint.isVisible());
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("G"), Qt::NoModifier);
    EXPECT_TRUE(hint.isVisible());
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_G, QStringLiteral("g"), Qt::NoModifier);
    EXPECT_FALSE(hint.isVisible());
}

} // namespace kova::host
