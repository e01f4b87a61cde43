#pragma once

#include "agenda/contracts/business_services.hpp"

#include <functional>

namespace kova::host {

/// The components as the agenda gets them, so that the host hears when it selects appointments. Nothing else
/// about them is different.
class HeardComponents : public ComponentService {
public:
    /// The service must outlive it.
    explicit HeardComponents(ComponentService& components) : components_(components) { }

    /// Before appointments are selected; it may not select any.
    std::function<void()> onSelecting = [] {};
    /// After it was done, with the day "dd/mm/yyyy" as it was asked for.
    std::function<void(const Text& day)> onSelected = [](const Text&) {};

    /// Nobody hears it any more.
    void Forget()
    {
        onSelecting = [] {};
        onSelected = [](const Text&) {};
    }

    ComponentRef CreateObject(std::string_view className) override;

private:
    ComponentService& components_;
};

} // namespace kova::host
