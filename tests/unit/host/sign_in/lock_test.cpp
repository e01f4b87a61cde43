// What locks a window: the watch over its hands, and what covers it.

#include "host/sign_in/cover.hpp"
#include "host/sign_in/idle_watch.hpp"
#include "tests/unit/host/with_application.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <chrono>
#include <memory>

namespace kova::host {

namespace {

using namespace std::chrono_literals;

class TheLock : public WithApplication {
protected:
    TheLock()
    {
        window_.resize(300, 200);
        new QLabel(QStringLiteral("João Peçanha"), &window_);
        window_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }
    /// Whether nothing but one colour is seen of it.
    static bool IsCovered(QWidget& window)
    {
        const QImage picture = window.grab().toImage();
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 0; y < picture.height(); ++y)
                if (picture.pixelColor(x, y) != qt::look::Desk)
                    return false;
        return true;
    }

    QWidget window_;
    QDialog question_{&window_};
};

} // namespace

TEST_F(TheLock, CoversEveryWindowAsLongAsItIsThere)
{
    QDialog form(&window_);
    new QLabel(QStringLiteral("Rex"), &form);
    form.show();
    auto cover = std::make_unique<Cover>(question_);
    question_.show();
    EXPECT_TRUE(IsCovered(window_));
    EXPECT_TRUE(IsCovered(form));
    EXPECT_FALSE(IsCovered(question_));
    window_.resize(500, 400);
    EXPECT_TRUE(IsCovered(window_));
    auto* late = new QLabel(QStringLiteral("Nina"), &window_);
    late->show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(IsCovered(window_));
    cover.reset();
    EXPECT_FALSE(IsCovered(window_));
    EXPECT_FALSE(IsCovered(form));
}

TEST_F(TheLock, CoversWindowsThatComeUpMeanwhileAndOutlivesThoseThatGo)
{
    Cover cover(question_);
    auto message = std::make_unique<QDialog>(&window_);
    message->resize(100, 100);
    new QLabel(QStringLiteral("João"), message.get());
    message->show();
    EXPECT_TRUE(IsCovered(*message));
    message.reset();
    EXPECT_TRUE(IsCovered(window_));
}

/// A question that was on its way, and would take the keys of whoever wants to sign in, or be answered
/// unseen.
TEST_F(TheLock, StaysInFrontOfAMessageThatComesUpMeanwhile)
{
    question_.setModal(true);
    auto* answer = new QLineEdit(&question_);
    Cover cover(question_);
    question_.show();
    answer->setFocus();
    QMessageBox message(QMessageBox::Question, QStringLiteral("Excluir"), QStringLiteral("Excluir?"),
                        QMessageBox::Yes | QMessageBox::No, &window_);
    message.open();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&message));
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeModalWidget(), &question_);
    EXPECT_TRUE(question_.isVisible());
    EXPECT_EQ(question_.focusWidget(), answer);
    QTest::keyClick(message.windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(message.isVisible()) << "nobody has seen what is answered";
}

TEST_F(TheLock, ClosesMenusThatAreOpen)
{
    QMenu menu(&window_);
    menu.addAction(QStringLiteral("João"));
    menu.popup(QPoint());
    ASSERT_TRUE(menu.isVisible());
    const Cover cover(question_);
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(TheLock, ComesOnceNobodyHasTouchedTheApplicationForAWhile)
{
    IdleWatch watch(&window_);
    int locks = 0;
    watch.onIdle = [&] { ++locks; };
    watch.SetPatience(1ms);
    EXPECT_TRUE(QTest::qWaitFor([&] { return locks == 1; }));
    QTest::mouseMove(window_.windowHandle(), QPoint(5, 5));
    EXPECT_TRUE(QTest::qWaitFor([&] { return locks == 2; })) << "a touch begins it anew";
    QTest::keyClick(window_.windowHandle(), Qt::Key_A);
    EXPECT_TRUE(QTest::qWaitFor([&] { return locks == 3; }));
}

TEST_F(TheLock, IsPutOffByEveryTouch)
{
    IdleWatch watch(&window_);
    bool isLocked = false;
    watch.onIdle = [&] { isLocked = true; };
    watch.SetPatience(24h);
    auto* timer = watch.findChild<QTimer*>();
    ASSERT_TRUE(timer->isActive());
    timer->stop();
    QTest::mouseMove(window_.windowHandle(), QPoint(7, 7));
    EXPECT_TRUE(timer->isActive()) << "it was begun anew";
    timer->stop();
    QMouseEvent told(QEvent::MouseMove, QPointF(7, 7), QPointF(7, 7), Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&window_, &told);
    EXPECT_FALSE(timer->isActive()) << "what the program tells itself is nobody's hand";
    watch.SetPatience(0ms);
    EXPECT_FALSE(timer->isActive());
    QTest::keyClick(window_.windowHandle(), Qt::Key_A);
    EXPECT_FALSE(timer->isActive());
    EXPECT_FALSE(isLocked);
}

} // namespace kova::host
