#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/components/component_service.hpp"
#include "host/components/server_host.hpp"
#include "tests/unit/host/components/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kova::test {

/// A platform of which only the settings folder is ever asked for.
class FolderPlatform : public Platform {
public:
    ComponentService& Components() override { throw Failure(FailureNumber::NoObject); }
    kova::Toolkit& Toolkit() override { throw Failure(FailureNumber::NoObject); }
    kova::Clock& Clock() override { throw Failure(FailureNumber::NoObject); }
    kova::Profile& Profile() override { throw Failure(FailureNumber::NoObject); }
    Text SettingsFolder() const override { return "/pasta/de/teste"; }
    Text SettingsTitle() const override { return "teste"; }
};

/// A host with a registry file of its own, over the test component libraries.
class HostTest : public testing::Test {
protected:
    /// What a ComponentError of `action` says; "" where it ends well.
    template <class Action> static std::string ErrorOf(Action action)
    {
        try {
            action();
        } catch (const std::exception& error) {
            return error.what();
        }
        return {};
    }

    TemporaryFolder folder;
    FolderPlatform platform;
    host::Registry registry{folder.File("registro.txt")};
    host::RegistryServerHost server{registry, platform, "dados.db"};
    host::RegisteredComponents components{registry, server.Libraries()};
};

inline bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace kova::test
