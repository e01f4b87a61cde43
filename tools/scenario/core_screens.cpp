// The screens of a build without the screen toolkit.

#include "tools/scenario/screen.hpp"

#include <stdexcept>

namespace kova::scenario {

std::unique_ptr<Screen> MakeScreen(const std::string& name)
{
    if (name == "headless")
        return MakeHeadlessScreen();
    throw std::invalid_argument("Esta construção não tem o conjunto de telas '" + name + "'.");
}

} // namespace kova::scenario
