#include "host/host_platform.hpp"

#include "host/folders.hpp"
#include "system/path_text.hpp"

namespace kova::host {

Text HostPlatform::SettingsFolder() const
{
    // The settings file is written only into a folder that is there. Without one the settings are not
    // kept; nothing else needs it.
    std::error_code ignored;
    std::filesystem::create_directories(host::SettingsFolder(), ignored);
    return system::TextOf(host::SettingsFolder());
}

} // namespace kova::host
