#include "family/presentation/clsMensagemDeAcesso.hpp"
#include "family/presentation/wait_window.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QApplication>
#include <QLabel>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>

namespace kova::family {

namespace {

class WaitMessage : public host::WithApplication {
protected:
    /// The texts of the wait windows on the screen.
    static QStringList Shown()
    {
        QStringList texts;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (dynamic_cast<const WaitWindow*>(window) && window->isVisible())
                texts.append(window->findChild<QLabel*>()->text());
        }
        return texts;
    }
};

} // namespace

TEST_F(WaitMessage, IsOnTheScreenUntilItIsClosed)
{
    clsMensagemDeAcesso message;
    message.Call("Exibir", {Text("Aguarde, reorganizando dados.")});
    EXPECT_EQ(Shown(), QStringList{"Aguarde, reorganizando dados."});
    message.Call("Fechar");
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_NO_THROW(message.Call("Fechar"));
}

TEST_F(WaitMessage, ClosesWithItsObject)
{
    auto message = std::make_unique<clsMensagemDeAcesso>();
    message->Call("Exibir", {Text("Aguarde")});
    message.reset();
    EXPECT_EQ(Shown(), QStringList());
}

TEST_F(WaitMessage, ShowsTheLastTextAlone)
{
    clsMensagemDeAcesso message;
    message.Call("Exibir", {Text("um")});
    message.Call("Exibir", {Text("dois")});
    EXPECT_EQ(Shown(), QStringList{"dois"});
}

TEST_F(WaitMessage, BelongsToTheWindowInFrontAndLetsItGoFirst)
{
    auto main = std::make_unique<QWidget>();
    main->setGeometry(300, 200, 400, 300);
    main->show();
    const WaitWindow window("Aguarde");
    EXPECT_EQ(window.windowHandle()->transientParent(), main->windowHandle());
    EXPECT_LE((window.frameGeometry().center() - main->frameGeometry().center()).manhattanLength(), 2);
    main.reset();
    EXPECT_EQ(window.windowHandle()->transientParent(), nullptr);
}

TEST_F(WaitMessage, TakesNoFocus)
{
    const WaitWindow window("Aguarde");
    EXPECT_EQ(window.focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(WaitMessage, KnowsItsMembersAndTheirArguments)
{
    const auto numberOf = [](auto&& act) {
        try {
            act();
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return std::int32_t{0};
    };
    clsMensagemDeAcesso message;
    EXPECT_EQ(numberOf([&] { message.Call("Mostrar"); }), 438);
    EXPECT_EQ(numberOf([&] { message.Get("Exibir"); }), 438);
    EXPECT_EQ(numberOf([&] { message.Set("Texto", Text("x")); }), 438);
    EXPECT_EQ(numberOf([&] { message.Call("Exibir"); }), 450);
    EXPECT_EQ(numberOf([&] { message.Call("Fechar", {Long{1}}); }), 450);
}

TEST(WaitMessageWithoutAScreen, ShowsNothing)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    clsMensagemDeAcesso message;
    EXPECT_NO_THROW(message.Call("Exibir", {Text("Aguarde")}));
    EXPECT_NO_THROW(message.Call("Fechar"));
}

} // namespace kova::family
