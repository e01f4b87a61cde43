#pragma once

#include <system_error>

namespace kova::system {

/// Whether a write failed because the disk is full, the user has used up his share of it, or a file would
/// grow beyond what is allowed.
bool IsWantOfRoom(const std::error_code& error);

} // namespace kova::system
