// The module as a host meets it: a shared object, found by name through the registry file.

#include "agenda/contracts/support/paged_record_set.hpp"
#include "host/components/component_error.hpp"
#include "host/components/component_service.hpp"
#include "host/components/profile_file.hpp"
#include "host/components/server_host.hpp"
#include "system/path_text.hpp"
#include "system/temporary_folder.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/headless/toolkit.hpp"
#include "tools/scenario/scripted_components.hpp"
#include "tools/scenario/value_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

namespace kova::host {

namespace {

const std::string ClassName = "KOVA_A_Agenda.clsAgenda";

/// A shell in small: a registry in a folder of its own, the module's library from the build, everything
/// else of the family from a script.
class TheModulesLibrary : public testing::Test, public Platform {
protected:
    TheModulesLibrary() { container = toolkit.CreateContainer(20490, 10500); }

    ComponentService& Components() override { return script; }
    kova::Toolkit& Toolkit() override { return toolkit; }
    kova::Clock& Clock() override { return toolkit.Clock(); }
    kova::Profile& Profile() override { return profile; }
    Text SettingsFolder() const override { return folder; }
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

    std::string RegistryText() const
    {
        std::ifstream file(registry.Path());
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

    void ScriptOneAppointmentless()
    {
        script.Always("KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox",
                      {.records = {{"Nome", "Numero"}, {{"Consulta", Long{1}}}}});
        script.Always("KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox",
                      {.records = {{"Apelido", "Codigo"}, {{"Ana", Long{7}}}}});
    }

    const system::TemporaryFolder ownFolder{"modulo"};
    const std::string folder = system::TextOf(ownFolder.Path());
    scenario::ScriptedComponents script;
    headless::HeadlessToolkit toolkit;
    ProfileFile profile;
    Long container = 0;
    Registry registry{folder + "/componentes.reg"};
    RegistryServerHost server{registry, *this, ""};
    RegisteredComponents components{registry, server.Libraries()};
};

std::int32_t NumberOf(const std::function<void()>& act)
{
    try {
        act();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

TEST_F(TheModulesLibrary, WritesItsClassIntoTheRegistryAndTakesItOutAgain)
{
    const std::string path = system::TextOf(std::filesystem::canonical(system::PathOf(MODULE_LIBRARY)));
    server.RegisterLibrary(MODULE_LIBRARY);
    EXPECT_NE(RegistryText().find(ClassName + "\t{"), std::string::npos) << RegistryText();
    EXPECT_NE(RegistryText().find("\t" + path), std::string::npos) << RegistryText();
    server.UnregisterLibrary(MODULE_LIBRARY);
    EXPECT_EQ(RegistryText().find(ClassName), std::string::npos) << RegistryText();
    EXPECT_EQ(NumberOf([&] { components.CreateObject(ClassName); }), 429);
}

TEST_F(TheModulesLibrary, OpensTheListByNameAlone)
{
    server.RegisterLibrary(MODULE_LIBRARY);
    ScriptOneAppointmentless();
    {
        const ComponentRef agenda = components.CreateObject(ClassName);
        agenda->Set("NomeDaAplicacao", "Kova");
        EXPECT_TRUE(agenda->Call("AbrirLista", {Long{1}, container}).IsEmpty());
    }
    EXPECT_EQ(std::count(toolkit.Log().begin(), toolkit.Log().end(), "show frmLista"), 1);
    EXPECT_TRUE(std::filesystem::exists(folder + "/KOVA_A_Agenda.ini"));
    EXPECT_FALSE(server.Libraries().Unload(MODULE_LIBRARY)) << "the list on the screen needs the library";
    toolkit.FindForm("frmLista")->Unload();
    EXPECT_TRUE(server.Libraries().Unload(MODULE_LIBRARY));
    EXPECT_FALSE(server.Libraries().IsLoaded(MODULE_LIBRARY));
    EXPECT_EQ(script.LiveObjects(), 0);
}

TEST_F(TheModulesLibrary, StaysLoadedWhileAnObjectLives)
{
    server.RegisterLibrary(MODULE_LIBRARY);
    ComponentRef agenda = components.CreateObject(ClassName);
    EXPECT_FALSE(server.Libraries().Unload(MODULE_LIBRARY));
    agenda.reset();
    EXPECT_TRUE(server.Libraries().Unload(MODULE_LIBRARY));
}

TEST_F(TheModulesLibrary, RefusesWhatItsClassDoesNotHave)
{
    server.RegisterLibrary(MODULE_LIBRARY);
    const ComponentRef agenda = components.CreateObject(ClassName);
    EXPECT_EQ(NumberOf([&] { agenda->Call("Abrir"); }), 438);
    EXPECT_EQ(NumberOf([&] { agenda->Get("NomeDaAplicacao"); }), 438);
    EXPECT_EQ(NumberOf([&] { agenda->Call("AbrirLista", {Long{1}}); }), 450);
    EXPECT_EQ(NumberOf([&] { components.CreateObject("KOVA_A_Agenda.clsOutra"); }), 429);
}

TEST_F(TheModulesLibrary, AnswersNoFactoryForAnotherClass)
{
    const LoadedLibrary& library = server.Libraries().Load(MODULE_LIBRARY);
    ClassFactory* factory = nullptr;
    EXPECT_EQ(library.GetClassObject("{00000000-0000-0000-0000-000000000000}", &factory),
              ServerStatus::ClassNotAvailable);
    EXPECT_EQ(factory, nullptr);
    EXPECT_EQ(library.GetClassObject("{6C1F0B52-3E7D-4C58-9B7A-2F0C4D8E51A3}", nullptr),
              ServerStatus::InvalidArgument);
    ASSERT_EQ(library.GetClassObject("{6C1F0B52-3E7D-4C58-9B7A-2F0C4D8E51A3}", &factory), ServerStatus::Ok);
    ComponentRef object;
    scenario::NamedObject outer("<outro>");
    EXPECT_EQ(factory->CreateInstance(&outer, &object), ServerStatus::NoAggregation);
    EXPECT_EQ(object, nullptr);
}

} // namespace

} // namespace kova::host
