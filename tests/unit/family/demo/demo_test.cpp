#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/checks/database_check.hpp"
#include "family/data/checks/documents.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/demo/shop.hpp"
#include "family/registers/registers.hpp"

#include <set>

namespace kova::family::test {

namespace {

class DemonstrationShop : public testing::Test {
protected:
    DemonstrationShop() : path_(folder_ / "loja.db") { CreateShop(path_, DemonstrationPlan({2026, 11, 20})); }

    long long Count(const std::string& fromAndWhere)
    {
        long long count = 0;
        OpenForReading(path_)->Session() << "select count(*) from " + fromAndWhere, soci::into(count);
        return count;
    }

    using Lines = std::vector<std::string>;

    Lines Texts(const std::string& selection)
    {
        const auto database = OpenForReading(path_);
        const soci::rowset<std::string> rows = (database->Session().prepare << selection);
        return {rows.begin(), rows.end()};
    }

    TemporaryFolder folder_;
    std::string path_;
};

} // namespace

TEST_F(DemonstrationShop, IsTheSameForTheSameDate)
{
    CreateShop(folder_ / "outra.db", DemonstrationPlan({2026, 11, 20}));
    CreateShop(folder_ / "depois.db", DemonstrationPlan({2026, 11, 21}));
    EXPECT_EQ(ContentOf(folder_ / "outra.db"), ContentOf(path_));
    EXPECT_NE(ContentOf(folder_ / "depois.db"), ContentOf(path_));
}

/// What guides and pictures show of it is there in every version.
TEST_F(DemonstrationShop, HasTheSameContentAsEver)
{
    EXPECT_EQ(Texts("select situacao || ' ' || count(*) || ' ' || sum(codigo_do_cliente) || ' '"
                    " || sum(transporte_buscar + 2 * transporte_levar) || ' ' || count(observacao) || ' '"
                    " || count(alterado_em) || ' ' || count(codigo_do_pacote) || ' ' || max(hora_final)"
                    " from agendamento group by situacao order by situacao"),
              (Lines{"1 2001 360090 860 617 195 294 19:00", "2 1382 235299 246 423 1382 76 19:00",
                     "3 340 63459 115 107 340 40 19:00", "4 619 131045 496 200 619 129 19:00"}));
    EXPECT_EQ(Texts("select situacao || ' ' || count(*) || ' ' || sum(valor_em_centavos) from pre_venda"
                    " group by situacao order by situacao"),
              (Lines{"1 95 1499500", "3 524 6971000"}));
    EXPECT_EQ(Texts("select situacao || ' ' || tipo_de_pessoa || ' ' || categoria_da_curva_abc || ' '"
                    " || count(*) || ' ' || sum(vip) from cliente"
                    " group by situacao, tipo_de_pessoa, categoria_da_curva_abc order by 1"),
              (Lines{"1 PF A 73 4", "1 PF B 115 7", "1 PF C 168 9", "1 PJ A 7 1", "1 PJ B 2 0", "1 PJ C 12 0",
                     "2 PF A 4 1", "2 PF B 1 0", "2 PF C 8 0", "3 PF A 2 0", "3 PF B 2 0", "3 PF C 2 0",
                     "4 PF A 1 1", "4 PF B 1 0", "4 PF C 1 0", "4 PJ C 1 0"}));
    EXPECT_EQ(Texts("select situacao || ' ' || sexo || ' ' || count(*) || ' ' || count(microchip) || ' '"
                    " || sum(codigo_da_raca) from animal group by situacao, sexo order by 1"),
              (Lines{"1 F 268 125 3697", "1 M 279 119 4044", "2 F 11 4 148", "2 M 11 4 143"}));
    EXPECT_EQ(Texts("select count(*) || ' ' || sum(quantidade_de_sessoes) || ' ' || max(codigo) from servico"
                    " union all select count(*) || ' ' || sum(codigo_da_especie) || ' ' || max(codigo)"
                    " from raca union all select count(*) || ' ' || max(codigo) || ' ' || min(apelido)"
                    " from funcionario"),
              (Lines{"18 12 18", "28 49 28", "10 10 Bia"}));
    EXPECT_EQ(Texts("select a.data_inicial || ' ' || a.hora_inicial || ' ' || c.nome || ' ' || n.nome || ' '"
                    " || s.nome from agendamento a join cliente c on c.codigo = a.codigo_do_cliente"
                    " join animal n on n.codigo = a.codigo_do_animal join servico s on s.codigo ="
                    " a.codigo_do_servico where a.numero in (1, 2000) order by a.numero"),
              (Lines{"2026-09-21 11:15 Paulo Conceição Carvalho Mimi Banho e tosa completa",
                     "2026-11-15 08:00 Alice Santana Cardoso Florzinha Retorno de consulta"}));
}

TEST_F(DemonstrationShop, IsSound) { EXPECT_EQ(CheckDatabase(path_).problems, std::vector<std::string>()); }

TEST_F(DemonstrationShop, HoldsWhatAFormWouldTake)
{
    const auto database = OpenForReading(path_);
    for (const registers::Register* one : registers::Registers())
        one->Judge(*database, [&](const registers::JudgedField& field) {
            ADD_FAILURE() << one->Name().name << " " << field.key << " " << field.text << ": " << field.why;
        });
}

// 901 to 909 are dialled before a number that is to pay for the call.
TEST_F(DemonstrationShop, HasPhoneNumbersThatAreNobodys)
{
    const std::string nobodys = " like '(1_) 90_%'";
    EXPECT_GT(Count("canal_de_comunicacao where tipo = 'Telefone'"), 0);
    EXPECT_EQ(Count("canal_de_comunicacao where tipo <> 'E-mail' and not canal" + nobodys), 0);
    EXPECT_EQ(Count("canal_de_comunicacao where canal like '(1_) 900%' or canal like '(10)%'"), 0);
    EXPECT_EQ(Count("agendamento where canais_do_cliente <> '' and not canais_do_cliente" + nobodys), 0);
    EXPECT_EQ(Count("empresa where telefone" + nobodys), 1);
}

TEST_F(DemonstrationShop, HasAboutFortyAppointmentsADayAndFewerOnSundays)
{
    for (Long day = -60; day <= 60; ++day) {
        const Date date = AddDays({2026, 11, 20}, day);
        char iso[40];
        std::snprintf(iso, sizeof iso, "%04d-%02d-%02d", date.year, date.month, date.day);
        const long long count = Count(std::string("agendamento where data_inicial = '") + iso + "'");
        EXPECT_GE(count, Weekday(date) == 1 ? 8 : 36) << iso;
        EXPECT_LE(count, Weekday(date) == 1 ? 12 : 44) << iso;
    }
}

TEST_F(DemonstrationShop, HasEveryKindOfRow)
{
    for (const char* kind :
         {"agendamento where situacao = 1",
          "agendamento where situacao = 2",
          "agendamento where situacao = 3",
          "agendamento where situacao = 4",
          "agendamento where tipo_do_agendamento = 1",
          "agendamento where codigo_do_pacote is not null",
          "agendamento where observacao is null",
          "agendamento where observacao is not null",
          "agendamento where alterado_em is null",
          "agendamento where alterado_em is not null",
          "agendamento where transporte_buscar = 1 and transporte_levar = 1",
          "agendamento where data_inicial = '2026-11-20' and situacao = 1",
          "agendamento where data_inicial = '2026-11-20' and situacao = 2",
          "cliente where situacao = 2",
          "cliente where situacao = 3",
          "cliente where situacao = 4",
          "cliente where tipo_de_pessoa = 'PJ'",
          "cliente where vip = 1",
          "cliente where categoria_da_curva_abc = 'A'",
          "cliente where categoria_da_curva_abc = 'B'",
          "cliente where categoria_da_curva_abc = 'C'",
          "animal where situacao = 2",
          "animal where microchip is not null",
          "cliente c where not exists"
          " (select 1 from animal n where n.codigo_do_cliente = c.codigo)",
          "(select 1 from animal where situacao = 1 group by codigo_do_cliente"
          " having count(*) = 1)",
          "(select 1 from animal where situacao = 1 group by codigo_do_cliente"
          " having count(*) > 1)",
          "especie e where not exists (select 1 from raca where codigo_da_especie = e.codigo)",
          "especie e where exists (select 1 from raca where codigo_da_especie = e.codigo)",
          "servico where quantidade_de_sessoes is not null",
          "servico where situacao = 2",
          "funcionario where situacao = 2",
          "funcionario where agendamentos_simultaneos = 0",
          "funcionario where agendamentos_simultaneos = 1",
          "funcionario where agendamentos_simultaneos = 2",
          "pre_venda where situacao = 1",
          "pre_venda where situacao = 3",
          "feriado where data is null",
          "feriado where data is not null"})
        EXPECT_GT(Count(kind), 0) << kind;
}

TEST_F(DemonstrationShop, HasAnActiveServiceOfEveryTypeAndSeveralWithAWordInCommon)
{
    EXPECT_EQ(Count("tipo_de_servico t where not exists (select 1 from servico"
                    " where situacao = 1 and numero_do_tipo_de_servico = t.numero)"),
              0);
    EXPECT_GT(Count("servico where situacao = 1 and nome_de_busca like '%banho%'"), 1);
}

TEST_F(DemonstrationShop, HasTheHolidaysOfACenturyAndThoseOfItsTown)
{
    for (const char* date : {"2000-04-21", "2100-05-27"})
        EXPECT_EQ(Count("feriado where data = '" + std::string(date) + "'"), 1) << date;
    EXPECT_EQ(Count("feriado where nome = 'Aniversário de Vale Sereno' and data is null"), 1);
}

TEST_F(DemonstrationShop, IsOpenFromMondayToSaturdayAtAllHoursAndNobodyIsAway)
{
    EXPECT_EQ(Count("expediente"), 6);
    EXPECT_EQ(Count("expediente where dia_da_semana between 2 and 7 and hora_inicial = '00:00'"
                    " and hora_final = '24:00'"),
              6);
    EXPECT_EQ(Count("horario_do_funcionario") + Count("ausencia"), 0);
}

TEST_F(DemonstrationShop, NeverBooksAnEmployeeBeyondTheLimit)
{
    EXPECT_EQ(Count("agendamento a join funcionario f on f.codigo = a.codigo_do_funcionario"
                    " where f.agendamentos_simultaneos > 0"
                    " and f.agendamentos_simultaneos < (select count(*) from agendamento b"
                    " where b.codigo_do_funcionario = a.codigo_do_funcionario"
                    " and b.data_inicial = a.data_inicial and b.hora_inicial <= a.hora_inicial"
                    " and b.hora_final > a.hora_inicial and b.situacao <> 3)"),
              0);
}

TEST_F(DemonstrationShop, GivesEveryPreSaleToAnAttendedAppointmentOfARegisteredCustomer)
{
    EXPECT_EQ(Count("agendamento where situacao = 4"), Count("pre_venda"));
    EXPECT_EQ(Count("agendamento where situacao = 4 and"
                    " (numero_do_tipo_de_servico < 4 or codigo_do_cliente is null)"),
              0);
}

TEST_F(DemonstrationShop, GivesAnimalsToTheirOwners)
{
    EXPECT_EQ(Count("agendamento a join animal n on n.codigo = a.codigo_do_animal"
                    " where n.codigo_do_cliente <> a.codigo_do_cliente"),
              0);
}

TEST(MeasuringPlan, MakesExactlyWhatWasAskedFor)
{
    const TemporaryFolder folder;
    CreateShop(folder / "grande.db", MeasuringPlan({2026, 11, 20}, 300, 5000));
    std::map<std::string, long long> rows;
    for (const TableCount& table : CheckDatabase(folder / "grande.db").tables)
        rows[table.name] = table.rows;
    EXPECT_EQ(rows["cliente"], 300);
    EXPECT_EQ(rows["agendamento"], 5000);
    EXPECT_THROW(MeasuringPlan({2026, 11, 20}, 0, 1), Failure);
}

TEST(MeasuringPlan, WithFewEmployeesGivesThemAllThereIsToDoAndLeavesItsAudit)
{
    const TemporaryFolder folder;
    ShopPlan plan = MeasuringPlan({2026, 11, 20}, 50, 1000, FewestEmployees);
    plan.appointments.audited = true;
    CreateShop(folder / "poucos.db", plan);
    const DatabaseReport check = CheckDatabase(folder / "poucos.db");
    EXPECT_EQ(check.problems, std::vector<std::string>());
    std::map<std::string, long long> rows;
    for (const TableCount& table : check.tables)
        rows[table.name] = table.rows;
    EXPECT_EQ(rows["funcionario"], FewestEmployees);
    EXPECT_EQ(rows["agendamento"], 1000);
    long long changed = 0;
    OpenForReading(folder / "poucos.db")->Session()
        << "select count(*) from agendamento where alterado_em is not null",
        soci::into(changed);
    EXPECT_GT(changed, 0);
    EXPECT_EQ(rows["auditoria"], 1000 + changed);
    EXPECT_THROW(MeasuringPlan({2026, 11, 20}, 50, 1000, FewestEmployees - 1), Failure);
}

TEST(Documents, EndInTheirCheckDigits)
{
    EXPECT_EQ(WithCpfCheckDigits("123456789"), "12345678909");
    EXPECT_EQ(WithCnpjCheckDigits("112223330001"), "11222333000181");
    EXPECT_EQ(WithCnpjCheckDigits("12ABC34501DE"), "12ABC34501DE35");
}

TEST(Documents, AreShownWithTheirPunctuation)
{
    EXPECT_EQ(ShownDocument("12345678909"), "123.456.789-09");
    EXPECT_EQ(ShownDocument("11222333000181"), "11.222.333/0001-81");
    EXPECT_EQ(ShownDocument("12ABC34501DE35"), "12.ABC.345/01DE-35");
    EXPECT_EQ(ShownDocument("123"), "123");
    EXPECT_EQ(ShownDocument(""), "");
}

} // namespace kova::family::test
