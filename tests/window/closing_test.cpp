// The window is closed in the states in which something else stands before it, or over it.

#include "tests/window/shop.hpp"

#include <QApplication>
#include <QEvent>

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

/// Closes the application's window once, as soon as the wait plate of a card is on the screen. The plate lets
/// events happen once and may be gone within a millisecond: whoever looks now and then would miss it.
class ClosesAtPlate : public QObject {
public:
    ClosesAtPlate() { qApp->installEventFilter(this); }

    bool HasClosed() const { return hasClosed_; }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* window = dynamic_cast<QWidget*>(watched);
        if (event->type() == QEvent::Show && window && window->windowTitle() == QLatin1String(Wait))
            QMetaObject::invokeMethod(
                this, [this] { Close(); }, Qt::QueuedConnection);
        return false;
    }

    void Close()
    {
        if (!MainWindow() || hasClosed_)
            return;
        hasClosed_ = true;
        MainWindow()->close();
    }

    bool hasClosed_ = false;
};

class Closing : public Shop {
protected:
    Closing() { Execute("update agendamento set situacao = 1"); }

    Receptionist& AsksForTransportCard()
    {
        return receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("F9").Picks(TransportCard);
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
    const ClosesAtPlate user;
    Run();
    EXPECT_TRUE(user.HasClosed());
}

TEST_F(Closing, EndsWellWhileAListIsBeingMade)
{
    receptionist->WaitsFor(List).Presses("Ctrl+P").Picks("Lista dos agendamentos");
    receptionist->WaitsFor("frmImprimirAgenda").Presses("Return");
    receptionist
        ->WaitsUntil("the wait form is shown",
                     [] { return Receptionist::FormOnShow("frmMensagem") != nullptr; })
        .Does("close", [] { MainWindow()->close(); });
    Run();
}

} // namespace kova::window_test
