#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/boxes/calendar.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>

namespace kova::qt::test {
namespace {

constexpr Date Today{2026, 11, 20};

/// The sheet of November 2026, which begins on a Sunday.
class Calendar : public QtTest {
protected:
    Calendar() { Open({2026, 11, 18}); }
    ~Calendar() override
    {
        if (sheet_)
            sheet_->close();
        Settle();
    }

    void Open(Date day, const QRect& field = QRect(100, 100, 150, 30))
    {
        if (sheet_)
            sheet_->close();
        sheet_ = new CalendarPopup(nullptr, Today, [this](Date chosen) { chosen_.push_back(chosen); });
        sheet_->Open(field, day);
        Settle();
    }
    void Keys(std::initializer_list<int> keys, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const int key : keys)
            Press(sheet_, key, QString(), modifiers);
    }
    /// The middle of a day's cell, by its week and its day of the week from 0.
    static QPoint DayAt(int week, int day) { return {10 + day * 36 + 18, 68 + week * 30 + 15}; }
    QColor ColorAt(const QPoint& place) { return Picture(sheet_).pixelColor(place); }
    /// Inside the plate of what is there, beside its text.
    QColor GroundOf(const QPoint& middle) { return ColorAt(middle + QPoint(-13, -9)); }
    void Wheel(int turn)
    {
        QWheelEvent event(QPointF(50, 50), sheet_->mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, turn),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(sheet_, &event);
    }

    static constexpr QPoint Previous{27, 27};
    static constexpr QPoint Next{245, 27};
    static constexpr QPoint Foot{60, 268};

    QPointer<CalendarPopup> sheet_;
    std::vector<Date> chosen_;
};

TEST_F(Calendar, WalksByArrowsInDaysAndWeeks)
{
    Keys({Qt::Key_Right});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 19}));
    Keys({Qt::Key_Left, Qt::Key_Left});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 17}));
    Keys({Qt::Key_Up});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 10}));
    Keys({Qt::Key_Down, Qt::Key_Down});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 24}));
    EXPECT_EQ(sheet_->accessibleDescription(), QStringLiteral("24/11/2026"));
}

TEST_F(Calendar, WalksByPagesInMonthsAndWithShiftInYears)
{
    Keys({Qt::Key_PageUp});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 10, 18}));
    Keys({Qt::Key_PageDown, Qt::Key_PageDown});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 12, 18}));
    Keys({Qt::Key_PageDown});
    EXPECT_EQ(sheet_->Current(), (Date{2027, 1, 18}));
    Keys({Qt::Key_PageUp}, Qt::ShiftModifier);
    EXPECT_EQ(sheet_->Current(), (Date{2026, 1, 18}));
    Keys({Qt::Key_PageDown}, Qt::ShiftModifier);
    EXPECT_EQ(sheet_->Current(), (Date{2027, 1, 18}));
}

TEST_F(Calendar, GoesToTheEndsOfAMonth)
{
    Keys({Qt::Key_End});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 30}));
    Keys({Qt::Key_Home});
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 1}));
}

TEST_F(Calendar, ShortensTheDayInAShorterMonth)
{
    Open({2028, 1, 31});
    Keys({Qt::Key_PageDown});
    EXPECT_EQ(sheet_->Current(), (Date{2028, 2, 29}));
}

TEST_F(Calendar, ChoosesByEachOfItsKeysOnce)
{
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        Open({2026, 11, 18});
        Keys({key});
        EXPECT_FALSE(sheet_ && sheet_->isVisible());
    }
    EXPECT_EQ(chosen_, (std::vector<Date>(3, Date{2026, 11, 18})));
}

TEST_F(Calendar, ChoosesTodayByItsLetters)
{
    Keys({Qt::Key_H});
    Open({2026, 11, 18});
    Keys({Qt::Key_T});
    EXPECT_EQ(chosen_, (std::vector<Date>(2, Today)));
}

TEST_F(Calendar, IsLeftWithoutAChoice)
{
    for (const int key : {Qt::Key_Escape, Qt::Key_F4}) {
        Open({2026, 11, 18});
        Keys({key});
        EXPECT_FALSE(sheet_ && sheet_->isVisible());
    }
    Open({2026, 11, 18});
    ClickAt(sheet_, QPoint(-20, 5));
    EXPECT_FALSE(sheet_ && sheet_->isVisible());
    EXPECT_TRUE(chosen_.empty());
}

TEST_F(Calendar, TakesADayByTheMouse)
{
    ClickAt(sheet_, DayAt(0, 0));
    Open({2026, 11, 18});
    ClickAt(sheet_, DayAt(3, 6));
    Open({2026, 11, 18});
    ClickAt(sheet_, DayAt(5, 6));
    EXPECT_EQ(chosen_, (std::vector<Date>{{2026, 11, 1}, {2026, 11, 28}, {2026, 12, 12}}));
}

TEST_F(Calendar, TurnsByItsArrowsAndByTheWheel)
{
    ClickAt(sheet_, Previous);
    EXPECT_EQ(sheet_->Current(), (Date{2026, 10, 18}));
    ClickAt(sheet_, Next);
    ClickAt(sheet_, Next);
    EXPECT_EQ(sheet_->Current(), (Date{2026, 12, 18}));
    Wheel(120);
    EXPECT_EQ(sheet_->Current(), (Date{2026, 11, 18}));
    Wheel(-120);
    EXPECT_EQ(sheet_->Current(), (Date{2026, 12, 18}));
    Wheel(0);
    EXPECT_EQ(sheet_->Current(), (Date{2026, 12, 18}));
    ClickAt(sheet_, QPoint(135, 27));
    ClickAt(sheet_, QPoint(28, 251));
    EXPECT_TRUE(chosen_.empty());
    ClickAt(sheet_, Foot);
    EXPECT_EQ(chosen_, std::vector<Date>{Today});
}

TEST_F(Calendar, EndsWithTheDaysThatTheAgendaKnows)
{
    Open({2999, 12, 31});
    Keys({Qt::Key_Right});
    EXPECT_EQ(sheet_->Current(), (Date{2999, 12, 31}));
    ClickAt(sheet_, DayAt(5, 6));
    EXPECT_TRUE(chosen_.empty()) << "a day of the next year";
    Open({2999, 12, 31});
    Keys({Qt::Key_Return});
    Open({1900, 1, 1});
    Keys({Qt::Key_Left});
    EXPECT_EQ(sheet_->Current(), (Date{1900, 1, 1}));
    Keys({Qt::Key_Return});
    EXPECT_EQ(chosen_, (std::vector<Date>{{2999, 12, 31}, {1900, 1, 1}}));
}

TEST_F(Calendar, ShowsTheCurrentDayTodayAndWhatIsUnderTheMouse)
{
    EXPECT_TRUE(sheet_->hasMouseTracking());
    const QPoint current = DayAt(2, 3);
    const QPoint today = DayAt(2, 5);
    const QPoint other = DayAt(1, 1);
    EXPECT_EQ(GroundOf(current), look::Accent);
    EXPECT_EQ(GroundOf(today), look::Paper);
    EXPECT_EQ(GroundOf(other), look::Paper);
    EXPECT_EQ(GroundOf(Foot), look::Plate);
    const QPoint edge(0, -13);
    EXPECT_NE(ColorAt(today + edge), look::Paper) << "a frame around today";
    EXPECT_EQ(ColorAt(other + edge), look::Paper);

    MoveMouse(sheet_, other);
    EXPECT_EQ(GroundOf(other), look::AccentTint);
    EXPECT_EQ(GroundOf(DayAt(1, 2)), look::Paper);
    MoveMouse(sheet_, current);
    EXPECT_EQ(GroundOf(current), look::Accent);
    EXPECT_EQ(GroundOf(other), look::Paper);
    MoveMouse(sheet_, Foot);
    EXPECT_EQ(GroundOf(Foot), look::AccentTint);
    const QPoint corner(-12, -12);
    EXPECT_EQ(ColorAt(Previous + corner), look::Paper);
    MoveMouse(sheet_, Previous);
    EXPECT_EQ(ColorAt(Previous + corner), look::AccentTint);
    EXPECT_EQ(ColorAt(Next + corner), look::Paper);
    EXPECT_EQ(GroundOf(Foot), look::Plate);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(sheet_, &leave);
    EXPECT_EQ(ColorAt(Previous + corner), look::Paper);
}

TEST_F(Calendar, PalesTheDaysOfOtherMonths)
{
    const auto darkest = [&](const QPoint& middle) {
        const QImage image = Picture(sheet_).copy(QRect(middle - QPoint(12, 8), QSize(24, 16)));
        int least = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                least = std::min(least, image.pixelColor(x, y).lightness());
        return least;
    };
    EXPECT_GT(darkest(DayAt(4, 4)), darkest(DayAt(3, 4)) + 40) << "the 3rd of December, the 26th of November";
}

TEST_F(Calendar, OpensBelowItsFieldAsLongAsItFitsThere)
{
    const QRect room = RoomForPopup(QGuiApplication::primaryScreen()->availableGeometry());
    Open(Today);
    const int lowest = room.bottom() - sheet_->height() - 3;
    Open(Today, QRect(100, lowest - 29, 150, 30));
    EXPECT_NEAR(sheet_->y(), lowest + 3, 3);
    Open(Today, QRect(100, lowest - 28, 150, 30));
    EXPECT_LT(sheet_->y(), lowest - 28);
}

// A platform may move a popup by the breadth of its frame.
TEST_F(Calendar, OpensBelowItsFieldOrAboveItAndOnTheScreen)
{
    constexpr int frame = 3;
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect high(100, 100, 150, 30);
    Open(Today, high);
    EXPECT_NEAR(sheet_->x(), 100, frame);
    EXPECT_NEAR(sheet_->y(), high.bottom() + 3, frame);
    const QRect low(100, room.bottom() - 40, 150, 30);
    Open(Today, low);
    EXPECT_NEAR(sheet_->y(), low.top() - sheet_->height() - 2, frame);
    Open(Today, QRect(room.right() - 50, 100, 50, 30));
    EXPECT_NEAR(sheet_->geometry().right(), room.right(), frame);
    Open(Today, QRect(room.left() - 30, 100, 50, 30));
    EXPECT_NEAR(sheet_->x(), room.left(), frame);
}

} // namespace
} // namespace kova::qt::test
