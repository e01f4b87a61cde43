#include "component/windows/own_host.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "agenda/contracts/support/component_library.hpp"
#include "component/platform_library.hpp"
#include "component/windows/failures.hpp"
#include "component/windows/system_components.hpp"
#include "system/library.hpp"
#include "system/path_text.hpp"
#include "system/program_path.hpp"

#include <windows.h>

namespace kova::component {

namespace {

[[noreturn]] void Fail(const std::string& file, const std::string& what, const std::string& detail)
{
    throw Failure(
        FailureNumber::ClassCannotBeCreated,
        WithDetail("A biblioteca '" + file + "' " + what + " Instale o programa novamente.", detail));
}

std::unique_ptr<system::Library> Load(const std::string& file)
{
    try {
        return std::make_unique<system::Library>(file);
    } catch (const system::LibraryNotLoaded& failure) {
        Fail(file, "não pode ser carregada.", failure.what());
    }
}

class OwnHost {
public:
    OwnHost()
    {
        const std::string file = system::TextOf(system::OwnPath().parent_path()
                                                / system::PathOf(system::LibraryFile(PlatformLibrary)));
        library_ = Load(file);
        // What it has begun may outlast this host: windows of the screen's own, threads.
        library_->Abandon();
        const auto make = reinterpret_cast<KovaMakeHostFunction>(library_->Find("KovaMakeHost"));
        end_ = reinterpret_cast<KovaEndHostFunction>(library_->Find("KovaEndHost"));
        host_ = make && end_ ? make(&components_) : nullptr;
        if (!host_)
            Fail(file, "não serve a este programa.", {});
    }
    ~OwnHost() { end_(host_); }
    OwnHost(const OwnHost&) = delete;
    OwnHost& operator=(const OwnHost&) = delete;

    ServerHost* Get() const { return host_; }
    bool IsOfThisThread() const { return thread_ == ::GetCurrentThreadId(); }

private:
    SystemComponents components_;
    std::unique_ptr<system::Library> library_;
    KovaEndHostFunction end_ = nullptr;
    ServerHost* host_ = nullptr;
    DWORD thread_ = ::GetCurrentThreadId();
};

/// Left alone where the library is unloaded without being asked, as at the end of a process: what the host is
/// made of may be gone then.
OwnHost* own = nullptr;

bool IsAttached() { return own && ServedLibrary::Get().Host() == own->Get(); }

/// False where something is in use.
bool LetGo()
{
    if (IsAttached()
        && ServedLibrary::Get().AttachHost(nullptr) != static_cast<std::int32_t>(ServerStatus::Ok))
        return false;
    delete std::exchange(own, nullptr);
    return true;
}

} // namespace

void RequireHost()
{
    ComponentLibrary& library = ServedLibrary::Get();
    if (IsAttached() && !own->IsOfThisThread() && !LetGo())
        throw FailureOf(RPC_E_WRONG_THREAD);
    if (library.Host())
        return;
    auto made = std::make_unique<OwnHost>();
    if (library.AttachHost(made->Get()) != static_cast<std::int32_t>(ServerStatus::Ok))
        throw Failure(FailureNumber::ClassCannotBeCreated);
    delete std::exchange(own, made.release());
}

bool LetGoOfOwnHost() { return !own || (own->IsOfThisThread() && LetGo()); }

} // namespace kova::component
