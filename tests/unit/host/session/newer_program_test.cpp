#include "host/session/newer_program.hpp"

#include "tests/unit/host/with_application.hpp"

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

} // namespace kova::host
