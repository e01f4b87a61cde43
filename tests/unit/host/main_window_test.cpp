#include "host/main_window.hpp"
#include "host/notice_bar.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QApplication>
#include <QIcon>
#include <QLayout>
#include <QScreen>

#include <gtest/gtest.h>

#include <memory>

namespace kova::host {

namespace {

class TheMainWindow : public WithApplication {
protected:
    static std::string TitleOf(const MainWindow::Heading& heading)
    {
        return MainWindow(heading).windowTitle().toStdString();
    }
};

} // namespace

TEST_F(TheMainWindow, TellsTheShopAndTheUserInItsTitle)
{
    EXPECT_EQ(TitleOf({"Pet Shop Céu", false, "Maria"}), "Pet Shop Céu - Maria - Kovaris");
    EXPECT_EQ(TitleOf({"", false, "Maria"}), "Maria - Kovaris");
    EXPECT_EQ(TitleOf({"", false, ""}), "Kovaris");
}

TEST_F(TheMainWindow, SaysThatADemonstrationIsOne)
{
    EXPECT_EQ(TitleOf({"Amigo Fiel", true, "Maria"}), "Amigo Fiel (demonstração) - Maria - Kovaris");
    EXPECT_EQ(TitleOf({"", true, ""}), "(demonstração) - Kovaris");
}

TEST_F(TheMainWindow, HasAnIconThatIsNotEmptyInAnySize)
{
    const QIcon icon = MainWindow({"", false, ""}).windowIcon();
    for (const int size : {16, 32, 256}) {
        const QImage picture = icon.pixmap(QSize(size, size), 1.0).toImage();
        EXPECT_EQ(picture.size(), QSize(size, size));
        EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0);
        EXPECT_EQ(qAlpha(picture.pixel(size / 2, size / 2)), 255);
    }
}

TEST_F(TheMainWindow, TellsANoticeOnItsOwnGroundInAsManyLinesAsItNeeds)
{
    NoticeBar bar(nullptr);
    EXPECT_TRUE(bar.isHidden());
    bar.Show(QStringLiteral("A cópia do dia não foi feita."));
    EXPECT_FALSE(bar.isHidden());
    bar.resize(600, 60);
    EXPECT_EQ(bar.grab().toImage().pixelColor(2, 2), QColor(255, 244, 204));
    const int oneLine = bar.layout()->heightForWidth(600);
    bar.Show(QStringLiteral("A cópia do dia não foi feita porque o disco está cheio. ").repeated(5));
    EXPECT_GT(bar.layout()->heightForWidth(600), oneLine);
    bar.Show(QString());
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TheMainWindow, NeverHasToBeLargerThanItsScreen)
{
    MainWindow window({"", false, ""});
    window.Open(WindowSize{1366, 768});
    const QSize room = window.screen()->availableSize();
    ASSERT_LT(room.width(), 1000) << "the platform's screen is not small";
    EXPECT_LT(window.minimumWidth(), room.width());
    EXPECT_LT(window.minimumHeight(), room.height());
    EXPECT_EQ(window.minimumHeight(), 680);
}

} // namespace kova::host
