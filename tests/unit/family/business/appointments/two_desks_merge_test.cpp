// Two desks change the same appointment: what both have changed is kept.

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

namespace kova::family::test {

using TwoDesks = TwoDesksTest;

TEST_F(TwoDesks, KeepWhatEachHasChanged)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    const auto form = Form(FullNumber);
    form->Set("Observacao", "Laço verde.");
    ASSERT_EQ(Write(*form, "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Laço verde.");
    EXPECT_EQ(Stored(FullNumber).alteradoPor.value, "Lia");
    EXPECT_EQ(Stored(FullNumber).versao, 3);
}

/// What the other desk changes, and how to see it in the row that is stored in the end.
struct OthersChange {
    const char* name;
    Key number;
    void (*change)(AppointmentInput&);
    bool (*stands)(const AppointmentRow&);
};

void PrintTo(const OthersChange& change, std::ostream* out) { *out << change.name; }

constexpr Key Full = 24, Simplified = 25;

const OthersChange Changes[] = {
    {"CustomerAndAnimal", Full,
     [](AppointmentInput& input) {
         input.customer = 11;
         input.animal = 51;
     },
     [](const AppointmentRow& row) {
         return row.codigoDoCliente.value == 11 && row.codigoDoAnimal.value == 51;
     }},
    {"CustomersName", Simplified, [](AppointmentInput& input) { input.customerName = "Ivo"; },
     [](const AppointmentRow& row) { return row.nomeDoCliente == "Ivo" && row.textoDeBusca == "ivo\nbidu"; }},
    {"Channels", Simplified, [](AppointmentInput& input) { input.customerChannels = "(00) 3"; },
     [](const AppointmentRow& row) { return row.canaisDoCliente == "(00) 3"; }},
    {"AnimalsName", Simplified, [](AppointmentInput& input) { input.animalName = "Rex"; },
     [](const AppointmentRow& row) { return row.nomeDoAnimal == "Rex"; }},
    {"Sex", Simplified, [](AppointmentInput& input) { input.animalSex = "Macho"; },
     [](const AppointmentRow& row) { return row.sexoDoAnimal == "Macho"; }},
    {"Species", Simplified, [](AppointmentInput& input) { input.animalSpecies = "Ave"; },
     [](const AppointmentRow& row) { return row.especieDoAnimal == "Ave"; }},
    {"Breed", Simplified, [](AppointmentInput& input) { input.animalBreed = "Persa"; },
     [](const AppointmentRow& row) { return row.racaDoAnimal == "Persa"; }},
    {"Colour", Simplified, [](AppointmentInput& input) { input.animalColour = "Preto"; },
     [](const AppointmentRow& row) { return row.corDoAnimal == "Preto"; }},
    {"Service", Full,
     [](AppointmentInput& input) {
         input.serviceType = 1;
         input.service = 1;
     },
     [](const AppointmentRow& row) { return row.numeroDoTipoDeServico == 1 && row.codigoDoServico == 1; }},
    {"Times", Full,
     [](AppointmentInput& input) {
         input.startDate = input.endDate = "02/12/2026";
         input.startTime = "14:00";
         input.endTime = "15:30";
     },
     [](const AppointmentRow& row) {
         return row.dataInicial + row.horaInicial + row.dataFinal + row.horaFinal
             == "2026-12-0214:002026-12-0215:30";
     }},
    {"Employee", Full,
     [](AppointmentInput& input) {
         input.employee = 1;
         input.startTime = "11:00";
         input.endTime = "12:00";
     },
     [](const AppointmentRow& row) { return row.codigoDoFuncionario == 1; }},
    {"Remark", Simplified, [](AppointmentInput& input) { input.remark = ""; },
     [](const AppointmentRow& row) { return row.observacao.IsNull(); }},
    {"Fetch", Full, [](AppointmentInput& input) { input.fetch = 0; },
     [](const AppointmentRow& row) { return row.transporteBuscar == 0; }},
    {"Take", Full, [](AppointmentInput& input) { input.take = 1; },
     [](const AppointmentRow& row) { return row.transporteLevar == 1; }},
    {"Status", Full, [](AppointmentInput& input) { input.status = 3; },
     [](const AppointmentRow& row) { return row.situacao == 3; }},
};

class OthersChanges : public TwoDesksTest, public testing::WithParamInterface<OthersChange> { };

TEST_P(OthersChanges, StayWhenThisDeskSavesWithoutTouchingThem)
{
    Shows();
    OtherChanges(GetParam().number, GetParam().change);
    ASSERT_TRUE(GetParam().stands(Stored(GetParam().number)));
    ASSERT_EQ(Write(*Form(GetParam().number), "Alterar"), 0);
    EXPECT_TRUE(GetParam().stands(Stored(GetParam().number)));
}

INSTANTIATE_TEST_SUITE_P(OfEach, OthersChanges, testing::ValuesIn(Changes),
                         [](const auto& change) { return change.param.name; });

TEST_F(TwoDesks, ThatTypeTheSameAgree)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Laço verde."; });
    const auto form = Form(FullNumber);
    form->Set("Observacao", " Laço verde. ");
    ASSERT_EQ(Write(*form, "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Laço verde.");
}

TEST_F(TwoDesks, AreCheckedAsOneBooking)
{
    // The other desk moves the bath to where Zeca is busy; this one gives it to Zeca.
    Shows();
    OtherChanges(SimplifiedNumber, [](AppointmentInput& input) {
        input.startTime = "14:00";
        input.endTime = "15:00";
    });
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.startTime = "14:30";
        input.endTime = "15:30";
    });
    const auto form = Form(FullNumber);
    form->Set("CodigoDoFuncionario", Long(1));
    ExpectAnswer(*form, "Alterar", 2, "HoraInicial",
                 "Zeca já tem agendamento das 14:00 às 15:00 em 01/12/2026.");
}

TEST_F(TwoDesks, MergeOverSeveralWritesOfBothKinds)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    OtherSetsStatus(FullNumber, 2);
    OtherSetsStatus(FullNumber, 3);
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.fetch = 0; });
    const auto form = Form(FullNumber);
    form->Set("Observacao", "");
    ASSERT_EQ(Write(*form, "Alterar"), 0);
    const AppointmentRow row = Stored(FullNumber);
    EXPECT_EQ(row.transporteLevar, 1);
    EXPECT_EQ(row.transporteBuscar, 0);
    EXPECT_EQ(row.situacao, 3);
    EXPECT_TRUE(row.observacao.IsNull());
}

TEST_F(TwoDesks, GoByTheListAndNotByWhatAPrintSelectedLater)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    Agenda print(desk_);
    ASSERT_EQ(print.Call("Selecionar", DayArguments(Day)), Value(Integer(0)));
    ASSERT_EQ(Write(*Form(FullNumber), "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
}

TEST_F(TwoDesks, KnowTheirOwnWritesWithoutSelectingAgain)
{
    Shows();
    const auto form = Form(FullNumber);
    for (const char* remark : {"um", "dois", "três"}) {
        form->Set("Observacao", remark);
        ASSERT_EQ(Write(*form, "Alterar"), 0);
        EXPECT_EQ(Stored(FullNumber).observacao.value, remark);
    }
    ASSERT_EQ(Change(FullNumber, 2), 0);
    ASSERT_EQ(Change(FullNumber, 1), 0);
    form->Set("Observacao", "quatro");
    ASSERT_EQ(Write(*form, "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "quatro");
}

TEST_F(TwoDesks, KeepTheOthersChangesThroughASecondSaveOfTheSameList)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    ASSERT_EQ(Write(*Form(FullNumber), "Alterar"), 0);
    ASSERT_EQ(Write(*Form(FullNumber), "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
}

TEST_F(TwoDesks, CompareNothingOfARowThatWasNeverSelected)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    ASSERT_EQ(Write(*Over(static_cast<int>(FullNumber), Full(On(Day))), "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 0);
}

TEST_F(TwoDesks, RememberWhatAComponentThatIsGoneHasSelected)
{
    {
        Agenda gone(desk_);
        ASSERT_EQ(gone.Call("Selecionar", DayArguments(Day)), Value(Integer(0)));
    }
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    ASSERT_EQ(Write(*Over(static_cast<int>(FullNumber), Full(On(Day))), "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
}

} // namespace kova::family::test
