#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"
#include "family/business/registers/employees.hpp"
#include "family/business/registers/service_types.hpp"
#include "family/data/sources/shared_database.hpp"
#include "system/path_text.hpp"

namespace kova::family::test {

class Members : public ShopTest { };

namespace {

template <class Action> std::int32_t NumberOfFailure(Action action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

class User : public Object { };

} // namespace

TEST_F(Members, OfAnUnknownNameFailWith438)
{
    Agenda agenda(host_);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Call("Inexistente"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Call("selecionar"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Get("Inexistente"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Set("Inexistente", 1); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Set("Selecionar", 1); }), 438);
}

TEST_F(Members, WithAWrongCountOfArgumentsFailWith450)
{
    Agenda agenda(host_);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Call("Selecionar"); }), 450);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Get("Selecionar"); }), 450);
    std::vector<Argument> nine = DayArguments("20/11/2026");
    nine.push_back(Long(0));
    EXPECT_EQ(NumberOfFailure([&] { agenda.Call("Selecionar", nine); }), 450);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Call("NumeroDoErro", {Long(1)}); }), 450);
}

TEST_F(Members, ThatAreReadOnlyRefuseAWriteWith450)
{
    Agenda agenda(host_);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Set("NumeroDoErro", Long(1)); }), 450);
}

TEST_F(Members, OfTheUserTakeAnObjectOnlyAndCannotBeRead)
{
    Agenda agenda(host_);
    EXPECT_NO_THROW(agenda.Set("DadosDoUsuario", std::make_shared<User>()));
    EXPECT_EQ(NumberOfFailure([&] { agenda.Set("DadosDoUsuario", "Carla"); }), 13);
    EXPECT_EQ(NumberOfFailure([&] { agenda.Get("DadosDoUsuario"); }), 438);
}

TEST_F(Members, OfTheResultAreEmptyBeforeASelection)
{
    Agenda agenda(host_);
    EXPECT_TRUE(agenda.Get("ResultadoDaSelecaoEmRecordSet").IsEmpty());
    EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(Long(0)));
}

TEST_F(Members, TellATechnicalFailureAndForgetItAtTheNextCall)
{
    Agenda agenda(host_);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026")), Value(Integer(0)));
    const RecordSetRef former = ResultOf(agenda);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("__/__/____")), Value(Integer(1)));
    EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(Long(13)));
    EXPECT_EQ(agenda.Get("DescricaoDoErro"), Value("A data da lista não é válida: \"__/__/____\"."));
    EXPECT_EQ(agenda.Get("LocalDoErro"), Value("KOVA_N_Agenda.clsAgenda, Selecionar"));
    EXPECT_EQ(ResultOf(agenda), former);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026")), Value(Integer(0)));
    EXPECT_EQ(agenda.Get("NumeroDoErro"), Value(Long(0)));
    EXPECT_EQ(agenda.Get("DescricaoDoErro"), Value(""));
}

TEST_F(Members, OfEverySelectionAnswerAStatusWhereTheDatabaseIsMissing)
{
    TestHost host(folder_ / "nenhum.db");
    Double all = 0;
    Agenda agenda(host);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026")), Value(Integer(1)));
    EXPECT_NE(agenda.Get("DescricaoDoErro").ToText().find(host.DataSource()), std::string::npos);
    ServiceTypes types(host);
    EXPECT_EQ(types.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(1)));
    EXPECT_EQ(types.Get("LocalDoErro"), Value("KOVA_N_TipoDeServ.clsTiposDeServ, SelecionarParaComboBox"));
    EXPECT_NE(types.Get("NumeroDoErro"), Value(Long(0)));
    EXPECT_FALSE(std::filesystem::exists(system::PathOf(host.DataSource())));
}

TEST_F(Members, AnswerAStatusWhereATableIsGoneAndRecoverWhenItIsBack)
{
    Double all = 0;
    Employees employees(host_);
    ASSERT_EQ(employees.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(0)));
    soci::session& session = SharedDatabase(host_.DataSource())->Session();
    session << "alter table funcionario rename to escondido";
    EXPECT_EQ(employees.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(1)));
    EXPECT_NE(employees.Get("DescricaoDoErro").ToText().find("funcionario"), std::string::npos);
    session << "alter table escondido rename to funcionario";
    EXPECT_EQ(employees.Call("SelecionarParaComboBox", {ByRef(all)}), Value(Integer(0)));
}

TEST_F(Members, OfAllComponentsShareOneConnection)
{
    const auto first = SharedDatabase(host_.DataSource());
    EXPECT_EQ(SharedDatabase(host_.DataSource()), first);
}

} // namespace kova::family::test
