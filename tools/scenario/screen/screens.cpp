#include "tools/scenario/screen/qt_screen.hpp"

#include <stdexcept>

namespace kova::scenario {

std::unique_ptr<Screen> MakeScreen(const std::string& name)
{
    if (name == "headless")
        return MakeHeadlessScreen();
    if (name == "qt")
        return MakeQtScreen();
    throw std::invalid_argument("O conjunto de telas '" + name + "' não existe. Há headless e qt.");
}

} // namespace kova::scenario
