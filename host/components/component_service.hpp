#pragma once

#include "agenda/contracts/business_services.hpp"
#include "host/components/component_library.hpp"
#include "host/components/registry.hpp"

#include <functional>
#include <map>
#include <string>

namespace kova::host {

/// Creates components by class name: from a factory of this process where one is provided, else from the
/// library that the registry names.
class RegisteredComponents : public ComponentService {
public:
    using Factory = std::function<ComponentRef()>;

    /// Both must outlive this.
    RegisteredComponents(const Registry& registry, LibraryCache& libraries)
        : registry_(registry), libraries_(libraries)
    {
    }

    /// Provides a class in this process; it goes before the registry and replaces a former factory of that
    /// name.
    void Provide(const std::string& className, Factory factory);
    /// Takes a provided factory back; the registry counts again.
    void Withdraw(const std::string& className);

    /// Every failure is one with 429, also one that the class's own code throws; its text holds the cause.
    ComponentRef CreateObject(std::string_view className) override;

private:
    ComponentRef CreateFromLibrary(const std::string& className);
    ClassRegistration RequireRegistration(const std::string& className) const;

    const Registry& registry_;
    LibraryCache& libraries_;
    std::map<std::string, Factory, std::less<>> provided_;
};

} // namespace kova::host
