#include "host/session/heard_components.hpp"

#include <utility>

namespace kova::host {

namespace {

/// Place of the day among the arguments of a selection.
constexpr std::size_t Day = 4;

class HeardAgenda : public Component {
public:
    using Component::Call;

    HeardAgenda(ComponentRef agenda, const HeardComponents& heard) : agenda_(std::move(agenda)), heard_(heard)
    {
    }

    Value Get(std::string_view member) override { return agenda_->Get(member); }
    void Set(std::string_view member, const Value& value) override { agenda_->Set(member, value); }
    std::vector<Member> Members() const override { return agenda_->Members(); }

    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        if (member != "Selecionar" || arguments.size() <= Day)
            return agenda_->Call(member, arguments);
        heard_.onSelecting();
        Value status = agenda_->Call(member, arguments);
        if (status.ToInteger() == 0)
            heard_.onSelected(arguments[Day].Get().ToText());
        return status;
    }

private:
    ComponentRef agenda_;
    const HeardComponents& heard_;
};

} // namespace

ComponentRef HeardComponents::CreateObject(std::string_view className)
{
    ComponentRef object = components_.CreateObject(className);
    if (className != "KOVA_N_Agenda.clsAgenda")
        return object;
    return std::make_shared<HeardAgenda>(std::move(object), *this);
}

} // namespace kova::host
