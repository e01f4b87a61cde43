#pragma once

#include "agenda/contracts/platform.hpp"
#include "bench/data_host.hpp"
#include "family/business/appointments/agenda.hpp"

namespace kova::bench {

/// A session's user.
class BookingUser : public Component {
public:
    using Component::Call;
    Value Get(std::string_view member) override
    {
        return member == "Codigo" ? Value(Long(2)) : Value("Carla");
    }
    void Set(std::string_view, const Value&) override { throw std::logic_error("a user is only read"); }
    Value Call(std::string_view, std::span<Argument>) override
    {
        throw std::logic_error("a user is only read");
    }
};

/// A host that also has a user and the time of day, which writes ask for. Its clock stands, so that all rows
/// are alike.
class BookingHost : public DataHost, private Platform, private kova::Clock {
public:
    using DataHost::DataHost;
    Platform& GetPlatform() override { return *this; }
    const ObjectRef& User() const { return user_; }

private:
    ComponentService& Components() override { throw std::logic_error("a booking needs no other component"); }
    kova::Toolkit& Toolkit() override { throw std::logic_error("a booking needs no toolkit"); }
    kova::Clock& Clock() override { return *this; }
    kova::Profile& Profile() override { throw std::logic_error("a booking needs no settings"); }
    Text SettingsFolder() const override { return {}; }
    Text SettingsTitle() const override { return {}; }
    DateTime Now() const override { return {{2026, 11, 20}, {9, 4, 5}}; }
    Double Timer() const override { return 0; }

    const ObjectRef user_ = std::make_shared<BookingUser>();
};

} // namespace kova::bench
