#pragma once

#include "agenda/contracts/component_server.hpp"
#include "system/library.hpp"

#include <map>
#include <memory>
#include <string>

namespace kova::host {

/// A loaded component library with its five entry points.
class LoadedLibrary {
public:
    /// Loads the shared object and finds the entry points; nothing of it has been called but its static
    /// initialisation. Fails with ComponentError where the file is missing, is no library, needs something
    /// that is not there, or lacks an entry point.
    explicit LoadedLibrary(const std::string& path);
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    const std::string& Path() const { return path_; }

    ServerStatus AttachHost(ServerHost* host) const;
    ServerStatus GetClassObject(const std::string& classId, ClassFactory** factory) const;
    ServerStatus CanUnloadNow() const;
    ServerStatus RegisterServer() const;
    ServerStatus UnregisterServer() const;

    /// Leaves the shared object loaded for the rest of the process when this goes.
    void Abandon() { library_->Abandon(); }

private:
    template <class Function> void Find(Function& function, const char* name);
    void FindEntryPoints();

    std::string path_;
    std::unique_ptr<system::Library> library_;
    KovaAttachHostFunction attachHost_ = nullptr;
    DllGetClassObjectFunction getClassObject_ = nullptr;
    DllCanUnloadNowFunction canUnloadNow_ = nullptr;
    DllRegisterServerFunction registerServer_ = nullptr;
    DllUnregisterServerFunction unregisterServer_ = nullptr;
};

/// The component libraries of a process: each is loaded once, has the host attached, and stays until it
/// is asked to go and no object of it lives. Those that still have objects when this goes stay loaded.
class LibraryCache {
public:
    /// `host` must outlive this, and every object that is made.
    explicit LibraryCache(ServerHost& host) : host_(host) { }
    ~LibraryCache();
    LibraryCache(const LibraryCache&) = delete;
    LibraryCache& operator=(const LibraryCache&) = delete;

    /// The library at that path, loaded now where it was not. Fails with ComponentError as LoadedLibrary,
    /// and where the library refuses the host.
    LoadedLibrary& Load(const std::string& path);
    bool IsLoaded(const std::string& path) const;

    /// Unloads the library where it says that it can go; true also where it is not loaded. References that
    /// Load gave are invalid then.
    bool Unload(const std::string& path);
    /// Unloads every library that can go.
    void UnloadUnused();

private:
    using Libraries = std::map<std::string, std::unique_ptr<LoadedLibrary>>;

    bool Release(LoadedLibrary& library);

    ServerHost& host_;
    Libraries libraries_;
};

} // namespace kova::host
