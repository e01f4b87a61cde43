#include "family/data/migrations/schemas.hpp"

namespace kova::family {

std::vector<std::string> SchemaOfVersion6(const Dialect& dialect) { return dialect.pinCounting; }

} // namespace kova::family
