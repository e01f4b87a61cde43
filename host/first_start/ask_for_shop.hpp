#pragma once

#include "host/first_start/chosen_shop.hpp"

#include <optional>
#include <string>

class QWidget;

namespace kova::host {

class RememberedShops;

/// Asks with which shop to work; nothing where the user leaves the question. `told`
/// stands above it: "" or why another shop could not be opened.
std::optional<ChosenShop> AskForShop(const RememberedShops& remembered, const std::string& told,
                                     QWidget* parent = nullptr);

} // namespace kova::host
