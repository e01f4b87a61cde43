#include "host/components/server_host.hpp"

#include "host/components/component_error.hpp"

namespace kova::host {

void RegistryServerHost::RegisterLibrary(const std::string& path)
{
    RunStep(path, &LoadedLibrary::RegisterServer, "não registrou as suas classes");
}

void RegistryServerHost::UnregisterLibrary(const std::string& path)
{
    RunStep(path, &LoadedLibrary::UnregisterServer, "não retirou as suas classes do registro");
}

void RegistryServerHost::RunStep(const std::string& path, Step step, const std::string& refusal)
{
    const LoadedLibrary& library = libraries_.Load(path);
    currentPath_ = library.Path();
    lastError_.clear();
    const ServerStatus status = (library.*step)();
    const std::string fullPath = std::exchange(currentPath_, {});
    libraries_.Unload(fullPath);
    if (status != ServerStatus::Ok)
        throw ComponentError("A biblioteca '" + fullPath + "' " + refusal + ". " + lastError_);
}

bool RegistryServerHost::Register(const ClassRegistration& registration)
{
    ClassRegistration complete = registration;
    if (complete.libraryPath.empty())
        complete.libraryPath = currentPath_;
    try {
        registry_.Write(complete);
        return true;
    } catch (const ComponentError& error) {
        lastError_ = error.what();
        return false;
    }
}

bool RegistryServerHost::Unregister(std::string_view className)
{
    try {
        registry_.Remove(className);
        return true;
    } catch (const ComponentError& error) {
        lastError_ = error.what();
        return false;
    }
}

} // namespace kova::host
