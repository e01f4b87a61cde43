// A platform library without a screen: what its forms do is told on the standard output. Business components
// are those of a script, all others the system's own.

#include "tests/unit/component/platform/test_platform.hpp"

#include "component/platform_library.hpp"
#include "tools/scenario/memory_profile.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <iostream>

namespace {

using namespace kova;

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
    std::string DataSource() const override { return {}; }

    ComponentService& Components() override { return *this; }
    kova::Toolkit& Toolkit() override { return TheScreen().toolkit; }
    kova::Clock& Clock() override { return TheScreen().toolkit.Clock(); }
    kova::Profile& Profile() override { return TheScreen().profile; }
    Text SettingsFolder() const override { return "."; }
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

    ComponentRef CreateObject(std::string_view className) override
    {
        return className.starts_with("KOVA_N_") ? TheScreen().script.CreateObject(className)
                                                : others_.CreateObject(className);
    }

private:
    ComponentService& others_;
};

} // namespace

extern "C" {

ServerHost* KovaMakeHost(ComponentService* components) { return new TestHost(*components); }

void KovaEndHost(ServerHost* host) { delete static_cast<TestHost*>(host); }

headless::HeadlessToolkit* KovaTestToolkit() { return &TheScreen().toolkit; }

Long KovaTestContainer() { return TheScreen().container; }
}
