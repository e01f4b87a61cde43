#pragma once

#include "family/data/engine/database.hpp"

namespace kova::family::history {

/// Stands for statements that are never the same twice.
struct Unprepared : KeptStatement {
    explicit Unprepared(Database&) { }
};

/// Runs what asks the engine directly; once more on a new connection where the first was lost.
template <class What> void Ask(Database& database, What what)
{
    database.With<Unprepared>([&](Unprepared&) { what(database.Session()); });
}

} // namespace kova::family::history
