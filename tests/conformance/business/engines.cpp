#include "tests/conformance/business/family_engine.hpp"
#include "tests/conformance/business/scripted_engine.hpp"

#include <algorithm>
#include <iterator>

namespace kova::conformance {

const std::vector<EngineKind>& Engines()
{
    static const std::vector<EngineKind> engines = {
        {.name = "Scripted",
         .make = MakeScriptedEngine,
         .checksNames = false,
         .keepsFormerResult = false,
         .livesInALibrary = false,
         .storesWrites = false,
         .endsOnTheLastPage = false},
        {.name = "Sqlite", .make = MakeSqliteEngine},
        {.name = "Postgresql", .make = MakePostgresqlEngine},
    };
    return engines;
}

namespace {

std::vector<EngineKind> EnginesWhere(bool EngineKind::*trait, bool wanted)
{
    std::vector<EngineKind> found;
    std::copy_if(Engines().begin(), Engines().end(), std::back_inserter(found),
                 [&](const EngineKind& kind) { return kind.*trait == wanted; });
    return found;
}

} // namespace

std::vector<EngineKind> EnginesWith(bool EngineKind::*trait) { return EnginesWhere(trait, true); }
std::vector<EngineKind> EnginesWithout(bool EngineKind::*trait) { return EnginesWhere(trait, false); }

} // namespace kova::conformance
