#pragma once

#include <string>

namespace kova::system {

/// Whether what lies at that path, a file or a folder, lies on another computer's disk that the network only
/// shows here: there neither locks nor memory are shared with whoever else has it open. False where it cannot
/// be told.
bool IsOnNetworkDisk(const std::string& path);

} // namespace kova::system
