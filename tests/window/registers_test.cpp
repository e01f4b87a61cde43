// The registers beside the agenda, in the application's own window.

#include "tests/window/shop.hpp"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <fstream>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";

class RegistersOfTheShop : public Shop {
protected:
    static QWidget* Window()
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->findChild<QWidget*>(QStringLiteral("container")))
                return top;
        }
        return nullptr;
    }

    /// The one of the register on show; null before it is there.
    static QLineEdit* Box(const char* name)
    {
        for (QLineEdit* box : Window()->findChildren<QLineEdit*>(QString::fromUtf8(name))) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }

    static bool HasKeyboard(const char* name)
    {
        return Box(name) != nullptr && QApplication::focusWidget() == Box(name);
    }

    static bool KeyboardIsIn(const char* name)
    {
        return QApplication::focusWidget() != nullptr
            && QApplication::focusWidget()->objectName() == QString::fromUtf8(name);
    }

    /// What the label of that name in the dialog in front says; "" where there is none.
    static QString Told(const char* name)
    {
        const QWidget* dialog = QApplication::activeModalWidget();
        const auto* label = dialog == nullptr ? nullptr : dialog->findChild<QLabel*>(QString::fromUtf8(name));
        return label == nullptr || !label->isVisible() ? QString() : label->text();
    }

    Receptionist& TurnsToCustomers()
    {
        return receptionist->WaitsFor(List).Presses("Alt+2").WaitsUntil(
            "the search of the customers has the keyboard", [] { return HasKeyboard("pesquisa"); });
    }

    Receptionist& TypesInto(const char* box, const char* text)
    {
        return receptionist->Does(std::string("type into ") + box, [box, text] {
            Box(box)->setFocus();
            Box(box)->selectAll();
            QTest::keyClicks(Box(box), QString::fromUtf8(text));
        });
    }

    Receptionist& Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return receptionist->Does(
            "keys", [key, modifiers] { QTest::keyClick(QApplication::focusWidget(), key, modifiers); });
    }
};

} // namespace

TEST_F(RegistersOfTheShop, AreChangedWhileTheAgendaStaysAsItWas)
{
    const std::string code =
        Value("select codigo from cliente where situacao in (1, 3) order by nome_de_busca, codigo");
    TurnsToCustomers();
    TypesInto("Apelido", "Fulaninha");
    Keys(Qt::Key_S, Qt::ControlModifier);
    Keys(Qt::Key_1, Qt::AltModifier);
    std::string page;
    receptionist->WaitsFor(List).Presses("F5").Looks([&] { page = Receptionist::Focused(); }).Leaves();
    Run();
    EXPECT_EQ(Value("select apelido from cliente where codigo = " + code), "Fulaninha");
    EXPECT_EQ(Value("select usuario from auditoria where tabela = 'cliente' order by codigo desc limit 1"),
              "1 - Antônia");
    EXPECT_FALSE(page.empty());
}

TEST_F(RegistersOfTheShop, AskBeforeTheWindowClosesOverWhatIsNotSaved)
{
    const std::string before =
        Value("select nome from cliente where situacao in (1, 3) order by nome_de_busca, codigo");
    TurnsToCustomers();
    TypesInto("Nome", "Outro nome");
    receptionist->Does("close", [] { Window()->close(); });
    receptionist->Answers("Escape").Does("it stays", [] {
        EXPECT_TRUE(Window()->isVisible());
        EXPECT_EQ(Box("Nome")->text(), "Outro nome");
        Window()->close();
    });
    receptionist->Answers("Alt+D");
    Run();
    EXPECT_EQ(receptionist->Boxes().size(), 2U);
    EXPECT_EQ(Value("select nome from cliente where situacao in (1, 3) order by nome_de_busca, codigo"),
              before);
}

TEST_F(RegistersOfTheShop, BringAFileInAndTakeItBackByKeys)
{
    const std::string file = (Folder() / "clientes.csv").string(),
                      before = Value("select count(*) from cliente");
    std::ofstream(file) << "Nome;Apelido\nXerxes da Silva;Xex\nYasmin da Silva;\n";
    std::string between;
    TurnsToCustomers();
    Keys(Qt::Key_I, Qt::AltModifier);
    receptionist->WaitsUntil("the file is asked for", [] { return KeyboardIsIn("arquivo"); });
    receptionist->Does("paste its name", [file] {
        qobject_cast<QLineEdit*>(QApplication::focusWidget())->insert(QString::fromStdString(file));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    receptionist->WaitsUntil("it was checked", [] { return KeyboardIsIn("importar"); });
    Keys(Qt::Key_Return);
    receptionist->WaitsUntil("it was written",
                             [] { return Told("resumo").contains(QStringLiteral("concluída")); });
    receptionist->Does("look", [&] { between = Value("select count(*) from cliente"); });
    Keys(Qt::Key_D, Qt::AltModifier);
    receptionist->WaitsUntil("it was taken back",
                             [] { return Told("resumo").contains(QStringLiteral("desfeita")); });
    Keys(Qt::Key_Escape);
    Keys(Qt::Key_1, Qt::AltModifier);
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(std::stoi(between), std::stoi(before) + 2);
    EXPECT_EQ(Value("select count(*) from cliente"), before);
    EXPECT_EQ(Value("select usuario from auditoria where operacao = 'importacao_desfeita'"), "1 - Antônia");
}

TEST_F(RegistersOfTheShop, BeginWithTheCompanyWhereThereIsNone)
{
    Execute("delete from empresa");
    receptionist->WaitsUntil("the company is asked for", [] {
        const QWidget* question = QApplication::activeModalWidget();
        return question != nullptr && question->windowTitle() == QLatin1String("Empresa");
    });
    receptionist->Does("save nothing, then a name", [] {
        QWidget* question = QApplication::activeModalWidget();
        QTest::mouseClick(question->findChild<QPushButton*>(QStringLiteral("salvar")), Qt::LeftButton);
        auto* name = question->findChild<QLineEdit*>(QStringLiteral("Nome fantasia"));
        EXPECT_EQ(name->accessibleDescription(), QStringLiteral("Deve ser informado."));
        QTest::keyClicks(name, QStringLiteral("Amigo Novo"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    std::string title;
    receptionist->WaitsFor(List).Looks([&] { title = Window()->windowTitle().toStdString(); }).Leaves();
    Run();
    EXPECT_EQ(Value("select nome_fantasia from empresa"), "Amigo Novo");
    EXPECT_EQ(title, "Amigo Novo - Antônia - Kovaris");
}

} // namespace kova::window_test
