#pragma once

#include "tests/conformance/widgets/bench.hpp"

#include <gtest/gtest.h>

namespace kova::conformance {

using Events = std::vector<std::string>;
using toolkit::FormKey;
using toolkit::GridKey;

/// A form "frm" of the controls that a test designs, inside a container of its own, and a person in front
/// of it. The test fails where something waits for the person that it had not prepared, where it had
/// prepared too much, and where a handler let a failure out that it does not take.
class WidgetsTest : public testing::TestWithParam<BenchKind> {
protected:
    WidgetsTest();
    void TearDown() override;

    Bench& User() { return *bench_; }
    kova::Toolkit& Kit() { return bench_->Kit(); }
    Script& TheScript() { return bench_->TheScript(); }

    /// Adds a control below the former ones. The answer is valid until the next one is added.
    ControlDesign& Has(WidgetKind kind, std::string name);
    void Make();
    void Open();
    /// Another form of the same controls; it is a window of its own.
    FormRef MakeWindow(const std::string& name);

    template <class Kind> Kind& Get(std::string_view name, int index = -1)
    {
        return Bind<Kind>(form_, name, index);
    }
    std::string Focused() { return bench_->Focused(*form_); }

    /// A handler that notes a word.
    Handler Note(std::string word)
    {
        return [this, word = std::move(word)] { events_.push_back(word); };
    }
    Events TakeEvents() { return std::exchange(events_, {}); }
    std::vector<std::int32_t> TakeUnhandled();

private:
    // Forms go before the toolkit.
    std::unique_ptr<Bench> bench_ = GetParam().make();

protected:
    FormDesign design_;
    FormRef form_;
    Long container_ = 0;
    Events events_;

private:
    Twips nextTop_ = 0;
    std::size_t unhandledSeen_ = 0;
};

/// Number of the failure that a call ends with; 0 where it ends well.
template <class Call> std::int32_t FailureOf(Call call)
{
    try {
        call();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

inline std::string NameOfBench(const testing::TestParamInfo<BenchKind>& info) { return info.param.name; }

} // namespace kova::conformance

/// Runs a suite over every toolkit.
#define KOVA_ON_EVERY_BENCH(suite)                                                                           \
    INSTANTIATE_TEST_SUITE_P(Widgets, suite, testing::ValuesIn(Benches()), NameOfBench)
