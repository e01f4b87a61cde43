// The field of a combo box by itself: what the mouse and the keys find there, and where its list stands.

#include "tests/unit/toolkits/qt/support.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/look/painting.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QGuiApplication>
#include <QHelpEvent>
#include <QListWidget>
#include <QScreen>
#include <QToolTip>

#include <cmath>

namespace kova::qt::test {
namespace {

class ComboFields : public QtTest {
protected:
    ComboFields()
    {
        around_.resize(400, 100);
        field_.setGeometry(40, 40, 200, 30);
        around_.show();
        Settle();
    }

    QWidget* Open(const QStringList& rows)
    {
        field_.ShowList(rows, 0);
        Settle();
        return field_.List()->window();
    }
    QString ToolTipOver()
    {
        QToolTip::showText(QPoint(), QStringLiteral("nenhuma"));
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), field_.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&field_, &help);
        return QToolTip::text();
    }

    Surroundings around_;
    ComboField field_{&around_};
};

/// The first column with ink in that row of 28 pixels, right of edges and marks.
int BeginOfText(const QImage& picture, int top)
{
    for (int x = 5; x < picture.width(); ++x) {
        for (int y = top + 5; y < top + 24; ++y) {
            if (Contrast(picture.pixelColor(x, y), look::Paper) > 2)
                return x;
        }
    }
    return -1;
}

TEST_F(ComboFields, PointAtTheRowUnderAMouseThatPressesNothing)
{
    int pointed = -1;
    field_.pointed = [&](int row) { pointed = row; };
    Open({QStringLiteral("Banho"), QStringLiteral("Tosa"), QStringLiteral("Consulta")});
    QListWidget* list = field_.List();
    MoveMouse(list->viewport(), list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(pointed, 2);
}

TEST_F(ComboFields, BeginTheirRowsBelowTheirText)
{
    field_.SetShownText(QStringLiteral("Banho"));
    const QImage list = Picture(Open({QStringLiteral("Todos"), QStringLiteral("Banho")}));
    const int begin = BeginOfText(Picture(&field_), 1);
    ASSERT_GT(begin, 5);
    EXPECT_EQ(BeginOfText(list, 29), begin);
}

TEST_F(ComboFields, OpenTheirListAtTheEdgeOfTheScreenWhereTheyLieBeyondIt)
{
    const QRect room = RoomForPopup(QGuiApplication::primaryScreen()->availableGeometry());
    ComboField lost(nullptr);
    lost.setGeometry(room.right() + 40, room.bottom() + 60, 200, 30);
    lost.show();
    lost.ShowList({QStringLiteral("Banho")}, 0);
    EXPECT_EQ(lost.List()->window()->geometry().bottomRight(), room.bottomRight());
    lost.CloseList();
}

TEST_F(ComboFields, WidenTheirListForABarOnlyWhereRowsAreOutOfSight)
{
    QString wide;
    while (field_.fontMetrics().horizontalAdvance(wide) < 250)
        wide += QLatin1Char('m');
    const auto widthOf = [&](int rows) {
        const int width = Open(QStringList(rows, wide))->width();
        field_.CloseList();
        return width;
    };
    constexpr int page = toolkit::ComboBoxModel::RowsOfPage;
    EXPECT_EQ(widthOf(page), widthOf(1));
    EXPECT_EQ(widthOf(page + 1), widthOf(1) + 16);
}

TEST_F(ComboFields, LeaveKeysThatMeanNothingToThemToOthers)
{
    QString letters;
    field_.typed = [&](const QString& text) { letters += text; };
    Press(&field_, Qt::Key_F12);
    Press(&field_, Qt::Key_B, QStringLiteral("\x02"), Qt::ControlModifier);
    EXPECT_EQ(around_.keys, (std::vector<int>{Qt::Key_F12, Qt::Key_B}));
    Type(&field_, QStringLiteral("z"));
    EXPECT_EQ(letters, QStringLiteral("z"));
    EXPECT_EQ(around_.keys.size(), 2u);
}

TEST_F(ComboFields, TypeNoLettersThatAltTakesElsewhere)
{
    QString letters;
    field_.typed = [&](const QString& text) { letters += text; };
    Press(&field_, Qt::Key_Z, QStringLiteral("z"), Qt::AltModifier);
    EXPECT_EQ(letters, QString());
    EXPECT_EQ(around_.keys, std::vector<int>{Qt::Key_Z});
}

TEST_F(ComboFields, AreOpenedByAltAndAnArrowAndKeepTheirKeysToThemselves)
{
    std::vector<toolkit::ComboKey> seen;
    field_.keyPressed = [&](toolkit::ComboKey key) { seen.push_back(key); };
    Press(&field_, Qt::Key_Down, QString(), Qt::AltModifier);
    Press(&field_, Qt::Key_Up, QString(), Qt::AltModifier);
    EXPECT_EQ(seen, std::vector<toolkit::ComboKey>(2, toolkit::ComboKey::Open));
    seen.clear();
    Press(&field_, Qt::Key_Down);
    Press(&field_, Qt::Key_Up);
    Press(&field_, Qt::Key_F4);
    EXPECT_EQ(seen,
              (std::vector<toolkit::ComboKey>{toolkit::ComboKey::Down, toolkit::ComboKey::Up,
                                              toolkit::ComboKey::Open}));
    EXPECT_TRUE(around_.keys.empty());
    Press(&field_, Qt::Key_F4, QString(), Qt::AltModifier);
    EXPECT_EQ(seen.size(), 3u) << "the key that closes a window";
    EXPECT_EQ(around_.keys, std::vector<int>{Qt::Key_F4});
}

TEST_F(ComboFields, ShowTheFocusAndTheirOpenList)
{
    around_.activateWindow();
    Settle();
    field_.clearFocus();
    const QImage without = Picture(&field_);
    field_.setFocus();
    const QImage with = Picture(&field_);
    EXPECT_NE(with, without);
    Open({QStringLiteral("Banho")});
    EXPECT_EQ(Picture(&field_), with);
}

TEST_F(ComboFields, TellTheirCutTextRatherThanWhatLiesAroundThem)
{
    around_.setToolTip(QStringLiteral("Cadastro"));
    field_.SetShownText(QStringLiteral("Banho"));
    EXPECT_EQ(ToolTipOver(), QStringLiteral("Cadastro"));
    field_.resize(40, 30);
    EXPECT_EQ(ToolTipOver(), QStringLiteral("Banho"));
    field_.setToolTip(QStringLiteral("Serviço"));
    EXPECT_EQ(ToolTipOver(), QStringLiteral("Serviço")) << "its own";
}

TEST_F(ComboFields, TellATextInAToolTipOnlyWhereItIsCut)
{
    // Widths are counted in parts of a pixel; that many of one letter are whole pixels wide.
    const QString text(64, QLatin1Char('i'));
    field_.SetShownText(text);
    const double width = QFontMetricsF(field_.font()).horizontalAdvance(text);
    ASSERT_EQ(width, std::floor(width));
    constexpr int beside = 36;
    field_.resize(static_cast<int>(width) + beside, 30);
    EXPECT_EQ(ToolTipOver(), QStringLiteral("nenhuma"));
    field_.resize(field_.width() - 1, 30);
    EXPECT_EQ(ToolTipOver(), text);
}

} // namespace
} // namespace kova::qt::test
