#include "host/components/component_service.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "host/components/component_error.hpp"

namespace kova::host {

namespace {

/// The class has no line in the registry: told apart, since its text says so instead of giving a cause.
class NotRegistered : public ComponentError {
public:
    using ComponentError::ComponentError;
};

[[noreturn]] void Fail(const std::string& text) { throw Failure(FailureNumber::ClassCannotBeCreated, text); }

std::string NotCreated(const std::string& className, const std::string& cause)
{
    return "O componente '" + className + "' não pode ser criado. " + cause;
}

ComponentRef RequireObject(ComponentRef object)
{
    if (!object)
        throw ComponentError("A classe recusou-se a criar o objeto.");
    return object;
}

} // namespace

void RegisteredComponents::Provide(const std::string& className, Factory factory)
{
    provided_[className] = std::move(factory);
}

void RegisteredComponents::Withdraw(const std::string& className) { provided_.erase(className); }

ComponentRef RegisteredComponents::CreateObject(std::string_view className)
{
    const std::string name(className);
    try {
        const auto provided = provided_.find(name);
        if (provided == provided_.end())
            return CreateFromLibrary(name);
        // The factory may provide or withdraw classes, itself included.
        const Factory factory = provided->second;
        return RequireObject(factory());
    } catch (const NotRegistered& error) {
        Fail(error.what());
    } catch (const ComponentError& error) {
        Fail(NotCreated(name, error.what()));
    } catch (const Failure& failure) {
        Fail(NotCreated(name, failure.Description()));
    } catch (const std::exception& error) {
        Fail(WithDetail(NotCreated(name, "Feche o programa e abra-o novamente."), error.what()));
    }
}

ClassRegistration RegisteredComponents::RequireRegistration(const std::string& className) const
{
    if (auto registration = registry_.Find(className))
        return *registration;
    std::string text = "O componente '" + className
        + "' não está registrado. Registre a biblioteca dele no arquivo '" + registry_.Path() + "'.";
    // The line that is missed may be one that cannot be read.
    for (const RegistryProblem& problem : registry_.Load().problems)
        text += " " + problem.message;
    throw NotRegistered(text);
}

ComponentRef RegisteredComponents::CreateFromLibrary(const std::string& className)
{
    const ClassRegistration registration = RequireRegistration(className);
    const LoadedLibrary& library = libraries_.Load(registration.libraryPath);
    // What fails leaves null.
    ClassFactory* factory = nullptr;
    library.GetClassObject(registration.classId, &factory);
    if (!factory)
        throw ComponentError("A biblioteca '" + library.Path() + "' não oferece a classe "
                             + registration.classId + ". Registre a biblioteca novamente.");
    ComponentRef object;
    factory->CreateInstance(nullptr, &object);
    return RequireObject(object);
}

} // namespace kova::host
