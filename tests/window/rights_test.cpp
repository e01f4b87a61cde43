// What a user has no right to is shut in the agenda, by mouse and by key, in the application's own window.

#include "tests/window/shop_with_users.hpp"

#include "agenda/contracts/widgets.hpp"
#include "toolkits/common/form.hpp"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QTabBar>
#include <QTableView>
#include <QTest>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";
constexpr const char* Grid = "msfgGrade";

bool IsRecordOpen()
{
    return Receptionist::FormOnShow("frmFichaCompleta") != nullptr
        || Receptionist::FormOnShow("frmFichaSimplificada") != nullptr;
}

} // namespace

/// Ana administers, with the PIN 1379; Lia works at the reception, whose role may not delete.
class RightsInTheAgenda : public ShopWithUsers {
protected:
    RightsInTheAgenda()
    {
        AddUser("Ana", Administration, "Gato-Preto 1", "1379");
        AddUser("Lia", Reception, "Laço Azul 22", "2580");
        Execute("update agendamento set situacao = 1");
    }

    /// Those at the reception lose that right too.
    void Deny(const std::string& right)
    {
        Execute("delete from papel_direito where codigo_do_papel = 3 and direito = '" + right + "'");
    }
    static QWidget& Button(const char* name)
    {
        return *Window()->findChild<QWidget*>(QStringLiteral("frmLista.") + QLatin1String(name));
    }
    /// Of the record that is in front.
    static QWidget* Record(const char* name)
    {
        const std::string full = Receptionist::FormInFront()->Name() + "." + name;
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (auto* found = top->findChild<QWidget*>(QString::fromStdString(full)))
                return found;
        }
        return nullptr;
    }
    /// What a shut button says; "open" of one that is not.
    static std::string Reason(const char* button)
    {
        const QWidget& found = Button(button);
        return found.isEnabled() ? "open"
                                 : found.toolTip().replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString();
    }
    std::string Denials() const
    {
        return Value("select count(*) from auditoria where operacao = 'direito_negado'");
    }
};

TEST_F(RightsInTheAgenda, ShutTheButtonThatDeletesAndItsKeyUntilAnotherTakesThePlace)
{
    std::string reason, detail;
    bool hasOpened = true;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Hovers(List, Grid, 2).Looks([&] {
        reason = Reason("kvcmdExcluir");
        detail = Reason("kvcmdDetalhar");
        QTest::mouseClick(&Button("kvcmdExcluir"), Qt::LeftButton);
    });
    receptionist->WaitsFor(List).Presses("F8").WaitsFor(List).Looks([&] { hasOpened = IsRecordOpen(); });
    receptionist->Presses("Ctrl+Shift+U");
    Enters("Ana", "1379");
    receptionist->WaitsFor(List).Hovers(List, Grid, 1).Hovers(List, Grid, 2).Clicks(List, "kvcmdExcluir");
    receptionist->WaitsUntil("the record is open", IsRecordOpen).Presses("Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(reason, "Recepção não pode excluir agendamentos. Peça a quem administra os usuários.");
    EXPECT_EQ(detail, "open");
    EXPECT_FALSE(hasOpened);
    EXPECT_EQ(Denials(), "0") << "nobody was asked";
}

TEST_F(RightsInTheAgenda, ShutTheStatusesAndTheirKeys)
{
    Deny("agendamento.cancelar");
    Deny("agendamento.alterar");
    std::vector<std::string> reasons;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("F7").Presses("Down");
    for (const char* key : {"Ctrl+2", "Ctrl+3", "Ctrl+4", "F6"})
        receptionist->Presses(key).WaitsFor(List);
    receptionist->Looks([&] {
        for (const char* button : {"kvcmdMarcarAgendamentoComoAtendido",
                                   "kvcmdMarcarAgendamentoComoCancelado", "kvcmdAlterar", "kvcmdAdicionar"})
            reasons.push_back(Reason(button));
    });
    receptionist->Leaves();
    Run();
    EXPECT_EQ(reasons,
              (std::vector<std::string>{
                  "Recepção não pode alterar agendamentos. Peça a quem administra os usuários.",
                  "Recepção não pode cancelar agendamentos. Peça a quem administra os usuários.",
                  "Recepção não pode alterar agendamentos. Peça a quem administra os usuários.", "open"}));
    EXPECT_EQ(Value("select count(*) from agendamento where situacao <> 1"), "0");
    EXPECT_EQ(receptionist->Boxes(), std::vector<std::string>());
    EXPECT_EQ(Denials(), "0");
}

TEST_F(RightsInTheAgenda, ShutTheButtonThatBooksAndItsKey)
{
    Deny("agendamento.incluir");
    std::string reason;
    bool hasMenu = true;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("F2").WaitsFor(List).Looks([&] {
        reason = Reason("kvcmdAdicionar");
        hasMenu = QApplication::activePopupWidget() != nullptr;
    });
    receptionist->Leaves();
    Run();
    EXPECT_TRUE(reason.starts_with("Recepção não pode ")) << reason;
    EXPECT_FALSE(hasMenu);
}

TEST_F(RightsInTheAgenda, ShutTheSavingOfARecordThatIsOpenWhenTheRightIsTakenAway)
{
    std::string before, after, typed;
    const auto salvar = [] {
        const auto* button =
            Receptionist::FormInFront() != nullptr ? Record("kvcmdSalvarFecharConfirmar") : nullptr;
        return button == nullptr ? "gone"
            : button->isEnabled()
            ? "open"
            : button->toolTip().replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString();
    };
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("F6");
    receptionist->WaitsUntil("the record is open", IsRecordOpen).Looks([&] {
        Widget& note = Receptionist::Control(Receptionist::FormInFront()->Name(), "kvtxtObservacaoDoServico");
        As<KVTextBox>(note)->Text("Laço de fita");
        before = salvar();
        Deny("agendamento.alterar");
    });
    // The key works in a record, too, and whoever comes back finds what was typed.
    receptionist->Presses("Ctrl+Shift+L");
    Enters("Lia", "2580");
    receptionist->WaitsUntil("it is shut", [&] { return IsRecordOpen() && salvar() != "open"; }).Looks([&] {
        after = salvar();
        typed = As<KVTextBox>(
                    Receptionist::Control(Receptionist::FormInFront()->Name(), "kvtxtObservacaoDoServico"))
                    ->Text();
    });
    receptionist->Presses("Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(before, "open");
    EXPECT_EQ(after, "Recepção não pode alterar agendamentos. Peça a quem administra os usuários.");
    EXPECT_EQ(typed, "Laço de fita");
    EXPECT_EQ(Denials(), "0");
}

TEST_F(RightsInTheAgenda, AreLookedAtAnewWhenTheWindowIsTurnedTo)
{
    std::string before;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Looks([&] {
        before = Reason("kvcmdAlterar");
        Deny("agendamento.alterar");
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(Window(), &activation);
    });
    receptionist->WaitsUntil("it is shut", [] { return Reason("kvcmdAlterar") != "open"; });
    receptionist->WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(before, "open");
}

TEST_F(RightsInTheAgenda, EndForWhomAnotherDeskHasDeactivated)
{
    std::string why;
    Enters("Lia", "Laço Azul 22");
    // At once, before this desk can hear of it; the door comes up over what the agenda says.
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").WaitsFor(List).Does("cancel", [&] {
        Execute("update usuario set situacao = 2 where nome = 'Lia'");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_3, Qt::ControlModifier);
    });
    receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); }).Does("look", [&] {
        why = In<QLabel>(Question(), "motivo").text().toStdString();
    });
    Enters("Ana", "1379");
    receptionist->Answers("Return").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(),
              std::vector<std::string>{"Não foi possível alterar a situação do agendamento - Tente novamente "
                                       "mais tarde."});
    EXPECT_TRUE(why.starts_with("Lia não entra mais nesta loja.")) << why;
    EXPECT_EQ(Value("select count(*) from agendamento where situacao = 3"), "0");
}

TEST_F(RightsInTheAgenda, LeaveWhatIsTypedInARegisterBelowTheLock)
{
    std::string typed;
    bool isLocked = false;
    const auto name = [] {
        QLineEdit* found = nullptr;
        for (QLineEdit* one : Window()->findChildren<QLineEdit*>(QStringLiteral("Nome")))
            found = one->isVisible() ? one : found;
        return found;
    };
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("Alt+2");
    receptionist->WaitsUntil("the registers are there", [name] { return name() != nullptr; })
        .Does("type", [name] {
            Fill(*name(), QStringLiteral("Zélia"));
            QTest::keyClick(name(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        });
    receptionist->WaitsUntil("it is locked", [] { return IsReady(); }).Does("look", [&] {
        isLocked = Question()->windowTitle() == QStringLiteral("Bloqueado - Kovaris");
    });
    Enters("Lia", "2580");
    receptionist->WaitsUntil("Lia is back", [] { return Question() == nullptr; }).Does("look", [&, name] {
        typed = name()->text().toStdString();
        QTest::keyClick(name(), Qt::Key_Escape);
    });
    receptionist->AnswersByMouse(Reply::Yes)
        .WaitsUntil("it is given up",
                    [name] {
                        return QApplication::activeModalWidget() == nullptr
                            && name()->text() != QStringLiteral("Zélia");
                    })
        .Does("leave", [] { Window()->close(); });
    Run();
    EXPECT_TRUE(isLocked);
    EXPECT_EQ(typed, "Zélia");
}

/// The history is there for whoever may see it.
class RightToSeeTheHistory : public RightsInTheAgenda {
protected:
    static QTabBar& Tabs() { return *Window()->findChild<QTabBar*>(); }
    static bool HasPage() { return Window()->findChild<QTableView*>(QStringLiteral("linhas")) != nullptr; }
    static bool IsThere() { return Tabs().isTabVisible(2); }
    /// What the line below the tabs says.
    static std::string Line()
    {
        const auto* line = Window()->findChild<QLabel*>(QStringLiteral("aviso"));
        return line->isVisible() ? line->text().toStdString() : "";
    }
};

TEST_F(RightToSeeTheHistory, IsSaidWhereItsTabIsNotThere)
{
    std::vector<std::string> lines;
    std::string entry;
    bool isThere = true;
    Enters("Lia", "Laço Azul 22");
    for (const char* key : {"Ctrl+H", "Alt+3"})
        receptionist->WaitsFor(List).Presses("F7").WaitsFor(List).Presses(key).WaitsFor(List).Looks([&] {
            lines.push_back(Line());
            isThere = IsThere();
            for (const QAction* one : Window()->findChild<QMenu*>()->actions()) {
                if (one->text().startsWith(QStringLiteral("&Histórico")))
                    entry = one->isEnabled() ? "open" : one->toolTip().toStdString();
            }
            Tabs().setCurrentIndex(0);
        });
    receptionist->WaitsFor(List).Leaves();
    Run();
    const std::string why = "Recepção não pode ver o histórico. Peça a quem administra os usuários.";
    EXPECT_EQ(lines, (std::vector<std::string>{why, why}));
    EXPECT_FALSE(isThere);
    EXPECT_EQ(entry, why);
}

TEST_F(RightToSeeTheHistory, BringsTheTabAlongAndTakesItAwayAgain)
{
    bool hasPage = false, isThere = false;
    Enters("Lia", "Laço Azul 22");
    receptionist->WaitsFor(List).Presses("Ctrl+Shift+U");
    Enters("Ana", "1379");
    receptionist->WaitsFor(List).Presses("Ctrl+H");
    receptionist->WaitsUntil("the history is there", HasPage).Does("change", [&] {
        hasPage = HasPage() && IsThere();
        QTest::keyClick(Window()->windowHandle(), Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    });
    Enters("Lia", "2580");
    receptionist->WaitsUntil("it has gone", [] { return Question() == nullptr && !HasPage(); });
    receptionist->WaitsFor(List).Looks([&] { isThere = IsThere(); }).Leaves();
    Run();
    EXPECT_TRUE(hasPage);
    EXPECT_FALSE(isThere);
}

TEST_F(RightToSeeTheHistory, LeavesItsOwnKeyToTheFilters)
{
    std::string text = "?";
    bool isLocked = true;
    Enters("Ana", "Gato-Preto 1");
    receptionist->WaitsFor(List).Presses("Ctrl+H");
    receptionist->WaitsUntil("the history is there", HasPage).Does("clear the filters", [&] {
        auto& box = *Window()->findChild<QLineEdit*>(QStringLiteral("procurar"));
        Fill(box, QStringLiteral("zebra"));
        QTest::keyClick(&box, Qt::Key_L, Qt::ControlModifier);
        QCoreApplication::processEvents();
        text = box.text().toStdString();
        isLocked = Question() != nullptr;
        Window()->close();
    });
    Run();
    EXPECT_EQ(text, "");
    EXPECT_FALSE(isLocked);
}

} // namespace kova::window_test
