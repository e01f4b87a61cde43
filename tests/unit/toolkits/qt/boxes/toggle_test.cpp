#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/boxes/toggle.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <memory>

namespace kova::qt::test {
namespace {

/// One toggle with a neighbour on each of its sides.
class Toggles : public QtTest {
protected:
    Toggles()
    {
        window_.resize(300, 300);
        for (const QPoint& place :
             {QPoint(100, 100), QPoint(0, 100), QPoint(200, 100), QPoint(100, 0), QPoint(100, 200)}) {
            toggles_.push_back(std::make_unique<Toggle>(&window_, Toggle::Mark::Circle));
            toggles_.back()->setText(QStringLiteral("Sim"));
            toggles_.back()->setGeometry(QRect(place, QSize(90, 24)));
            toggles_.back()->setFocusPolicy(Qt::StrongFocus);
        }
        window_.show();
        window_.activateWindow();
        Settle();
        Middle().setFocus();
    }

    Toggle& Middle() { return *toggles_.front(); }

    QWidget window_;
    std::vector<std::unique_ptr<Toggle>> toggles_;
};

TEST_F(Toggles, KeepTheFocusWhereAnArrowIsPressed)
{
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        Press(&Middle(), key);
        EXPECT_TRUE(Middle().hasFocus()) << key;
        Middle().setFocus();
    }
}

TEST_F(Toggles, LeaveArrowsToWhatHoldsThem)
{
    Surroundings around;
    Toggle toggle(&around, Toggle::Mark::Circle);
    const std::vector<int> arrows{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
    for (const int key : arrows)
        Press(&toggle, key);
    EXPECT_EQ(around.keys, arrows);
    Press(&toggle, Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(around.keys, arrows);
}

TEST_F(Toggles, ArePressedByTheSpaceBarAndShowOnlyWhatCodeSets)
{
    int presses = 0;
    Middle().pressed = [&] { ++presses; };
    Press(&Middle(), Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(Middle().Value(), 0);
}

TEST_F(Toggles, TellThreeValuesApart)
{
    for (const Toggle::Mark mark : {Toggle::Mark::Box, Toggle::Mark::Circle}) {
        Toggle toggle(nullptr, mark);
        toggle.resize(90, 24);
        const auto shown = [&](int value) {
            toggle.SetValue(value);
            EXPECT_EQ(toggle.isChecked(), value != 0);
            return Picture(&toggle);
        };
        EXPECT_NE(shown(0), shown(1));
        if (mark == Toggle::Mark::Box) {
            EXPECT_NE(shown(1), shown(2));
        }
    }
}

TEST_F(Toggles, ShowADashForTheThirdValueAndACheckForTheSecond)
{
    Toggle toggle(nullptr, Toggle::Mark::Box);
    toggle.setText(QStringLiteral("Sim"));
    toggle.resize(90, 24);
    // The end of the check goes up to the right; the dash stays in the middle.
    const QPoint endOfCheck(13, 8);
    const auto inked = [&](int value) {
        toggle.SetValue(value);
        return Contrast(Picture(&toggle).pixelColor(endOfCheck), look::Accent) > 2;
    };
    EXPECT_TRUE(inked(1));
    EXPECT_FALSE(inked(2));
}

TEST_F(Toggles, AreFilledWhereTheyAreMarked)
{
    for (const Toggle::Mark mark : {Toggle::Mark::Box, Toggle::Mark::Circle}) {
        Toggle toggle(nullptr, mark);
        toggle.setText(QStringLiteral("Sim"));
        toggle.resize(90, 24);
        const auto filled = [&](int value) {
            toggle.SetValue(value);
            // Beside the sign in the box, and in the middle of the circle.
            const QPoint place = mark == Toggle::Mark::Box ? QPoint(12, 17) : QPoint(9, 12);
            const QColor ink = Picture(&toggle).pixelColor(place);
            return Contrast(ink, look::Paper) > 2;
        };
        EXPECT_FALSE(filled(0));
        EXPECT_TRUE(filled(1));
    }
}

TEST_F(Toggles, ShowTheFocusAndWhetherTheyCanBeUsed)
{
    const QImage focused = Picture(&Middle());
    Middle().clearFocus();
    const QImage left = Picture(&Middle());
    EXPECT_NE(focused, left);
    Middle().SetValue(1);
    const QImage usable = Picture(&Middle());
    Middle().setEnabled(false);
    EXPECT_NE(Picture(&Middle()), usable);
}

TEST_F(Toggles, HaveARingAsFarFromTheirMarkOnEachSideWhereTheyHaveNoText)
{
    QWidget window;
    Toggle toggle(&window, Toggle::Mark::Circle);
    toggle.setFocusPolicy(Qt::StrongFocus);
    toggle.resize(24, 24);
    window.show();
    window.activateWindow();
    Settle();
    toggle.clearFocus();
    const QImage without = Picture(&toggle);
    toggle.setFocus();
    ASSERT_NE(Picture(&toggle), without);
    EXPECT_LT(MostDifferenceTurned(Picture(&toggle)), 16);
    EXPECT_LT(MostDifferenceTurned(Picture(&toggle).mirrored(true, false)), 16);
}

TEST_F(Toggles, KeepTheSizeOfTheirMarkBesideAText)
{
    const QRect mark(3, 6, 12, 12);
    Middle().clearFocus();
    const QImage without = Picture(&Middle()).copy(mark);
    Middle().setFocus();
    EXPECT_EQ(Picture(&Middle()).copy(mark), without);
}

} // namespace
} // namespace kova::qt::test
