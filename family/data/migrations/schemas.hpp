#pragma once

#include "family/data/engine/dialect.hpp"

#include <string>
#include <vector>

/// The statements of each step of the schema. A step that has once been delivered never changes.
namespace kova::family {

std::vector<std::string> SchemaOfVersion1(const Dialect& dialect);
std::vector<std::string> SchemaOfVersion2(const Dialect& dialect);
std::vector<std::string> SchemaOfVersion3(const Dialect& dialect);
std::vector<std::string> SchemaOfVersion4(const Dialect& dialect);

} // namespace kova::family
