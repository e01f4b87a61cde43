#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/components/profile_file.hpp"

namespace kova::host {

/// What the application hands to the module and the components.
class HostPlatform : public Platform {
public:
    /// All three must outlive it.
    HostPlatform(kova::Clock& clock, kova::Toolkit& toolkit) : clock_(clock), toolkit_(toolkit) { }

    /// To be given before the first component is made.
    void Use(ComponentService& components) { components_ = &components; }

    ComponentService& Components() override { return *components_; }
    kova::Toolkit& Toolkit() override { return toolkit_; }
    kova::Clock& Clock() override { return clock_; }
    kova::Profile& Profile() override { return profile_; }
    Text SettingsFolder() const override;
    Text SettingsTitle() const override { return "KOVA_A_Agenda"; }

private:
    kova::Clock& clock_;
    kova::Toolkit& toolkit_;
    ComponentService* components_ = nullptr;
    ProfileFile profile_;
};

} // namespace kova::host
