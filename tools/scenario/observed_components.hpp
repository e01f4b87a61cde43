#pragma once

#include "agenda/contracts/business_services.hpp"

#include <functional>
#include <memory>
#include <string>

namespace kova::scenario {

/// What happens at the business border: one line for each crossing, and the failure to inject.
struct CrossingLog {
    std::function<void(const std::string&)> line = [](const std::string&) {};
    /// Crossings so far: every create, set, get and call counts one, before it acts.
    int count = 0;
    /// Number of the crossing that fails with 5, "Falha injetada"; 0 is none.
    int failAt = 0;

    /// Counts a crossing and throws where it is the one that shall fail.
    void Cross();
};

/// A component service that logs everything that passes through it and answers from another one.
class ObservedComponents : public ComponentService {
public:
    ObservedComponents(ComponentService& inner, std::shared_ptr<CrossingLog> log);
    ComponentRef CreateObject(std::string_view className) override;

private:
    ComponentService& inner_;
    std::shared_ptr<CrossingLog> log_;
};

} // namespace kova::scenario
