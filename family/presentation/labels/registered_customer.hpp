#pragma once

#include "agenda/contracts/business_services.hpp"
#include "family/presentation/labels/postal_address.hpp"

#include <optional>

namespace kova::family {

struct RegisteredCustomer {
    PostalAddress address = {};
    /// 1 active, 2 inactive, 3 blocked, 4 deleted.
    Long situation = 0;
};

/// A business component could not do its work; the place is the component's own.
class BusinessFailure : public Failure {
public:
    BusinessFailure(const Failure& failure, Text place) : Failure(failure), place_(std::move(place)) { }
    const Text& Place() const { return place_; }

private:
    Text place_;
};

/// The customer with that code, from KOVA_N_ClientAnim.clsClientes; none where nobody has it. Fails with
/// BusinessFailure where the component reports one, and otherwise as its members do.
std::optional<RegisteredCustomer> FindCustomer(ComponentService& components, const Value& user, Double code);

} // namespace kova::family
