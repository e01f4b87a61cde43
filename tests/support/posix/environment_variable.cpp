#include "tests/support/environment_variable.hpp"

namespace kova::test {

void SetVariable(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }

void RemoveVariable(const char* name) { unsetenv(name); }

} // namespace kova::test
