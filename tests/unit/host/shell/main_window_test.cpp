#include "host/shell/main_window.hpp"
#include "host/shell/notice_bar.hpp"
#include "host/shell/tab_row.hpp"
#include "tests/unit/host/with_application.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QIcon>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QToolButton>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace kova::host {

namespace {

class TheMainWindow : public WithApplication {
protected:
    static std::string TitleOf(const MainWindow::Heading& heading)
    {
        return MainWindow(heading).windowTitle().toStdString();
    }
};

/// A window with a second tab, whose page is a box to type in.
class TheTabs : public WithApplication {
protected:
    TheTabs()
    {
        new QLineEdit(&window_.Container());
        window_.AddTab(QStringLiteral("Cadastros"), [this](QWidget& parent) {
            ++made_;
            box_ = new QLineEdit(&parent);
            return box_;
        });
        window_.Open(WindowSize{1000, 700});
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    screens::Tabs& Row() { return window_.findChild<TabRow*>()->GetTabs(); }
    QLineEdit& BoxOfAgenda() { return *window_.Container().findChild<QLineEdit*>(); }

    MainWindow window_{{"Pet Shop Céu", false, "Maria"}};
    int made_ = 0;
    QLineEdit* box_ = nullptr;
};

} // namespace

TEST_F(TheTabs, MakeTheirPageWhenTheyAreTurnedToForTheFirstTime)
{
    EXPECT_TRUE(window_.Container().isVisible());
    EXPECT_EQ(made_, 0);
    for (int turn = 0; turn < 2; ++turn) {
        QTest::mouseClick(&Row(), Qt::LeftButton, {}, Row().tabRect(1).center());
        EXPECT_EQ(made_, 1);
        EXPECT_TRUE(box_->isVisible());
        EXPECT_FALSE(window_.Container().isVisible());
        QTest::mouseClick(&Row(), Qt::LeftButton, {}, Row().tabRect(0).center());
        EXPECT_TRUE(window_.Container().isVisible());
        EXPECT_FALSE(box_->isVisible());
    }
}

TEST_F(TheTabs, AreTurnedToByAltAndTheirNumber)
{
    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), 1);
    ASSERT_EQ(QApplication::focusWidget(), box_);
    QTest::keyClick(box_, Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), 0);
    QTest::keyClick(&window_, Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), 0) << "there is no third one";
}

TEST_F(TheTabs, AreTurnedToByAltAndANumberToTheNinth)
{
    for (int tab = 3; tab <= 9; ++tab)
        window_.AddTab(QString::number(tab), [](QWidget& parent) { return new QLineEdit(&parent); });
    QTest::keyClick(&window_, Qt::Key_9, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), 8);
}

TEST_F(TheMainWindow, HasTabsThatNeedNothingToTypeIn)
{
    MainWindow window({"", false, ""});
    window.AddTab(QStringLiteral("Cadastros"), [](QWidget& parent) { return new QLabel(&parent); });
    window.Open(WindowSize{1000, 700});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (int turn = 0; turn < 2; ++turn) {
        QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
        EXPECT_FALSE(window.Container().isVisible());
        QTest::keyClick(&window, Qt::Key_1, Qt::AltModifier);
        EXPECT_TRUE(window.Container().isVisible());
    }
}

TEST_F(TheTabs, KeepWhatIsTypedAndThePlaceOfTheKeyboard)
{
    BoxOfAgenda().setFocus();
    QTest::keyClicks(&BoxOfAgenda(), QStringLiteral("Bia"));
    QTest::keyClick(&BoxOfAgenda(), Qt::Key_2, Qt::AltModifier);
    QTest::keyClicks(box_, QStringLiteral("Ana"));
    QTest::keyClick(box_, Qt::Key_1, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &BoxOfAgenda());
    EXPECT_EQ(BoxOfAgenda().text(), "Bia");
    QTest::keyClick(&BoxOfAgenda(), Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), box_);
    EXPECT_EQ(box_->text(), "Ana");
}

TEST_F(TheTabs, AreNotThereForWhoMayNotTurnToThemAndComeBackWithAnotherPage)
{
    const QString why =
        QStringLiteral("Recepção não pode ver o histórico. Peça a quem administra os usuários.");
    const int last =
        window_.AddTab(QStringLiteral("Histórico"), [](QWidget& parent) { return new QLabel(&parent); });
    const auto told = [&] {
        const auto* line = window_.findChild<QLabel*>(QStringLiteral("aviso"));
        return line->isVisible() ? line->text() : QString();
    };
    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    const QPointer<QWidget> page = box_;
    window_.OfferTab(1, why);
    EXPECT_FALSE(Row().isTabVisible(1));
    EXPECT_EQ(Row().currentIndex(), 0);
    EXPECT_TRUE(told().isEmpty()) << "nobody has asked for it yet";
    EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));

    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), 0);
    EXPECT_EQ(told(), why);
    QTest::keyClick(&window_, Qt::Key_3, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), last) << "each keeps its number";
    EXPECT_TRUE(told().isEmpty());

    window_.OfferTab(1, {});
    EXPECT_TRUE(Row().isTabVisible(1));
    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(Row().currentIndex(), 1);
    EXPECT_EQ(made_, 2);
    EXPECT_TRUE(box_->isVisible());
}

TEST_F(TheTabs, KeepAPageThatHasGoneUntilItsDialogIsAnswered)
{
    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    const QPointer<QWidget> page = box_;
    auto dialog = std::make_unique<QDialog>(box_);
    dialog->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    window_.OfferTab(1, QStringLiteral("Não."));
    QCoreApplication::processEvents();
    EXPECT_TRUE(page);
    dialog.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }));
}

TEST_F(TheTabs, TellWhenAnotherIsTurnedTo)
{
    int turns = 0;
    window_.onTurned = [&] { ++turns; };
    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    QTest::keyClick(&window_, Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(turns, 1);
}

TEST_F(TheTabs, DoNotTakeTheKeyboardByAPress)
{
    BoxOfAgenda().setFocus();
    QTest::mouseClick(&Row(), Qt::LeftButton, {}, Row().tabRect(0).center());
    EXPECT_EQ(QApplication::focusWidget(), &BoxOfAgenda());
}

TEST_F(TheTabs, StandInOneNarrowRow)
{
    EXPECT_EQ(window_.Container().height(), window_.height() - 30);
    EXPECT_EQ(window_.Container().width(), window_.width());
}

TEST_F(TheTabs, AndTheMenuLieFlatOnTheirRowAboveALine)
{
    auto* row = window_.findChild<TabRow*>();
    const auto* menu = row->findChild<QToolButton*>(QStringLiteral("menu"));
    const QImage picture = row->grab().toImage();
    EXPECT_EQ(picture.pixelColor(row->width() / 2, row->height() - 1), qt::look::Rule);
    EXPECT_EQ(picture.pixelColor(row->width() / 2, row->height() - 2), qt::look::Band);
    EXPECT_EQ(picture.pixelColor(menu->geometry().center().x(), menu->geometry().top()), qt::look::Band);
}

TEST_F(TheMainWindow, OpensItsMenuByF10)
{
    MainWindow window({"", false, ""});
    window.Menu().addAction(QStringLiteral("Abrir outra loja..."));
    window.Open(WindowSize{1000, 700});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    bool wasOpen = false;
    QObject::connect(&window.Menu(), &QMenu::aboutToShow, &window, [&] {
        wasOpen = true;
        QMetaObject::invokeMethod(&window.Menu(), &QMenu::close, Qt::QueuedConnection);
    });
    QTest::keyClick(&window, Qt::Key_F10);
    EXPECT_TRUE(wasOpen);
}

TEST_F(TheMainWindow, SaysAllTheTimeThatADemonstrationIsOne)
{
    const auto textOf = [](const MainWindow& window) {
        return window.findChild<QLabel*>(QStringLiteral("loja"))->text().toStdString();
    };
    EXPECT_EQ(textOf(MainWindow({"Amigo Fiel", true, "Maria"})),
              "Demonstração: nada do que é marcado aqui vale");
    EXPECT_EQ(textOf(MainWindow({"Amigo Fiel", false, "Maria"})), "");
    const MainWindow demonstration({"Amigo Fiel", true, "Maria"});
    EXPECT_TRUE(demonstration.findChild<QLabel*>(QStringLiteral("loja"))->font().bold());
}

TEST_F(TheMainWindow, CutsALongNameOfItsUserAndTellsItAllInATip)
{
    const QString name = QStringLiteral("Maria Antônia da Conceição e Albuquerque Vasconcelos de Souza Lima");
    const MainWindow window({"", false, name});
    const auto* user = window.findChild<QToolButton*>(QStringLiteral("usuario"));
    EXPECT_NE(user->text(), name);
    EXPECT_EQ(user->toolTip(), name);
    EXPECT_EQ(user->accessibleName(), QStringLiteral("Usuário: ") + name);
}

TEST_F(TheMainWindow, HasItsUsersNameAsAButtonOnceAnotherCanTakeThePlace)
{
    MainWindow window({"Pet Shop Céu", false, "Ana & Bia"});
    window.Open(WindowSize{1000, 700});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* user = window.findChild<QToolButton*>(QStringLiteral("usuario"));
    const QPoint place = user->mapTo(&window, user->rect().center());
    int changes = 0;
    EXPECT_EQ(user->text(), "Ana && Bia");
    EXPECT_EQ(user->focusPolicy(), Qt::NoFocus);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    window.OfferChange([&] { ++changes; });
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_EQ(changes, 1);
    user->setFocus(Qt::TabFocusReason);
    QTest::keyClick(user, Qt::Key_Space);
    EXPECT_EQ(changes, 2);
    window.TellUser(QStringLiteral("Caio"));
    EXPECT_EQ(user->text(), "Caio");
    EXPECT_EQ(user->toolTip(), "Trocar usuário (Ctrl+Shift+U)");
    EXPECT_EQ(window.windowTitle(), "Pet Shop Céu - Caio - Kovaris");
}

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
    QWidget window;
    // The application's window does that, and children follow it.
    window.setBackgroundRole(QPalette::Base);
    NoticeBar bar(&window);
    EXPECT_TRUE(bar.isHidden());
    const QString subject = QStringLiteral("cópia");
    bar.Show(subject, QStringLiteral("A cópia do dia não foi feita."));
    EXPECT_FALSE(bar.isHidden());
    bar.resize(600, 60);
    EXPECT_EQ(window.grab().toImage().pixelColor(2, 2), QColor(255, 244, 204));
    const int oneLine = bar.layout()->heightForWidth(600);
    bar.Show(subject, QStringLiteral("A cópia do dia não foi feita porque o disco está cheio. ").repeated(5));
    EXPECT_GT(bar.layout()->heightForWidth(600), oneLine);
    bar.Show(subject, QString());
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(TheMainWindow, TellsNoticesOfSeveralSubjectsBelowEachOther)
{
    QWidget window;
    NoticeBar bar(&window);
    const auto* text = bar.findChild<QLabel*>();
    const QString program = QStringLiteral("programa"), copy = QStringLiteral("cópia");
    bar.Show(program, QStringLiteral("Há um programa mais novo."));
    bar.Show(copy, QStringLiteral("A cópia não foi feita."));
    EXPECT_EQ(text->text().toStdString(), "Há um programa mais novo.\nA cópia não foi feita.");
    bar.Show(copy, QString());
    EXPECT_EQ(text->text().toStdString(), "Há um programa mais novo.");
    EXPECT_FALSE(bar.isHidden());

    bar.findChild<QToolButton*>()->click();
    EXPECT_TRUE(bar.isHidden());
    bar.Show(copy, QStringLiteral("A cópia não foi feita."));
    EXPECT_EQ(text->text().toStdString(), "A cópia não foi feita.");
}

TEST_F(TheMainWindow, GivesAHintAsManyLinesAsItNeeds)
{
    MainWindow window({"", false, ""});
    window.ShowHint(QStringLiteral("A agenda não pôde ser aberta. ").repeated(20));
    window.Open(WindowSize{1000, 700});
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto* hint = window.Container().findChild<QLabel*>();
    EXPECT_LE(hint->minimumSizeHint().width(), hint->width());
    EXPECT_LE(hint->geometry().right(), window.Container().width());
}

TEST_F(TheMainWindow, AwaitsItsPlaceNoLongerThanItTakes)
{
    MainWindow window({"", false, ""});
    int rounds = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &window,
                     [&] { ++rounds; });
    window.Open(std::nullopt);
    EXPECT_TRUE(window.windowHandle()->isExposed());
    EXPECT_TRUE(window.isMaximized());
    EXPECT_LT(rounds, 100) << "rounds of events, in which nothing happened";
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
