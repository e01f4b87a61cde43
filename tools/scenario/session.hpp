#pragma once

#include "host/components/component_service.hpp"
#include "host/components/registry.hpp"
#include "host/components/server_host.hpp"
#include "system/temporary_folder.hpp"
#include "tools/scenario/border_observer.hpp"
#include "tools/scenario/memory_profile.hpp"
#include "tools/scenario/observed_components.hpp"
#include "tools/scenario/options.hpp"
#include "tools/scenario/screen.hpp"
#include "tools/scenario/scripted_components.hpp"

#include <memory>
#include <string>

namespace kova::scenario {

/// A shell in small: the module's real library on a screen, the family's components from the script, or the
/// business ones from the reference library on a database. All that crosses the module's
/// borders becomes a line.
class Session : public Platform {
public:
    /// Throws host::ComponentError where a library cannot be loaded.
    Session(const RunOptions& options, std::unique_ptr<Screen> screen,
            std::function<void(const std::string&)> line);
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// The shell's part: creates clsAgenda, sets what the script said, calls AbrirLista.
    void Open();
    bool IsOpen() const { return agenda_ != nullptr; }

    ComponentService& Components() override { return observed_; }
    kova::Toolkit& Toolkit() override { return screen->Toolkit(); }
    kova::Clock& Clock() override { return screen->Clock(); }
    kova::Profile& Profile() override { return profile; }
    Text SettingsFolder() const override;
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

    std::unique_ptr<Screen> screen;
    MemoryProfile profile;
    ScriptedComponents script;
    std::shared_ptr<CrossingLog> crossings = std::make_shared<CrossingLog>();
    BorderObserver border;

    /// What `application`, `user` and `container` gave; without a name NomeDaAplicacao is never set.
    std::string application;
    bool hasApplication = false;
    bool hasUser = false;
    Twips containerWidth = 28800;
    Twips containerHeight = 16200;

private:
    /// Business components from the database's library where there is one, all else, and what the desk's
    /// system is called, from the script.
    class Family : public ComponentService {
    public:
        explicit Family(Session& session) : session_(session) { }
        ComponentRef CreateObject(std::string_view className) override;

    private:
        Session& session_;
    };

    /// For the registry of classes.
    system::TemporaryFolder folder_{"roteiro"};
    bool usesDatabase_;
    host::Registry registry_;
    host::RegistryServerHost server_;
    host::RegisteredComponents registered_;
    Family family_;
    ObservedComponents observed_;
    ComponentRef agenda_;
};

} // namespace kova::scenario
