#include "tools/hand/hand.hpp"

#include "tests/support/qt_application.hpp"
#include "toolkits/qt/screen/toolkit.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>

namespace kova::hand {

namespace {

class HandTest : public ::testing::Test {
protected:
    HandTest()
    {
        test::NeedApplication();
        window_ = std::make_unique<QWidget>();
        window_->setObjectName("janela");
        window_->resize(400, 300);
        button_ = new QPushButton("Salvar", window_.get());
        button_->setObjectName("salvar");
        button_->setGeometry(20, 20, 100, 30);
        QObject::connect(button_, &QPushButton::clicked, button_, [this] { ++presses_; });
        window_->show();
        window_->activateWindow();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<QWidget> window_;
    QPushButton* button_;
    int presses_ = 0;
    Hand hand_;
};

TEST_F(HandTest, ClicksTheWidgetAtAPlace)
{
    EXPECT_EQ(hand_.Click(Spot(button_)), "");
    EXPECT_EQ(presses_, 1);
}

TEST_F(HandTest, PressesNothingThatIsCovered)
{
    QWidget plate(window_.get());
    plate.setObjectName("placa");
    plate.setGeometry(0, 0, 400, 300);
    plate.show();
    EXPECT_EQ(hand_.Click(Spot(button_)), "salvar is covered by placa");
    plate.setAttribute(Qt::WA_TransparentForMouseEvents);
    EXPECT_EQ(hand_.Click(Spot(button_)), "");
    EXPECT_EQ(presses_, 1);
}

TEST_F(HandTest, PressesNothingThatIsHiddenDisabledOrOutsideItsWindow)
{
    button_->setEnabled(false);
    EXPECT_EQ(hand_.Click(Spot(button_)), "salvar is disabled");
    button_->hide();
    EXPECT_EQ(hand_.Click(Spot(button_)), "salvar is not visible");
    button_->setEnabled(true);
    button_->show();
    button_->move(380, 20);
    EXPECT_EQ(hand_.Click(Spot(button_)), "salvar is outside its window");
    EXPECT_EQ(hand_.Click(Spot(nullptr)), "it does not exist");
    EXPECT_EQ(presses_, 0);
}

TEST_F(HandTest, PressesNothingUnderAModalWindowOrAnOpenMenu)
{
    QDialog dialog(window_.get());
    dialog.setObjectName("dialogo");
    dialog.setModal(true);
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(hand_.Click(Spot(button_)), "salvar is under dialogo");
    dialog.hide();
    QMenu menu(window_.get());
    menu.addAction("Abrir");
    menu.popup(window_->mapToGlobal(QPoint(200, 200)));
    EXPECT_EQ(hand_.Click(Spot(button_)), "salvar is behind an open list or menu");
    menu.hide();
    EXPECT_EQ(hand_.Click(Spot(button_)), "");
    EXPECT_EQ(presses_, 1);
}

/// Counts what arrives at a widget.
class Witness : public QObject {
public:
    explicit Witness(QWidget& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            ++presses;
        if (event->type() == QEvent::MouseButtonDblClick)
            ++doubles;
        if (event->type() == QEvent::MouseMove)
            moved = static_cast<QMouseEvent*>(event)->position().toPoint();
        return false;
    }
    int presses = 0;
    int doubles = 0;
    QPoint moved;
};

TEST_F(HandTest, TellsTwoClicksFromADoubleClick)
{
    Witness witness(*button_);
    hand_.Click(Spot(button_));
    hand_.Click(Spot(button_));
    EXPECT_EQ(witness.presses, 2);
    EXPECT_EQ(witness.doubles, 0);
    hand_.DoubleClick(Spot(button_));
    EXPECT_EQ(witness.presses, 3);
    EXPECT_EQ(witness.doubles, 1);
}

TEST_F(HandTest, ClicksInsideTheLoopThatAPressHasOpenedAreNoDoubleClicks)
{
    QDialog dialog(window_.get());
    QPushButton inside("Fechar", &dialog);
    Witness witness(inside);
    QObject::connect(&inside, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(button_, &QPushButton::clicked, button_, [&] {
        QTimer::singleShot(0, &dialog, [&] { hand_.Click(Spot(&inside)); });
        dialog.exec();
    });
    EXPECT_EQ(hand_.Click(Spot(button_)), "");
    EXPECT_EQ(witness.presses, 1);
    EXPECT_EQ(witness.doubles, 0);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(HandTest, PassesOverAWidget)
{
    button_->setMouseTracking(true);
    Witness witness(*button_);
    EXPECT_EQ(hand_.MoveTo({button_, QPoint(10, 7)}), "");
    EXPECT_EQ(witness.moved, QPoint(10, 7));
}

TEST_F(HandTest, LetsGoBesideWhatWasPressed)
{
    hand_.Drag(Spot(button_), {window_.get(), QPoint(300, 200)});
    EXPECT_EQ(presses_, 0);
}

TEST_F(HandTest, TypesWhereTheKeyboardIs)
{
    QLineEdit box(window_.get());
    box.setGeometry(20, 80, 200, 30);
    box.show();
    hand_.Click(Spot(&box));
    hand_.Type("São João");
    hand_.Key("Backspace");
    EXPECT_EQ(box.text(), "São Joã");
    hand_.Key("Ctrl+A");
    hand_.Key("x");
    EXPECT_EQ(box.text(), "x");
    EXPECT_FALSE(hand_.Key("NoSuchKey"));
}

TEST_F(HandTest, NamesTheKeysOfPages)
{
    QListWidget list(window_.get());
    list.setGeometry(20, 80, 200, 100);
    for (int row = 0; row < 40; ++row)
        list.addItem(QString::number(row));
    list.show();
    list.setCurrentRow(0);
    list.setFocus();
    hand_.Key("PageDown");
    EXPECT_GT(list.currentRow(), 1);
    hand_.Key("Home");
    EXPECT_EQ(list.currentRow(), 0);
}

TEST_F(HandTest, TurnsTheWheelUntilARowIsOnShow)
{
    QListWidget list(window_.get());
    list.setGeometry(20, 80, 200, 100);
    for (int row = 0; row < 40; ++row)
        list.addItem(QString::number(row));
    list.show();
    EXPECT_EQ(hand_.Pick(list, 33), "");
    EXPECT_EQ(list.currentRow(), 33);
    EXPECT_EQ(hand_.Pick(list, 2), "");
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_EQ(hand_.Pick(list, 40), "the list has no row 40");
}

TEST_F(HandTest, ScrollsAnAreaUntilThePlaceIsOnShow)
{
    QScrollArea area(window_.get());
    area.setGeometry(20, 80, 200, 100);
    auto* inside = new QWidget;
    inside->resize(150, 900);
    QPushButton below("Gravar", inside);
    below.move(10, 800);
    area.setWidget(inside);
    area.show();
    QCoreApplication::processEvents();
    EXPECT_NE(hand_.Click(Spot(&below)), "");
    EXPECT_EQ(hand_.Reveal(Spot(&below)), "");
    EXPECT_EQ(hand_.Click(Spot(&below)), "");
}

TEST_F(HandTest, AnswersABoxByItsButton)
{
    QMessageBox box(window_.get());
    QPushButton* yes = box.addButton("Sim", QMessageBox::YesRole);
    box.addButton("Não", QMessageBox::NoRole);
    std::string offered;
    QTimer::singleShot(0, &box, [&] {
        ASSERT_EQ(Hand::OpenBox(), &box);
        offered = hand_.Answer(box, Reply::Ok);
        hand_.Answer(box, Reply::Yes);
    });
    box.exec();
    EXPECT_EQ(offered, "the box does not offer that answer");
    EXPECT_EQ(box.clickedButton(), yes);
}

TEST_F(HandTest, PicksAnEntryOfAMenu)
{
    QMenu menu(window_.get());
    menu.addAction("Incluir")->setEnabled(false);
    QAction* second = menu.addAction("Alterar");
    std::vector<std::string> refusals;
    QTimer::singleShot(0, &menu, [&] {
        ASSERT_EQ(Hand::OpenMenu(), &menu);
        refusals.push_back(hand_.Pick(menu, "Incluir"));
        refusals.push_back(hand_.Pick(menu, "Excluir"));
        hand_.Pick(menu, "Alterar");
    });
    EXPECT_EQ(menu.exec(window_->mapToGlobal(QPoint(50, 50))), second);
    EXPECT_EQ(refusals, (std::vector<std::string>{"Incluir is disabled", "Excluir is not in the menu"}));
}

TEST_F(HandTest, GivesTheKeyboardBackToTheWindowBehindADialog)
{
    QLineEdit box(window_.get());
    box.setGeometry(20, 80, 200, 30);
    box.show();
    hand_.Click(Spot(&box));
    {
        QDialog dialog(window_.get());
        dialog.setModal(true);
        dialog.show();
        dialog.activateWindow();
        QCoreApplication::processEvents();
    }
    hand_.Type("a");
    EXPECT_EQ(box.text(), "a");
}

} // namespace

} // namespace kova::hand
