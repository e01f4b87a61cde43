#include "host/shell/news_bar.hpp"

#include "tests/unit/host/with_application.hpp"

#include <QAccessible>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace kova::host {

namespace {

/// Between two words, as in the row of tabs.
class TheNewsBar : public WithApplication {
protected:
    TheNewsBar() : bar_(new NewsBar(&row_)), right_(new QLabel(QStringLiteral("Maria"), &row_))
    {
        auto* layout = new QHBoxLayout(&row_);
        layout->addWidget(bar_, 1);
        layout->addWidget(right_);
        row_.resize(800, 30);
        row_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&row_));
    }

    QWidget row_;
    NewsBar* bar_;
    QLabel* right_;
};

} // namespace

TEST_F(TheNewsBar, ComesAndGoesWithoutMovingWhatIsBesideIt)
{
    const QRect before = right_->geometry();
    EXPECT_FALSE(bar_->isVisible());
    bar_->Show({QStringLiteral("A agenda mudou")});
    QCoreApplication::processEvents();
    EXPECT_TRUE(bar_->isVisible());
    EXPECT_EQ(right_->geometry(), before);
    bar_->Show({});
    QCoreApplication::processEvents();
    EXPECT_FALSE(bar_->isVisible());
    EXPECT_EQ(right_->geometry(), before);
}

TEST_F(TheNewsBar, IsAMessageToScreenReadersThatCanBePressed)
{
    int pressed = 0;
    QObject::connect(bar_, &QAbstractButton::clicked, bar_, [&pressed] { ++pressed; });
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(bar_);
    bar_->Show({QStringLiteral("Mudou (1)"), QStringLiteral("(1)")});
    EXPECT_EQ(told->role(), QAccessible::AlertMessage);
    EXPECT_EQ(told->text(QAccessible::Name), QStringLiteral("Mudou (1)"));
    EXPECT_FALSE(told->state().invisible);
    told->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(pressed, 1);
    bar_->Show({});
    EXPECT_TRUE(told->state().invisible);
}

TEST_F(TheNewsBar, IsAwayWhileWhatItIsAboutIsNotOnShow)
{
    bar_->SetOnShow(false);
    bar_->Show({QStringLiteral("Mudou")});
    EXPECT_FALSE(bar_->isVisible());
    bar_->SetOnShow(true);
    EXPECT_TRUE(bar_->isVisible());
}

TEST_F(TheNewsBar, ShowsTheLongestWordsThatThereIsRoomForAndTellsThemAll)
{
    const QString whole = QStringLiteral("A agenda de hoje mudou em outro posto"),
                  brief = QStringLiteral("Mudou");
    const auto picture = [&](const QStringList& wordings) {
        bar_->Show(wordings);
        return bar_->grab().toImage();
    };
    EXPECT_EQ(picture({whole, brief}), picture({whole}));
    EXPECT_NE(picture({whole, brief}), picture({brief}));
    row_.resize(150, 30);
    QCoreApplication::processEvents();
    EXPECT_EQ(picture({whole, brief}), picture({brief}));
    bar_->Show({whole, brief});
    EXPECT_EQ(bar_->accessibleName(), whole);
    EXPECT_EQ(bar_->toolTip(), whole);
}

TEST_F(TheNewsBar, TakesAPressAndNeverTheKeyboard)
{
    int pressed = 0;
    QObject::connect(bar_, &QAbstractButton::clicked, bar_, [&pressed] { ++pressed; });
    bar_->Show({QStringLiteral("Mudou")});
    QTest::mouseClick(bar_, Qt::LeftButton);
    EXPECT_EQ(pressed, 1);
    EXPECT_FALSE(bar_->hasFocus());
    EXPECT_EQ(bar_->focusPolicy(), Qt::NoFocus);
}

} // namespace kova::host
