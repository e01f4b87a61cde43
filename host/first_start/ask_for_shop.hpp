#pragma once

#include <optional>
#include <string>

class QWidget;

namespace kova::host {

class RememberedShops;

/// Asks with which shop to work and answers where it lies; nothing where the user leaves the question. `told`
/// stands above it: "" or why another shop could not be opened.
std::optional<std::string> AskForShop(const RememberedShops& remembered, const std::string& told,
                                      QWidget* parent = nullptr);

} // namespace kova::host
