// The look of the buttons that no form draws.

#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOption>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace kova::qt::test {
namespace {

class PlainButtons : public QtTest {
protected:
    PlainButtons()
    {
        auto* column = new QVBoxLayout(&window_);
        for (QPushButton* button : {offered_, other_}) {
            button->setAutoDefault(false);
            column->addWidget(button);
        }
        offered_->setDefault(true);
        window_.show();
        offered_->clearFocus();
        other_->clearFocus();
        Settle();
    }

    /// The colours beside the text, from just below the upper edge to just above the lower one.
    static std::set<QRgb> GroundOf(QPushButton* button)
    {
        const QImage picture = Picture(button);
        std::set<QRgb> colours;
        for (int y = 4; y < picture.height() - 4; ++y)
            colours.insert(picture.pixel(6, y));
        return colours;
    }

    QDialog window_;
    QPushButton* offered_ = new QPushButton(QStringLiteral("OK"), &window_);
    QPushButton* other_ = new QPushButton(QStringLiteral("Não"), &window_);
};

TEST_F(PlainButtons, AreFlat)
{
    EXPECT_EQ(GroundOf(other_), std::set<QRgb>{look::Paper.rgb()});
    EXPECT_EQ(GroundOf(offered_), std::set<QRgb>{look::Accent.rgb()});
}

TEST_F(PlainButtons, HaveTextsThatCanBeRead)
{
    for (QPushButton* button : {offered_, other_}) {
        const QImage picture = Picture(button);
        const QColor ground = picture.pixelColor(6, picture.height() / 2);
        double best = 1;
        for (int x = 10; x < picture.width() - 10; ++x)
            for (int y = 8; y < picture.height() - 8; ++y)
                best = std::max(best, Contrast(picture.pixelColor(x, y), ground));
        EXPECT_GE(best, LeastTextContrast) << button->text().toStdString();
    }
}

TEST_F(PlainButtons, StandBesideFieldsThatAreFlatToo)
{
    QComboBox list;
    list.addItem(QStringLiteral("A4"));
    QSpinBox number;
    QLineEdit text;
    for (QWidget* field :
         {static_cast<QWidget*>(&list), static_cast<QWidget*>(&number), static_cast<QWidget*>(&text)}) {
        field->resize(200, 30);
        const QImage picture = Picture(field);
        EXPECT_EQ(picture.pixel(100, 0), look::Border.rgb()) << field->metaObject()->className();
        for (int y = 2; y < 28; ++y)
            EXPECT_EQ(picture.pixel(150, y), look::Paper.rgb()) << field->metaObject()->className();
    }
}

TEST_F(PlainButtons, StandBesideBoxesOfSeveralLinesThatLookLikeFields)
{
    QPlainTextEdit box;
    box.resize(200, 80);
    const QImage picture = Picture(&box);
    for (const QPoint edge : {QPoint(100, 0), QPoint(100, 79), QPoint(0, 40), QPoint(199, 40)})
        EXPECT_EQ(picture.pixel(edge), look::Border.rgb()) << edge.x() << "," << edge.y();
    EXPECT_NE(picture.pixel(0, 0), look::Border.rgb()) << "its corners are round";
    EXPECT_EQ(picture.pixel(100, 40), look::Paper.rgb());

    box.setReadOnly(true);
    EXPECT_EQ(Picture(&box).pixel(0, 0), look::BorderUnderMouse.rgb());
}

TEST_F(PlainButtons, StandBesideListsAndMenusWithAFrame)
{
    for (const Look chosen : {Look::Dark, Look::Light}) {
        ApplyLook(*qApp, chosen);
        QListWidget list;
        list.resize(100, 60);
        EXPECT_EQ(Picture(&list).pixel(50, 0), look::BorderUnderMouse.rgb());
        QMenu menu;
        menu.addAction(QStringLiteral("Agendamento completo"));
        menu.resize(menu.sizeHint());
        EXPECT_EQ(Picture(&menu).pixel(50, 0), look::BorderUnderMouse.rgb());
    }
}

TEST_F(PlainButtons, StandBesideAListWhoseFrameTellsThatItHasTheKeyboard)
{
    auto* list = new QListWidget(&window_);
    window_.layout()->addWidget(list);
    other_->setFocus();
    Settle();
    EXPECT_EQ(Picture(list).pixel(50, 0), look::BorderUnderMouse.rgb());
    list->setFocus();
    Settle();
    EXPECT_EQ(Picture(list).pixel(50, 0), look::Accent.rgb());
}

TEST_F(PlainButtons, StandBesideCheckBoxesThatAreSeen)
{
    for (const Look chosen : {Look::Dark, Look::Light}) {
        ApplyLook(*qApp, chosen);
        QCheckBox box(QStringLiteral("Imprimir"));
        box.resize(box.sizeHint());
        const int middle = box.height() / 2;
        const auto inks = [&] {
            const QImage picture = Picture(&box);
            double best = 1;
            for (int x = 0; x < 20; ++x)
                best = std::max(best, Contrast(picture.pixelColor(x, middle), look::Paper));
            return best;
        };
        EXPECT_GE(inks(), 3.0);
        const QImage open = Picture(&box);
        box.setChecked(true);
        EXPECT_GE(inks(), 3.0);
        EXPECT_NE(Picture(&box), open);
    }
}

TEST_F(PlainButtons, StandBesideCheckBoxesAsRoundAcrossAsDown)
{
    QImage box(16, 16, QImage::Format_RGB32);
    box.fill(look::Paper);
    QPainter painter(&box);
    QStyleOption option;
    option.rect = box.rect();
    option.state = QStyle::State_Enabled;
    qApp->style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
    painter.end();
    EXPECT_NE(box.pixel(8, 0), look::Paper.rgb());
    EXPECT_LT(MostDifferenceTurned(box), 16);
}

TEST_F(PlainButtons, ShowTheFocus)
{
    window_.activateWindow();
    Settle();
    const QImage before = Picture(other_);
    other_->setFocus();
    Settle();
    EXPECT_NE(Picture(other_), before);
}

TEST_F(PlainButtons, StandBesideCheckBoxesThatShowTheFocus)
{
    QCheckBox box(QStringLiteral("Imprimir"), &window_);
    box.resize(box.sizeHint());
    box.show();
    window_.activateWindow();
    other_->setFocus();
    Settle();
    const QImage before = Picture(&box);
    box.setFocus(Qt::TabFocusReason);
    window_.setAttribute(Qt::WA_KeyboardFocusChange);
    EXPECT_NE(Picture(&box), before);
}

TEST_F(PlainButtons, AreAsHighAsThoseOfTheForms) { EXPECT_EQ(other_->sizeHint().height(), 34); }

} // namespace
} // namespace kova::qt::test
