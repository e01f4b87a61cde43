// The registers on a small screen: one of 1366 x 768 where everything is shown twice as large.

#include "tests/unit/registers/registers_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/access/access_registers.hpp"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>

namespace kova::registers::test {

namespace {

class NarrowCadastros : public CadastrosTest {
protected:
    NarrowCadastros()
    {
        page_ = std::make_unique<RegistersPage>(
            Desk{family::OpenDatabase(file_), [this] { return author_; }}, nullptr,
            RegistersChoice{
                .guarded = {&family::registers::UserRegister(), &family::registers::RoleRegister()}});
        page_->resize(683, 330);
        page_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    }

    /// Turns to each register, and looks.
    void AtEach(const std::function<void()>& look)
    {
        const auto& names = Find<QListWidget>("cadastros");
        for (int row = 0; row < names.count(); ++row) {
            const QByteArray title = names.item(row)->text().toUtf8();
            SCOPED_TRACE(title.constData());
            Find<QListWidget>("cadastros").setCurrentRow(row);
            QApplication::processEvents();
            look();
        }
    }
};

} // namespace

TEST_F(NarrowCadastros, ShowFormsThatScrollDownwardsOnly)
{
    AtEach([this] {
        for (const QScrollArea* area : page_->findChildren<QScrollArea*>()) {
            if (area->isVisible()) {
                EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
                EXPECT_LE(area->widget()->width(), area->viewport()->width());
                EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width());
            }
        }
    });
}

} // namespace kova::registers::test
