// When the shop is open and who is at work, as the registers let it be changed. In December 2026 the 1st is a
// Tuesday.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"
#include "tests/unit/family/registers/register_fixture.hpp"

#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

using namespace registers;

namespace {

Typed OpenOn(const char* day, const char* from, const char* until)
{
    return {{"Dia da semana", day}, {"Hora inicial", from}, {"Hora final", until}};
}

Typed WorksOn(const char* employee, const char* day, const char* from, const char* until)
{
    Typed typed = OpenOn(day, from, until);
    typed.emplace_back("Código do funcionário", employee);
    return typed;
}

Typed Away(const char* employee, const char* fromDate, const char* fromTime, const char* untilDate,
           const char* untilTime, const char* reason = "Curso")
{
    return {{"Código do funcionário", employee}, {"Data inicial", fromDate}, {"Hora inicial", fromTime},
            {"Data final", untilDate},           {"Hora final", untilTime},  {"Motivo", reason}};
}

} // namespace

class WorkRegisters : public RegisterTest {
protected:
    struct Case {
        Typed typed;
        std::string told;
    };

    void ExpectRefusals(const Register& of, const std::vector<Case>& cases)
    {
        for (const Case& one : cases)
            ExpectRefused(of, 0, one.typed, one.told);
    }
    static std::string Crossing(const std::string& hours)
    {
        return "Hora inicial: há outro horário nesse dia, das " + hours + ", e os dois se cruzam.";
    }
    static constexpr const char* NotAfter = "Hora final: deve ser depois da hora inicial.";
    static constexpr const char* Twice = "Hora inicial: este horário já está cadastrado.";
};

TEST_F(WorkRegisters, TellWhatIsBookedInAnAbsence)
{
    const Register& absences = AbsenceRegister();
    const auto concern = [&](const Typed& typed) {
        return absences.ConcernAbout(Data(), 0, Over(absences, absences.New(), typed));
    };
    EXPECT_EQ(concern(Away("2", "27/11/2026", "00:00", "27/11/2026", "24:00")),
              "Há 3 agendamentos nesse período; o primeiro: 27/11/2026 09:00, Zé, com Bia.");
    EXPECT_EQ(concern(Away("2", "27/11/2026", "11:30", "27/11/2026", "24:00")),
              "Há 1 agendamento nesse período: 27/11/2026 11:00, Zé, com Bia.");
    EXPECT_EQ(concern(Away("2", "27/11/2026", "12:00", "27/11/2026", "24:00")), "");
    EXPECT_EQ(concern(Away("2", "27/11/2026", "00:00", "27/11/2026", "09:00")), "");
    EXPECT_EQ(concern(Away("3", "27/11/2026", "00:00", "27/11/2026", "24:00")), "");
    EXPECT_EQ(concern(Away("", "27/11/2026", "00:00", "27/11/2026", "24:00")),
              "Há 3 agendamentos nesse período; o primeiro: 27/11/2026 09:00, Zé, com Bia.");
    EXPECT_EQ(concern(Away("2", "27/11/2026", "00:00", "x", "24:00")), "") << "that is refused";
    Run("update agendamento set situacao = 3 where numero = 21");
    EXPECT_EQ(concern(Away("2", "27/11/2026", "00:00", "27/11/2026", "24:00")),
              "Há 2 agendamentos nesse período; o primeiro: 27/11/2026 10:00, Zé, com Bia.");
    Run("update agendamento set data_final = '2026-12-02', hora_final = '08:00' where numero = 22");
    EXPECT_EQ(concern(Away("2", "02/12/2026", "07:00", "02/12/2026", "24:00")),
              "Há 1 agendamento nesse período: 27/11/2026 10:00, Zé, com Bia.");
    EXPECT_EQ(concern(Away("2", "02/12/2026", "08:00", "02/12/2026", "24:00")), "");
}

TEST_F(WorkRegisters, TellNothingOfAnAbsenceWhoseTimeStaysAsItIs)
{
    const Register& absences = AbsenceRegister();
    const Key key = Add(absences, Away("2", "27/11/2026", "00:00", "27/11/2026", "24:00")).key;
    const registers::Texts stored = absences.Read(Data(), key).value();
    EXPECT_EQ(absences.ConcernAbout(Data(), key, Over(absences, stored, {{"Motivo", "Férias"}})), "");
    EXPECT_NE(absences.ConcernAbout(Data(), key, Over(absences, stored, {{"Hora final", "23:00"}})), "");
    EXPECT_EQ(CustomerRegister().ConcernAbout(Data(), 0, CustomerRegister().New()), "");
}

TEST_F(WorkRegisters, OfOpeningHoursRefuseWhatIsNoPartOfADay)
{
    ExpectRefusals(
        OpeningHoursRegister(),
        {{{},
          "Dia da semana: deve ser informado. Hora inicial: deve ser informado. Hora final: deve ser"
          " informado."},
         {OpenOn("Feira", "24:00", "24:01"),
          "Dia da semana: não é conhecido. Use Domingo, Segunda-feira, Terça-feira, Quarta-feira,"
          " Quinta-feira, Sexta-feira ou Sábado. Hora inicial: não é uma hora válida. Escreva hh:mm."
          " Hora final: não é uma hora válida. Escreva hh:mm, até 24:00."},
         {OpenOn("Domingo", "oito", "12"),
          "Hora inicial: não é uma hora válida. Escreva hh:mm. Hora final: não é uma hora válida. Escreva"
          " hh:mm, até 24:00."},
         {OpenOn("Domingo", "12:00", "12:00"), NotAfter},
         {OpenOn("Domingo", "12:00", "11:59"), NotAfter},
         {OpenOn("Domingo", "10:00", "9:00"), NotAfter}});
}

TEST_F(WorkRegisters, OfOpeningHoursTakeSeveralOfADayThatDoNotCross)
{
    const Register& open = OpeningHoursRegister();
    ExpectDone(open, 0, OpenOn("domingo", "8:00", "12:00"));
    ExpectDone(open, 0, OpenOn("Domingo", "14:00", "18:00"));
    ExpectDone(open, 0, OpenOn("Domingo", "18:00", "24:00"));
    EXPECT_EQ(Texts("select hora_inicial || ' ' || hora_final from expediente where dia_da_semana = 1"
                    " order by hora_inicial"),
              (std::vector<std::string>{"08:00 12:00", "14:00 18:00", "18:00 24:00"}));
    ExpectRefusals(open,
                   {{OpenOn("Domingo", "08:00", "12:00"), Twice},
                    {OpenOn("Domingo", "11:59", "13:00"), Crossing("08:00 às 12:00")},
                    {OpenOn("Domingo", "07:00", "08:01"), Crossing("08:00 às 12:00")},
                    {OpenOn("Domingo", "09:00", "10:00"), Crossing("08:00 às 12:00")},
                    {OpenOn("Domingo", "13:00", "19:00"), Crossing("14:00 às 18:00")},
                    {OpenOn("Domingo", "23:59", "24:00"), Crossing("18:00 às 24:00")}});
    ExpectDone(open, 0, OpenOn("Domingo", "12:00", "14:00"));
}

TEST_F(WorkRegisters, OfOpeningHoursLookAtAChangedRowWithoutItself)
{
    const Register& open = OpeningHoursRegister();
    const Key morning = Add(open, OpenOn("Domingo", "08:00", "12:00")).key;
    const Key evening = Add(open, OpenOn("Domingo", "14:00", "18:00")).key;
    ExpectDone(open, morning, {{"Hora final", "12:30"}});
    ExpectRefused(open, morning, {{"Hora final", "14:01"}}, Crossing("14:00 às 18:00"));
    ExpectRefused(open, evening, OpenOn("Domingo", "08:00", "12:30"), Twice);
    ExpectRefused(open, evening, {{"Dia da semana", "Segunda-feira"}}, Crossing("00:00 às 24:00"));
    ExpectRefused(open, evening, {{"Hora final", "13:00"}}, NotAfter);
}

TEST_F(WorkRegisters, OfOpeningHoursLeaveAloneWhatCrossedBefore)
{
    Run("insert into expediente (codigo, dia_da_semana, hora_inicial, hora_final)"
        " values (70, 1, '08:00', '12:00'), (71, 1, '09:00', '13:00')");
    ExpectDone(OpeningHoursRegister(), 70, {});
    ExpectRefused(OpeningHoursRegister(), 70, {{"Hora inicial", "08:30"}}, Crossing("09:00 às 13:00"));
    ExpectDone(OpeningHoursRegister(), 70, {{"Hora final", "09:00"}});
}

TEST_F(WorkRegisters, OfOpeningHoursKeepTheLastRow)
{
    const Register& open = OpeningHoursRegister();
    std::vector<Key> keys = open.Find(Data(), "");
    ASSERT_EQ(keys.size(), 6U);
    while (keys.size() > 1) {
        EXPECT_TRUE(open.Remove(Data(), keys.back(), lia_).IsDone()) << keys.size();
        keys.pop_back();
    }
    const RemoveAnswer answer = open.Remove(Data(), keys.front(), lia_);
    EXPECT_EQ(answer.outcome, RemoveAnswer::Outcome::Kept);
    EXPECT_EQ(answer.text,
              "A loja precisa abrir em algum dia: o último horário do expediente não pode ser excluído.");
    EXPECT_EQ(Count("expediente"), 1);
    EXPECT_EQ(Count("auditoria where tabela = 'expediente' and operacao = 'exclusao'"), 5);
}

TEST_F(WorkRegisters, OfEmployeesHaveTheSameRulesForEachEmployeeAndDay)
{
    const Register& hours = EmployeeHoursRegister();
    ExpectDone(hours, 0, WorksOn("2", "Terça-feira", "08:00", "12:00"));
    ExpectDone(hours, 0, WorksOn("2", "Terça-feira", "12:00", "24:00"));
    ExpectDone(hours, 0, WorksOn("2", "Quarta-feira", "08:00", "12:00"));
    const Key other = Add(hours, WorksOn("1", "Terça-feira", "08:00", "12:00")).key;
    ExpectRefusals(
        hours,
        {{OpenOn("Terça-feira", "08:00", "12:00"), "Código do funcionário: deve ser informado."},
         {WorksOn("99", "Terça-feira", "08:00", "12:00"),
          "Código do funcionário: não há funcionário(a) com este código."},
         {WorksOn("Bia", "Terça-feira", "08:00", "07:00"),
          "Código do funcionário: não é um número inteiro de 1 a 999999999. " + std::string(NotAfter)},
         {WorksOn("2", "Terça-feira", "08:00", "12:00"), Twice},
         {WorksOn("2", "Terça-feira", "11:00", "13:00"), Crossing("08:00 às 12:00")},
         {WorksOn("1", "Terça-feira", "11:00", "13:00"), Crossing("08:00 às 12:00")}});
    ExpectRefused(hours, other, {{"Código do funcionário", "2"}}, Twice);
    ASSERT_TRUE(hours.Remove(Data(), other, lia_).IsDone()) << "an employee needs no hours";
    EXPECT_EQ(Count("horario_do_funcionario where codigo_do_funcionario = 1"), 0);
}

TEST_F(WorkRegisters, OfAbsencesEndAfterTheyBegin)
{
    const Register& absences = AbsenceRegister();
    ExpectRefusals(
        absences,
        {{{},
          "Data inicial: deve ser informado. Hora inicial: deve ser informado. Data final: deve ser"
          " informado. Hora final: deve ser informado. Motivo: deve ser informado."},
         {Away("99", "1/12/2026", "8:00", "1/12/2026", "9:00", " "),
          "Código do funcionário: não há funcionário(a) com este código. Motivo: deve ser informado."},
         {Away("", "31/02/2026", "24:00", "1/13/2026", "25:00"),
          "Data inicial: não é uma data válida. Escreva dd/mm/aaaa, de 01/01/1900 a 31/12/2999. Hora inicial:"
          " não é uma hora válida. Escreva hh:mm. Data final: não é uma data válida. Escreva dd/mm/aaaa, de"
          " 01/01/1900 a 31/12/2999. Hora final: não é uma hora válida. Escreva hh:mm, até 24:00."},
         {Away("", "02/12/2026", "08:00", "01/12/2026", "18:00"),
          "Data final: não pode ser antes da data inicial."},
         {Away("", "01/12/2026", "08:00", "01/12/2026", "08:00"),
          "Hora final: deve ser depois da hora inicial, que é do mesmo dia."}});
    ExpectDone(absences, 0, Away("", "01/12/2026", "23:59", "01/12/2026", "24:00"));
    const Key key = Add(absences, Away("2", "30/12/2026", "18:00", "02/01/2027", "08:00")).key;
    EXPECT_EQ(RowsOf("ausencia", "codigo_do_funcionario = 2", "codigo"),
              std::vector<std::string>{"2|2026-12-30|18:00|2027-01-02|08:00|Curso"});
    ExpectDone(absences, key, {{"Código do funcionário", ""}});
    EXPECT_EQ(Count("ausencia where codigo_do_funcionario is null"), 2);
    EXPECT_TRUE(absences.Remove(Data(), key, lia_).IsDone());
}

TEST_F(WorkRegisters, OfferTheActiveEmployees)
{
    for (const Register* of : {&EmployeeHoursRegister(), &AbsenceRegister()}) {
        std::string all;
        for (const Offer& offer :
             of->Offers(Data(), FieldNamed(of->Fields(), "Código do funcionário"), of->New()))
            all += offer.text + "=" + offer.shown + ";";
        EXPECT_EQ(all, "2=2 - Bia;1=1 - Zeca;");
        EXPECT_TRUE(of->Offers(Data(), FieldNamed(of->Fields(), "Hora inicial"), of->New()).empty());
    }
}

/// Somebody books at a desk while another one changes the registers by a connection of his own.
class WorkOfAnotherDesk : public BookingTest {
protected:
    Key Save(const Register& of, Key key, const Typed& typed)
    {
        const registers::Texts before = key == 0 ? of.New() : of.Read(*other_, key).value();
        registers::Texts texts = before;
        for (const auto& [label, text] : typed)
            texts.at(FieldNamed(of.Fields(), label)) = text;
        const SaveAnswer answer = of.Save(*other_, key, before, texts, marcos_);
        EXPECT_TRUE(answer.IsDone());
        return answer.key;
    }
    void Remove(const Register& of, Key key) { EXPECT_TRUE(of.Remove(*other_, key, marcos_).IsDone()); }

    /// A bath by Bia on a Tuesday at nine.
    void ExpectBooked()
    {
        EXPECT_EQ(Write(*Full(On("01/12/2026"))), 0);
        Run("delete from agendamento where numero > " + std::to_string(Stored));
    }
    void ExpectRefusedWith(const Text& why) { ExpectRefused(*Full(On("01/12/2026")), "HoraInicial", why); }

    const std::shared_ptr<Database> other_ = OpenDatabase(host_.DataSource());
    const Author marcos_{"8", "Marcos", "2026-11-20 09:30:00", "BALCAO-2"};
};

TEST_F(WorkOfAnotherDesk, HoldsForTheNextBooking)
{
    const Text notAtWork = "Bia não trabalha nesse horário em 01/12/2026.";
    ExpectBooked();
    const Key absence = Save(AbsenceRegister(), 0, Away("2", "01/12/2026", "00:00", "01/12/2026", "24:00"));
    ExpectRefusedWith("Bia está ausente em 01/12/2026 (Curso).");
    Save(AbsenceRegister(), absence, {{"Código do funcionário", "1"}});
    ExpectBooked();
    Save(AbsenceRegister(), absence, {{"Código do funcionário", ""}});
    ExpectRefusedWith("Bia está ausente em 01/12/2026 (Curso).");
    Remove(AbsenceRegister(), absence);
    ExpectBooked();

    const Key hours = Save(EmployeeHoursRegister(), 0, WorksOn("2", "Terça-feira", "10:00", "18:00"));
    ExpectRefusedWith(notAtWork);
    Save(EmployeeHoursRegister(), hours, {{"Hora inicial", "09:00"}});
    ExpectBooked();
    Save(EmployeeHoursRegister(), hours, {{"Dia da semana", "Quarta-feira"}});
    ExpectRefusedWith(notAtWork);
    Remove(EmployeeHoursRegister(), hours);
    ExpectBooked();

    const Key tuesday = OpeningHoursRegister().Find(*other_, "terça").at(0);
    Save(OpeningHoursRegister(), tuesday, {{"Hora inicial", "09:01"}});
    ExpectRefusedWith(notAtWork);
    Save(OpeningHoursRegister(), tuesday, {{"Hora inicial", "08:00"}, {"Hora final", "10:00"}});
    ExpectBooked();
}

} // namespace kova::family::test
