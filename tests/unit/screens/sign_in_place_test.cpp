// Where the boxes of the door stand on a small screen.

#include "host/sign_in/secrets_dialog.hpp"
#include "host/sign_in/sign_in_dialog.hpp"
#include "tests/unit/screens/small_screen.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace kova::host::test {

namespace {

const QString WhyLocked =
    QStringLiteral("A tela está bloqueada. O que estava nela continua como estava, também para outro usuário "
                   "que entre agora.");
constexpr const char* WhyRefused =
    "O nome, o PIN ou a senha não confere. Tente de novo. Quem ainda não tem, ou não lembra, pede a quem "
    "administra os usuários.";

class TheDoorOfASmallScreen : public kova::test::SmallScreen {
protected:
    TheDoorOfASmallScreen()
    {
        window_.setGeometry(Room().adjusted(40, 40, -40, -40));
        Show(window_);
    }

    template <class Kind> static Kind& In(QWidget& dialog, const char* name)
    {
        return *dialog.findChild<Kind*>(QLatin1String(name));
    }
    SignInDialog::Question Question() const
    {
        SignInDialog::Question question;
        question.title = QStringLiteral("Bloqueado - Kovaris");
        question.shop = QStringLiteral("Pet Feliz");
        question.why = WhyLocked;
        question.names = {"Ana", "Lia"};
        question.name = "Ana";
        question.takesPin = true;
        return question;
    }
    static void TypeWrong(SignInDialog& dialog)
    {
        In<QLineEdit>(dialog, "segredo").setText(QStringLiteral("errada"));
        In<QPushButton>(dialog, "entrar").click();
        Settle();
    }
    static void ExpectInTheMiddleOf(const QRect& room, const QWidget& dialog)
    {
        const QPoint away = dialog.frameGeometry().center() - room.center();
        EXPECT_LE(std::abs(away.x()), 2);
        EXPECT_LE(std::abs(away.y()), 2);
    }

    QWidget window_;
    SignInForm::Look refuse_ = [](const std::string&, const std::string&, const auto& answer) {
        family::SignInAnswer refused;
        refused.outcome = family::SignInAnswer::Outcome::Wrong;
        refused.text = WhyRefused;
        answer(refused);
    };
};

} // namespace

TEST_F(TheDoorOfASmallScreen, StandsInTheMiddleOfItsWindow)
{
    for (const bool mayLeave : {true, false}) {
        SignInDialog::Question question = Question();
        question.mayLeave = mayLeave;
        question.why += WhyLocked;
        SignInDialog dialog(question, refuse_, &window_);
        Show(dialog);
        ExpectOnScreen(dialog);
        ExpectInTheMiddleOf(window_.frameGeometry(), dialog);
    }
}

TEST_F(TheDoorOfASmallScreen, StandsInTheMiddleOfTheScreenWhereThereIsNoWindow)
{
    SignInDialog dialog(Question(), refuse_, nullptr);
    Show(dialog);
    ExpectOnScreen(dialog);
    ExpectInTheMiddleOf(Room(), dialog);
}

TEST_F(TheDoorOfASmallScreen, StaysOnTheScreenWithAReasonAndGoesBackWithoutIt)
{
    SignInDialog dialog(Question(), refuse_, &window_);
    Show(dialog);
    const int before = dialog.height();
    TypeWrong(dialog);
    EXPECT_GT(dialog.height(), before);
    EXPECT_TRUE(IsSeen(In<QLabel>(dialog, "recusa")));
    EXPECT_TRUE(IsSeen(In<QPushButton>(dialog, "entrar")));
    ExpectOnScreen(dialog);
    QTest::keyClicks(&In<QLineEdit>(dialog, "segredo"), QStringLiteral("1"));
    EXPECT_FALSE(In<QLabel>(dialog, "recusa").isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.height() == before; }))
        << dialog.height() << " is not " << before;
    ExpectOnScreen(dialog);
}

TEST_F(TheDoorOfASmallScreen, KeepsTheSecretsAndTheirButtonsInSight)
{
    SecretsDialog::Question question;
    question.title = QStringLiteral("Começar a usar usuários");
    question.explanation = WhyLocked + WhyLocked + WhyLocked;
    question.password = SecretFields::Password::Required;
    question.name = "Ana";
    SecretsDialog dialog(
        question, [](const SecretsDialog::Typed&) { return std::string(WhyRefused); }, &window_);
    Show(dialog);
    ExpectOnScreen(dialog);
    ExpectNothingSideways(dialog);
    EXPECT_TRUE(IsSeen(In<QPushButton>(dialog, "salvar")));
    for (const char* box : {"senha", "senhaDeNovo", "pin", "pinDeNovo", "nome"}) {
        In<QLineEdit>(dialog, box).setFocus();
        EXPECT_TRUE(IsSeen(In<QLineEdit>(dialog, box))) << box;
    }
    for (const char* box : {"senha", "senhaDeNovo"})
        In<QLineEdit>(dialog, box).setText(QStringLiteral("Gato-Preto 1"));
    In<QPushButton>(dialog, "salvar").click();
    Settle();
    EXPECT_TRUE(IsSeen(In<QLabel>(dialog, "falha")));
    EXPECT_TRUE(IsSeen(In<QPushButton>(dialog, "salvar")));
    ExpectOnScreen(dialog);
}

} // namespace kova::host::test
