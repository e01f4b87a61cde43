#include "family/data/migrations/current_migrations.hpp"

#include "family/data/migrations/schemas.hpp"

namespace kova::family {

namespace {

constexpr Migration Steps[] = {
    {1, SchemaOfVersion1},
    {2, SchemaOfVersion2},
    {3, SchemaOfVersion3},
    {4, SchemaOfVersion4},
    {5, SchemaOfVersion5, FoldTextsAnew},
    {6, SchemaOfVersion6, HoldRulesOfVersion6},
    {7, SchemaOfVersion7},
    {8, SchemaOfVersion8, HoldRulesOfVersion8},
    {9, SchemaOfVersion9, HoldRulesOfVersion9},
    {10, SchemaOfVersion10, ChainLinesOfVersion10},
    {11, SchemaOfVersion11},
    {12, SchemaOfVersion12, HoldRulesOfVersion12},
    {13, SchemaOfVersion13},
    {14, SchemaOfVersion14, HoldRulesOfVersion14},
    {15, SchemaOfVersion15},
};

} // namespace

Migrations CurrentMigrations() { return Steps; }

} // namespace kova::family
