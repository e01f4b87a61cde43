#include "tools/scenario/scripted_components.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"

#include <algorithm>
#include <utility>
#include <variant>

namespace kova::scenario {

namespace {

constexpr const char* ResultMember = "ResultadoDaSelecaoEmRecordSet";
constexpr const char* PagingMember = "PaginarResultadoDaSelecaoEmRecordset";
constexpr const char* PackageMember = "RegistroPercenteAUmPacoteDeBanhoETosa";
constexpr const char* SystemMember = "KOVA_N_SO.clsObterVersaoDoSO.ObterversaoDoSO";

using Step = std::variant<ScriptedAnswer, Failure>;

} // namespace

struct ScriptedComponents::State {
    std::map<std::string, std::deque<Step>> queued;
    std::map<std::string, ScriptedAnswer> standing;
    std::map<std::string, std::deque<Failure>> failingCreations;
    int liveObjects = 0;

    /// Takes the next step of a member that fails, where its next step is a failure.
    void FailIfScripted(const std::string& member)
    {
        auto& steps = queued[member];
        if (steps.empty() || !std::holds_alternative<Failure>(steps.front()))
            return;
        const Failure failure = std::get<Failure>(steps.front());
        steps.pop_front();
        throw failure;
    }

    std::optional<ScriptedAnswer> NextAnswer(const std::string& member)
    {
        auto& steps = queued[member];
        if (!steps.empty()) {
            ScriptedAnswer answer = std::get<ScriptedAnswer>(std::move(steps.front()));
            steps.pop_front();
            return answer;
        }
        const auto always = standing.find(member);
        return always == standing.end() ? std::nullopt : std::optional(always->second);
    }
};

namespace {

/// The selection of an answer without a table. Nobody knows its fields, so an order may name any.
class SelectionWithoutFields final : public MemoryRecordSet {
public:
    SelectionWithoutFields() : MemoryRecordSet({}, {}) { }

    Text Sort() const override { return order_; }
    void Sort(std::string_view order) override { order_ = order; }

private:
    Text order_;
};

std::shared_ptr<MemoryRecordSet> SelectionOf(const RecordTable& table)
{
    if (table.fields.empty())
        return std::make_shared<SelectionWithoutFields>();
    return std::make_shared<MemoryRecordSet>(table.fields, table.rows);
}

class ScriptedComponent : public Component {
public:
    ScriptedComponent(std::string className, std::shared_ptr<ScriptedComponents::State> state)
        : className_(std::move(className)), state_(std::move(state)), selection_(SelectionOf({}))
    {
        ++state_->liveObjects;
    }
    ~ScriptedComponent() override { --state_->liveObjects; }
    ScriptedComponent(const ScriptedComponent&) = delete;
    ScriptedComponent& operator=(const ScriptedComponent&) = delete;

    Value Get(std::string_view member) override
    {
        state_->FailIfScripted(Full(member));
        if (member == ResultMember)
            return selection_;
        const auto found = members_.find(member);
        if (found != members_.end())
            return found->second;
        return member == PackageMember ? Value(false) : Value();
    }

    void Set(std::string_view member, const Value&) override { state_->FailIfScripted(Full(member)); }

    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        state_->FailIfScripted(Full(member));
        const auto answer = state_->NextAnswer(Full(member));
        if (member == PagingMember)
            return PageInto(arguments);
        if (!answer) {
            Select(member, {}, arguments);
            return Integer{0};
        }
        for (const auto& [name, value] : answer->members)
            members_[name] = value;
        Select(member, answer->records, arguments);
        return answer->result;
    }

private:
    std::string Full(std::string_view member) const { return className_ + "." + std::string(member); }

    /// A selection in mode 1 is paged by its second argument, as the real components do it. Other members
    /// may begin with a number too: the error window with that of the failure.
    void Select(std::string_view member, const RecordTable& table, std::span<Argument> arguments)
    {
        selection_ = SelectionOf(table);
        const bool paged =
            member.starts_with("Selecionar") && arguments.size() > 2 && arguments[0].Get() == Value(Long{1});
        if (paged)
            selection_->PageSize(std::max<Long>(arguments[1].Get().ToLong(), 1));
    }

    Value PageInto(std::span<Argument> arguments)
    {
        if (arguments.size() != 2)
            throw Failure(FailureNumber::WrongArgumentCount);
        arguments[1].Assign(CopyPage(*selection_, arguments[0].Get().ToLong()));
        return {};
    }

    std::string className_;
    std::shared_ptr<ScriptedComponents::State> state_;
    std::shared_ptr<MemoryRecordSet> selection_;
    std::map<std::string, Value, std::less<>> members_;
};

} // namespace

ScriptedComponents::ScriptedComponents() : state_(std::make_shared<State>()) { System("Linux"); }

void ScriptedComponents::Answer(const std::string& member, ScriptedAnswer answer)
{
    state_->queued[member].push_back(std::move(answer));
}

void ScriptedComponents::Always(const std::string& member, ScriptedAnswer answer)
{
    state_->standing[member] = std::move(answer);
}

void ScriptedComponents::Fail(const std::string& member, Failure failure)
{
    state_->queued[member].push_back(std::move(failure));
}

void ScriptedComponents::FailCreate(const std::string& className, Failure failure)
{
    state_->failingCreations[className].push_back(std::move(failure));
}

void ScriptedComponents::System(const std::string& name) { Always(SystemMember, {.result = name}); }

ComponentRef ScriptedComponents::CreateObject(std::string_view className)
{
    const std::string name(className);
    auto& failures = state_->failingCreations[name];
    if (!failures.empty()) {
        const Failure failure = failures.front();
        failures.pop_front();
        throw failure;
    }
    return std::make_shared<ScriptedComponent>(name, state_);
}

int ScriptedComponents::LiveObjects() const { return state_->liveObjects; }

} // namespace kova::scenario
