#pragma once

#include "agenda/contracts/component_server.hpp"
#include "host/components/component_library.hpp"
#include "host/components/registry.hpp"

#include <string>

namespace kova::host {

/// What this process hands to the component libraries, and the keeper of those that are loaded.
class RegistryServerHost : public ServerHost {
public:
    /// Registry and platform must outlive this. `dataSource` goes to the business components as it is.
    RegistryServerHost(Registry& registry, Platform& platform, std::string dataSource)
        : registry_(registry), platform_(platform), dataSource_(std::move(dataSource)), libraries_(*this)
    {
    }

    LibraryCache& Libraries() { return libraries_; }

    /// Loads the library, lets it register its classes under its full path, and unloads it where nothing
    /// uses it. Fails with ComponentError where it cannot be loaded or a class cannot be written.
    void RegisterLibrary(const std::string& path);
    /// The same with the classes taken out of the registry.
    void UnregisterLibrary(const std::string& path);

    /// An empty path stands for the library that RegisterLibrary is working on; at other times it is
    /// refused.
    bool Register(const ClassRegistration& registration) override;
    bool Unregister(std::string_view className) override;
    Platform& GetPlatform() override { return platform_; }
    std::string DataSource() const override { return dataSource_; }

private:
    using Step = ServerStatus (LoadedLibrary::*)() const;

    void RunStep(const std::string& path, Step step, const std::string& refusal);

    Registry& registry_;
    Platform& platform_;
    std::string dataSource_;
    /// While RegisterLibrary works: the library's path, and why the last class could not be written.
    std::string currentPath_;
    std::string lastError_;
    /// Last, so that the libraries go while the rest is still there.
    LibraryCache libraries_;
};

} // namespace kova::host
