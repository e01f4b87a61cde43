#include "host/messages.hpp"

#include "host/first_paint.hpp"
#include "tests/unit/host/fake_display.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace kova::host {

namespace {

/// The text of the box that comes up while the failure is told; "" where none does.
std::string BoxOf(const std::string& failure)
{
    std::string shown;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            shown = box->text().toStdString();
            box->close();
        }
    });
    closing.start(1);
    TellFailure(failure);
    return shown;
}

class Messages : public WithApplication { };

/// Counts what it is asked to paint.
class Painted : public QWidget {
public:
    int times = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++times; }
};

} // namespace

TEST_F(Messages, AreShownInABoxWhereThereIsADisplay)
{
    const NoDisplayNamed environment;
    const int number = NoDisplayNamed::FreeNumber();
    const SocketServer server(NoDisplayNamed::SocketOfX(number), GreetingOfX(true));
    NoDisplayNamed::Name(number);
    EXPECT_EQ(BoxOf("O arquivo não existe."), "O arquivo não existe.");
}

TEST_F(Messages, GoToTheStandardErrorOutputAloneWhereThereIsNone)
{
    const NoDisplayNamed environment;
    testing::internal::CaptureStderr();
    const std::string shown = BoxOf("O arquivo não existe.");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Kovaris: O arquivo não existe.\n");
    EXPECT_EQ(shown, "");
}

TEST(MessagesWithoutAnApplication, GoToTheStandardErrorOutput)
{
    testing::internal::CaptureStderr();
    TellFailure("O arquivo não existe.");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Kovaris: O arquivo não existe.\n");
}

class FirstPaint : public WithApplication { };

TEST_F(FirstPaint, IsToldOnceThatWindowHasBeenPainted)
{
    Painted window;
    Painted other;
    int told = 0;
    int paintedByThen = 0;
    AfterFirstPaint(window, [&] {
        ++told;
        paintedByThen = window.times;
    });
    QEvent noPaint(QEvent::PolishRequest);
    QCoreApplication::sendEvent(&window, &noPaint);
    other.show();
    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();
    EXPECT_GT(other.times, 0);
    EXPECT_EQ(told, 0) << "another window was painted, and this one was not";
    window.show();
    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
    EXPECT_GT(paintedByThen, 0);
    window.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
}

} // namespace kova::host
