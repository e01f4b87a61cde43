// Who has done what, and undoing it, in the application's own window.

#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";

class HistoryOfTheShop : public Shop {
protected:
    HistoryOfTheShop() { Execute("update agendamento set situacao = 1, alterado_por = null"); }

    static QWidget* Window()
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->findChild<QWidget*>(QStringLiteral("container")))
                return top;
        }
        return nullptr;
    }

    /// The one of that kind and name that is on show; null where there is none.
    template <class Kind> static Kind* Shown(const char* name)
    {
        for (Kind* one : Window()->findChildren<Kind*>(QString::fromUtf8(name))) {
            if (one->isVisible())
                return one;
        }
        return nullptr;
    }

    static std::string Text(const char* label)
    {
        const auto* shown = Shown<QLabel>(label);
        return shown == nullptr ? "" : shown->text().toStdString();
    }

    static std::vector<std::string> Acts()
    {
        constexpr int What = 3;
        std::vector<std::string> acts;
        const auto* list = Shown<QTableView>("linhas");
        for (int row = 0; list != nullptr && row < list->model()->rowCount(); ++row)
            acts.push_back(list->model()->index(row, What).data().toString().toStdString());
        return acts;
    }

    Receptionist& Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return receptionist->Does(
            "keys", [key, modifiers] { QTest::keyClick(QApplication::focusWidget(), key, modifiers); });
    }

    /// Cancels the day's first appointment by its key.
    void Cancels()
    {
        receptionist->WaitsFor(List).Presses("F7").Presses("Down").Looks([this] {
            auto* grid = As<MSFlexGrid>(Receptionist::Control(List, "msfgGrade"));
            number_ = grid->TextMatrix(grid->Row(), 1);
        });
        receptionist->Presses("Ctrl+3").WaitsFor(List);
    }

    Receptionist& WaitsForTheHistory()
    {
        return receptionist->WaitsUntil("the history is there",
                                        [] { return Shown<QTableView>("linhas") != nullptr; });
    }

    std::string StatusNow() { return Value("select situacao from agendamento where numero = " + number_); }

    std::string number_;
};

} // namespace

TEST_F(HistoryOfTheShop, TellsOfACancellationAndUndoesItByKeys)
{
    std::string act, status, told;
    Cancels();
    receptionist->Presses("Ctrl+H");
    WaitsForTheHistory().Does("look", [&] {
        act = Text("ato");
        status = StatusNow();
    });
    Keys(Qt::Key_Z, Qt::ControlModifier);
    receptionist->Answers("Alt+S")
        .WaitsUntil("it is undone", [] { return Text("recado").starts_with("Desfeito: "); })
        .Does("look", [&] {
            told = Text("recado");
            Window()->close();
        });
    Run();
    EXPECT_EQ(act, "Cancelou o agendamento " + number_);
    EXPECT_EQ(status, "3");
    EXPECT_EQ(
        receptionist->Boxes(),
        (std::vector<std::string>{"Desfazer isto?\n\n" + act + "\n\nSituação volta a ser \"Agendado\"."}));
    EXPECT_EQ(told, "Desfeito: " + act + ".");
    EXPECT_EQ(StatusNow(), "1");
    EXPECT_EQ(Value("select usuario from auditoria where tabela = 'agendamento' and depois like '%desfaz%'"),
              "0 - Antônia");
}

TEST_F(HistoryOfTheShop, IsTurnedToAndUndoneByMouse)
{
    Cancels();
    receptionist->Does("the tab", [] {
        auto* tabs = Window()->findChild<QTabBar*>();
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(2).center());
    });
    WaitsForTheHistory().Does("the button", [] {
        QMetaObject::invokeMethod(
            Window(), [] { QTest::mouseClick(Shown<QPushButton>("desfazer"), Qt::LeftButton); },
            Qt::QueuedConnection);
    });
    receptionist
        ->WaitsUntil("it asks",
                     [] { return dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; })
        .Does("yes",
              [] {
                  auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
                  for (QAbstractButton* button : box->buttons()) {
                      if (button->text() == QLatin1String("&Sim"))
                          return QTest::mouseClick(button, Qt::LeftButton);
                  }
              })
        .WaitsUntil("it is undone", [] { return Text("recado").starts_with("Desfeito: "); })
        .Does("close", [] { Window()->close(); });
    Run();
    EXPECT_EQ(StatusNow(), "1");
}

TEST_F(HistoryOfTheShop, OfACustomerIsReachedFromHisForm)
{
    const std::string code =
        Value("select codigo from cliente where situacao in (1, 3) order by nome_de_busca, codigo");
    std::vector<std::string> acts;
    receptionist->WaitsFor(List).Presses("Alt+2").WaitsUntil("the search has the keyboard", [] {
        const QWidget* box = QApplication::focusWidget();
        return box != nullptr && box->objectName() == QLatin1String("pesquisa");
    });
    receptionist
        ->Does("another program writes",
               [&] {
                   Execute("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
                           " ('2026-11-20 08:00:00', '0 - Antônia', 'cliente', "
                           + code
                           + ", 'alteracao', '{}'), ('2026-11-20 08:00:00', '0 - Antônia', 'especie', 1,"
                             " 'alteracao', '{}')");
               })
        .Does("the menu", [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_M, Qt::AltModifier); });
    receptionist->Picks("&Histórico");
    WaitsForTheHistory().WaitsUntil("the customer's lines are there", [] { return Acts().size() == 1; });
    receptionist->Does("look", [&] {
        acts = Acts();
        Window()->close();
    });
    Run();
    EXPECT_EQ(acts, (std::vector<std::string>{"Alterou o cliente " + code}));
}

} // namespace kova::window_test
