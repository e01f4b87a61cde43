#pragma once

#include "host/components/server_host.hpp"

#include <filesystem>

namespace kova::host {

/// Makes sure that every component the application needs is registered. Libraries of `folder` that the
/// registry does not name by their path, because they are new or have moved, register their classes; all
/// of them do where a needed class is missing. A registry with a line that cannot be read is not changed.
/// What is wrong with it goes to the standard error output as long as nothing needed is missing.
/// Throws ComponentError where the registry or a library cannot be used, or a needed class is missing;
/// the text names it.
void SetUpComponents(Registry& registry, RegistryServerHost& server, const std::filesystem::path& folder);

/// Loads what is not loaded yet of the libraries that the registry names, so that an update under the running
/// program does not mix libraries of two versions. One that cannot be loaded is told when it is needed.
void LoadComponents(const Registry& registry, RegistryServerHost& server);

} // namespace kova::host
