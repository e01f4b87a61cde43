// Appointments of customers who are not registered, from the form to the day's list.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

namespace kova::family::test {

class SimplifiedWrites : public BookingTest {
protected:
    /// The day's only appointment, as the list reads it.
    RecordSetRef Shown(const std::string& date)
    {
        Agenda agenda(host_);
        EXPECT_EQ(agenda.Call("Selecionar", DayArguments(date)), Value(Integer(0)));
        RecordSetRef records = ResultOf(agenda);
        EXPECT_EQ(records->RecordCount(), 1);
        return records;
    }
};

TEST_F(SimplifiedWrites, ShowInTheSelectionOfTheirDayAsTheyWereTyped)
{
    ASSERT_EQ(Write(*Simplified(On("01/12/2026", "9:05", "10:00"))), 0);
    const RecordSetRef shown = Shown("01/12/2026");
    const std::pair<const char*, Value> fields[] = {
        {"NumeroDeLancamento", 24.0},
        {"DataInicial", "01/12/2026"},
        {"HoraInicial", "09:05"},
        {"DataFinal", "01/12/2026"},
        {"HoraFinal", "10:00"},
        {"CodigoDoCliente", ""},
        {"ApelidoOuNomeFantasiaDoCliente", "Íris Conceição"},
        {"NomeOuRazaoSocialDoCliente", "Íris Conceição"},
        {"TipoDeCliente", "PF"},
        {"EnderecoCompletoComCEP", ""},
        {"TiposECanaisDeComunicacao", "(00) 90000-0001"},
        {"CodigoDoAnimal", ""},
        {"NomeDoAnimal", "Bidu"},
        {"SexoDoAnimal", "Fêmea"},
        {"CodigoDaEspecie", Long(0)},
        {"NomeDaEspecie", "Felina"},
        {"CodigoDaRaca", Long(0)},
        {"NomeDaRaca", "Siamês"},
        {"PorteDoAnimal", ""},
        {"CorDoAnimal", "Creme"},
        {"ObservacaoDoAnimal", Null()},
        {"NumeroDoTipoDeServico", Long(4)},
        {"NomeDoTipoDeServico", "Banho e tosa"},
        {"CodigoDoServico", 2.0},
        {"NomeDoServico", "Banho"},
        {"TempoDeExecucao", "01:15"},
        {"CodigoDoFuncionario", Long(2)},
        {"ApelidoDoFuncionario", "Bia"},
        {"NomeDoFuncionario", "Beatriz"},
        {"Observacao", "Arisca."},
        {"TransporteBuscar", "Não"},
        {"TransporteLevar", "Não"},
        {"Situacao", Long(1)},
        {"DataEHoraDaInclusao", "20/11/2026 09:04:05"},
        {"UsuarioDaInclusao", "Lia"},
        {"DataEHoraDaAlteracao", Null()},
        {"UsuarioDaAlteracao", Null()},
    };
    ASSERT_EQ(shown->FieldCount(), static_cast<int>(std::size(fields)));
    for (const auto& [name, value] : fields)
        EXPECT_EQ(shown->Field(name), value) << name;
}

TEST_F(SimplifiedWrites, AreFoundByTheTypedNames)
{
    ASSERT_EQ(Write(*Simplified(On("20/11/2026", "19:00", "20:00"))), 0);
    EXPECT_EQ(Find("iris conc"), (std::vector<int>{4, 24}));
    EXPECT_EQ(Find("BIDU"), (std::vector<int>{4, 24}));
}

TEST_F(SimplifiedWrites, KeepSexMayBeMissingAndARemarkThatIsBlankIsNull)
{
    const auto desk = Simplified(On("01/12/2026"));
    for (const char* name : {"SexoDoAnimal", "EspecieDoAnimal", "RacaDoAnimal", "CorDoAnimal", "Observacao",
                             "CanaisdeComunicacaoDoCliente"})
        desk->Set(name, " \r\n ");
    ASSERT_EQ(Write(*desk), 0);
    const RecordSetRef shown = Shown("01/12/2026");
    for (const char* name :
         {"SexoDoAnimal", "NomeDaEspecie", "NomeDaRaca", "CorDoAnimal", "TiposECanaisDeComunicacao"})
        EXPECT_EQ(shown->Field(name), Value("")) << name;
    EXPECT_TRUE(shown->Field("Observacao").IsNull());
}

TEST_F(SimplifiedWrites, StoreEveryLetterAsItIs)
{
    const std::pair<const char*, Text> typed[] = {
        {"NomeOuRazaoSocialDoCliente", "D'Ávila \"Zé\"'); drop table agendamento; --"},
        {"CanaisdeComunicacaoDoCliente", "%_!:nome :numero ?1 $x"},
        {"NomeDoAnimal", "🐶👩‍🦰 كلب שלום"},
        {"EspecieDoAnimal", "𝕱elina"},
        {"RacaDoAnimal", "\\N {\"a\":1}"},
        {"CorDoAnimal", "e\u0301 ё"},
        {"Observacao", "'' \"\" `` ; -- /* */"},
    };
    const auto desk = Simplified(On("01/12/2026"));
    for (const auto& [name, text] : typed)
        desk->Set(name, text);
    ASSERT_EQ(Write(*desk), 0);
    const RecordSetRef shown = Shown("01/12/2026");
    const char* fields[] = {"NomeOuRazaoSocialDoCliente",
                            "TiposECanaisDeComunicacao",
                            "NomeDoAnimal",
                            "NomeDaEspecie",
                            "NomeDaRaca",
                            "CorDoAnimal",
                            "Observacao"};
    for (std::size_t at = 0; at < std::size(typed); ++at)
        EXPECT_EQ(shown->Field(fields[at]), Value(typed[at].second)) << fields[at];
    EXPECT_EQ(Count("agendamento"), 13);
}

TEST_F(SimplifiedWrites, CutWhatIsTooLongBetweenTwoCharacters)
{
    Text cats;
    for (int at = 0; at < 120; ++at)
        cats += "🐈";
    const auto desk = Simplified(On("01/12/2026"));
    for (const char* name : {"NomeOuRazaoSocialDoCliente", "NomeDoAnimal", "RacaDoAnimal", "Observacao"})
        desk->Set(name, cats);
    ASSERT_EQ(Write(*desk), 0);
    const RecordSetRef shown = Shown("01/12/2026");
    EXPECT_EQ(shown->Field("NomeOuRazaoSocialDoCliente"), Value(cats.substr(0, 400)));
    EXPECT_EQ(shown->Field("NomeDoAnimal"), Value(cats.substr(0, 400)));
    EXPECT_EQ(shown->Field("NomeDaRaca"), Value(cats.substr(0, 200)));
    EXPECT_EQ(shown->Field("Observacao"), Value(cats.substr(0, 400)));
}

TEST_F(SimplifiedWrites, MayFallOnASundayOrAHoliday)
{
    Run("insert into feriado (nome, data) values ('Aniversário', '2026-12-01')");
    EXPECT_EQ(Write(*Simplified(On("01/12/2026"))), 0);
    EXPECT_EQ(Write(*Simplified(On("06/12/2026"))), 0);
}

TEST_F(SimplifiedWrites, KnowNoRepetitionAndNoPackage)
{
    const auto desk = Simplified(On("01/12/2026"));
    desk->Set("CodigoDoServico", 3.0);
    desk->Set("QuantidadeDeReagendamentos", Long(3));
    desk->Set("FrequenciaDeReagendamento", Integer(0));
    ASSERT_EQ(Write(*desk), 0);
    EXPECT_EQ(AddedDays(), std::vector<std::string>{"2026-12-01"});
    EXPECT_EQ(Count("pacote"), 1);
}

TEST_F(SimplifiedWrites, ReplaceEverythingThatCanBeTyped)
{
    ASSERT_EQ(Write(*Simplified(On("01/12/2026"))), 0);
    desk_.now.time = {11, 0, 0};
    const auto desk = Over(24, Simplified(On("02/12/2026", "15:00", "16:30")));
    desk->Set("NomeOuRazaoSocialDoCliente", "Caio");
    desk->Set("NomeDoAnimal", "Rex");
    desk->Set("SexoDoAnimal", "M");
    desk->Set("Observacao", "");
    desk->Set("Situacao", Long(2));
    desk->Set("DadosDoUsuario", std::make_shared<DeskUser>("Rui"));
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    const RecordSetRef shown = Shown("02/12/2026");
    EXPECT_EQ(shown->Field("NumeroDeLancamento"), Value(24.0));
    EXPECT_EQ(shown->Field("NomeOuRazaoSocialDoCliente"), Value("Caio"));
    EXPECT_EQ(shown->Field("SexoDoAnimal"), Value("Macho"));
    EXPECT_EQ(shown->Field("HoraFinal"), Value("16:30"));
    EXPECT_TRUE(shown->Field("Observacao").IsNull());
    EXPECT_EQ(shown->Field("Situacao"), Value(Long(2)));
    EXPECT_EQ(shown->Field("DataEHoraDaInclusao"), Value("20/11/2026 09:04:05"));
    EXPECT_EQ(shown->Field("UsuarioDaInclusao"), Value("Lia"));
    EXPECT_EQ(shown->Field("DataEHoraDaAlteracao"), Value("20/11/2026 11:00:00"));
    EXPECT_EQ(shown->Field("UsuarioDaAlteracao"), Value("Rui"));
    EXPECT_TRUE(FindOn("01/12/2026").empty());
}

TEST_F(SimplifiedWrites, DeleteWhateverElseIsSet)
{
    ASSERT_EQ(Write(*Simplified(On("01/12/2026"))), 0);
    const auto desk = Over(24, Simplified(On("", "", "")));
    desk->Set("NomeDoAnimal", "");
    ASSERT_EQ(Write(*desk, "Excluir"), 0);
    EXPECT_EQ(desk->Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    EXPECT_TRUE(FindOn("01/12/2026").empty());
    EXPECT_EQ(Count("agendamento"), 12);
}

TEST_F(SimplifiedWrites, NeverGiveANumberTwice)
{
    ASSERT_EQ(Write(*Simplified(On("01/12/2026"))), 0);
    ASSERT_EQ(Write(*Over(24, Simplified(On("01/12/2026"))), "Excluir"), 0);
    ASSERT_EQ(Write(*Simplified(On("01/12/2026"))), 0);
    EXPECT_EQ(FindOn("01/12/2026"), std::vector<int>{25});
}

TEST_F(SimplifiedWrites, OfAGoneAppointmentAreRefused)
{
    for (const int number : {0, 24, -3}) {
        ExpectAnswer(*Over(number, Simplified(On("01/12/2026"))), "Alterar", 3, "",
                     "O agendamento não existe mais.");
        ExpectAnswer(*Over(number, Simplified(On("01/12/2026"))), "Excluir", 3, "",
                     "O agendamento não existe mais.");
    }
}

TEST_F(SimplifiedWrites, AskForAUserFirst)
{
    for (const char* member : {"Adicionar", "Alterar", "Excluir"}) {
        const auto desk = Over(4, Simplified(On("", "", "")));
        desk->Set("DadosDoUsuario", ObjectRef());
        ExpectFailed(*desk, member, 91, "Usuário não informado.");
    }
}

} // namespace kova::family::test
