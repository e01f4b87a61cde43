#include "host/shell/main_window.hpp"

#include "host/shell/icon.hpp"
#include "host/shell/notice_bar.hpp"
#include "host/shell/tab_row.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace kova::host {

namespace {

/// What is left of a screen of 1024 by 768 beside the desktop's bars and the window's frame.
constexpr QSize SmallestWindow(1000, 680);
/// What the desktop's frame around a window takes, at most.
constexpr QSize Frame(16, 48);
/// How long a desktop may take to give the window its place.
constexpr qint64 LongestWaitMilliseconds = 400;
constexpr int EventSliceMilliseconds = 10;
constexpr int MostNumberedTabs = 9;
/// What is told of a tab that is not there.
const QString Denial = QStringLiteral("aba");
/// How often a page that has gone is looked at, while it has a dialog open.
constexpr int LookForDialogsMilliseconds = 100;

const QString DemonstrationText = QStringLiteral("Demonstração: nada do que é marcado aqui vale");

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

MainWindow::MainWindow(const Heading& heading)
    : heading_(heading),
      row_(new TabRow(this)),
      pages_(new QStackedWidget(this)),
      container_(new QWidget(this)),
      notice_(new NoticeBar(this)),
      deleting_(new QTimer(this))
{
    setWindowIcon(ApplicationIcon());
    setBackgroundRole(QPalette::Base);

    TellUser(heading.user);
    row_->TellShop(heading.isDemonstration ? DemonstrationText : QString());
    container_->setObjectName(QStringLiteral("container"));
    row_->GetTabs().addTab(QStringLiteral("Agenda"));
    pages_->addWidget(container_);
    all_.push_back({{}, true});
    connect(&row_->GetTabs(), &QTabBar::currentChanged, this, [this](int tab) { TurnTo(tab); });
    AddShortcuts();
    deleting_->setInterval(LookForDialogsMilliseconds);
    connect(deleting_, &QTimer::timeout, this, [this] { DeleteDropped(); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(row_);
    layout->addWidget(pages_, 1);
    layout->addWidget(notice_);
}

void MainWindow::AddShortcuts()
{
    for (int number = 1; number <= MostNumberedTabs; ++number) {
        const auto key = static_cast<Qt::Key>(Qt::Key_0 + number);
        connect(new QShortcut(QKeySequence(Qt::ALT | key), this), &QShortcut::activated, this,
                [this, number] {
                    if (number <= row_->GetTabs().count())
                        ShowTab(number - 1);
                });
    }
    connect(new QShortcut(QKeySequence(Qt::Key_F10), this), &QShortcut::activated, this,
            [this] { row_->OpenMenu(); });
}

int MainWindow::AddTab(const QString& name, MakePage make)
{
    all_.push_back({std::move(make)});
    const int tab = row_->GetTabs().addTab(name);
    row_->GetTabs().setTabToolTip(tab, name + QStringLiteral(" (Alt+%1)").arg(tab + 1));
    pages_->addWidget(new QWidget(pages_));
    return tab;
}

void MainWindow::ShowTab(int tab)
{
    const QString& why = all_[static_cast<std::size_t>(tab)].why;
    notice_->Show(Denial, why);
    if (why.isEmpty())
        row_->GetTabs().setCurrentIndex(tab);
}

void MainWindow::OfferTab(int tab, const QString& why)
{
    Tab& one = all_[static_cast<std::size_t>(tab)];
    one.why = why;
    notice_->Show(Denial, {});
    if (!why.isEmpty() && row_->GetTabs().currentIndex() == tab)
        row_->GetTabs().setCurrentIndex(0);
    row_->GetTabs().setTabVisible(tab, why.isEmpty());
    if (!why.isEmpty() && one.isMade)
        Drop(tab);
}

void MainWindow::Drop(int tab)
{
    QWidget* const page = pages_->widget(tab);
    pages_->insertWidget(tab, new QWidget(pages_));
    pages_->removeWidget(page);
    page->hide();
    all_[static_cast<std::size_t>(tab)].isMade = false;
    dropped_.push_back(page);
    deleting_->start();
}

// What a page has asked is on its stack until it is answered.
void MainWindow::DeleteDropped()
{
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
        return;
    deleting_->stop();
    for (QWidget* page : std::exchange(dropped_, {}))
        delete page;
}

void MainWindow::TurnTo(int tab)
{
    Tab& one = all_[static_cast<std::size_t>(tab)];
    const bool isNew = !std::exchange(one.isMade, true);
    if (isNew) {
        QWidget* const placeholder = pages_->widget(tab);
        pages_->insertWidget(tab, one.make(*pages_));
        pages_->removeWidget(placeholder);
        delete placeholder;
    }
    notice_->Show(Denial, {});
    pages_->setCurrentIndex(tab);
    QWidget* const page = pages_->currentWidget();
    (isNew || page->focusWidget() == nullptr ? page : page->focusWidget())->setFocus();
    onTurned();
}

void MainWindow::TellUser(const QString& name)
{
    heading_.user = name;
    setWindowTitle(TitleOf(heading_));
    row_->TellUser(name);
}

void MainWindow::OfferChange(std::function<void()> change) { row_->OfferChange(std::move(change)); }

QMenu& MainWindow::Menu() { return row_->Menu(); }

NewsBar& MainWindow::News() { return row_->News(); }

void MainWindow::ShowNotice(const QString& subject, const QString& text) { notice_->Show(subject, text); }

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
    event->setAccepted(mayClose());
    if (!event->isAccepted())
        return;
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
