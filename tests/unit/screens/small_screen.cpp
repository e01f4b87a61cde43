#include "tests/unit/screens/small_screen.hpp"

#include "system/temporary_folder.hpp"
#include "tests/support/qt_application.hpp"
#include "toolkits/qt/look/apply_look.hpp"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <filesystem>
#include <fstream>

namespace kova::test {

namespace {

/// Before the application begins. The file's name is told without a drive: the toolkit would end it at the
/// colon.
void SitDownAtScreenOf(const QSize& size)
{
    const system::TemporaryFolder folder("tela-");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    std::ofstream("telas.json") << R"({"screens": [{"name": "tela", "x": 0, "y": 0, "width": )"
                                << size.width() << R"(, "height": )" << size.height() << "}]}";
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=telas.json");
    NeedApplication();
    std::filesystem::current_path(before);
    qt::ApplyLook(*qApp);
}

} // namespace

void SmallScreen::SetUpTestSuite()
{
    if (QCoreApplication::instance() == nullptr)
        SitDownAtScreenOf(Size);
    ASSERT_EQ(Room().size(), Size);
}

QRect SmallScreen::Room() { return QGuiApplication::primaryScreen()->availableGeometry(); }

void SmallScreen::Show(QWidget& window)
{
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    Settle();
}

void SmallScreen::Settle() { QApplication::processEvents(); }

void SmallScreen::ExpectOnScreen(const QWidget& window)
{
    const QRect frame = window.frameGeometry();
    EXPECT_GT(frame.height(), window.height()) << "no frame is counted";
    EXPECT_TRUE(Room().contains(frame))
        << frame.x() << " " << frame.y() << " " << frame.width() << " x " << frame.height();
}

bool SmallScreen::IsSeen(const QWidget& part)
{
    return part.isVisible() && part.visibleRegion().boundingRect() == part.rect();
}

void SmallScreen::ExpectNothingSideways(const QWidget& window)
{
    for (const auto* area : window.findChildren<QAbstractScrollArea*>()) {
        if (area->isVisible() && area->inherits("QScrollArea")) {
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        }
    }
}

} // namespace kova::test
