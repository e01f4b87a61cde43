#pragma once

#include "agenda/contracts/component_server.hpp"

#include <stdexcept>
#include <string>

namespace kova::bench {

/// A host that tells the business components where the data lie, which is all that selections ask.
class DataHost : public ServerHost {
public:
    explicit DataHost(std::string path) : path_(std::move(path)) { }

    bool Register(const ClassRegistration&) override { return false; }
    bool Unregister(std::string_view) override { return false; }
    Platform& GetPlatform() override { throw std::logic_error("a selection needs no platform"); }
    std::string DataSource() const override { return path_; }

private:
    std::string path_;
};

} // namespace kova::bench
