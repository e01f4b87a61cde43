#include "tests/monkey/screen.hpp"

#include "tests/support/qt_application.hpp"

#include <gtest/gtest.h>

#include <QDialog>
#include <QProgressBar>

namespace kova::monkey {

class Screen : public testing::Test {
protected:
    static void SetUpTestSuite() { test::NeedApplication(); }

    Screen() : bar_(&dialog_)
    {
        bar_.hide();
        dialog_.setModal(true);
        dialog_.show();
    }

    QDialog dialog_;
    QProgressBar bar_;
};

TEST_F(Screen, TakesInputWhereADialogStands) { EXPECT_TRUE(IsSettled()); }

TEST_F(Screen, TakesNoInputWhileADialogShowsHowFarItsWorkIs)
{
    bar_.show();
    EXPECT_TRUE(IsAtWork());
    EXPECT_FALSE(IsSettled());
    bar_.hide();
    EXPECT_TRUE(IsSettled());
}

} // namespace kova::monkey
