#include "host/session/heard_components.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kova::host {

namespace {

/// Answers what it is told to, and notes what it is asked.
class Noted : public Component {
public:
    using Component::Call;

    Value Get(std::string_view member) override { return "de " + Text(member); }
    void Set(std::string_view member, const Value& value) override { noted += Text(member) + value.ToText(); }
    Value Call(std::string_view member, std::span<Argument> arguments) override
    {
        noted += Text(member) + std::to_string(arguments.size());
        return status;
    }
    std::vector<Member> Members() const override { return {{"Numero", false, true, false}}; }

    std::string noted;
    Integer status = 0;
};

class OneObject : public ComponentService {
public:
    ComponentRef CreateObject(std::string_view) override { return object; }

    std::shared_ptr<Noted> object = std::make_shared<Noted>();
};

class TheHeardComponents : public testing::Test {
protected:
    TheHeardComponents()
    {
        heard_.onSelecting = [this] { told_ += "antes "; };
        heard_.onSelected = [this](const Text& day) { told_ += day; };
    }

    Value Select()
    {
        return heard_.CreateObject("KOVA_N_Agenda.clsAgenda")
            ->Call("Selecionar", {Long{1}, Integer{10}, Long{0}, "", "20/11/2026", Long{0}, Long{0}, 0.0});
    }

    OneObject components_;
    HeardComponents heard_{components_};
    std::string told_;
};

} // namespace

TEST_F(TheHeardComponents, TellOfASelectionBeforeAndAfterIt)
{
    EXPECT_EQ(Select(), Value(Integer(0)));
    EXPECT_EQ(told_, "antes 20/11/2026");
    EXPECT_EQ(components_.object->noted, "Selecionar8");
}

TEST_F(TheHeardComponents, TellOfNoDayWhereTheSelectionHasFailed)
{
    components_.object->status = 1;
    EXPECT_EQ(Select(), Value(Integer(1)));
    EXPECT_EQ(told_, "antes ");
}

TEST_F(TheHeardComponents, TellNobodyAnyMoreOnceTheyAreToldToForget)
{
    heard_.Forget();
    EXPECT_EQ(Select(), Value(Integer(0)));
    EXPECT_EQ(told_, "");
}

TEST_F(TheHeardComponents, AreTheSameInEverythingElse)
{
    const ComponentRef agenda = heard_.CreateObject("KOVA_N_Agenda.clsAgenda");
    agenda->Set("Numero", "7");
    EXPECT_EQ(agenda->Get("Numero"), Value("de Numero"));
    EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(agenda->Members(), components_.object->Members());
    EXPECT_EQ(components_.object->noted, "Numero7Alterar0");
    EXPECT_EQ(told_, "");
    EXPECT_EQ(heard_.CreateObject("KOVA_N_Dados.clsBanco"), components_.object);
}

} // namespace kova::host
