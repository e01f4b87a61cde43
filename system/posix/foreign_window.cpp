#include "system/foreign_window.hpp"

namespace kova::system {

std::unique_ptr<ForeignWindow> ForeignWindow::Of(std::int64_t, Listener) { return nullptr; }

} // namespace kova::system
