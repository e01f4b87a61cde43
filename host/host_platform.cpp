#include "host/host_platform.hpp"

#include "host/folders.hpp"

namespace kova::host {

Text HostPlatform::SettingsFolder() const
{
    // The settings file is written only into a folder that is there. Without one the settings are not
    // kept; nothing else needs it.
    std::error_code ignored;
    std::filesystem::create_directories(host::SettingsFolder(), ignored);
    return host::SettingsFolder().string();
}

} // namespace kova::host
