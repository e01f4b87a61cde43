// What a user has no right to is shut in the agenda, by mouse and by key, in the application's own window.

#include "tests/window/shop_with_users.hpp"

#include <QApplication>
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

} // namespace kova::window_test
