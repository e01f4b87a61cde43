#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/boxes/field_frame.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/icons.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QTest>

namespace kova::qt::test {
namespace {

/// A button, red, and blue under the mouse.
class FlatButtons : public QtTest {
protected:
    FlatButtons()
    {
        window_.resize(300, 200);
        button_.setGeometry(10, 10, 100, 34);
        button_.setFocusPolicy(Qt::StrongFocus);
        button_.SetColours({Qt::red, Qt::blue, Qt::white, Qt::white});
        QObject::connect(&button_, &QAbstractButton::clicked, [this] { ++clicks_; });
        window_.show();
        window_.activateWindow();
        Settle();
        button_.clearFocus();
    }
    QColor Ground() { return Picture(&button_).pixelColor(6, 6); }
    bool HasInk(const QColor& ink)
    {
        const QImage image = Picture(&button_);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == ink)
                    return true;
        return false;
    }
    void Hover(bool over)
    {
        button_.setAttribute(Qt::WA_UnderMouse, over);
        if (over) {
            QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), button_.mapToGlobal(QPointF(5, 5)));
            QCoreApplication::sendEvent(&button_, &enter);
        } else {
            QEvent leave(QEvent::Leave);
            QCoreApplication::sendEvent(&button_, &leave);
        }
    }

    QWidget window_;
    FlatButton button_{&window_};
    int clicks_ = 0;
};

TEST_F(FlatButtons, ArePressedByEnterAndSpaceButNotByArrows)
{
    button_.setFocus();
    Press(&button_, Qt::Key_Return);
    Press(&button_, Qt::Key_Enter);
    Press(&button_, Qt::Key_Space, QStringLiteral(" "));
    EXPECT_EQ(clicks_, 3);
    Press(&button_, Qt::Key_Return, QString(), Qt::ControlModifier);
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_A})
        Press(&button_, key);
    EXPECT_EQ(clicks_, 3);
    EXPECT_TRUE(button_.hasFocus());
}

TEST_F(FlatButtons, AreNotPressedAgainWhileAKeyIsHeldDown)
{
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(&button_, &held);
    EXPECT_EQ(clicks_, 0);
}

TEST_F(FlatButtons, KeepTheFocusAmongOthersWhereAnArrowIsPressed)
{
    std::vector<std::unique_ptr<FlatButton>> others;
    for (const QPoint& place : {QPoint(10, 60), QPoint(120, 10)}) {
        others.push_back(std::make_unique<FlatButton>(&window_));
        others.back()->setGeometry(QRect(place, QSize(100, 34)));
        others.back()->setFocusPolicy(Qt::StrongFocus);
        others.back()->show();
    }
    button_.setFocus();
    for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        Press(&button_, key);
        EXPECT_TRUE(button_.hasFocus()) << key;
    }
}

TEST_F(FlatButtons, LeaveArrowsToWhatHoldsThem)
{
    Surroundings around;
    FlatButton button(&around);
    const std::vector<int> arrows{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
    for (const int key : arrows)
        Press(&button, key);
    EXPECT_EQ(around.keys, arrows);
}

TEST_F(FlatButtons, ShowWhetherTheMouseIsOverThem)
{
    EXPECT_EQ(Ground(), QColor(Qt::red));
    Hover(true);
    EXPECT_EQ(Ground(), QColor(Qt::blue));
    button_.setDown(true);
    EXPECT_EQ(Ground().rgb(), QColor(Qt::blue).darker(112).rgb());
    button_.setDown(false);
    Hover(false);
    EXPECT_EQ(Ground(), QColor(Qt::red));
    button_.setEnabled(false);
    EXPECT_EQ(Ground(), look::DisabledPlate);
}

TEST_F(FlatButtons, HaveABorderWhereAskedForAndWhereATextCannotBePressed)
{
    const auto edge = [&] { return Picture(&button_).pixelColor(50, 0); };
    EXPECT_EQ(edge(), QColor(Qt::red));
    button_.SetBordered(true);
    EXPECT_NE(edge(), QColor(Qt::red));
    button_.SetBordered(false);
    button_.setEnabled(false);
    EXPECT_EQ(edge(), look::DisabledPlate);
    button_.setText(QStringLiteral("Salvar"));
    EXPECT_EQ(edge(), look::Border);
}

TEST_F(FlatButtons, DrawTheirIconInTheMiddleOrBeforeTheirText)
{
    const auto ink = [&](const QRect& area) {
        const QImage image = Picture(&button_).copy(area);
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) != QColor(Qt::red) ? 1 : 0;
        return count;
    };
    const QRect left(8, 6, 22, 22);
    const QRect middle(40, 7, 20, 20);
    EXPECT_EQ(ink(middle), 0);
    button_.SetIconName("lupa");
    EXPECT_GT(ink(middle), 0);
    EXPECT_EQ(ink(left), 0);
    button_.setText(QStringLiteral("Pesquisar"));
    EXPECT_GT(ink(left), 0);
    button_.SetIconName("trator");
    EXPECT_EQ(ink(QRect(8, 6, 12, 22)), 0) << "the text alone, in the middle";
    EXPECT_GT(ink(middle), 0);
}

TEST_F(FlatButtons, DrawAnIconInItsOwnColourWhereThatIsReadAndCanBePressed)
{
    const char* const green = "atendido";
    const QColor tint = IconTint(green);
    ASSERT_NE(tint, look::Ink);
    button_.SetIconName(green);
    const auto hasTint = [&] {
        const QImage image = Picture(&button_);
        for (int y = 7; y < 27; ++y)
            for (int x = 40; x < 60; ++x)
                if (image.pixelColor(x, y) == tint)
                    return true;
        return false;
    };
    button_.SetColours({Qt::white, Qt::white, Qt::black, Qt::black});
    EXPECT_TRUE(hasTint());
    button_.setEnabled(false);
    EXPECT_FALSE(hasTint());
    button_.setEnabled(true);
    button_.SetColours({tint.lighter(101), tint.lighter(101), Qt::black, Qt::black});
    EXPECT_FALSE(hasTint()) << "on a ground of nearly that colour";
}

TEST_F(FlatButtons, WriteInAnotherColourUnderTheMouse)
{
    button_.SetColours({Qt::white, Qt::blue, Qt::black, Qt::yellow});
    button_.setText(QStringLiteral("Salvar"));
    EXPECT_TRUE(HasInk(Qt::black));
    EXPECT_FALSE(HasInk(Qt::yellow));
    Hover(true);
    EXPECT_TRUE(HasInk(Qt::yellow));
}

TEST_F(FlatButtons, WriteInAPaleColourInTheLightLookAlone)
{
    const QColor pale(150, 150, 150);
    button_.SetColours({Qt::white, Qt::white, pale, pale});
    button_.setText(QStringLiteral("Salvar"));
    EXPECT_TRUE(HasInk(pale));
    ApplyLook(*qApp, Look::Dark);
    EXPECT_FALSE(HasInk(pale));
    ApplyLook(*qApp, Look::Light);
}

TEST_F(FlatButtons, ShowTheFocus)
{
    const QImage before = Picture(&button_);
    button_.setFocus();
    EXPECT_NE(Picture(&button_), before);
}

/// A field with a button at its end.
class FieldFrames : public QtTest {
protected:
    FieldFrames()
    {
        window_.resize(300, 200);
        frame_.setGeometry(10, 10, 200, 34);
        frame_.SetEndIcon("lupa", QStringLiteral("Pesquisar"));
        frame_.endPressed = [this] { ++presses_; };
        window_.show();
        Settle();
    }
    QColor EndGround() { return Picture(&frame_).pixelColor(173, 6); }

    static constexpr QPoint End{185, 17};
    QWidget window_;
    FieldFrame frame_{&window_};
    int presses_ = 0;
};

TEST_F(FieldFrames, ArePressedAtTheirEndOnly)
{
    ClickAt(&frame_, End);
    EXPECT_EQ(presses_, 1);
    ClickAt(&frame_, QPoint(3, 3));
    EXPECT_EQ(presses_, 1);
    frame_.endPressed = nullptr;
    ClickAt(&frame_, End);
}

TEST_F(FieldFrames, AreNotPressedByTheOtherButton)
{
    window_.activateWindow();
    frame_.Editor().clearFocus();
    for (const QPoint& place : {End, QPoint(3, 3)})
        QTest::mousePress(&frame_, Qt::RightButton, {}, place);
    EXPECT_EQ(presses_, 0);
    EXPECT_FALSE(frame_.Editor().hasFocus());
}

TEST_F(FieldFrames, DrawNoIconWhereTheyAreShut)
{
    frame_.SetOpen(false);
    const QImage shut = Picture(&frame_);
    frame_.SetEndIcon("", QString());
    EXPECT_EQ(Picture(&frame_), shut);
}

TEST_F(FieldFrames, KeepTheFocusWhereItIsWhereTheirEndIsPressed)
{
    window_.activateWindow();
    frame_.Editor().clearFocus();
    ClickAt(&frame_, End);
    EXPECT_FALSE(frame_.Editor().hasFocus());
    ClickAt(&frame_, QPoint(3, 3));
    EXPECT_TRUE(frame_.Editor().hasFocus());
}

TEST_F(FieldFrames, DrawTheirIconInTheMiddleOfTheirEndClearOfTheEdge)
{
    frame_.SetEndIcon("limpar", QStringLiteral("Limpar"));
    const QImage picture = Picture(&frame_);
    QRect ink;
    for (int x = 171; x < 196; ++x) {
        for (int y = 4; y < 30; ++y) {
            if (Contrast(picture.pixelColor(x, y), look::Paper) > 1.2)
                ink |= QRect(x, y, 1, 1);
        }
    }
    // Of the 30 pixels the last two are the field's edge and its ring.
    EXPECT_EQ(ink.left() - 170, 197 - ink.right());
    EXPECT_EQ(ink.top(), 33 - ink.bottom());
}

TEST_F(FieldFrames, OfferNoEndWhereTheyAreShutOrHaveNoIcon)
{
    const int wide = frame_.Editor().width();
    const auto isOffered = [&] {
        presses_ = 0;
        ClickAt(&frame_, End);
        EXPECT_EQ(presses_ == 0, frame_.Editor().width() > wide);
        return presses_ == 1;
    };
    EXPECT_TRUE(isOffered());
    frame_.SetOpen(false);
    EXPECT_FALSE(isOffered());
    EXPECT_TRUE(frame_.Editor().isReadOnly());
    frame_.SetOpen(true);
    EXPECT_TRUE(isOffered());
    EXPECT_FALSE(frame_.Editor().isReadOnly());
    frame_.SetLocked(true);
    EXPECT_TRUE(isOffered());
    EXPECT_TRUE(frame_.Editor().isReadOnly());
    frame_.SetOpen(false);
    frame_.SetLocked(false);
    EXPECT_TRUE(frame_.Editor().isReadOnly()) << "shut is shut";
    frame_.SetOpen(true);
    frame_.SetEndIcon("", QString());
    EXPECT_FALSE(isOffered());
}

TEST_F(FieldFrames, PlaceTheirEditorAnewWhereTheyAreSwitchedOff)
{
    const int before = frame_.Editor().width();
    frame_.setEnabled(false);
    EXPECT_GT(frame_.Editor().width(), before);
    frame_.setEnabled(true);
    EXPECT_EQ(frame_.Editor().width(), before);
}

TEST_F(FieldFrames, ShowWhereTheMouseWouldPress)
{
    EXPECT_EQ(EndGround(), look::Paper);
    MoveMouse(&frame_, End);
    EXPECT_EQ(EndGround(), look::AccentTint);
    EXPECT_EQ(frame_.cursor().shape(), Qt::PointingHandCursor);
    MoveMouse(&frame_, QPoint(3, 3));
    EXPECT_EQ(EndGround(), look::Paper);
    EXPECT_EQ(frame_.cursor().shape(), Qt::ArrowCursor);
}

} // namespace
} // namespace kova::qt::test
