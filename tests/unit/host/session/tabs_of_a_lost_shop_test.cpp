// What the tabs show that open their shop for themselves, where it is not there any more.

#include "host/session/history_tab.hpp"
#include "host/session/registers_tab.hpp"
#include "host/session/session_clock.hpp"
#include "host/session/session_user.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "tests/unit/host/program_run.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QLabel>
#include <QTest>

#include <memory>

namespace kova::host::test {

namespace {

class ATabOfALostShop : public WithApplication {
protected:
    /// In a window of the usual size, in which nothing was turned to yet.
    template <class Tab> Tab& In(MainWindow& window)
    {
        auto tab =
            std::make_shared<Tab>(lost_.string(), std::make_shared<SessionUser>(1, "Ana"), clock_, change_);
        tab->AddTo(window);
        window.Open(WindowSize{1000, 700});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        return *std::static_pointer_cast<Tab>(tab_ = tab);
    }

    /// In the tab that is in front: that, why, and what can be done.
    void ExpectTold(const MainWindow& window, const char* what)
    {
        const QLabel* told = nullptr;
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            if (label->isVisible() && label->text().startsWith(QString::fromUtf8(what)))
                told = label;
        }
        ASSERT_NE(told, nullptr);
        const std::string text = told->text().toStdString();
        EXPECT_TRUE(text.starts_with(what + std::string("\n\n"))) << text;
        EXPECT_NE(text.find(lost_.string()), std::string::npos) << text;
        EXPECT_TRUE(text.ends_with("\n\nCorrija a causa e abra o programa novamente.")) << text;
        EXPECT_LE(told->minimumSizeHint().width(), told->width()) << "in as many lines as it needs";
        EXPECT_EQ(told->textFormat(), Qt::PlainText);
        EXPECT_TRUE(told->textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard))
            << "it can be handed on";
    }

    const TemporaryFolder home_;
    const std::string folder_ = "uma pasta que foi levada para outro lugar enquanto a agenda estava aberta";
    const fs::path lost_ = home_.Path() / folder_ / folder_ / folder_ / "loja.db";
    const SessionClock clock_;
    UserChange change_;
    std::shared_ptr<void> tab_;
};

} // namespace

TEST_F(ATabOfALostShop, TellsWhyTheRegistersAreNotThere)
{
    MainWindow window({"", false, ""});
    auto& tab = In<RegistersTab>(window);
    QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
    ExpectTold(window, "Os cadastros não puderam ser abertos.");
    EXPECT_TRUE(tab.MayLeave()) << "nothing is lost";
}

TEST_F(ATabOfALostShop, TellsWhyTheHistoryIsNotThere)
{
    MainWindow window({"", false, ""});
    In<HistoryTab>(window);
    for (int time = 0; time < 2; ++time) {
        QTest::keyClick(&window, Qt::Key_H, Qt::ControlModifier);
        ExpectTold(window, "O histórico não pôde ser aberto.");
        QTest::keyClick(&window, Qt::Key_1, Qt::AltModifier);
        EXPECT_TRUE(window.Container().isVisible()) << "the agenda is there as before";
    }
}

} // namespace kova::host::test
