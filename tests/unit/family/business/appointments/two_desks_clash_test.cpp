// Two desks change the same field of an appointment, each in another way: the second one is told.

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

namespace kova::family::test {

using ClashOfTwoDesks = TwoDesksTest;

TEST_F(ClashOfTwoDesks, TellsWhoWhenWhereAndWhatAndRepeatsWhatWasTyped)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Laço verde."; });
    const auto form = Form(FullNumber);
    form->Set("Observacao", "");
    form->Set("TransporteLevar", Long(-1));
    EXPECT_EQ(
        Refused(*form),
        "Este agendamento foi alterado depois que você o abriu. Nada do que você mudou foi gravado."
        "\r\n\r\n"
        "Observação: Marcos (posto BALCAO-2) gravou \"Laço verde.\" em 20/11/2026 às 09:30; você informou"
        " (vazio).\r\n"
        "\r\nVocê também informou:\r\n"
        "Levar: \"Sim\"\r\n"
        "\r\nAtualize a lista (F5) para ver o agendamento como está agora. Depois refaça as suas"
        " mudanças.");
}

TEST_F(ClashOfTwoDesks, IsToldAgainUntilTheDeskSelectsTheRow)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Laço verde."; });
    for (int time = 1; time <= 2; ++time) {
        const auto form = Form(FullNumber);
        form->Set("Observacao", "Sem laço.");
        EXPECT_NE(Refused(*form).find("Observação: Marcos"), std::string::npos);
    }
    Shows();
    const auto form = Form(FullNumber);
    form->Set("Observacao", "Sem laço.");
    ASSERT_EQ(Write(*form, "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Sem laço.");
}

/// What either desk does to the same field, and how the text begins to tell of it.
struct FieldOfBoth {
    const char* name;
    Key number;
    void (*others)(AppointmentInput&);
    std::vector<std::pair<const char*, Value>> own;
    const char* stored;
    const char* typed;
};

void PrintTo(const FieldOfBoth& change, std::ostream* out) { *out << change.name; }

const FieldOfBoth FieldsOfBoth[] = {
    {"CustomerAndAnimal",
     24,
     [](AppointmentInput& input) {
         input.customer = 11;
         input.animal = 51;
     },
     {{"CodigoDoAnimal", Long(51)}},
     "Cliente e animal: Marcos (posto BALCAO-2) gravou \"11 - Canil Céu, 51 - Leão\"",
     "\"10 - Zé, 51 - Leão\""},
    {"CustomersName",
     25,
     [](AppointmentInput& input) { input.customerName = "Ivo"; },
     {{"NomeOuRazaoSocialDoCliente", "Ida"}},
     "Nome ou razão social: Marcos (posto BALCAO-2) gravou \"Ivo\"",
     "\"Ida\""},
    {"Channels",
     25,
     [](AppointmentInput& input) { input.customerChannels = "1"; },
     {{"CanaisdeComunicacaoDoCliente", "2"}},
     "Canais de comunicação: Marcos (posto BALCAO-2) gravou \"1\"",
     "\"2\""},
    {"AnimalsName",
     25,
     [](AppointmentInput& input) { input.animalName = "Rex"; },
     {{"NomeDoAnimal", "Rói"}},
     "Nome do animal: Marcos (posto BALCAO-2) gravou \"Rex\"",
     "\"Rói\""},
    {"Sex",
     25,
     [](AppointmentInput& input) { input.animalSex = "Macho"; },
     {{"SexoDoAnimal", ""}},
     "Sexo: Marcos (posto BALCAO-2) gravou \"Macho\"",
     "(vazio)"},
    {"Species",
     25,
     [](AppointmentInput& input) { input.animalSpecies = "Ave"; },
     {{"EspecieDoAnimal", "Canina"}},
     "Espécie: Marcos (posto BALCAO-2) gravou \"Ave\"",
     "\"Canina\""},
    {"Breed",
     25,
     [](AppointmentInput& input) { input.animalBreed = "Persa"; },
     {{"RacaDoAnimal", "SRD"}},
     "Raça: Marcos (posto BALCAO-2) gravou \"Persa\"",
     "\"SRD\""},
    {"Colour",
     25,
     [](AppointmentInput& input) { input.animalColour = "Preto"; },
     {{"CorDoAnimal", "Azul"}},
     "Cor: Marcos (posto BALCAO-2) gravou \"Preto\"",
     "\"Azul\""},
    {"Service",
     24,
     [](AppointmentInput& input) {
         input.serviceType = 1;
         input.service = 1;
     },
     {{"CodigoDoServico", 3.0}},
     "Serviço: Marcos (posto BALCAO-2) gravou \"1 - Consulta, 1 - Consulta clínica\"",
     "\"4 - Banho e tosa, 3 - Pacote de banhos\""},
    {"Times",
     24,
     [](AppointmentInput& input) {
         input.startTime = "09:15";
         input.endTime = "10:15";
     },
     {{"HoraFinal", "11:00"}},
     "Data e hora: Marcos (posto BALCAO-2) gravou \"01/12/2026 09:15 a 01/12/2026 10:15\"",
     "\"01/12/2026 09:00 a 01/12/2026 11:00\""},
    {"Employee",
     25,
     [](AppointmentInput& input) {
         input.employee = 2;
         input.status = 3;
     },
     {{"CodigoDoFuncionario", Long(3)}},
     "Funcionário(a): Marcos (posto BALCAO-2) gravou \"2 - Bia\"",
     "\"3 - Ana\""},
    {"Remark",
     24,
     [](AppointmentInput& input) { input.remark = "A"; },
     {{"Observacao", "B"}},
     "Observação: Marcos (posto BALCAO-2) gravou \"A\"",
     "\"B\""},
    {"Status",
     24,
     [](AppointmentInput& input) { input.status = 2; },
     {{"Situacao", Integer(3)}},
     "Situação: Marcos (posto BALCAO-2) gravou \"Atendido\"",
     "\"Cancelado\""},
};

class FieldsThatBothChange : public TwoDesksTest, public testing::WithParamInterface<FieldOfBoth> { };

TEST_P(FieldsThatBothChange, AreNamedWithBothValues)
{
    Shows();
    OtherChanges(GetParam().number, GetParam().others);
    const auto form = Form(GetParam().number);
    for (const auto& [member, value] : GetParam().own)
        form->Set(member, value);
    const std::string expected =
        std::string(GetParam().stored) + " em 20/11/2026 às 09:30; você informou " + GetParam().typed + ".";
    const Text text = Refused(*form);
    EXPECT_NE(text.find("\r\n\r\n" + expected + "\r\n\r\nAtualize"), std::string::npos) << text;
}

INSTANTIATE_TEST_SUITE_P(OfEach, FieldsThatBothChange, testing::ValuesIn(FieldsOfBoth),
                         [](const auto& field) { return field.param.name; });

TEST_F(ClashOfTwoDesks, NamesTheLastOfSeveralWhoChangedTheField)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "A"; });
    AppointmentInput input;
    OtherSetsStatus(FullNumber, 2);
    const auto form = Form(FullNumber);
    form->Set("Observacao", "B");
    const Text text = Refused(*form);
    EXPECT_NE(text.find("Observação: Marcos"), std::string::npos) << text;
    EXPECT_EQ(text.find("Situação"), std::string::npos) << text;
}

TEST_F(ClashOfTwoDesks, IsToldWithoutNamesWhereTheAuditHasAGap)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    Run("delete from auditoria where operacao = 'alteracao'");
    EXPECT_EQ(
        Refused(*Form(FullNumber)),
        "Este agendamento foi alterado depois que você o abriu. Nada foi gravado, e não há registro do que"
        " mudou.\r\n\r\nAtualize a lista (F5) para ver o agendamento como está agora.");
}

TEST_F(ClashOfTwoDesks, OnAnAppointmentThatIsGoneSaysOnlyThat)
{
    Shows();
    OtherDeletes(FullNumber);
    const auto form = Form(FullNumber);
    for (const char* member : {"Alterar", "Excluir"})
        EXPECT_EQ(Refused(*form, member), "O agendamento não existe mais.");
}

TEST_F(ClashOfTwoDesks, KeepsADeletionBack)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.remark = "Alérgica.";
        input.take = 1;
    });
    OtherSetsStatus(FullNumber, 2);
    EXPECT_EQ(Refused(*Form(FullNumber), "Excluir"),
              "Este agendamento foi alterado depois que você o abriu. Nada foi excluído.\r\n\r\n"
              "Marcos (posto BALCAO-2), em 20/11/2026 às 09:30: Situação\r\n"
              "Marcos (posto BALCAO-2), em 20/11/2026 às 09:30: Observação, Levar\r\n"
              "\r\nAtualize a lista (F5) para ver o agendamento como está agora.");
    Shows();
    EXPECT_EQ(Write(*Form(FullNumber), "Excluir"), 0);
}

TEST_F(ClashOfTwoDesks, LetsADeletionThroughWhereAllIsAsItWasRead)
{
    Shows();
    OtherSetsStatus(FullNumber, 3);
    OtherSetsStatus(FullNumber, 1);
    EXPECT_EQ(Write(*Form(FullNumber), "Excluir"), 0);
    EXPECT_EQ(Count("agendamento where numero = 24"), 0);
}

TEST_F(ClashOfTwoDesks, OnAStatusTellsWhoHasSetAnotherOne)
{
    Shows();
    OtherSetsStatus(FullNumber, 3);
    EXPECT_EQ(
        Refused(*DeskTest::Desk(static_cast<int>(FullNumber), 2)),
        "Marcos (posto BALCAO-2) mudou a situação para \"Cancelado\" em 20/11/2026 às 09:30, depois que você"
        " abriu o agendamento. A situação continua assim.");
}

TEST_F(ClashOfTwoDesks, OnTheSameStatusIsNoneAndNothingIsWritten)
{
    Shows();
    OtherSetsStatus(FullNumber, 2);
    const auto before = Contents();
    EXPECT_EQ(Change(static_cast<int>(FullNumber), 2), 0);
    EXPECT_EQ(Contents(), before);
}

TEST_F(ClashOfTwoDesks, OnAStatusIsNoneWhereOtherFieldsWereChanged)
{
    Shows();
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    EXPECT_EQ(Change(static_cast<int>(FullNumber), 2), 0);
    EXPECT_EQ(Stored(FullNumber).situacao, 2);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
    // The list still shows the row without the other's change, which must not get lost later.
    ASSERT_EQ(Write(*Form(FullNumber), "Alterar"), 0);
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
}

} // namespace kova::family::test
