#include "tests/unit/history/history_fixture.hpp"

#include "family/data/archive/audit_archive.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/registers/registers.hpp"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>

namespace kova::history::test {

namespace {

using family::registers::FieldNamed;
using family::registers::Register;
using family::registers::Texts;

void Save(family::Database& database, family::Key key, const char* label, const char* text,
          const char* moment)
{
    const Register& customers = family::registers::CustomerRegister();
    const Texts before = key == 0 ? customers.New() : customers.Read(database, key).value();
    Texts typed = before;
    typed.at(FieldNamed(customers.Fields(), label)) = text;
    if (!customers.Save(database, key, before, typed, {"1", "Ana", moment, "BALCAO"}).IsDone())
        throw std::runtime_error("the fixture's row was refused");
}

} // namespace

HistoricoTest::HistoricoTest()
{
    family::NewShop shop;
    shop.company.nomeFantasia = "Pet Shop Céu";
    shop.user = "Ana";
    shop.employee = "Bia";
    family::CreateNewShop(file_, shop);
    Stored("delete from auditoria");
    const auto database = family::OpenDatabase(file_);
    Save(*database, 0, "Nome", "José <b>Antônio</b> d'Ávila", "2026-11-18 09:00:00");
    Save(*database, 1, "Apelido", "Zé", "2026-11-19 09:00:00");
    Save(*database, 1, "Bairro", "Centro", "2026-11-20 09:00:00");
    Open();
}

void HistoricoTest::Open()
{
    const std::shared_ptr<family::Database> database = family::OpenDatabase(file_);
    page_ = std::make_unique<HistoryPage>(
        Desk{database, [this] { return author_; },
             [database](const std::optional<std::string>& file) -> std::shared_ptr<family::Database> {
                 return family::OpenSearchableArchive(*database, file);
             }},
        nullptr);
    page_->resize(1000, 640);
    page_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    page_->setFocus();
}

// A desktop gives the keyboard back to the window behind a box that closed; there is none here.
QWidget& HistoricoTest::Keyboard()
{
    if (QApplication::focusWidget() == nullptr || QApplication::activeWindow() == nullptr) {
        page_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    }
    return *QApplication::focusWidget();
}

void HistoricoTest::Keys(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&Keyboard(), key, modifiers);
}

void HistoricoTest::TypeInto(const char* box, const char* text)
{
    auto& line = Find<QLineEdit>(box);
    line.setFocus();
    line.selectAll();
    Keys(Qt::Key_Delete);
    for (const QChar letter : QString::fromUtf8(text))
        QTest::sendKeyEvent(QTest::Click, &line, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    if (QWidget* proposals = QApplication::activePopupWidget())
        proposals->close();
    QTest::keyClick(&line, Qt::Key_Return);
}

void HistoricoTest::Choose(const char* name, const char* entry)
{
    auto& box = Find<QComboBox>(name);
    const int wanted = box.findText(QString::fromUtf8(entry));
    ASSERT_GE(wanted, 0) << entry;
    box.setFocus();
    while (box.currentIndex() != wanted)
        Keys(box.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
}

void HistoricoTest::Press(const char* button)
{
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
}

std::string HistoricoTest::Focused()
{
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName().toStdString()
                                                  : "";
}

std::vector<std::string> HistoricoTest::Acts()
{
    constexpr int What = 3;
    const auto& model = *Find<QTableView>("linhas").model();
    std::vector<std::string> acts;
    for (int row = 0; row < model.rowCount(); ++row)
        acts.push_back(model.index(row, What).data().toString().toStdString());
    return acts;
}

std::vector<std::string> HistoricoTest::Fields()
{
    const auto& table = Find<QTableWidget>("campos");
    std::vector<std::string> fields;
    for (int row = 0; row < table.rowCount(); ++row)
        fields.push_back((table.item(row, 0)->text() + ": " + table.item(row, 1)->text() + " > "
                          + table.item(row, 2)->text())
                             .toStdString());
    return fields;
}

std::string HistoricoTest::TextOf(const char* label) { return Find<QLabel>(label).text().toStdString(); }

std::vector<std::string> HistoricoTest::Stored(const std::string& statement)
{
    return kova::test::SqliteFile(file_).Run(statement);
}

} // namespace kova::history::test
