#pragma once

#include "tests/conformance/business/engine.hpp"

#include <gtest/gtest.h>

namespace kova::conformance {

/// The arguments of clsAgenda.Selecionar.
struct DayRequest {
    Long mode = 2;
    Integer pageRows = 0;
    Long status = 0;
    Text text = "";
    Text date = BusyDay;
    Long type = 0;
    Long employee = 0;
    Value transport = Long(0);
};

/// One engine with the shop laid down, anew for each test.
class BusinessTest : public testing::TestWithParam<EngineKind> {
protected:
    Engine& TheEngine() { return *engine_; }
    ComponentRef Create(const std::string& className)
    {
        return engine_->Components().CreateObject(className);
    }

    /// Runs a selection on clsAgenda that has to find these appointments. The answer is its status.
    Value Select(Component& agenda, const DayRequest& request, const std::vector<int>& finds);
    /// The record set of a fresh clsAgenda, which is released.
    RecordSetRef Selected(const DayRequest& request, const std::vector<int>& finds);
    /// The day with its seven appointments in mode 1.
    RecordSetRef PagedDay(Component& agenda, Integer pageRows);
    /// What clsAgenda copies of the page its selection stands on.
    static RecordSetRef Page(Component& agenda, Integer pageRows);
    /// Calls a member that has to find these rows. The answer is its status.
    Value Ask(const std::string& className, const std::string& member, Component& component,
              const Rows& finds, std::vector<Argument> arguments);
    /// Runs the selection of the class, without a condition where it takes one.
    Value Fill(const std::string& className, Component& component, const Rows& finds);

private:
    std::unique_ptr<Engine> engine_ = GetParam().make();
};

/// Numbers of the appointments of the whole day, in its order.
const std::vector<int>& WholeDay();

/// Every class but clsAgenda that selects, with what Fill finds of it in the shop.
struct Register {
    std::string className;
    Rows rows;
};
const std::vector<Register>& AllRegisters();

RecordSetRef ResultOf(Component& component);
/// The numbers of the appointments from the first row on; ends at Eof.
std::vector<int> NumbersOf(RecordSet& records);
/// Names and values of all rows; ends at Eof.
Rows ContentOf(RecordSet& records);
void ExpectSame(const Rows& actual, const Rows& expected);

/// Number of the failure that the action ends in; 0 where it ends well.
template <class Action> std::int32_t NumberOfFailure(Action action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

inline std::string NameOfEngine(const testing::TestParamInfo<EngineKind>& info) { return info.param.name; }

} // namespace kova::conformance

/// Runs a suite over a list of engines. A suite about something that no engine does is empty, not wrong.
#define KOVA_OVER_ENGINES(suite, engines)                                                                    \
    GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(suite);                                                    \
    INSTANTIATE_TEST_SUITE_P(Business, suite, testing::ValuesIn(engines), NameOfEngine)
#define KOVA_OVER_EVERY_ENGINE(suite) KOVA_OVER_ENGINES(suite, Engines())
