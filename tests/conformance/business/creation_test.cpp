#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

namespace {

constexpr const char* Classes[] = {AgendaClass,    TypesClass,   EmployeesClass, CompanyClass,
                                   SystemClass,    SpeciesClass, BreedsClass,    ServicesClass,
                                   CustomersClass, AnimalsClass, HolidaysClass};

} // namespace

class Creation : public BusinessTest { };
KOVA_OVER_EVERY_ENGINE(Creation);

TEST_P(Creation, FindsEveryClassByItsName)
{
    for (const char* name : Classes)
        EXPECT_NE(Create(name), nullptr) << name;
}

TEST_P(Creation, MakesANewObjectEachTime)
{
    for (const char* name : Classes) {
        const ComponentRef first = Create(name);
        EXPECT_NE(Create(name), first) << name;
    }
}

TEST_P(Creation, FailsWith429AndNamesTheClassAndTheCause)
{
    TheEngine().RefuseToCreate(TypesClass);
    try {
        Create(TypesClass);
        FAIL() << "the class was created";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 429);
        EXPECT_NE(failure.Description().find(TypesClass), std::string::npos) << failure.Description();
        EXPECT_NE(failure.Description().find("não foi encontrada"), std::string::npos)
            << failure.Description();
    }
}

TEST_P(Creation, OfOneClassMayFailWhileTheOthersAreStillMade)
{
    TheEngine().RefuseToCreate(TypesClass);
    EXPECT_EQ(NumberOfFailure([&] { Create(TypesClass); }), 429);
    EXPECT_NE(Create(EmployeesClass), nullptr);
}

/// Engines that know their classes and members.
class CheckedNames : public BusinessTest { };
KOVA_OVER_ENGINES(CheckedNames, EnginesWith(&EngineKind::checksNames));

TEST_P(CheckedNames, RefuseAClassThatIsNotThereAndNameIt)
{
    for (const char* name : {"KOVA_N_Nada.clsNada", "KOVA_N_Agenda.clsagenda", ""}) {
        try {
            Create(name);
            FAIL() << name << " was created";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), 429);
            EXPECT_NE(failure.Description().find(std::string("'") + name + "'"), std::string::npos)
                << failure.Description();
        }
    }
}

TEST_P(CheckedNames, RefuseAMemberThatIsNotThereWith438)
{
    for (const char* name : Classes) {
        const ComponentRef object = Create(name);
        EXPECT_EQ(NumberOfFailure([&] { object->Get("Inexistente"); }), 438) << name;
        EXPECT_EQ(NumberOfFailure([&] { object->Set("Inexistente", Long(1)); }), 438) << name;
        EXPECT_EQ(NumberOfFailure([&] { object->Call("Inexistente", {Long(1)}); }), 438) << name;
        EXPECT_EQ(NumberOfFailure([&] { object->Call("Inexistente"); }), 438) << name;
    }
}

TEST_P(CheckedNames, CompareLetterForLetter)
{
    const ComponentRef agenda = Create(AgendaClass);
    EXPECT_EQ(NumberOfFailure([&] { agenda->Get("numerodoerro"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { agenda->Call("PaginarResultadoDaSelecaoEmRecordSet"); }), 438);
    EXPECT_EQ(NumberOfFailure([&] { Create(SystemClass)->Call("ObterVersaoDoSO"); }), 438);
}

TEST_P(CheckedNames, RefuseAWrongCountOfArgumentsWith450)
{
    const auto failure = [&](const char* name, const char* member, std::vector<Argument> arguments) {
        return NumberOfFailure([&] { Create(name)->Call(member, std::move(arguments)); });
    };
    EXPECT_EQ(failure(AgendaClass, "Selecionar", {}), 450);
    EXPECT_EQ(
        failure(AgendaClass, "Selecionar", {Long(2), Integer(0), Long(0), "", BusyDay, Long(0), Long(0)}),
        450);
    EXPECT_EQ(failure(AgendaClass, "PaginarResultadoDaSelecaoEmRecordset", {Integer(3)}), 450);
    EXPECT_EQ(failure(TypesClass, "SelecionarParaComboBox", {}), 450);
    EXPECT_EQ(failure(EmployeesClass, "SelecionarParaComboBox", {Double(0), Double(0)}), 450);
    EXPECT_EQ(failure(CompanyClass, "SelecionarNova", {Long(2)}), 450);
    EXPECT_EQ(failure(SpeciesClass, "SelecionarParaComboBox", {}), 450);
    EXPECT_EQ(failure(BreedsClass, "SelecionarParaComboBox", {Double(1)}), 450);
    const Argument zero = Long(0), two = Long(2), none = "";
    EXPECT_EQ(failure(ServicesClass, "Selecionar", {two, zero, zero, none}), 450);
    EXPECT_EQ(failure(ServicesClass, "Selecionar", {two, zero, zero, none, zero, none, zero, zero}), 450);
    EXPECT_EQ(
        failure(CustomersClass, "Selecionar", {two, zero, zero, none, none, zero, none, none, none, zero}),
        450);
    EXPECT_EQ(failure(AnimalsClass, "Selecionar", {two, zero, zero, none, zero}), 450);
    EXPECT_EQ(failure(AnimalsClass, "SelecionarParaComboBoxFiltradoPorCliente", {Double(10)}), 450);
    EXPECT_EQ(failure(HolidaysClass, "Selecionar", {two, zero, zero}), 450);
    EXPECT_EQ(failure(SystemClass, "ObterversaoDoSO", {Long(1)}), 450);
    EXPECT_EQ(failure(AgendaClass, "NumeroDoErro", {Long(1)}), 450);
}

TEST_P(CheckedNames, LeaveTheResultOfASelectionAloneWhenACallIsRefused)
{
    const ComponentRef agenda = Create(AgendaClass);
    Select(*agenda, {}, WholeDay());
    EXPECT_EQ(NumberOfFailure([&] { agenda->Call("Selecionar", {Long(2)}); }), 450);
    EXPECT_EQ(NumbersOf(*ResultOf(*agenda)), WholeDay());
}

TEST_P(CheckedNames, RefuseAWriteOfWhatCanOnlyBeReadWith450)
{
    for (const char* name : {AgendaClass, TypesClass, EmployeesClass, CompanyClass, SpeciesClass, BreedsClass,
                             ServicesClass, CustomersClass, AnimalsClass, HolidaysClass})
        for (const char* member :
             {"NumeroDoErro", "DescricaoDoErro", "LocalDoErro", "ResultadoDaSelecaoEmRecordSet"})
            EXPECT_EQ(NumberOfFailure([&] { Create(name)->Set(member, Long(1)); }), 450) << name << member;
}

TEST_P(CheckedNames, RefuseAUserThatIsNoObject)
{
    for (const char* name : {AgendaClass, CustomersClass, HolidaysClass}) {
        const ComponentRef object = Create(name);
        EXPECT_EQ(NumberOfFailure([&] { object->Set("DadosDoUsuario", "Carla"); }), 13) << name;
        EXPECT_EQ(NumberOfFailure([&] { object->Get("DadosDoUsuario"); }), 438) << name;
    }
}

/// Engines that stand in for every class and take every member.
class UncheckedNames : public BusinessTest { };
KOVA_OVER_ENGINES(UncheckedNames, EnginesWithout(&EngineKind::checksNames));

TEST_P(UncheckedNames, MakeAnObjectOfEveryClass) { EXPECT_NE(Create("KOVA_N_Nada.clsNada"), nullptr); }

TEST_P(UncheckedNames, TakeEveryMemberAndAnyCountOfArguments)
{
    const ComponentRef object = Create("KOVA_N_Nada.clsNada");
    EXPECT_TRUE(object->Get("Inexistente").IsEmpty());
    EXPECT_NO_THROW(object->Set("Inexistente", Long(1)));
    EXPECT_EQ(object->Call("Inexistente").ToLong(), 0);
    EXPECT_EQ(object->Call("Inexistente", {Long(1), "dois", Null()}).ToLong(), 0);
}

TEST_P(UncheckedNames, TakeAFailureNumberedOneForNoPagedSelection)
{
    Value number = Long(1), text = "Falha", place = "Lugar";
    Text application = "Kova";
    EXPECT_EQ(NumberOfFailure([&] {
                  Create("KOVA_A_MsgErro.clsMensagem")
                      ->Call("Exibir", {ByRef(number), ByRef(text), ByRef(place), ByRef(application)});
              }),
              0);
}

TEST_P(UncheckedNames, LeaveAnEmptyResultWhereNobodySaidWhatToFind)
{
    const ComponentRef object = Create("KOVA_N_Nada.clsNada");
    EXPECT_EQ(object->Call("Selecionar").ToLong(), 0);
    EXPECT_EQ(ResultOf(*object)->RecordCount(), 0);
    EXPECT_TRUE(ResultOf(*object)->Eof());
}

TEST_P(UncheckedNames, CheckTheArgumentsOfPagingAllTheSame)
{
    const ComponentRef agenda = Create(AgendaClass);
    EXPECT_EQ(NumberOfFailure([&] { agenda->Call("PaginarResultadoDaSelecaoEmRecordset", {Integer(3)}); }),
              450);
}

} // namespace kova::conformance
