#include "tools/scenario/observed_components.hpp"

#include "tools/scenario/observed_record_set.hpp"
#include "tools/scenario/value_text.hpp"

namespace kova::scenario {

namespace {

constexpr std::int32_t InjectedNumber = 5;
constexpr const char* InjectedText = "Falha injetada";

std::string RaiseLine(const Failure& failure)
{
    return "raise " + std::to_string(failure.Number()) + " " + Quoted(failure.Description());
}

/// Runs one crossing: `text` is its line without the result. A failure is logged in place of the
/// result and goes on to the caller.
template <class Act> Value Logged(CrossingLog& log, const std::string& text, bool showsResult, Act&& act)
{
    try {
        log.Cross();
        const Value result = act();
        log.line(showsResult ? text + " -> " + Print(result) : text);
        return result;
    } catch (const Failure& failure) {
        log.line(text);
        log.line(RaiseLine(failure));
        throw;
    }
}

class ObservedComponent : public Component {
public:
    ObservedComponent(ComponentRef inner, std::string className, std::shared_ptr<CrossingLog> log)
        : inner_(std::move(inner)), className_(std::move(className)), log_(std::move(log))
    {
    }
    ~ObservedComponent() override
    {
        inner_.reset();
        log_->line("release " + className_);
    }
    ObservedComponent(const ObservedComponent&) = delete;
    ObservedComponent& operator=(const ObservedComponent&) = delete;

    Value Get(std::string_view member) override
    {
        return Observed(Logged(*log_, "get " + Full(member), true, [&] { return inner_->Get(member); }),
                        log_);
    }

    void Set(std::string_view member, const Value& value) override
    {
        Logged(*log_, "set " + Full(member) + " " + Print(value), false, [&] {
            inner_->Set(member, value);
            return Value();
        });
    }

    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        std::string text = "call " + Full(member) + "(";
        for (const Argument& argument : arguments)
            text += (text.back() == '(' ? "" : ", ") + Print(argument);
        return Logged(*log_, text + ")", true, [&] { return inner_->Call(member, arguments); });
    }

    std::vector<Member> Members() const override { return inner_->Members(); }

private:
    std::string Full(std::string_view member) const { return className_ + "." + std::string(member); }

    ComponentRef inner_;
    std::string className_;
    std::shared_ptr<CrossingLog> log_;
};

} // namespace

void CrossingLog::Cross()
{
    if (++count == failAt)
        throw Failure(InjectedNumber, InjectedText);
}

ObservedComponents::ObservedComponents(ComponentService& inner, std::shared_ptr<CrossingLog> log)
    : inner_(inner), log_(std::move(log))
{
}

ComponentRef ObservedComponents::CreateObject(std::string_view className)
{
    const std::string name(className);
    ComponentRef made;
    Logged(*log_, "create " + name, false, [&] {
        made = inner_.CreateObject(className);
        return Value();
    });
    return std::make_shared<ObservedComponent>(std::move(made), name, log_);
}

} // namespace kova::scenario
