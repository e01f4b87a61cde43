#include "tests/support/environment_variable.hpp"

#include "system/windows/wide_text.hpp"

namespace kova::test {

/// A variable with an empty value is none here.
void SetVariable(const char* name, const std::string& value)
{
    _wputenv_s(system::Wide(name).c_str(), system::Wide(value).c_str());
}

void RemoveVariable(const char* name) { _wputenv_s(system::Wide(name).c_str(), L""); }

} // namespace kova::test
