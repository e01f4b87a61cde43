#pragma once

#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace kova::host {

/// Tests that need an application. It lives as long as those of a suite: it must not be left to the end of
/// the process, and other suites start without one.
class WithApplication : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        static int count = 1;
        static char name[] = "test_host";
        static char* words[] = {name, nullptr};
        application_ = std::make_unique<QApplication>(count, words);
    }
    static void TearDownTestSuite() { application_.reset(); }

private:
    inline static std::unique_ptr<QApplication> application_;
};

} // namespace kova::host
