// Each right, taken away alone while its user is at work: what is shut on the screens, and what it says.

#include "tests/window/shop_with_users.hpp"

#include "family/users/rights.hpp"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>

namespace kova::window_test {

namespace {

using family::Right;

constexpr const char* List = "frmLista";
constexpr const char* Open = "open";

std::string ReasonOf(bool isOpen, const QString& tip)
{
    return isOpen ? Open : QString(tip).replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString();
}

} // namespace

/// Lia is at the desk; all that her role lacks is one right. The row that the list's buttons stand on has a
/// generated pre-sale.
class EachRight : public ShopWithUsers {
protected:
    EachRight()
    {
        AddUser("Ana", Administration, "Gato-Preto 1", "1379");
        AddUser("Lia", Reception, "Laço Azul 22", "2580");
        Execute("update agendamento set situacao = 4");
        AllowAllBut({});
    }

    void AllowAllBut(const std::string& right)
    {
        Execute("delete from papel_direito where codigo_do_papel = 3");
        Execute("insert into papel_direito (codigo_do_papel, direito) select 3, direito from papel_direito"
                " where codigo_do_papel = 1 and direito <> '"
                + right + "'");
    }
    static void TurnToTheWindow()
    {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(Window(), &activation);
    }

    static std::string InTheList(const char* button)
    {
        const auto* found =
            Window()->findChild<QWidget*>(QStringLiteral("frmLista.") + QLatin1String(button));
        return ReasonOf(found->isEnabled(), found->toolTip());
    }
    static QListWidget& Registers() { return In<QListWidget>(Window(), "cadastros"); }
    static QListWidgetItem& Register(const char* title)
    {
        return *Registers().findItems(QString::fromUtf8(title), Qt::MatchExactly).front();
    }
    static std::string InRegister(const char* title, const char* button)
    {
        Registers().setCurrentItem(&Register(title));
        std::string reason = Open;
        for (const QPushButton* one : Window()->findChildren<QPushButton*>(QLatin1String(button))) {
            if (one->isVisible())
                reason = ReasonOf(one->isEnabled(), one->toolTip());
        }
        return reason;
    }
    static std::string InTheMenu(const char* entry)
    {
        for (const QAction* one : Window()->findChild<QMenu*>()->actions()) {
            if (one->text().startsWith(QString::fromUtf8(entry)))
                return ReasonOf(one->isEnabled(), one->toolTip());
        }
        return "missing";
    }
    static std::string Sentence(Right right)
    {
        return "Recepção não pode " + family::InfoOf(right).Act() + ". Peça a quem administra os usuários.";
    }

    struct Shut {
        Right right;
        const char* control;
        std::function<std::string()> reason;
    };
    static std::vector<Shut> Table()
    {
        return {
            {Right::Book, "Adicionar", [] { return InTheList("kvcmdAdicionar"); }},
            {Right::ChangeAppointments, "Alterar", [] { return InTheList("kvcmdAlterar"); }},
            {Right::CancelAppointments, "Cancelado",
             [] { return InTheList("kvcmdMarcarAgendamentoComoCancelado"); }},
            {Right::DeleteAppointments, "Excluir", [] { return InTheList("kvcmdExcluir"); }},
            {Right::UndoPreSales, "Agendado", [] { return InTheList("kvcmdMarcarAgendamentoComoAgendado"); }},
            {Right::ChangeRegisters, "Novo cliente", [] { return InRegister("Clientes", "novo"); }},
            {Right::SeePrices, "Novo serviço", [] { return InRegister("Serviços", "novo"); }},
            {Right::Export, "Exportar planilha", [] { return InRegister("Clientes", "exportarPlanilha"); }},
            {Right::SeeHistory, "Histórico", [] { return InTheMenu("&Histórico"); }},
        };
    }
};

TEST_F(EachRight, ShutsItsControlsWithItsReasonWhenAnotherDeskTakesItAway)
{
    const std::vector<Shut> table = Table();
    std::vector<std::string> told, wanted;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).ClicksRow(List, "msfgGrade", 1).Presses("Alt+2");
    receptionist->WaitsUntil("the registers are there", [] {
        return Window()->findChild<QListWidget*>(QStringLiteral("cadastros")) != nullptr;
    });
    for (const Shut& one : table) {
        receptionist->Does("take it away", [this, one] {
            AllowAllBut(std::string(family::InfoOf(one.right).name));
            TurnToTheWindow();
        });
        receptionist
            ->WaitsUntil(std::string(one.control) + " is shut", [one] { return one.reason() != Open; })
            .Does("look", [&, one] {
                told.push_back(one.control + (": " + one.reason()));
                // Some need two rights: what is shut besides is shut for want of the same.
                for (const Shut& other : table) {
                    const std::string reason = other.reason();
                    EXPECT_TRUE(reason == Open || reason == Sentence(one.right)) << other.control << reason;
                }
            });
        wanted.push_back(one.control + (": " + Sentence(one.right)));
    }
    receptionist->Does("leave", [] { Window()->close(); });
    Run();
    EXPECT_EQ(told, wanted);
}

TEST_F(EachRight, ToAdministerUsersHidesTheirRegistersAndTheirEntry)
{
    const auto isThere = [] {
        for (const QAction* one : Window()->findChild<QMenu*>()->actions()) {
            if (one->text() == QStringLiteral("Bloqueio por &inatividade...") && one->isVisible())
                return true;
        }
        return !Register("Usuários").isHidden() || !Register("Papéis").isHidden();
    };
    bool before = false, after = true;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("Alt+2");
    receptionist
        ->WaitsUntil("the registers are there",
                     [] { return Window()->findChild<QListWidget*>(QStringLiteral("cadastros")) != nullptr; })
        .Does("look", [&, isThere] {
            before = isThere();
            AllowAllBut("usuarios.administrar");
            TurnToTheWindow();
        });
    receptionist->WaitsUntil("they are hidden", [] { return Register("Usuários").isHidden(); })
        .Does("look at the menu", [&, isThere] {
            QMetaObject::invokeMethod(Window()->findChild<QMenu*>(), "aboutToShow");
            after = isThere();
            Window()->close();
        });
    Run();
    EXPECT_TRUE(before);
    EXPECT_FALSE(after);
}

TEST_F(EachRight, ToAnonymiseShutsTheButtonOfAPersonsData)
{
    std::string reason;
    AllowAllBut("dados.anonimizar");
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("Alt+2");
    receptionist
        ->WaitsUntil("the registers are there",
                     [] { return Window()->findChild<QListWidget*>(QStringLiteral("cadastros")) != nullptr; })
        .Does("ask for a person's data", [] {
            Registers().setCurrentItem(&Register("Clientes"));
            for (QAction* one : Window()->findChildren<QAction*>()) {
                if (one->text() == QStringLiteral("&Dados da pessoa..."))
                    QTimer::singleShot(0, one, &QAction::trigger);
            }
        });
    receptionist->WaitsUntil("they are there", [] { return Dialog("DadosDaPessoa") != nullptr; })
        .Does("look", [&] {
            QWidget* dialog = Dialog("DadosDaPessoa");
            const auto& button = In<QPushButton>(dialog, "anonimizar");
            reason = ReasonOf(button.isEnabled(), button.toolTip());
            dialog->close();
        });
    receptionist->Does("leave", [] { Window()->close(); });
    Run();
    EXPECT_EQ(reason, Sentence(Right::Anonymise));
}

} // namespace kova::window_test
