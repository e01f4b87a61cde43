// A platform library without a screen: what its forms do is told on the standard output. The shop is a file
// beside it. Business components are those of a script, unless the family's own lie there too; all others are
// the system's.

#include "tests/unit/component/platform/test_platform.hpp"

#include "component/platform_library.hpp"
#include "system/library.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"
#include "tools/scenario/memory_profile.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <filesystem>
#include <iostream>

namespace {

using namespace kova;

std::filesystem::path Beside(const std::string& file)
{
    return system::OwnPath().parent_path() / system::PathOf(file);
}

class Screen {
public:
    Screen()
    {
        container = toolkit.CreateContainer(20490, 10500);
        toolkit.OnLine([](const std::string& line) { std::cout << line << std::endl; });
        script.Always("KOVA_N_TipoDeServ.clsTiposDeServ.SelecionarParaComboBox",
                      {.records = {{"Nome", "Numero"}, {{"Consulta", Long{1}}}}});
        script.Always("KOVA_N_Funcionarios.clsFuncionarios.SelecionarParaComboBox",
                      {.records = {{"Apelido", "Codigo"}, {{"Ana", Long{7}}}}});
    }

    headless::HeadlessToolkit toolkit;
    scenario::ScriptedComponents script;
    scenario::MemoryProfile profile;
    Long container = 0;
};

Screen& TheScreen()
{
    static Screen screen;
    return screen;
}

class TestHost : public ServerHost, public Platform, public ComponentService {
public:
    explicit TestHost(ComponentService& others) : others_(others) { }

    bool Register(const ClassRegistration&) override { return false; }
    bool Unregister(std::string_view) override { return false; }
    Platform& GetPlatform() override { return *this; }
    std::string DataSource() const override { return system::TextOf(Beside("loja.db")); }

    ComponentService& Components() override { return *this; }
    kova::Toolkit& Toolkit() override { return TheScreen().toolkit; }
    kova::Clock& Clock() override { return TheScreen().toolkit.Clock(); }
    kova::Profile& Profile() override { return TheScreen().profile; }
    Text SettingsFolder() const override { return "."; }
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

    ComponentRef CreateObject(std::string_view className) override
    {
        const bool isScripted = className.starts_with("KOVA_N_") && !hasFamily_;
        return isScripted ? TheScreen().script.CreateObject(className) : others_.CreateObject(className);
    }

private:
    ComponentService& others_;
    const bool hasFamily_ = std::filesystem::exists(Beside(system::LibraryFile("KOVA_N_Familia")));
};

} // namespace

extern "C" {

ServerHost* KovaMakeHost(ComponentService* components) { return new TestHost(*components); }

void KovaEndHost(ServerHost* host) { delete static_cast<TestHost*>(host); }

headless::HeadlessToolkit* KovaTestToolkit() { return &TheScreen().toolkit; }

Long KovaTestContainer() { return TheScreen().container; }
}
