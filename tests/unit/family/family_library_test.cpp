#include "agenda/contracts/text.hpp"
#include "component/entry_names.hpp"
#include "tests/unit/family/shop_fixture.hpp"

#include "system/library.hpp"
#include "system/path_text.hpp"

#include <set>

namespace kova::family::test {

namespace {

/// The library as a host loads it.
class FamilyLibrary : public testing::Test {
protected:
    template <class Function> Function Entry(const char* name)
    {
        return reinterpret_cast<Function>(library_.Find(name));
    }

    std::int32_t Attach(ServerHost* host) { return Entry<KovaAttachHostFunction>("KovaAttachHost")(host); }

    ComponentRef Create(const TestHost& host, const std::string& className)
    {
        ClassFactory* factory = nullptr;
        const std::string classId = host.registered.at(className);
        Entry<DllGetClassObjectFunction>(component::ClassesEntryPoint())(classId.c_str(), &factory);
        ComponentRef object;
        EXPECT_EQ(factory->CreateInstance(nullptr, &object), ServerStatus::Ok);
        return object;
    }

    TemporaryFolder folder_;
    system::Library library_{FAMILY_LIBRARY};
};

} // namespace

TEST_F(FamilyLibrary, RegistersItsClassesAndMakesThem)
{
    TestHost host(folder_ / "loja.db");
    ASSERT_EQ(Attach(&host), 0);
    ASSERT_EQ(Entry<DllRegisterServerFunction>("DllRegisterServer")(), 0);
    for (const char* name :
         {"KOVA_N_Agenda.clsAgenda", "KOVA_N_TipoDeServ.clsTiposDeServ",
          "KOVA_N_Funcionarios.clsFuncionarios", "KOVA_N_Empresa.clsEmpresa", "KOVA_N_SO.clsObterVersaoDoSO",
          "KOVA_N_Dados.clsBanco", "KOVA_N_Dados.clsImpressoes", "KOVA_N_EspecRacas.clsEspecies",
          "KOVA_N_EspecRacas.clsRacas", "KOVA_N_Servicos.clsServicos", "KOVA_N_ClientAnim.clsClientes",
          "KOVA_N_ClientAnim.clsAnimais", "KOVA_N_Feriados.clsFeriados"})
        EXPECT_NE(Create(host, name), nullptr) << name;
    EXPECT_EQ(Entry<DllUnregisterServerFunction>("DllUnregisterServer")(), 0);
    EXPECT_TRUE(host.registered.empty());
    EXPECT_EQ(Attach(nullptr), 0);
}

TEST_F(FamilyLibrary, HasClassesThatListTheirMembersEachUnderOneName)
{
    TestHost host(folder_ / "loja.db");
    ASSERT_EQ(Attach(&host), 0);
    ASSERT_EQ(Entry<DllRegisterServerFunction>("DllRegisterServer")(), 0);
    const auto classes = host.registered;
    for (const auto& [name, classId] : classes) {
        std::set<std::string> names;
        for (const Member& member : Create(host, name)->Members())
            EXPECT_TRUE(names.insert(LowerCase(member.name)).second) << name << '.' << member.name;
        EXPECT_FALSE(names.empty()) << name;
    }
    EXPECT_EQ(Attach(nullptr), 0);
}

TEST_F(FamilyLibrary, KeepsTheConnectionBetweenComponentsAndClosesItWithTheHost)
{
    TestHost host(folder_ / "loja.db");
    Attach(&host);
    Entry<DllRegisterServerFunction>("DllRegisterServer")();
    const std::string log = host.DataSource() + "-wal";
    {
        const ComponentRef database = Create(host, "KOVA_N_Dados.clsBanco");
        ASSERT_EQ(database->Call("CriarDemonstracao", {"20/11/2026"}), Value(Integer(0)));
        ASSERT_EQ(database->Call("Abrir"), Value(Integer(0)));
        EXPECT_NE(Entry<DllCanUnloadNowFunction>("DllCanUnloadNow")(), 0);
    }
    RecordSetRef records;
    {
        const ComponentRef types = Create(host, "KOVA_N_TipoDeServ.clsTiposDeServ");
        ASSERT_EQ(types->Call("SelecionarParaComboBox", {Long(0)}), Value(Integer(0)));
        records = types->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
    }
    EXPECT_NE(Entry<DllCanUnloadNowFunction>("DllCanUnloadNow")(), 0) << "somebody holds what was found";
    EXPECT_NE(Attach(nullptr), 0);
    EXPECT_EQ(Attach(&host), 0) << "it is the same host";
    records = nullptr;
    EXPECT_EQ(Entry<DllCanUnloadNowFunction>("DllCanUnloadNow")(), 0);
    EXPECT_TRUE(std::filesystem::exists(system::PathOf(log)));
    EXPECT_EQ(Attach(nullptr), 0);
    EXPECT_FALSE(std::filesystem::exists(system::PathOf(log)));
}

} // namespace kova::family::test
