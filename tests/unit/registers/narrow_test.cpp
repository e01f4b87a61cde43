// The registers on small screens: on 1366 x 768, and on 1024 x 768, where everything is shown twice as large.

#include "tests/unit/registers/registers_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/access/access_registers.hpp"
#include "screens/field_frame.hpp"

#include <QApplication>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>

namespace kova::registers::test {

namespace {

class NarrowCadastros : public CadastrosTest, public testing::WithParamInterface<int> {
protected:
    NarrowCadastros()
    {
        page_ = std::make_unique<RegistersPage>(
            Desk{family::OpenDatabase(file_), [this] { return author_; }}, nullptr,
            RegistersChoice{
                .guarded = {&family::registers::UserRegister(), &family::registers::RoleRegister()},
                .showsGuarded = [this] { return isAdministrator_; }});
        page_->resize(GetParam(), 330);
        page_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    }

    /// Turns to each register, and looks.
    void AtEach(const std::function<void()>& look)
    {
        auto& names = *page_->findChild<QListWidget*>("cadastros");
        for (int row = 0; row < names.count(); ++row) {
            const QByteArray title = names.item(row)->text().toUtf8();
            SCOPED_TRACE(title.constData());
            names.setCurrentRow(row);
            QApplication::processEvents();
            look();
        }
    }

    bool isAdministrator_ = true;
};

} // namespace

TEST_P(NarrowCadastros, ShowFormsThatScrollDownwardsOnly)
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

TEST_P(NarrowCadastros, HaveRoomForAllOfTheirButtons)
{
    AtEach([this] {
        EXPECT_EQ(page_->width(), GetParam());
        for (const QPushButton* button : page_->findChildren<QPushButton*>()) {
            if (button->isVisible()) {
                EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect())
                    << button->objectName().toStdString();
                EXPECT_GE(button->width(),
                          button->fontMetrics().horizontalAdvance(screens::WithoutMnemonic(button->text())))
                    << button->objectName().toStdString();
            }
        }
    });
}

TEST_P(NarrowCadastros, OfferTheirNamesInOneRowAboveThem)
{
    auto& chosen = Find<QComboBox>("cadastro");
    EXPECT_FALSE(page_->findChild<QListWidget*>("cadastros")->isVisible());
    EXPECT_EQ(chosen.currentText(), "Clientes");
    chosen.setFocus();
    Keys(Qt::Key_Down);
    EXPECT_EQ(chosen.currentText(), "Animais");
    EXPECT_EQ(Find<QLabel>("titulo").text(), "Animais");
    chosen.setFocus();
    Keys(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(chosen.currentText(), "Serviços");
    page_->resize(1100, 700);
    EXPECT_FALSE(chosen.isVisible());
    EXPECT_EQ(Find<QListWidget>("cadastros").currentItem()->text(), "Serviços");
}

TEST_P(NarrowCadastros, OfferNoNameOfARegisterThatIsNotForTheUser)
{
    const auto& chosen = Find<QComboBox>("cadastro");
    EXPECT_GE(chosen.findText("Papéis"), 0);
    isAdministrator_ = false;
    page_->Refresh();
    EXPECT_LT(chosen.findText("Papéis"), 0);
    EXPECT_LT(chosen.findText("Usuários"), 0);
    EXPECT_EQ(chosen.currentText(), "Clientes");
}

INSTANTIATE_TEST_SUITE_P(OfScreens, NarrowCadastros, testing::Values(683, 512),
                         [](const auto& one) { return std::to_string(one.param); });

} // namespace kova::registers::test
