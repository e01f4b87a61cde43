// Bookings of several appointments: repeated ones, picked ones, packages.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

namespace kova::family::test {

class RepeatedBooking : public BookingTest {
protected:
    Desk Repeated(const Hours& hours, Long more, Integer frequency)
    {
        Desk desk = Full(hours);
        desk->Set("QuantidadeDeReagendamentos", more);
        desk->Set("FrequenciaDeReagendamento", frequency);
        return desk;
    }
    Desk PickedOnes(const std::vector<Hours>& rows)
    {
        Desk desk = Repeated(On("01/12/2026"), static_cast<Long>(rows.size()) - 1, 3);
        desk->Set("CriadaListaDasDatasEHorasSelecionadas", true);
        desk->Set("ListaDasDatasEHorasSelecionadas", Picked(rows));
        return desk;
    }
    Desk Package(Desk desk)
    {
        desk->Set("CodigoDoServico", 3.0);
        return desk;
    }
};

using Lines = std::vector<std::string>;

TEST_F(RepeatedBooking, WritesTheFirstAndAsManyMore)
{
    ASSERT_EQ(Write(*Repeated(On("01/12/2026"), 2, 0)), 0);
    ASSERT_EQ(Write(*Repeated(On("02/12/2026"), 2, 1)), 0);
    ASSERT_EQ(Write(*Repeated(On("31/03/2027"), 2, 2)), 0);
    EXPECT_EQ(AddedDays(),
              (Lines{"2026-12-01", "2026-12-08", "2026-12-15", "2026-12-02", "2026-12-16", "2026-12-30",
                     "2027-03-31", "2027-04-30", "2027-05-31"}));
}

TEST_F(RepeatedBooking, GivesEachAppointmentAllThatWasTyped)
{
    ASSERT_EQ(Write(*Repeated({"01/12/2026", "23:00", "02/12/2026", "00:15"}, 1, 0)), 0);
    EXPECT_EQ(Added(), (Lines{"2026-12-01 23:00-2026-12-02 00:15", "2026-12-08 23:00-2026-12-09 00:15"}));
    EXPECT_EQ(Count("agendamento where numero > 23 and codigo_do_cliente = 10 and codigo_do_animal = 50"
                    " and numero_do_tipo_de_servico = 4 and codigo_do_servico = 2"
                    " and codigo_do_funcionario = 2 and observacao = 'Laço azul.' and transporte_buscar = 1"
                    " and transporte_levar = 0 and situacao = 1 and tipo_do_agendamento = 0"
                    " and incluido_em = '2026-11-20 09:04:05' and incluido_por = 'Lia'"
                    " and alterado_em is null and codigo_do_pacote is null"),
              2);
    EXPECT_EQ(Count("auditoria where tabela = 'agendamento' and operacao = 'inclusao'"), 2);
}

TEST_F(RepeatedBooking, IsWrittenWholeOrNotAtAll)
{
    ASSERT_EQ(Write(*Full(On("22/12/2026"))), 0);
    ExpectRefused(*Repeated(On("01/12/2026"), 5, 0), "HoraInicial",
                  "Bia já tem agendamento das 09:00 às 10:00 em 22/12/2026.");
    Break("agendamento", "before insert", "new.data_inicial = '2027-01-12'");
    const auto before = Contents();
    const auto desk = Repeated(On("29/12/2026"), 5, 0);
    EXPECT_EQ(desk->Call("Adicionar"), Value(Integer(1)));
    EXPECT_NE(desk->Get("DescricaoDoErro").ToText().find("parada de teste"), std::string::npos);
    EXPECT_EQ(Contents(), before);
    Mend("agendamento");
    EXPECT_EQ(Write(*desk), 0);
}

TEST_F(RepeatedBooking, EndsWithTheCalendarAndNamesTheDate)
{
    ExpectRefused(*Repeated(On("27/12/2999"), 1, 0), "DataInicial",
                  "Informe uma data inicial válida. (03/01/3000)");
    ExpectRefused(*Repeated({"24/12/2999", "09:00", "25/12/2999", "09:00"}, 1, 0), "DataFinal",
                  "Informe uma data final válida. (31/12/2999)");
}

TEST_F(RepeatedBooking, HasALimit)
{
    ExpectFailed(*Repeated(On("01/12/2026"), 1000, 0), "Adicionar", 5,
                 "A quantidade de reagendamentos vai de 0 a 999.");
}

TEST_F(RepeatedBooking, IsNotRepeatedWhereARecordIsAltered)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    ASSERT_EQ(Write(*Over(24, Repeated(On("02/12/2026"), 5, 0)), "Alterar"), 0);
    ASSERT_EQ(Write(*Over(24, PickedOnes({On("03/12/2026"), On("04/12/2026")})), "Alterar"), 0);
    EXPECT_EQ(AddedDays(), Lines{"2026-12-01"});
}

TEST_F(RepeatedBooking, OfPickedRowsIsOneForEachRow)
{
    ASSERT_EQ(Write(*PickedOnes({On("03/12/2026", "09:00", "10:15"), On("02/12/2026", "14:00", "15:15"),
                                 On("03/12/2026", "23:00", "00:15")})),
              0);
    EXPECT_EQ(Added(),
              (Lines{"2026-12-03 09:00-2026-12-03 10:15", "2026-12-02 14:00-2026-12-02 15:15",
                     "2026-12-03 23:00-2026-12-04 00:15"}));
}

TEST_F(RepeatedBooking, OfPickedRowsNamesTheRowAtFault)
{
    const auto row = On("03/12/2026");
    const std::tuple<Hours, const char*, const char*> cases[] = {
        {On("30/02/2027"), "DataInicial", "Informe uma data inicial válida. (30/02/2027)"},
        {On("04/12/2026", "25:00"), "HoraInicial", "Informe uma hora inicial válida. (04/12/2026)"},
        {{"04/12/2026", "09:00", "x", "10:00"}, "DataFinal", "Informe uma data final válida. (04/12/2026)"},
        {On("04/12/2026", "09:00", "__:__"), "HoraFinal", "Informe uma hora final válida. (04/12/2026)"},
        {On("04/12/2026", "09:00", "09:00"), "HoraFinal",
         "O término deve ser posterior ao início. (04/12/2026)"},
    };
    for (const auto& [wrong, field, text] : cases)
        ExpectRefused(*PickedOnes({row, wrong}), field, text);
}

TEST_F(RepeatedBooking, OfPickedRowsNeedsOne)
{
    ExpectRefused(*PickedOnes({}), "DataInicial", "Informe uma data inicial válida.");
    const auto desk = Full(On("01/12/2026"));
    desk->Set("CriadaListaDasDatasEHorasSelecionadas", true);
    ExpectRefused(*desk, "DataInicial", "Informe uma data inicial válida.");
}

TEST_F(RepeatedBooking, TakesTheTableAsItWasWhenItWasSet)
{
    const auto desk = Full(On("01/12/2026"));
    const ArrayRef table = Picked({On("03/12/2026"), On("04/12/2026")});
    desk->Set("CriadaListaDasDatasEHorasSelecionadas", true);
    desk->Set("ListaDasDatasEHorasSelecionadas", table);
    table->At(0, 0) = "05/12/2026";
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), (Lines{"2026-12-03", "2026-12-04"}));
    try {
        desk->Set("ListaDasDatasEHorasSelecionadas", "x");
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 13);
    }
}

TEST_F(RepeatedBooking, OnAPackageServiceFormsAPackage)
{
    const auto desk = Package(Repeated(On("01/12/2026"), 3, 0));
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    EXPECT_EQ(Texts("select codigo || ' ' || codigo_do_servico || ' ' || criado_em || ' ' || criado_por"
                    " from pacote order by codigo"),
              (Lines{"1 2 2026-11-01 09:00:00 Carla", "2 3 2026-11-20 09:04:05 Lia"}));
    EXPECT_EQ(Count("agendamento where codigo_do_pacote = 2"), 4);
    EXPECT_EQ(Count("auditoria where tabela = 'pacote' and operacao = 'inclusao' and chave = 2"), 1);
    ASSERT_EQ(Write(*Package(PickedOnes({On("03/12/2026"), On("04/12/2026")}))), 0);
    EXPECT_EQ(Count("agendamento where codigo_do_pacote = 3"), 2);
}

TEST_F(RepeatedBooking, FormsNoPackageAloneOrOnAnotherService)
{
    ASSERT_EQ(Write(*Package(Full(On("01/12/2026")))), 0);
    ASSERT_EQ(Write(*Repeated(On("02/12/2026"), 3, 0)), 0);
    EXPECT_EQ(Count("agendamento where numero > 23 and codigo_do_pacote is not null"), 0);
    EXPECT_EQ(Count("pacote"), 1);
}

TEST_F(RepeatedBooking, GoesOnForAsManyTimesAsCanBeTyped)
{
    ASSERT_EQ(Write(*Repeated(On("01/12/2026"), 999, 0)), 0);
    EXPECT_EQ(AddedDays().size(), 1000U);
    EXPECT_EQ(AddedDays().back(), "2046-01-23");
    EXPECT_EQ(Count("auditoria"), 1000);
}

} // namespace kova::family::test
