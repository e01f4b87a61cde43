#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace kova::test {

/// Sets a variable of this process's environment, or takes it out.
void SetVariable(const char* name, const std::string& value);
void RemoveVariable(const char* name);

/// Gives an environment variable another value for a while.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::string& value) : name_(name)
    {
        if (const char* former = std::getenv(name))
            former_ = former;
        SetVariable(name, value);
    }
    ~EnvironmentVariable()
    {
        if (former_)
            SetVariable(name_, *former_);
        else
            RemoveVariable(name_);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* name_;
    std::optional<std::string> former_;
};

} // namespace kova::test
