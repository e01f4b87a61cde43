#include "host/session/newer_program.hpp"

#include "host/shell/main_window.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace kova::host {

namespace {

class ANewerProgram : public WithApplication {
protected:
    bool isInstalled_ = false;
    int looks_ = 0, told_ = 0;
    NewerProgram newer_{[this] { ++told_; },
                        [this] {
                            ++looks_;
                            return isInstalled_;
                        },
                        0};

    /// Lets it look so many times more.
    void Look(int times)
    {
        const int wanted = looks_ + times;
        ASSERT_TRUE(QTest::qWaitFor([&] { return looks_ >= wanted; }));
    }
};

} // namespace

TEST_F(ANewerProgram, IsToldOfOnceItIsInstalledAndNeverAgain)
{
    newer_.Watch();
    Look(3);
    EXPECT_EQ(told_, 0);
    isInstalled_ = true;
    Look(1);
    EXPECT_EQ(told_, 1);
    const int looksSoFar = looks_;
    // Another timer that is due later runs only after it would have.
    bool isLater = false;
    QTimer::singleShot(0, [&] { QTimer::singleShot(0, [&] { isLater = true; }); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }));
    EXPECT_EQ(looks_, looksSoFar);
    EXPECT_EQ(told_, 1);
}

TEST_F(ANewerProgram, IsThereForWhoeverAsksAtOnce)
{
    EXPECT_FALSE(newer_.IsThere());
    isInstalled_ = true;
    EXPECT_TRUE(newer_.IsThere());
    EXPECT_EQ(told_, 0);
}

TEST_F(ANewerProgram, IsToldInTheWindowWhichStaysAndCanBeRidOfTheNotice)
{
    MainWindow window({"", false, ""});
    window.Open(WindowSize{1000, 700});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto* notice = window.findChild<QLabel*>(QStringLiteral("aviso"));
    EXPECT_FALSE(notice->isVisible());
    TellOfNewerProgram(window);
    TellOfNewerProgram(window);
    EXPECT_TRUE(notice->isVisible());
    EXPECT_EQ(notice->text(),
              "Uma versão mais nova do programa foi instalada. Esta continua funcionando; feche-a e abra o "
              "programa novamente quando for conveniente.")
        << "once, however often it was told";
    QAbstractButton* close = nullptr;
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->text() == QStringLiteral("Fechar aviso"))
            close = button;
    }
    ASSERT_NE(close, nullptr);
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_FALSE(notice->isVisible());
}

} // namespace kova::host
