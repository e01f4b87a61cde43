#pragma once

#include "agenda/contracts/component_server.hpp"
#include "host/embedded/embedded_screen.hpp"
#include "host/host_platform.hpp"

namespace kova::host {

/// The host of one component library in a program that is not of the family: the shop is the one that this
/// user has opened last in the application.
class EmbeddedHost : public ServerHost {
public:
    /// Both must outlive it.
    EmbeddedHost(EmbeddedScreen& screen, ComponentService& components)
        : platform_(screen.Clock(), screen.Toolkit())
    {
        platform_.Use(components);
    }

    /// Classes are registered with the system.
    bool Register(const ClassRegistration&) override { return false; }
    bool Unregister(std::string_view) override { return false; }
    Platform& GetPlatform() override { return platform_; }
    /// Fails with 429 where no shop was ever opened.
    std::string DataSource() const override;

private:
    HostPlatform platform_;
};

} // namespace kova::host
