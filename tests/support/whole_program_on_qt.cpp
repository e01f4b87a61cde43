#include "tests/support/qt_application.hpp"

#include <gtest/gtest.h>

// A program whose tests all need the application, fixtures or not.
namespace kova::test {
namespace {

class OnQt : public testing::Environment {
public:
    void SetUp() override { NeedApplication(); }
};

[[maybe_unused]] testing::Environment* const registered = testing::AddGlobalTestEnvironment(new OnQt);

} // namespace
} // namespace kova::test
