#include "component/entry_names.hpp"

namespace kova::component {

const char* ClassesEntryPoint() { return "DllGetClassObject"; }

} // namespace kova::component
