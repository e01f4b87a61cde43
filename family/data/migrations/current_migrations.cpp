#include "family/data/migrations/current_migrations.hpp"

#include "family/data/migrations/held_rules.hpp"
#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

constexpr Migration Steps[] = {
    {1, SchemaOfVersion1},
    {2, SchemaOfVersion2},
    {3, SchemaOfVersion3},
    {4, SchemaOfVersion4},
    {5, SchemaOfVersion5, FoldTextsAnew},
    {6, SchemaOfVersion6, HoldRules},
    {7, SchemaOfVersion7},
};

} // namespace

Migrations CurrentMigrations() { return Steps; }

} // namespace kova::family
