#include "system/program_path.hpp"

namespace kova::system {

std::filesystem::path ProgramPath() { return std::filesystem::canonical("/proc/self/exe"); }

} // namespace kova::system
