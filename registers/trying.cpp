#include "registers/trying.hpp"

#include "family/data/engine/database_failure.hpp"
#include "screens/question.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::registers {

bool Try(QWidget& over, const std::function<void()>& act)
{
    try {
        act();
        return true;
    } catch (const family::DatabaseFailure& failure) {
        screens::ShowWarning(over, qt::Lines(failure.Description()));
        return false;
    }
}

} // namespace kova::registers
