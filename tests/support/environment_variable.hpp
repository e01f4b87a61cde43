#pragma once

#include <cstdlib>
#include <string>

namespace kova::test {

/// Takes an environment variable that nobody has set, for a while.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::string& value) : name_(name)
    {
        setenv(name, value.c_str(), 1);
    }
    ~EnvironmentVariable() { unsetenv(name_); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* name_;
};

} // namespace kova::test
