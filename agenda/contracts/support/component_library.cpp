#include "agenda/contracts/support/component_library.hpp"

#include "agenda/contracts/text.hpp"

namespace kova {

namespace {

std::int32_t Code(ServerStatus status) { return static_cast<std::int32_t>(status); }

} // namespace

class ComponentLibrary::Factory : public ClassFactory {
public:
    Factory(ComponentLibrary& library, Entry entry) : library_(library), entry_(std::move(entry)) { }

    const std::string& ClassName() const { return entry_.className_; }
    const std::string& ClassId() const { return entry_.classId_; }

    ServerStatus CreateInstance(Object* outer, ComponentRef* object) override
    {
        if (!object)
            return ServerStatus::InvalidArgument;
        object->reset();
        if (outer)
            return ServerStatus::NoAggregation;
        if (!library_.host_)
            return ServerStatus::Refused;
        *object = entry_.create_(*library_.host_, library_.live_);
        return *object ? ServerStatus::Ok : ServerStatus::Refused;
    }

    void LockServer(bool lock) override
    {
        if (lock)
            ++library_.locks_;
        else if (library_.locks_ > 0)
            --library_.locks_;
    }

private:
    ComponentLibrary& library_;
    Entry entry_;
};

ServedLibrary::Function ServedLibrary::library_ = nullptr;

ComponentLibrary::ComponentLibrary(std::vector<Entry> classes, LibraryHooks hooks) : hooks_(std::move(hooks))
{
    for (Entry& entry : classes)
        factories_.push_back(std::make_unique<Factory>(*this, std::move(entry)));
}

ComponentLibrary::~ComponentLibrary() = default;

std::int32_t ComponentLibrary::AttachHost(ServerHost* host)
{
    if (host != host_ && IsInUse())
        return Code(ServerStatus::Refused);
    host_ = host;
    if (hooks_.hostChanged)
        hooks_.hostChanged(host);
    return Code(ServerStatus::Ok);
}

std::int32_t ComponentLibrary::GetClassObject(const char* classId, ClassFactory** factory)
{
    if (!factory)
        return Code(ServerStatus::InvalidArgument);
    *factory = nullptr;
    if (!classId)
        return Code(ServerStatus::InvalidArgument);
    // Identifiers are hexadecimal numbers: their letters have no case.
    const Text wanted = UpperCase(classId);
    for (const auto& candidate : factories_)
        if (UpperCase(candidate->ClassId()) == wanted) {
            *factory = candidate.get();
            return Code(ServerStatus::Ok);
        }
    return Code(ServerStatus::ClassNotAvailable);
}

std::int32_t ComponentLibrary::CanUnloadNow() const
{
    return Code(!IsInUse() && locks_ == 0 ? ServerStatus::Ok : ServerStatus::Busy);
}

std::shared_ptr<void> ComponentLibrary::Hold()
{
    ++live_;
    return std::shared_ptr<void>(this, [this](void*) { --live_; });
}

std::int32_t ComponentLibrary::RegisterServer()
{
    if (!host_)
        return Code(ServerStatus::RegistrationFailed);
    for (const auto& factory : factories_)
        if (!host_->Register({factory->ClassName(), factory->ClassId(), {}}))
            return Code(ServerStatus::RegistrationFailed);
    return Code(ServerStatus::Ok);
}

std::int32_t ComponentLibrary::UnregisterServer()
{
    if (!host_)
        return Code(ServerStatus::RegistrationFailed);
    for (const auto& factory : factories_)
        if (!host_->Unregister(factory->ClassName()))
            return Code(ServerStatus::RegistrationFailed);
    return Code(ServerStatus::Ok);
}

std::vector<ClassRegistration> ComponentLibrary::Classes() const
{
    std::vector<ClassRegistration> classes;
    for (const auto& factory : factories_)
        classes.push_back({factory->ClassName(), factory->ClassId(), {}});
    return classes;
}

} // namespace kova
