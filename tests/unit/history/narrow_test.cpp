// The history on small screens: on 1366 x 768, and on 1024 x 768, where everything is shown twice as large.

#include "tests/unit/history/history_fixture.hpp"

#include "screens/search_box.hpp"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

namespace kova::history::test {

namespace {

class NarrowHistorico : public HistoricoTest, public testing::WithParamInterface<int> {
protected:
    NarrowHistorico()
    {
        page_->resize(GetParam(), 330);
        QApplication::processEvents();
        Find<QTableView>("linhas").setFocus();
        Keys(Qt::Key_Home);
        QApplication::processEvents();
    }

    QScrollArea& Body() { return *page_->findChild<QScrollArea*>(); }

    QRect PlaceOf(const QWidget& part) { return {part.mapTo(Body().widget(), QPoint(0, 0)), part.size()}; }
};

} // namespace

TEST_P(NarrowHistorico, ScrollsDownwardsOnly)
{
    EXPECT_EQ(page_->width(), GetParam());
    EXPECT_EQ(Body().horizontalScrollBar()->maximum(), 0);
    EXPECT_LE(Body().widget()->minimumSizeHint().width(), Body().viewport()->width());
}

TEST_P(NarrowHistorico, HasNoFieldsThatCoverEachOther)
{
    const std::vector<QWidget*> fields = {
        &Find<screens::SearchBox>("procurar"), &Find<QComboBox>("quemFez"), &Find<QComboBox>("oQueFez"),
        &Find<QComboBox>("registro"),          &Find<QLineEdit>("desde"),   &Find<QLineEdit>("ate"),
        &Find<QPushButton>("limpar"),          &Find<QTableView>("linhas"), &Find<QPushButton>("desfazer")};
    for (const QWidget* one : fields) {
        EXPECT_TRUE(Body().widget()->rect().contains(PlaceOf(*one))) << one->objectName().toStdString();
        for (const QWidget* other : fields) {
            if (one != other) {
                EXPECT_FALSE(PlaceOf(*one).intersects(PlaceOf(*other)))
                    << one->objectName().toStdString() << ", " << other->objectName().toStdString();
            }
        }
    }
    for (const char* day : {"desde", "ate"}) {
        const auto& box = Find<QLineEdit>(day);
        EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(box.placeholderText()));
    }
}

TEST_P(NarrowHistorico, TellsTheWholeReason)
{
    Choose("oQueFez", "Inclusões");
    QApplication::processEvents();
    const auto& why = Find<QLabel>("motivo");
    ASSERT_FALSE(why.text().isEmpty());
    EXPECT_GE(why.height(), why.heightForWidth(why.width()));
    EXPECT_TRUE(Body().widget()->rect().contains(PlaceOf(why)));
}

TEST_P(NarrowHistorico, BringsIntoSightWhatTheKeysTurnTo)
{
    for (const Qt::Key key : {Qt::Key_F3, Qt::Key_F6, Qt::Key_F6}) {
        Keys(key);
        QApplication::processEvents();
        const QWidget& turned = *QApplication::focusWidget();
        EXPECT_FALSE(turned.visibleRegion().isEmpty()) << turned.objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, NarrowHistorico, testing::Values(512, 683, 910));

} // namespace kova::history::test
