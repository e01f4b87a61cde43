#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

Hours On(const Text& date, const Text& start, const Text& end) { return {date, start, date, end}; }

ArrayRef Picked(const std::vector<Hours>& rows)
{
    auto table = std::make_shared<Array>(3, static_cast<Long>(rows.size()));
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const Long row = static_cast<Long>(at);
        table->At(0, row) = rows[at].startDate;
        table->At(1, row) = rows[at].startTime;
        table->At(2, row) = rows[at].endDate;
        table->At(3, row) = rows[at].endTime;
    }
    return table;
}

namespace {

void SetAll(Component& agenda, std::initializer_list<std::pair<const char*, Value>> properties)
{
    for (const auto& [name, value] : properties)
        agenda.Set(name, value);
}

void SetHours(Component& agenda, const Hours& hours)
{
    SetAll(agenda,
           {{"DataInicial", hours.startDate},
            {"HoraInicial", hours.startTime},
            {"DataFinal", hours.endDate},
            {"HoraFinal", hours.endTime}});
}

} // namespace

BookingTest::BookingTest()
{
    Database& database = *SharedDatabase(host_.DataSource());
    Insert(database, ServiceRow{3, "Pacote de banhos", "pacote de banhos", "", 4, 60, 20000, 0, 4, 1});
}

BookingTest::Desk BookingTest::Full(const Hours& hours)
{
    auto agenda = std::make_unique<Agenda>(desk_);
    agenda->Set("Situacao", Integer(1));
    agenda->Set("CodigoDoFuncionario", Long(2));
    SetHours(*agenda, hours);
    SetAll(*agenda,
           {{"CodigoDoServico", 2.0},
            {"CodigoDoCliente", 10.0},
            {"CodigoDoAnimal", Long(50)},
            {"NumeroDoTipoDeServico", Long(4)},
            {"Observacao", "Laço azul."},
            {"TransporteBuscar", Long(-1)},
            {"TransporteLevar", Long(0)},
            {"CriadaListaDasDatasEHorasSelecionadas", false},
            {"QuantidadeDeReagendamentos", Long(0)},
            {"FrequenciaDeReagendamento", Integer(-1)},
            {"TipoDoAgendamento", Long(0)},
            {"DadosValidados", false},
            {"DomingoOuFeriado", false},
            {"DadosDoUsuario", std::make_shared<DeskUser>("Lia")}});
    return agenda;
}

BookingTest::Desk BookingTest::Simplified(const Hours& hours)
{
    auto agenda = std::make_unique<Agenda>(desk_);
    agenda->Set("Situacao", Integer(1));
    agenda->Set("CodigoDoFuncionario", Long(2));
    SetHours(*agenda, hours);
    SetAll(*agenda,
           {{"CodigoDoServico", 2.0},
            {"NomeOuRazaoSocialDoCliente", "Íris Conceição"},
            {"CanaisdeComunicacaoDoCliente", "(00) 90000-0001"},
            {"NomeDoAnimal", "Bidu"},
            {"SexoDoAnimal", "F"},
            {"EspecieDoAnimal", "Felina"},
            {"RacaDoAnimal", "Siamês"},
            {"CorDoAnimal", "Creme"},
            {"NumeroDoTipoDeServico", Long(4)},
            {"Observacao", "Arisca."},
            {"TipoDoAgendamento", Long(1)},
            {"DadosDoUsuario", std::make_shared<DeskUser>("Lia")}});
    return agenda;
}

BookingTest::Desk BookingTest::Over(int number, Desk desk)
{
    desk->Set("NumeroDeLancamento", static_cast<Double>(number));
    return desk;
}

Integer BookingTest::Write(Component& agenda, const char* member)
{
    const Integer status = agenda.Call(member).ToInteger();
    if (status != 0)
        ADD_FAILURE() << member << ": " << agenda.Get("NomeDoCampoValidado").ToText() << " "
                      << agenda.Get("DescricaoDaFalha").ToText() << agenda.Get("DescricaoDoErro").ToText();
    return status;
}

void BookingTest::ExpectAnswer(Component& agenda, const char* member, Integer status, const Text& field,
                               const Text& text)
{
    const auto before = Contents();
    EXPECT_EQ(agenda.Call(member), Value(status));
    EXPECT_EQ(agenda.Get("NomeDoCampoValidado"), Value(field));
    EXPECT_EQ(agenda.Get("DescricaoDaFalha"), Value(text));
    EXPECT_EQ(agenda.Get("RegistroPercenteAUmPacoteDeBanhoETosa"), Value(false));
    EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(Long(0)));
    EXPECT_EQ(Contents(), before);
}

void BookingTest::ExpectFailed(Component& agenda, const char* member, Long number, const Text& text)
{
    const auto before = Contents();
    EXPECT_EQ(agenda.Call(member), Value(Integer(1)));
    EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(number));
    EXPECT_EQ(agenda.Get("DescricaoDoErro"), Value(text));
    EXPECT_EQ(agenda.Get("LocalDoErro"), Value(std::string("KOVA_N_Agenda.clsAgenda, ") + member));
    EXPECT_EQ(agenda.Get("DescricaoDaFalha"), Value(""));
    EXPECT_EQ(agenda.Get("NomeDoCampoValidado"), Value(""));
    EXPECT_EQ(Contents(), before);
}

std::vector<std::string> BookingTest::Contents()
{
    std::vector<std::string> all =
        Texts("select numero || '|' || data_inicial || '|' || hora_inicial || '|' || data_final || '|'"
              " || hora_final || '|' || tipo_do_agendamento || '|' || coalesce(cast(codigo_do_cliente as "
              "text), '-') || '|'"
              " || coalesce(cast(codigo_do_animal as text), '-') || '|' || nome_do_cliente || '|' || "
              "canais_do_cliente"
              " || '|' || nome_do_animal || '|' || sexo_do_animal || '|' || especie_do_animal || '|'"
              " || raca_do_animal || '|' || cor_do_animal || '|' || numero_do_tipo_de_servico || '|'"
              " || codigo_do_servico || '|' || codigo_do_funcionario || '|' || "
              "coalesce(cast(codigo_do_pacote as text), '-')"
              " || '|' || coalesce(observacao, '-') || '|' || transporte_buscar || '|' || transporte_levar"
              " || '|' || situacao || '|' || incluido_em || '|' || incluido_por || '|'"
              " || coalesce(alterado_em, '-') || '|' || coalesce(alterado_por, '-') || '|'"
              " || texto_de_busca from agendamento order by numero");
    for (const auto& more :
         {PreSales(), Audit(), Texts("select codigo || ' ' || codigo_do_servico from pacote")})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::vector<std::string> BookingTest::Added()
{
    return Texts("select data_inicial || ' ' || hora_inicial || '-' || data_final || ' ' || hora_final"
                 " from agendamento where numero > "
                 + std::to_string(Stored) + " order by numero");
}

std::vector<std::string> BookingTest::AddedDays()
{
    return Texts("select data_inicial from agendamento where numero > " + std::to_string(Stored)
                 + " order by numero");
}

} // namespace kova::family::test
