#pragma once

#include "family/demo/appointments.hpp"

#include <string>

namespace kova::family {

/// A fictional shop: the same plan always gives the same content.
struct ShopPlan {
    int employees = 10;
    int customers = 400;
    AppointmentPlan appointments;
};

/// A small shop with about 40 appointments a day from 60 days before the date to 60 days after it.
ShopPlan DemonstrationPlan(Date date);

/// A shop for measuring, with exactly that many customers and appointments, the appointments on
/// about 2,500 days around the date. Fails with 5 where a number is below 1.
ShopPlan MeasuringPlan(Date date, int customers, long long appointments);

/// The same with so few employees that the appointments lie on as many days as they need. Fails with 5 below
/// FewestEmployees, with whom not every service is given.
inline constexpr int FewestEmployees = 6;
ShopPlan MeasuringPlan(Date date, int customers, long long appointments, int employees);

/// Makes the database of the shop at `path`. Fails as CreateDatabase.
void CreateShop(const std::string& path, const ShopPlan& plan);

} // namespace kova::family
