// "Próximo horário livre" in the application's own window.

#include "tests/window/shop.hpp"

#include "agenda/contracts/widgets.hpp"
#include "timetable/free_place_dialog.hpp"

#include <QApplication>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>

namespace kova::window_test {

namespace {

constexpr const char *List = "frmLista", *Record = "frmFichaCompleta";

/// At 09:00 on 20/11/2026, a holiday of the demonstration.
class FreePlaceOfTheShop : public Shop {
protected:
    static timetable::FreePlaceDialog* Dialog()
    {
        return dynamic_cast<timetable::FreePlaceDialog*>(QApplication::activeModalWidget());
    }
    /// Chooses that service, and so many times, and takes the first place by Enter.
    Receptionist& TakesTheFirstPlace(const char* service, int times = 1)
    {
        return receptionist->WaitsUntil("the dialog is there", [] { return Dialog() != nullptr; })
            .Does("choose", [service, times] {
                auto* box = Dialog()->findChild<QComboBox*>(QStringLiteral("servico"));
                if (*service != '\0')
                    box->setCurrentIndex(box->findText(QString::fromUtf8(service)));
                Dialog()->findChild<QSpinBox*>(QStringLiteral("vezes"))->setValue(times);
                QTest::keyClick(Dialog(), Qt::Key_Return);
            });
    }
    void ReadsTheRecord()
    {
        receptionist->Looks([this] {
            const auto text = [](const char* name) {
                return As<KVTime>(Receptionist::Control(Record, name))->Text();
            };
            day_ = As<KVDTPicker>(Receptionist::Control(Record, "kvdtpDataInicial"))->Text();
            from_ = text("kvtimHoraInicial");
            until_ = text("kvtimHoraFinal");
            service_ = As<KVFind>(Receptionist::Control(Record, "kvfNomeDoServico"))->Text();
            repeats_ = As<KVComboBox>(Receptionist::Control(Record, "kvcmbReagendar"))->Text();
            times_ = As<KVNumberBox>(Receptionist::Control(Record, "kvnumNumeroDeSemanas"))->Text();
        });
    }

    std::string day_, from_, until_, service_, repeats_, times_;
};

TEST_F(FreePlaceOfTheShop, OpensTheFormFromTheListWithThePlaceAndTheService)
{
    receptionist->WaitsFor(List).Presses("Ctrl+L");
    TakesTheFirstPlace("Banho").WaitsFor(Record);
    receptionist->WaitsUntil("the form is filled in", [] {
        return Receptionist::Focused() == "frmFichaCompleta.kvfApelidoOuNomeFantasiaDoCliente";
    });
    ReadsTheRecord();
    receptionist->Clicks(Record, "kvcmdCancelarAlterar").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(service_, "Banho");
    EXPECT_EQ(day_, "21/11/2026") << "the holiday is passed by";
    EXPECT_EQ(from_.size(), 5U);
    EXPECT_LT(from_, until_) << "and the end is known";
    EXPECT_EQ(repeats_, "Não");
}

TEST_F(FreePlaceOfTheShop, RepeatsTheSeries)
{
    receptionist->WaitsFor(List).Presses("Ctrl+L");
    TakesTheFirstPlace("Banho", 3).WaitsFor(Record);
    receptionist->WaitsUntil("the form is filled in", [] {
        return Receptionist::Focused() == "frmFichaCompleta.kvfApelidoOuNomeFantasiaDoCliente";
    });
    ReadsTheRecord();
    receptionist->Clicks(Record, "kvcmdCancelarAlterar").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(repeats_, "Sim");
    EXPECT_EQ(times_, "2");
}

TEST_F(FreePlaceOfTheShop, GoesIntoTheRecordThatIsOpen)
{
    receptionist->WaitsFor(List)
        .Presses("F2")
        .PicksByMouse("Agendamento completo")
        .WaitsFor(Record)
        .Presses("Ctrl+L");
    TakesTheFirstPlace("Banho").WaitsFor(Record);
    ReadsTheRecord();
    receptionist->Clicks(Record, "kvcmdCancelarAlterar").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(service_, "Banho");
    EXPECT_EQ(day_, "21/11/2026");
    EXPECT_LT(from_, until_);
}

TEST_F(FreePlaceOfTheShop, ChangesNothingWhereItIsLeft)
{
    receptionist->WaitsFor(List)
        .Presses("Ctrl+L")
        .WaitsUntil("the dialog is there", [] { return Dialog() != nullptr; })
        .Does("leave it", [] { QTest::keyClick(Dialog(), Qt::Key_Escape); })
        .WaitsFor(List)
        .Leaves();
    Run();
    EXPECT_EQ(Value("select count(*) from auditoria where tabela = 'agendamento'"), "0");
}

} // namespace

} // namespace kova::window_test
