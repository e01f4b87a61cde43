#include "host/main_window.hpp"

#include "host/icon.hpp"
#include "host/notice_bar.hpp"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace kova::host {

namespace {

/// What is left of a screen of 1024 by 768 beside the desktop's bars and the window's frame.
constexpr QSize SmallestWindow(1000, 680);
/// What the desktop's frame around a window takes, at most.
constexpr QSize Frame(16, 48);
/// How long a desktop may take to give the window its place.
constexpr qint64 LongestWaitMilliseconds = 400;
constexpr int EventSliceMilliseconds = 10;

QString TitleOf(const MainWindow::Heading& heading)
{
    QStringList parts;
    if (!heading.shop.isEmpty() || heading.isDemonstration)
        parts += heading.isDemonstration ? (heading.shop + QStringLiteral(" (demonstração)")).trimmed()
                                         : heading.shop;
    if (!heading.user.isEmpty())
        parts += heading.user;
    return (parts << QStringLiteral("Kovaris")).join(QStringLiteral(" - "));
}

} // namespace

MainWindow::MainWindow(const Heading& heading) : container_(new QWidget(this)), notice_(new NoticeBar(this))
{
    setWindowTitle(TitleOf(heading));
    setWindowIcon(ApplicationIcon());
    setBackgroundRole(QPalette::Base);

    container_->setObjectName(QStringLiteral("container"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(container_, 1);
    layout->addWidget(notice_);
}

void MainWindow::ShowNotice(const QString& text) { notice_->Show(text); }

void MainWindow::ShowHint(const QString& text)
{
    auto* hint = new QLabel(text, container_);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    hint->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* layout = new QVBoxLayout(container_);
    layout->setContentsMargins(80, 80, 80, 80);
    layout->addWidget(hint);
}

void MainWindow::FitToScreen()
{
    setMinimumSize(SmallestWindow.boundedTo(screen()->availableSize() - Frame));
}

void MainWindow::Open(std::optional<WindowSize> size)
{
    winId();
    FitToScreen();
    connect(windowHandle(), &QWindow::screenChanged, this, [this] { FitToScreen(); });
    if (size) {
        resize(size->width, size->height);
        show();
    } else {
        resize(screen()->availableSize());
        showMaximized();
        WaitForPlace();
    }
}

// The toolkit's own ending would ask every other window, and stay where one of them is busy.
void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    QCoreApplication::exit();
}

void MainWindow::WaitForPlace()
{
    QElapsedTimer waited;
    waited.start();
    do
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, EventSliceMilliseconds);
    while (!windowHandle()->isExposed() && waited.elapsed() < LongestWaitMilliseconds);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace kova::host
