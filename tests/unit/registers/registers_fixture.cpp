#include "tests/unit/registers/registers_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/data/stores/new_shop.hpp"
#include "family/registers/registers.hpp"

#include <QApplication>
#include <QTimer>

namespace kova::registers::test {

namespace {

using family::registers::Register;
using family::registers::Texts;

const family::Author Ana{"1", "Ana", "2026-11-20 09:00:00", "BALCAO"};

void Add(family::Database& database, const Register& to,
         const std::vector<std::pair<const char*, const char*>>& typed)
{
    Texts texts = to.New();
    for (const auto& [label, text] : typed)
        texts[family::registers::FieldNamed(to.Fields(), label)] = text;
    if (!to.Save(database, 0, to.New(), texts, Ana).IsDone())
        throw std::runtime_error("the fixture's row was refused");
}

void FillShop(const std::string& file)
{
    family::NewShop shop;
    shop.company.nomeFantasia = "Pet Shop Céu";
    shop.user = "Ana";
    shop.employee = "Bia";
    family::CreateNewShop(file, shop);
    const auto database = family::OpenDatabase(file);
    const Register& customers = family::registers::CustomerRegister();
    Add(*database, customers,
        {{"Nome", "José Antônio Peçanha"},
         {"Apelido", "Zé"},
         {"Documento", "123.456.789-09"},
         {"Canais", "Celular: (11) 91234-5678; E-mail: ze@example.com"}});
    Add(*database, customers, {{"Nome", "Ana Lúcia Prado"}});
    Add(*database, customers, {{"Nome", "Márcia Lima"}});
    const Register& animals = family::registers::AnimalRegister();
    Add(*database, animals,
        {{"Código do cliente", "1"},
         {"Nome", "Paçoca"},
         {"Sexo", "Fêmea"},
         {"Espécie", "Canina"},
         {"Porte", "Médio"}});
}

} // namespace

CadastrosTest::CadastrosTest() : author_(Ana)
{
    FillShop(file_);
    Open(UsualActions());
}

void CadastrosTest::Open(RecordActions actions)
{
    page_ = std::make_unique<RegistersPage>(Desk{family::OpenDatabase(file_), [this] { return author_; }},
                                            nullptr, RegistersChoice{.actions = std::move(actions)});
    ShowPage({});
}

void CadastrosTest::OpenWithDrafts(const QString& drafts, std::initializer_list<const char*> answers)
{
    page_.reset();
    Desk desk{family::OpenDatabase(file_), [this] { return author_; }};
    if (!drafts.isEmpty())
        desk.drafts = std::make_shared<screens::DraftFolder>(drafts);
    page_ = std::make_unique<RegistersPage>(std::move(desk), nullptr);
    ShowPage(answers);
}

void CadastrosTest::ShowPage(std::initializer_list<const char*> answers)
{
    if (answers.size() > 0)
        Answer(answers);
    page_->resize(1100, 700);
    page_->show();
    if (answers.size() > 0) {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return answers_.AreGiven() && QApplication::activeModalWidget() == nullptr; }));
        page_->activateWindow();
    }
    EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    page_->setFocus();
}

void CadastrosTest::TurnTo(const char* title)
{
    auto& names = Find<QListWidget>("cadastros");
    const auto found = names.findItems(QString::fromUtf8(title), Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << title;
    QTest::mouseClick(names.viewport(), Qt::LeftButton, {}, names.visualItemRect(found.front()).center());
}

void CadastrosTest::Press(const char* button)
{
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
}

void CadastrosTest::Pick(Qt::Key letter)
{
    Keys(Qt::Key_M, Qt::AltModifier);
    QWidget* menu = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&menu] {
        menu = QApplication::activePopupWidget();
        return menu != nullptr;
    }));
    QTest::keyClick(menu, letter);
}

// A desktop gives the keyboard back to the window behind a box or a menu that closed; there is none here.
QWidget& CadastrosTest::Keyboard()
{
    if (QApplication::focusWidget() == nullptr || QApplication::activeWindow() == nullptr) {
        page_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    }
    return *QApplication::focusWidget();
}

void CadastrosTest::Keys(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&Keyboard(), key, modifiers);
}

void CadastrosTest::Type(const char* text)
{
    for (const QChar letter : QString::fromUtf8(text))
        QTest::sendKeyEvent(QTest::Click, &Keyboard(), Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

void CadastrosTest::TypeOver(const char* box, const char* text)
{
    auto& line = Find<QLineEdit>(box);
    line.setFocus();
    line.selectAll();
    Keys(Qt::Key_Delete);
    Type(text);
}

std::string CadastrosTest::Focused()
{
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName().toStdString()
                                                  : "";
}

std::vector<std::string> CadastrosTest::Rows(int columns)
{
    const auto& model = *Find<QTableView>("lista").model();
    std::vector<std::string> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        std::string texts;
        for (int column = 0; column < columns; ++column)
            texts += (column == 0 ? "" : "|") + model.index(row, column).data().toString().toStdString();
        rows.push_back(texts);
    }
    return rows;
}

std::vector<std::string> CadastrosTest::Reasons()
{
    std::vector<std::string> reasons;
    for (const QWidget* one : page_->findChildren<QWidget*>()) {
        if (one->isVisible() && !one->accessibleDescription().isEmpty())
            reasons.push_back(one->accessibleDescription().toStdString());
    }
    return reasons;
}

void CadastrosTest::InDialog(const char* name, const std::function<void(QDialog&)>& act)
{
    QTimer::singleShot(1, page_.get(), [this, name, act] {
        auto* dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        const bool isThere = dialog != nullptr && dialog->objectName() == QLatin1String(name);
        if (isThere && dialog->isActiveWindow())
            return act(*dialog);
        if (isThere)
            dialog->activateWindow();
        InDialog(name, act);
    });
}

std::vector<std::string> CadastrosTest::Stored(const char* statement)
{
    return kova::test::SqliteFile(file_).Run(statement);
}

} // namespace kova::registers::test
