// The registers beside the agenda, in the application's own window.

#include "tests/window/shop.hpp"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <cstdlib>
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

    /// The list of what belongs to the row on show, where it has the keyboard.
    static QTableView* ListInFront()
    {
        auto* list = qobject_cast<QTableView*>(QApplication::focusWidget());
        return list != nullptr && list->objectName() == QLatin1String("relacionados") ? list : nullptr;
    }

    static bool IsOpen(const char* dialog)
    {
        const QWidget* top = QApplication::activeModalWidget();
        return top != nullptr && top->objectName() == QLatin1String(dialog);
    }

    /// Closes the window as soon as the form says that below.
    void LeavesOnceToldOf(const char* what)
    {
        receptionist->WaitsUntil(std::string("the form says ") + what, [what] {
            for (const QLabel* label : Window()->findChildren<QLabel*>(QStringLiteral("recado"))) {
                if (label->isVisible() && label->text().startsWith(QString::fromUtf8(what)))
                    return QApplication::activeModalWidget() == nullptr;
            }
            return false;
        });
        receptionist->Does("close", [] { Window()->close(); });
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
        return receptionist->Does(std::string("type into ") + box, [box, typed = QString::fromUtf8(text)] {
            Box(box)->setFocus();
            Box(box)->selectAll();
            for (const QChar letter : typed)
                QTest::sendKeyEvent(QTest::Click, Box(box), Qt::Key_unknown, QString(letter), Qt::NoModifier);
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
              "0 - Antônia");
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
    EXPECT_EQ(Value("select usuario from auditoria where operacao = 'importacao_desfeita'"), "0 - Antônia");
}

TEST_F(RegistersOfTheShop, ShowTheAppointmentsOfACustomer)
{
    const std::string code = Value("select codigo_do_cliente from agendamento join cliente on codigo ="
                                   " codigo_do_cliente where cliente.situacao in (1, 3)"
                                   " group by codigo_do_cliente order by count(*) desc, codigo_do_cliente");
    const std::string name = Value("select nome from cliente where codigo = " + code);
    TurnsToCustomers();
    TypesInto("pesquisa", name.c_str());
    receptionist->Does("turn to the customer", [code] {
        for (int row = 0; row < 50 && Box("Código")->text().toStdString() != code; ++row)
            QTest::keyClick(Box("pesquisa"), row == 0 ? Qt::Key_Up : Qt::Key_Down);
    });
    Keys(Qt::Key_F6);
    std::string rows, first;
    receptionist->WaitsUntil("the appointments have the keyboard", [] { return ListInFront() != nullptr; })
        .Does("look", [&] {
            rows = std::to_string(ListInFront()->model()->rowCount());
            first = ListInFront()->model()->index(0, 0).data().toString().toStdString();
            Window()->close();
        });
    Run();
    const std::string mine = " from agendamento where codigo_do_cliente = " + code;
    EXPECT_EQ(rows, Value("select count(*)" + mine));
    const std::string day = Value("select max(data_inicial)" + mine);
    EXPECT_EQ(first, day.substr(8, 2) + "/" + day.substr(5, 2) + "/" + day.substr(0, 4));
}

TEST_F(RegistersOfTheShop, TellOfALikelyDoubleBeforeItIsSaved)
{
    const std::string phone = Value("select canal from canal_de_comunicacao where tipo = 'Celular'"
                                    " order by codigo");
    const std::string before = Value("select count(*) from cliente");
    TurnsToCustomers();
    Keys(Qt::Key_N, Qt::ControlModifier);
    TypesInto("Nome", "Outra pessoa");
    receptionist->Does("type the phone", [phone] {
        for (auto* box : Window()->findChildren<QPlainTextEdit*>(QStringLiteral("Canais"))) {
            if (box->isVisible())
                QTest::keyClicks(box, QStringLiteral("Celular: ") + QString::fromStdString(phone));
        }
    });
    Keys(Qt::Key_S, Qt::ControlModifier);
    std::string told;
    receptionist->WaitsUntil("the question is there", [] { return IsOpen("parecidos"); })
        .Does("look, and go back", [&] {
            auto* list = QApplication::activeModalWidget()->findChild<QListWidget*>();
            told = list->item(0)->text().toStdString();
            QTest::keyClick(list, Qt::Key_Escape);
        });
    std::string inBetween;
    receptionist->Does("look", [&] { inBetween = Value("select count(*) from cliente"); });
    receptionist->Does("save again", [] {
        for (auto* button : Window()->findChildren<QPushButton*>(QStringLiteral("salvar"))) {
            if (button->isVisible())
                return QTest::mouseClick(button, Qt::LeftButton);
        }
    });
    receptionist->WaitsUntil("the question is there again", [] { return IsOpen("parecidos"); })
        .Does("save all the same", [] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton*>(
                                  QStringLiteral("salvarAssimMesmo")),
                              Qt::LeftButton);
        });
    LeavesOnceToldOf("Salvo.");
    Run();
    EXPECT_NE(told.find("o mesmo telefone, " + phone), std::string::npos) << told;
    EXPECT_EQ(inBetween, before);
    EXPECT_EQ(Value("select nome from cliente order by codigo desc"), "Outra pessoa");
}

TEST_F(RegistersOfTheShop, UniteTwoCustomersWithAllTheirAppointments)
{
    const std::string kept =
        Value("select codigo from cliente where situacao in (1, 3) order by nome_de_busca, codigo");
    const std::string other =
        Value("select codigo_do_cliente from agendamento where codigo_do_cliente <> " + kept
              + " group by codigo_do_cliente order by count(*) desc, codigo_do_cliente");
    const std::string both =
        Value("select count(*) from agendamento where codigo_do_cliente in (" + kept + ", " + other + ")");
    const std::string all = Value("select count(*) from agendamento");
    ASSERT_NE(both, "0");
    TurnsToCustomers();
    Keys(Qt::Key_M, Qt::AltModifier);
    receptionist->Picks("&Unir com outro cadastro...")
        .WaitsUntil("the dialog is there", [] { return IsOpen("unir"); })
        .Does("mark the other one, and unite", [other] {
            QWidget* dialog = QApplication::activeModalWidget();
            auto* plan = dialog->findChild<QLabel*>(QStringLiteral("plano"));
            const QString wanted =
                QStringLiteral("(código ") + QString::fromStdString(other) + QLatin1Char(')');
            for (int row = 0; row < 500 && !plan->text().contains(wanted); ++row)
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
            QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("unirCadastros")),
                              Qt::LeftButton);
        });
    receptionist->Answers("Alt+S");
    LeavesOnceToldOf("Unidos: ");
    Run();
    EXPECT_EQ(receptionist->Boxes().size(), 1U);
    EXPECT_EQ(Value("select count(*) from agendamento where codigo_do_cliente = " + kept), both);
    EXPECT_EQ(Value("select count(*) from agendamento"), all);
    EXPECT_EQ(Value("select count(*) from cliente where codigo = " + other), "0");
    EXPECT_EQ(Value("select count(*) from auditoria where operacao = 'uniao' and tabela = 'cliente'"), "2");
    EXPECT_EQ(std::system((std::string(AGENDA_DATA) + " check '" + Database() + "' >/dev/null").c_str()), 0);
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
