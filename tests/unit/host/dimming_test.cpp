#include "family/presentation/clsFundoEscuro.hpp"
#include "family/presentation/dimming_layer.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace kova::family {

namespace {

/// A window whose native window can be taken away, as closing does on a desktop.
class Window : public QWidget {
public:
    using QWidget::destroy;
};

void Press(QWidget& widget)
{
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
}

void Release(QWidget& widget)
{
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &release);
}

void PressKey(QWidget& widget)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
}

/// Whether the object goes by itself; lets events happen until it has, or for a while that is far too long.
bool Goes(QObject* object)
{
    constexpr int longEnoughMilliseconds = 10'000;
    const QPointer<QObject> watched(object);
    QEventLoop loop;
    QObject::connect(object, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(longEnoughMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return watched.isNull();
}

/// Whether the object is still there after twice the time that a fading takes.
bool Stays(QObject* object)
{
    const QPointer<QObject> watched(object);
    QVariantAnimation watch;
    watch.setStartValue(0);
    watch.setEndValue(1);
    watch.setDuration(300);
    QEventLoop loop;
    QObject::connect(&watch, &QVariantAnimation::finished, &loop, &QEventLoop::quit);
    watch.start();
    loop.exec();
    return !watched.isNull();
}

class Dimming : public host::WithApplication {
protected:
    Dimming()
    {
        window_.resize(400, 300);
        window_.show();
    }

    Long Handle() const { return static_cast<Long>(window_.winId()); }
    void Apply() { clsFundoEscuro().Call("Aplicar", {Handle(), Integer{0}}); }
    void Remove() { clsFundoEscuro().Call("Remover", {Handle()}); }
    QList<DimmingLayer*> Layers() const
    {
        QList<DimmingLayer*> layers;
        for (QObject* child : window_.children()) {
            if (auto* layer = dynamic_cast<DimmingLayer*>(child))
                layers.append(layer);
        }
        return layers;
    }
    Window window_;
};

} // namespace

TEST_F(Dimming, CoversTheWholeWindowAndFollowsItsSize)
{
    Apply();
    ASSERT_EQ(Layers().size(), 1);
    EXPECT_EQ(Layers()[0]->geometry(), window_.rect());
    window_.resize(600, 500);
    EXPECT_EQ(Layers()[0]->geometry(), window_.rect());
}

TEST_F(Dimming, IsAppliedOnceHoweverOftenItIsAskedFor)
{
    Apply();
    Apply();
    EXPECT_EQ(Layers().size(), 1);
    Remove();
    EXPECT_TRUE(Layers().isEmpty());
}

TEST_F(Dimming, IsTakenAwayByAnotherObjectAndWithoutHarmWhereItIsNot)
{
    Remove();
    EXPECT_TRUE(Layers().isEmpty());
    Apply();
    Remove();
    Remove();
    EXPECT_TRUE(Layers().isEmpty());
}

TEST_F(Dimming, LetsTheUsersInputThroughAndTakesNoFocus)
{
    QPushButton button(&window_);
    button.setGeometry(0, 0, 50, 50);
    button.show();
    Apply();
    EXPECT_TRUE(Layers()[0]->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(Layers()[0]->focusPolicy(), Qt::NoFocus);
}

TEST_F(Dimming, LeftStandingFadesAtTheFirstPressWhichGoesOn)
{
    QPushButton button(&window_);
    button.show();
    int pressed = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++pressed; });
    Apply();
    Press(button);
    Release(button);
    EXPECT_EQ(pressed, 1);
    EXPECT_TRUE(Goes(Layers()[0]));
}

TEST_F(Dimming, LeftStandingFadesAtTheFirstKey)
{
    Apply();
    PressKey(window_);
    EXPECT_TRUE(Goes(Layers()[0]));
}

TEST_F(Dimming, StaysWithoutAPressOrKey)
{
    Apply();
    Release(window_);
    EXPECT_TRUE(Stays(Layers()[0]));
}

TEST_F(Dimming, StaysWhileAModalWindowIsOpen)
{
    Apply();
    QDialog dialog(&window_);
    dialog.setModal(true);
    dialog.show();
    Press(dialog);
    PressKey(dialog);
    EXPECT_TRUE(Stays(Layers()[0]));
    dialog.hide();
    PressKey(window_);
    EXPECT_TRUE(Goes(Layers()[0]));
}

TEST_F(Dimming, AppliedAgainWhileItFadesStays)
{
    Apply();
    PressKey(window_);
    Apply();
    ASSERT_EQ(Layers().size(), 1);
    EXPECT_TRUE(Stays(Layers()[0]));
}

TEST_F(Dimming, IsTakenAwayFromAWindowThatWasClosedMeanwhile)
{
    const Long handle = Handle();
    Apply();
    window_.close();
    window_.destroy();
    ASSERT_EQ(QWidget::find(static_cast<WId>(handle)), nullptr);
    ASSERT_EQ(Layers().size(), 1);
    clsFundoEscuro().Call("Remover", {handle});
    EXPECT_TRUE(Layers().isEmpty());
}

TEST_F(Dimming, OfADestroyedWindowIsGoneWithItAndRemovingItDoesNothing)
{
    auto other = std::make_unique<QWidget>();
    const auto handle = static_cast<Long>(other->winId());
    clsFundoEscuro().Call("Aplicar", {handle, Integer{0}});
    other.reset();
    EXPECT_NO_THROW(clsFundoEscuro().Call("Remover", {handle}));
}

TEST_F(Dimming, HoldsItsLibraryUntilItIsGone)
{
    auto holder = std::make_shared<int>(0);
    const std::weak_ptr<void> held = holder;
    clsFundoEscuro([&] { return std::exchange(holder, nullptr); }).Call("Aplicar", {Handle(), Integer{0}});
    EXPECT_FALSE(held.expired());
    Remove();
    EXPECT_TRUE(held.expired());
}

TEST_F(Dimming, IgnoresAHandleWithoutAWindow)
{
    EXPECT_NO_THROW(clsFundoEscuro().Call("Aplicar", {Long{12345678}, Integer{0}}));
    EXPECT_NO_THROW(clsFundoEscuro().Call("Remover", {Long{12345678}}));
}

TEST_F(Dimming, KnowsItsMembersAndTheirArguments)
{
    const auto numberOf = [](auto&& act) {
        try {
            act();
        } catch (const Failure& failure) {
            return failure.Number();
        }
        return std::int32_t{0};
    };
    EXPECT_EQ(numberOf([] { clsFundoEscuro().Call("Escurecer"); }), 438);
    EXPECT_EQ(numberOf([] { clsFundoEscuro().Get("Aplicar"); }), 438);
    EXPECT_EQ(numberOf([] { clsFundoEscuro().Call("Aplicar", {Long{1}}); }), 450);
    EXPECT_EQ(numberOf([] { clsFundoEscuro().Call("Remover"); }), 450);
}

} // namespace kova::family
