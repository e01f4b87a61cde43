#include "family/presentation/clsFundoEscuro.hpp"
#include "family/presentation/dimming_layer.hpp"

#include <QApplication>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace kova::family {

namespace {

class Dimming : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static int count = 1;
        static char name[] = "test_host";
        static char* words[] = {name, nullptr};
        application_ = std::make_unique<QApplication>(count, words);
    }
    static void TearDownTestSuite() { application_.reset(); }

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

    inline static std::unique_ptr<QApplication> application_;
    QWidget window_;
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
