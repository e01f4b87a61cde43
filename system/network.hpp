#pragma once

#include <cstdint>
#include <string>

namespace kova::system {

enum class SocketEvent { CanBeRead, CanBeWritten };

/// Waits until a socket, by the system's number of it, can be read or written; also one that has failed can.
/// False where that did not come within so many milliseconds.
bool AwaitSocket(std::intptr_t socket, SocketEvent event, int milliseconds);

/// Whether the network knows a computer by that name or address.
bool IsKnownHost(const std::string& name);

} // namespace kova::system
