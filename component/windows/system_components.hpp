#pragma once

#include "agenda/contracts/business_services.hpp"

namespace kova::component {

/// Components by the system's own registry: the family's, and those of other makers in their place.
class SystemComponents : public ComponentService {
public:
    ComponentRef CreateObject(std::string_view className) override;
};

} // namespace kova::component
