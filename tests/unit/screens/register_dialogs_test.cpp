// Where the dialogs of the registers stand on a small screen, and that all of them can be reached.

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/registers/registers.hpp"
#include "registers/company_question.hpp"
#include "registers/importing/export_dialog.hpp"
#include "registers/importing/import_wizard.hpp"
#include "registers/merge_dialog.hpp"
#include "registers/person_dialog.hpp"
#include "registers/suggestions_dialog.hpp"
#include "system/temporary_folder.hpp"
#include "tests/unit/screens/small_screen.hpp"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTest>

#include <functional>
#include <memory>

namespace kova::registers::test {

namespace {

int RoomForTextIn(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .width();
}

const family::Author Ana{"1", "Ana", "2026-11-20 09:00:00", "BALCAO"};

class RegisterDialogsOfASmallScreen : public kova::test::SmallScreen {
protected:
    RegisterDialogsOfASmallScreen()
    {
        family::NewShop shop;
        shop.company.nomeFantasia = "Pet Shop Céu";
        shop.user = "Ana";
        shop.employee = "Bia";
        family::CreateNewShop(file_, shop);
        desk_ = {family::OpenDatabase(file_), [] { return Ana; }};
        const auto& customers = family::registers::CustomerRegister();
        family::registers::Texts texts = customers.New();
        texts[family::registers::FieldNamed(customers.Fields(), "Nome")] = "José Antônio Peçanha";
        EXPECT_TRUE(customers.Save(*desk_.database, 0, customers.New(), texts, Ana).IsDone());
        window_.setGeometry(Room());
        Show(window_);
    }

    /// All of its buttons but those that scroll with their field, and every field as Tab comes to it.
    void ExpectUsable(QWidget& dialog, std::initializer_list<const char*> buttons)
    {
        Show(dialog);
        ExpectOnScreen(dialog);
        ExpectNothingSideways(dialog);
        for (const char* button : buttons)
            EXPECT_TRUE(IsSeen(*dialog.findChild<QPushButton*>(QLatin1String(button)))) << button;
        const QWidget* first = QApplication::focusWidget();
        do {
            EXPECT_TRUE(IsSeen(*QApplication::focusWidget()))
                << QApplication::focusWidget()->objectName().toStdString();
            QTest::keyClick(&dialog, Qt::Key_Tab);
        } while (QApplication::focusWidget() != first);
    }

    void ExpectToImportAndExport()
    {
        ImportWizard import({file_, desk_.author}, "clientes", &window_);
        ExpectUsable(import, {"conferir", "cancelar"});
        import.close();
        ExportDialog exporting({file_, desk_.author}, "clientes", &window_);
        ExpectUsable(exporting, {"exportar", "cancelar"});
    }

    system::TemporaryFolder folder_{"cadastros-"};
    const std::string file_ = (folder_.Path() / "loja.db").string();
    Desk desk_;
    QWidget window_;
};

} // namespace

TEST_F(RegisterDialogsOfASmallScreen, AskForTheCompany)
{
    CompanyQuestion dialog(desk_, &window_);
    ExpectUsable(dialog, {"salvar", "depois"});
}

TEST_F(RegisterDialogsOfASmallScreen, JoinCustomers)
{
    MergeDialog dialog({window_, desk_, 1}, &window_);
    ExpectUsable(dialog, {"unirCadastros", "cancelar"});
}

TEST_F(RegisterDialogsOfASmallScreen, ShowThePersonsData)
{
    PersonDialog dialog(desk_, 1, &window_);
    ExpectUsable(dialog, {"fechar"});
}

TEST_F(RegisterDialogsOfASmallScreen, SuggestHolidays)
{
    SuggestionsDialog dialog(family::registers::HolidayRegister(), desk_, &window_);
    ExpectUsable(dialog, {"incluir"});
}

TEST_F(RegisterDialogsOfASmallScreen, ImportAndExport) { ExpectToImportAndExport(); }

TEST_F(RegisterDialogsOfASmallScreen, ImportAndExportWithLettersHalfAsLargeAgain)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(usual.pixelSize() * 3 / 2);
    QApplication::setFont(large);
    ExpectToImportAndExport();
    QApplication::setFont(usual);
}

TEST_F(RegisterDialogsOfASmallScreen, ShowEveryChoiceOfAnImportInFull)
{
    ImportWizard import({file_, desk_.author}, "clientes", &window_);
    Show(import);
    for (const QComboBox* box : import.findChildren<QComboBox*>()) {
        const int room = RoomForTextIn(*box);
        for (int choice = 0; choice < box->count(); ++choice) {
            EXPECT_GE(room, box->fontMetrics().horizontalAdvance(box->itemText(choice)))
                << box->itemText(choice).toStdString();
        }
    }
}

} // namespace kova::registers::test
