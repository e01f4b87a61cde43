// A component library as small as one can be: one class that answers what the host has handed over, one
// that fails while it is created.

#include "agenda/contracts/platform.hpp"
#include "agenda/contracts/support/component_library.hpp"

namespace {

using namespace kova;

class Echo : public Component {
public:
    explicit Echo(ServerHost& host) : host_(host) { }

    Value Get(std::string_view member) override
    {
        if (member == "FonteDeDados")
            return host_.DataSource();
        if (member == "Pasta")
            return host_.GetPlatform().SettingsFolder();
        throw Failure(FailureNumber::NoSuchMember);
    }
    void Set(std::string_view, const Value&) override { throw Failure(FailureNumber::NoSuchMember); }
    using Component::Call;
    Value Call(std::string_view, std::span<Argument> arguments) override
    {
        if (arguments.size() != 1)
            throw Failure(FailureNumber::WrongArgumentCount);
        arguments[0].Assign("escrito");
        return Null();
    }

private:
    ServerHost& host_;
};

std::unique_ptr<Echo> FailToCreate(ServerHost&)
{
    throw Failure(FailureNumber::OutOfMemory, "O banco de dados não pôde ser aberto.");
}

ComponentLibrary& Library()
{
    static ComponentLibrary library({
        {"Teste.clsEco", "{11111111-2222-4333-8444-555555555501}",
         [](ServerHost& host) { return std::make_unique<Echo>(host); }},
        {"Teste.clsFalha", "{11111111-2222-4333-8444-555555555502}", FailToCreate},
    });
    return library;
}

const ServedLibrary served(Library);

} // namespace
