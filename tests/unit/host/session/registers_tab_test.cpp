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

class TheTabOfTheRegisters : public WithApplication { };

} // namespace

TEST_F(TheTabOfTheRegisters, TellsWhyTheyCannotBeOpenedInAsManyLinesAsItNeeds)
{
    const TemporaryFolder home;
    const std::string folder = "uma pasta que foi levada para outro lugar enquanto a agenda estava aberta";
    const fs::path lost = home.Path() / folder / folder / folder / "loja.db";
    const SessionClock clock;
    UserChange change;
    RegistersTab tab(lost.string(), std::make_shared<SessionUser>(1, "Ana"), clock, change);
    MainWindow window({"", false, ""});
    tab.AddTo(window);
    window.Open(WindowSize{1000, 700});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
    const QLabel* told = nullptr;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->text().startsWith(QStringLiteral("Os cadastros não puderam")))
            told = label;
    }
    ASSERT_NE(told, nullptr);
    EXPECT_TRUE(told->text().contains(QString::fromStdString(lost.string()))) << told->text().toStdString();
    EXPECT_LE(told->minimumSizeHint().width(), told->width());
    EXPECT_TRUE(tab.MayLeave());
}

} // namespace kova::host::test
