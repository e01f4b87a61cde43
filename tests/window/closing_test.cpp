// The window is closed in the states in which something else stands before it, or over it.

#include "tests/window/shop.hpp"

#include <QApplication>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";
constexpr const char* Wait = "Aguarde, reorganizando dados.";
constexpr const char* TransportCard = "Ficha do agendamento para transporte";

QWidget* MainWindow()
{
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->findChild<QWidget*>(QStringLiteral("container")))
            return top;
    return nullptr;
}

/// The layer over the application's window; null where it is not dimmed.
QWidget* Dimming()
{
    return MainWindow() ? MainWindow()->findChild<QWidget*>(QStringLiteral("escurecimento")) : nullptr;
}

/// Whether the wait plate of a card is on the screen.
bool PlateIsShown()
{
    for (const QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->windowTitle() == QLatin1String(Wait))
            return true;
    return false;
}

class Closing : public Shop {
protected:
    Closing() { Execute("update agendamento set situacao = 1"); }

    Receptionist& AsksForTransportCard()
    {
        return receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("F9").Picks(TransportCard);
    }
    void ClosesTheWindowOnce(const std::string& what, std::function<bool()> ready)
    {
        receptionist->WaitsUntil(what, std::move(ready)).Does("close", [] { MainWindow()->close(); });
    }
};

} // namespace

TEST_F(Closing, EndsWellAfterACardOfASimplifiedRowThatLeftTheWindowDimmed)
{
    Execute("update agendamento set tipo_do_agendamento = 1, codigo_do_cliente = null,"
            " codigo_do_animal = null, nome_do_cliente = 'Rita', nome_do_animal = 'Bidu'"
            " where data_inicial = '2026-11-20'");
    bool dimmed = false;
    AsksForTransportCard().WaitsFor(List).Looks([&] { dimmed = Dimming() != nullptr; }).Leaves();
    Run();
    EXPECT_TRUE(dimmed);
}

TEST_F(Closing, EndsWellAfterACardWithoutACompanyThatLeftTheWindowDimmed)
{
    Execute("delete from empresa");
    bool dimmed = false;
    receptionist->InWindow("Empresa", "Escape");
    AsksForTransportCard().Answers("Return").WaitsFor(List);
    receptionist->Looks([&] { dimmed = Dimming() != nullptr; }).Leaves();
    Run();
    EXPECT_TRUE(dimmed);
}

TEST_F(Closing, EndsWellWhileACardIsBeingMade)
{
    AsksForTransportCard();
    ClosesTheWindowOnce("the plate is shown", PlateIsShown);
    Run();
}

TEST_F(Closing, EndsWellWhileAListIsBeingMade)
{
    receptionist->WaitsFor(List).Presses("Ctrl+P").Picks("Lista dos agendamentos");
    receptionist->WaitsFor("frmImprimirAgenda").Presses("Return");
    ClosesTheWindowOnce("the wait form is shown",
                        [] { return Receptionist::FormOnShow("frmMensagem") != nullptr; });
    Run();
}

} // namespace kova::window_test
