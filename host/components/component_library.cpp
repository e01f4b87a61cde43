#include "host/components/component_library.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "component/entry_names.hpp"
#include "host/components/component_error.hpp"
#include "system/path_text.hpp"

namespace kova::host {

namespace {

ServerStatus Status(std::int32_t code) { return static_cast<ServerStatus>(code); }

/// One spelling for each file, by which the cache knows it.
std::string Canonical(const std::string& path)
{
    std::error_code error;
    const auto canonical = std::filesystem::weakly_canonical(system::PathOf(path), error);
    return error ? path : system::TextOf(canonical);
}

std::string Named(const std::string& path) { return "A biblioteca '" + path + "'"; }

std::unique_ptr<system::Library> LoadFile(const std::string& path)
{
    std::error_code error;
    if (!std::filesystem::exists(system::PathOf(path), error))
        throw ComponentError(Named(path)
                             + " não foi encontrada. Instale-a novamente ou registre o componente de onde ela"
                               " está agora.");
    try {
        return std::make_unique<system::Library>(path);
    } catch (const system::LibraryNotLoaded& failure) {
        throw ComponentError(
            WithDetail(Named(path)
                           + " não pode ser carregada. O arquivo pode estar danificado ou não ser uma"
                             " biblioteca; instale-o novamente.",
                       failure.what()));
    }
}

} // namespace

LoadedLibrary::LoadedLibrary(const std::string& path) : path_(path), library_(LoadFile(path))
{
    FindEntryPoints();
}

template <class Function> void LoadedLibrary::Find(Function& function, const char* name)
{
    function = reinterpret_cast<Function>(library_->Find(name));
    if (!function)
        throw ComponentError(Named(path_) + " não é uma biblioteca de componentes: falta o ponto de entrada '"
                             + name + "'.");
}

void LoadedLibrary::FindEntryPoints()
{
    Find(attachHost_, "KovaAttachHost");
    Find(getClassObject_, component::ClassesEntryPoint());
    Find(canUnloadNow_, "DllCanUnloadNow");
    Find(registerServer_, "DllRegisterServer");
    Find(unregisterServer_, "DllUnregisterServer");
}

ServerStatus LoadedLibrary::AttachHost(ServerHost* host) const { return Status(attachHost_(host)); }

ServerStatus LoadedLibrary::GetClassObject(const std::string& classId, ClassFactory** factory) const
{
    return Status(getClassObject_(classId.c_str(), factory));
}

ServerStatus LoadedLibrary::CanUnloadNow() const { return Status(canUnloadNow_()); }
ServerStatus LoadedLibrary::RegisterServer() const { return Status(registerServer_()); }
ServerStatus LoadedLibrary::UnregisterServer() const { return Status(unregisterServer_()); }

LibraryCache::~LibraryCache()
{
    UnloadUnused();
    for (auto& [path, library] : libraries_)
        library->Abandon();
}

LoadedLibrary& LibraryCache::Load(const std::string& path)
{
    const std::string key = Canonical(path);
    const auto found = libraries_.find(key);
    if (found != libraries_.end())
        return *found->second;
    auto library = std::make_unique<LoadedLibrary>(key);
    if (library->AttachHost(&host_) != ServerStatus::Ok)
        throw ComponentError(
            Named(key)
            + " recusou-se a ser usada por este programa: objetos dela ainda estão em uso por"
              " outra parte. Feche o programa e abra-o novamente.");
    return *libraries_.emplace(key, std::move(library)).first->second;
}

bool LibraryCache::IsLoaded(const std::string& path) const { return libraries_.count(Canonical(path)) > 0; }

/// Whether the library may go; it has no host any more then.
bool LibraryCache::Release(LoadedLibrary& library)
{
    return library.CanUnloadNow() == ServerStatus::Ok && library.AttachHost(nullptr) == ServerStatus::Ok;
}

bool LibraryCache::Unload(const std::string& path)
{
    const auto found = libraries_.find(Canonical(path));
    if (found == libraries_.end())
        return true;
    if (!Release(*found->second))
        return false;
    libraries_.erase(found);
    return true;
}

void LibraryCache::UnloadUnused()
{
    std::erase_if(libraries_, [this](const auto& entry) { return Release(*entry.second); });
}

} // namespace kova::host
