// "Lista de espera" in the application's own window.

#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"
#include "waiting/waiting_dialog.hpp"

#include <QApplication>
#include <QLabel>
#include <QTableView>
#include <QTest>

namespace kova::window_test {

namespace {

constexpr const char *List = "frmLista", *Record = "frmFichaCompleta";

/// Animal 14 of customer 10 waits for a bath by anybody, on any day until the end of the year.
class WaitingListOfTheShop : public Shop {
protected:
    WaitingListOfTheShop()
    {
        Execute(
            "insert into lista_de_espera (codigo, codigo_do_cliente, codigo_do_animal, data_inicial, "
            "data_final,"
            " dias_da_semana, hora_inicial, hora_final, situacao, incluido_em, incluido_por, versao) values"
            " (1, 10, 14, '2026-11-01', '2026-12-31', '1234567', '00:00', '24:00', 1,"
            " '2026-11-18 09:00:00', 'Lia', 1)");
        Execute("insert into espera_servico (codigo_da_espera, codigo_do_servico) select 1, min(codigo) from "
                "servico"
                " where nome = 'Banho'");
    }

    template <class Kind> static Kind* Dialog()
    {
        return dynamic_cast<Kind*>(QApplication::activeModalWidget());
    }
    /// Goes on once a dialog of that name is open, and presses a key in it.
    Receptionist& InDialog(const char* name, Qt::Key key)
    {
        const QString wanted = QString::fromUtf8(name);
        return receptionist
            ->WaitsUntil(std::string(name) + " is there",
                         [wanted] {
                             auto* dialog = QApplication::activeModalWidget();
                             return dialog != nullptr && dialog->objectName() == wanted;
                         })
            .Does("key", [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    }
    std::string State() const
    {
        return Value("select situacao, case when numero_do_agendamento is null then 0 else 1 end from "
                     "lista_de_espera where codigo = 1");
    }
};

TEST_F(WaitingListOfTheShop, BooksWhoeverWaitsInTheAgendasOwnForm)
{
    std::string inHand, told;
    receptionist->WaitsFor(List).Presses("Ctrl+E");
    InDialog("ListaDeEspera", Qt::Key_Return);
    InDialog("ProximoHorarioLivre", Qt::Key_Return);
    receptionist->WaitsFor(Record)
        .WaitsUntil("the form is filled in",
                    [] { return Receptionist::Focused() == "frmFichaCompleta.kvtxtObservacaoDoServico"; })
        .Looks([&] { inHand = State(); });
    receptionist->Clicks(Record, "kvcmdSalvarFecharConfirmar")
        .WaitsUntil("the list is there again", [] { return Dialog<waiting::WaitingDialog>() != nullptr; })
        .Does("look", [&] {
            told = Dialog<waiting::WaitingDialog>()->findChild<QLabel*>("recado")->text().toStdString();
        });
    InDialog("ListaDeEspera", Qt::Key_Escape).WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(inHand, "2|0") << "no other desk can book the same one meanwhile";
    EXPECT_EQ(State(), "3|1");
    EXPECT_EQ(Value("select codigo_do_cliente, codigo_do_animal from agendamento where numero ="
                    " (select numero_do_agendamento from lista_de_espera)"),
              "10|14");
    EXPECT_EQ(told.rfind("Marcado: ", 0), 0U) << told;
}

TEST_F(WaitingListOfTheShop, IsOfferedThePlaceThatThisDeskHasFreed)
{
    const auto notice = [] {
        for (const QWidget* widget : QApplication::allWidgets()) {
            const auto* label = dynamic_cast<const QLabel*>(widget);
            if (label != nullptr && label->isVisible() && label->text().startsWith(QStringLiteral("Vagou ")))
                return label->text().toStdString();
        }
        return std::string();
    };
    std::string told, day, from, animal;
    // One appointment of the day, with an hour and a half, after now; all the others are long past.
    Execute("update agendamento set situacao = 2 where data_inicial = '2026-11-20'");
    Execute("delete from feriado");
    Execute("update agendamento set situacao = 1, hora_inicial = '15:00', hora_final = '16:30',"
            " data_final = data_inicial where numero = (select min(numero) from agendamento where"
            " data_inicial = '2026-11-20' and codigo_do_cliente is not null and codigo_do_pacote is null)");
    receptionist->WaitsFor(List)
        .Chooses(List, "kvcmbSituacao", 1)
        .WaitsFor(List)
        .Presses("F7")
        .Presses("Down")
        .Presses("Ctrl+3")
        .WaitsFor(List)
        .WaitsUntil("it is told", [&] { return !notice().empty(); })
        .Does("look", [&] { told = notice(); })
        .Presses("Ctrl+E");
    InDialog("ListaDeEspera", Qt::Key_Return);
    receptionist->WaitsFor(Record)
        .WaitsUntil("the form is filled in",
                    [] { return Receptionist::Focused() == "frmFichaCompleta.kvtxtObservacaoDoServico"; })
        .Looks([&] {
            day = As<KVDTPicker>(Receptionist::Control(Record, "kvdtpDataInicial"))->Text();
            from = As<KVTime>(Receptionist::Control(Record, "kvtimHoraInicial"))->Text();
        })
        .Clicks(Record, "kvcmdSalvarFecharConfirmar")
        .WaitsFor(List)
        .Leaves();
    Run();
    EXPECT_EQ(
        told,
        "Vagou 20/11/2026 às 15:00. Na lista de espera há uma pessoa para esse horário. Ctrl+E mostra quem.");
    EXPECT_EQ(day, "20/11/2026");
    EXPECT_EQ(from, "15:00");
    EXPECT_EQ(State(), "3|1");
}

TEST_F(WaitingListOfTheShop, PutsBackWhoeverWasNotBooked)
{
    receptionist->WaitsFor(List).Presses("Ctrl+E");
    InDialog("ListaDeEspera", Qt::Key_Return);
    InDialog("ProximoHorarioLivre", Qt::Key_Return);
    receptionist->WaitsFor(Record)
        .WaitsUntil("the form is filled in",
                    [] { return Receptionist::Focused() == "frmFichaCompleta.kvtxtObservacaoDoServico"; })
        .Clicks(Record, "kvcmdCancelarAlterar");
    InDialog("ListaDeEspera", Qt::Key_Escape).WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(State(), "1|0");
}

} // namespace

} // namespace kova::window_test
