#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace kova::test {

/// Gives an environment variable another value for a while.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::string& value) : name_(name)
    {
        if (const char* former = std::getenv(name))
            former_ = former;
        setenv(name, value.c_str(), 1);
    }
    ~EnvironmentVariable()
    {
        if (former_)
            setenv(name_, former_->c_str(), 1);
        else
            unsetenv(name_);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* name_;
    std::optional<std::string> former_;
};

} // namespace kova::test
