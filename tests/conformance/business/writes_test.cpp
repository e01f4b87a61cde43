// Appointments that are added, altered and deleted, and what the day's selection then finds.

#include "tests/conformance/business/suite.hpp"

#include <algorithm>

namespace kova::conformance {

namespace {

/// The session's user.
class Clerk : public Component {
public:
    using Component::Call;
    Value Get(std::string_view member) override { return member == "Nome" ? Value("Rute") : Value(Long(3)); }
    void Set(std::string_view, const Value&) override { throw Failure(FailureNumber::NoSuchMember); }
    Value Call(std::string_view, std::span<Argument>) override { throw Failure(FailureNumber::NoSuchMember); }
};

using Properties = std::vector<std::pair<const char*, Value>>;

/// What both record forms send, for a bath on the day without appointments.
Properties Common()
{
    return {{"Situacao", Integer(1)},       {"CodigoDoFuncionario", Long(2)},  {"DataInicial", EmptyDay},
            {"HoraInicial", "09:00"},       {"DataFinal", EmptyDay},           {"HoraFinal", "10:15"},
            {"CodigoDoServico", Double(2)}, {"NumeroDoTipoDeServico", Long(4)}};
}

Properties Simplified()
{
    Properties properties = Common();
    const Properties more = {{"NomeOuRazaoSocialDoCliente", WalkIn::Name},
                             {"CanaisdeComunicacaoDoCliente", WalkIn::Channels},
                             {"NomeDoAnimal", WalkIn::Animal},
                             {"SexoDoAnimal", "M"},
                             {"EspecieDoAnimal", WalkIn::Species},
                             {"RacaDoAnimal", WalkIn::Breed},
                             {"CorDoAnimal", WalkIn::Colour},
                             {"Observacao", ""},
                             {"TipoDoAgendamento", Long(1)}};
    properties.insert(properties.end(), more.begin(), more.end());
    return properties;
}

Properties Full()
{
    Properties properties = Common();
    const Properties more = {{"CodigoDoCliente", Double(10)},
                             {"CodigoDoAnimal", Long(50)},
                             {"Observacao", "Laço azul."},
                             {"TransporteBuscar", Long(-1)},
                             {"TransporteLevar", Long(0)},
                             {"CriadaListaDasDatasEHorasSelecionadas", false},
                             {"QuantidadeDeReagendamentos", Long(0)},
                             {"FrequenciaDeReagendamento", Integer(-1)},
                             {"TipoDoAgendamento", Long(0)},
                             {"DadosValidados", true},
                             {"DomingoOuFeriado", false}};
    properties.insert(properties.end(), more.begin(), more.end());
    return properties;
}

} // namespace

class Writes : public BusinessTest {
protected:
    ComponentRef Sent(const Properties& properties, const Properties& changed = {})
    {
        ComponentRef agenda = Create(AgendaClass);
        for (const Properties* all : {&properties, &changed}) {
            for (const auto& [name, value] : *all)
                agenda->Set(name, value);
        }
        agenda->Set("DadosDoUsuario", std::make_shared<Clerk>());
        return agenda;
    }

    /// What the list sends to change a status alone.
    ComponentRef Status(int number, Integer status)
    {
        return Sent({{"AtualizarSomenteOCampoSituacao", true},
                     {"SituacaoNova", status},
                     {"NumeroDeLancamento", static_cast<Double>(number)}});
    }

    Rows DayOf(const char* date) { return ContentOf(*Selected({.date = date}, {})); }

    /// The day's rows without the names of their fields.
    std::vector<std::vector<Value>> RowsOf(const char* date) { return DayOf(date).rows; }

    /// A row as the shop has it, with the stamps of a write by the clerk.
    static Rows Written(const Appointment& model, const std::vector<std::pair<Text, Value>>& fields)
    {
        Rows rows = AppointmentRows({static_cast<int>(model.number)});
        for (const auto& [field, value] : fields) {
            const auto at = std::find(rows.fields.begin(), rows.fields.end(), field) - rows.fields.begin();
            rows.rows.front()[static_cast<std::size_t>(at)] = value;
        }
        return rows;
    }
};

KOVA_OVER_ENGINES(Writes, EnginesWith(&EngineKind::storesWrites));

TEST_P(Writes, OfASimplifiedAppointmentAreFoundOnItsDayWithEveryField)
{
    ASSERT_EQ(Sent(Simplified())->Call("Adicionar"), Value(Integer(0)));
    // Appointment 4 of the shop is a simplified bath.
    ExpectSame(DayOf(EmptyDay),
               Written(Appointments()[3],
                       {{"NumeroDeLancamento", Double(9)},
                        {"DataInicial", EmptyDay},
                        {"HoraInicial", "09:00"},
                        {"DataFinal", EmptyDay},
                        {"HoraFinal", "10:15"},
                        {"Observacao", Null()},
                        {"DataEHoraDaInclusao", MomentOfWrites},
                        {"UsuarioDaInclusao", "Rute"}}));
}

TEST_P(Writes, OfAFullRecordAreFoundOnItsDayWithEveryField)
{
    ASSERT_EQ(Sent(Full())->Call("Adicionar"), Value(Integer(0)));
    // Appointment 2 of the shop is a bath for the same customer.
    ExpectSame(DayOf(EmptyDay),
               Written(Appointments()[1],
                       {{"NumeroDeLancamento", Double(9)},
                        {"DataInicial", EmptyDay},
                        {"HoraInicial", "09:00"},
                        {"DataFinal", EmptyDay},
                        {"HoraFinal", "10:15"},
                        {"TransporteLevar", "Não"},
                        {"DataEHoraDaInclusao", MomentOfWrites},
                        {"UsuarioDaInclusao", "Rute"},
                        {"DataEHoraDaAlteracao", Null()},
                        {"UsuarioDaAlteracao", Null()}}));
}

TEST_P(Writes, OfAnAlterationReplaceTheRecordAndStampIt)
{
    ASSERT_EQ(Sent(Full(), {{"NumeroDeLancamento", Double(8)}})->Call("Alterar"), Value(Integer(0)));
    EXPECT_TRUE(RowsOf(QuietDay).empty());
    ExpectSame(DayOf(EmptyDay),
               Written(Appointments()[1],
                       {{"NumeroDeLancamento", Double(8)},
                        {"DataInicial", EmptyDay},
                        {"HoraInicial", "09:00"},
                        {"DataFinal", EmptyDay},
                        {"HoraFinal", "10:15"},
                        {"TransporteLevar", "Não"},
                        {"DataEHoraDaAlteracao", MomentOfWrites},
                        {"UsuarioDaAlteracao", "Rute"}}));
}

TEST_P(Writes, OfADeletionTakeTheRecordAway)
{
    const ComponentRef agenda = Sent(Full(), {{"NumeroDeLancamento", Double(8)}});
    ASSERT_EQ(agenda->Call("Excluir"), Value(Integer(0)));
    EXPECT_TRUE(RowsOf(QuietDay).empty());
    EXPECT_EQ(agenda->Call("Excluir"), Value(Integer(3)));
    EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value("O agendamento não existe mais."));
}

TEST_P(Writes, ThatAreRefusedNameTheFieldAndWriteNothing)
{
    const ComponentRef agenda = Sent(Full(), {{"DadosValidados", false}});
    EXPECT_EQ(agenda->Call("Adicionar"), Value(Integer(2)));
    EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value("DomingoOuFeriado"));
    EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value("A data 22/11/2026 é um domingo."));
    EXPECT_TRUE(RowsOf(EmptyDay).empty());
}

TEST_P(Writes, OnADayOfTheWeekOnWhichTheShopIsClosedAreAskedAboutAndMayMove)
{
    const ComponentRef agenda =
        Sent(Full(),
             {{"DadosValidados", false}, {"DataInicial", ClosedDay::Date}, {"DataFinal", ClosedDay::Date}});
    EXPECT_EQ(agenda->Call("Adicionar"), Value(Integer(2)));
    EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value("DomingoOuFeriado"));
    EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value("A data 25/11/2026 é uma quarta-feira."));
    agenda->Set("DadosValidados", true);
    agenda->Set("DomingoOuFeriado", true);
    EXPECT_EQ(agenda->Call("Adicionar"), Value(Integer(0)));
    EXPECT_TRUE(RowsOf(ClosedDay::Date).empty());
    EXPECT_EQ(RowsOf(ClosedDay::Next).size(), 1U);
}

TEST_P(Writes, AtAnHourAtWhichTheEmployeeDoesNotWorkAreRefused)
{
    struct {
        Properties sent;
        const char *start, *end;
        Integer status;
    } const cases[] = {{Full(), "11:00", "12:00", 0},
                       {Full(), "11:30", "12:30", 2},
                       {Simplified(), "07:59", "09:00", 2},
                       {Simplified(), "08:00", "09:00", 0}};
    for (const auto& one : cases) {
        const ComponentRef agenda = Sent(one.sent,
                                         {{"CodigoDoFuncionario", OwnHours::Employee},
                                          {"DataInicial", OwnHours::Date},
                                          {"HoraInicial", one.start},
                                          {"DataFinal", OwnHours::Date},
                                          {"HoraFinal", one.end}});
        EXPECT_EQ(agenda->Call("Adicionar"), Value(one.status)) << one.start;
        EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value(one.status == 0 ? "" : "HoraInicial"));
        EXPECT_EQ(agenda->Get("DescricaoDaFalha"),
                  Value(one.status == 0 ? "" : "Zeca não trabalha nesse horário em 24/11/2026."));
    }
    EXPECT_EQ(RowsOf(OwnHours::Date).size(), 2U);
}

TEST_P(Writes, WhileTheEmployeeIsAwayAreRefusedAlsoOnTheirWayBackFromCancelled)
{
    const Text away = "Bia está ausente em 24/11/2026 (Curso de tosa).";
    const Properties afternoon = {{"DataInicial", AwayOnce::Date},
                                  {"HoraInicial", "13:30"},
                                  {"DataFinal", AwayOnce::Date},
                                  {"HoraFinal", "14:01"}};
    for (const Properties& properties : {Full(), Simplified()}) {
        const ComponentRef agenda = Sent(properties, afternoon);
        EXPECT_EQ(agenda->Call("Adicionar"), Value(Integer(2)));
        EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value("HoraInicial"));
        EXPECT_EQ(agenda->Get("DescricaoDaFalha"), Value(away));
    }
    Properties cancelled = afternoon;
    cancelled.emplace_back("Situacao", Integer(3));
    ASSERT_EQ(Sent(Full(), cancelled)->Call("Adicionar"), Value(Integer(0)));
    const ComponentRef status = Status(9, 1);
    EXPECT_EQ(status->Call("Alterar"), Value(Integer(3)));
    EXPECT_EQ(status->Get("DescricaoDaFalha"), Value(away));
}

TEST_P(Writes, ThatBringACancelledAppointmentBackNeedRoom)
{
    ASSERT_EQ(Sent(Full(), {{"Situacao", Integer(3)}})->Call("Adicionar"), Value(Integer(0)));
    const ComponentRef second = Sent(Full());
    ASSERT_EQ(second->Call("Adicionar"), Value(Integer(0)));
    const ComponentRef status = Status(9, 1);
    EXPECT_EQ(status->Call("Alterar"), Value(Integer(3)));
    EXPECT_EQ(status->Get("DescricaoDaFalha"),
              Value("Bia já tem agendamento das 09:00 às 10:15 em 22/11/2026."));
    const ComponentRef record = Sent(Full(), {{"NumeroDeLancamento", Double(9)}});
    EXPECT_EQ(record->Call("Alterar"), Value(Integer(2)));
    EXPECT_EQ(record->Get("NomeDoCampoValidado"), Value("HoraInicial"));
    ASSERT_EQ(Status(10, 3)->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(status->Call("Alterar"), Value(Integer(0)));
}

TEST_P(Writes, ThatChangeWhatAPreSaleWasMadeForGoByItsRules)
{
    ASSERT_EQ(Sent(Full(), {{"Situacao", Integer(4)}})->Call("Adicionar"), Value(Integer(0)));
    const ComponentRef record = Sent(Full(), {{"NumeroDeLancamento", Double(9)}, {"Situacao", Integer(4)}});
    EXPECT_EQ(record->Call("Alterar"), Value(Integer(0)));
    record->Set("NumeroDoTipoDeServico", Long(1));
    record->Set("CodigoDoServico", Double(1));
    EXPECT_EQ(record->Call("Alterar"), Value(Integer(3)));
    EXPECT_EQ(record->Get("DescricaoDaFalha"),
              Value("Não é possível gerar pré-venda para serviços tipo clínico."));
}

TEST_P(Writes, RepeatedOnOneObjectGoByTheSamePropertiesAndTheAnswer)
{
    const ComponentRef agenda = Sent(Full(), {{"DadosValidados", false}});
    ASSERT_EQ(agenda->Call("Adicionar"), Value(Integer(2)));
    agenda->Set("DadosValidados", true);
    agenda->Set("DomingoOuFeriado", true);
    ASSERT_EQ(agenda->Call("Adicionar"), Value(Integer(0)));
    EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value(""));
    EXPECT_EQ(agenda->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    EXPECT_TRUE(RowsOf(EmptyDay).empty());
    EXPECT_EQ(RowsOf("23/11/2026").size(), 1U);
}

TEST_P(Writes, WithoutAUserAreATechnicalFailure)
{
    const ComponentRef agenda = Sent(Full());
    agenda->Set("DadosDoUsuario", ObjectRef());
    for (const char* member : {"Adicionar", "Alterar", "Excluir"}) {
        EXPECT_EQ(agenda->Call(member), Value(Integer(1)));
        EXPECT_EQ(agenda->Get("DescricaoDoErro"), Value("Usuário não informado."));
        EXPECT_NE(agenda->Get("NumeroDoErro").ToLong(), 0);
        EXPECT_NE(agenda->Get("LocalDoErro").ToText().find(member), std::string::npos);
    }
    EXPECT_TRUE(RowsOf(EmptyDay).empty());
}

} // namespace kova::conformance
