#pragma once

#include "agenda/contracts/business_services.hpp"

#include <string>

namespace kova::host {

/// What the application knows of the shop whose database is open.
struct Shop {
    /// "" where no company is registered.
    std::string tradeName;
    /// What was done to bring an older one up to date, for the user; "" where it was not older.
    std::string update;
    bool hasUsers = false;
    /// Nothing that is booked in it counts.
    bool isFictional = false;
};

/// Opens the data source of the host through the database component, for the whole process. Where
/// nothing is there and `makeDemonstration` allows it, the demonstration shop is made first, around
/// `today`. Throws std::runtime_error or Failure with a text for the user; the file is as it was then.
Shop OpenShop(ComponentService& components, bool makeDemonstration, const std::string& today);

} // namespace kova::host
