#pragma once

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/history/changes.hpp"
#include "family/history/lines.hpp"
#include "family/history/undo.hpp"
#include "family/registers/registers.hpp"
#include "family/users/accounts.hpp"
#include "family/users/user_rights.hpp"

namespace kova::family::test {

/// What is typed into the fields that are called so.
using TypedFields = std::vector<std::pair<const char*, const char*>>;

/// The shop with two desks, whose history Lia looks at from a connection of its own, an hour later.
class HistoryTest : public TwoDesksTest {
protected:
    HistoryTest();

    using Filter = history::Filter;
    using Line = history::Line;
    using Subject = history::Subject;

    std::vector<Line> Find(const Filter& filter, std::size_t most = 1000);
    /// "USER: ACT" of each line that is found.
    std::vector<std::string> Acts(const Filter& filter);
    /// "CAPTION: BEFORE > AFTER" of each.
    std::vector<std::string> Changes(const Line& line);
    /// The newest line about that row.
    Line Newest(const std::string& table, Key key);
    static Filter OfRow(const std::string& table, Key key);

    /// Why it cannot be undone, behind "! "; else what will be done.
    std::string Plan(const Line& line);
    /// Why it was not; empty where it was.
    std::string Undo(const Line& line);

    /// Marcos changes a row of a register.
    void OtherSaves(const registers::Register& of, Key key, const TypedFields& typed);
    std::string Field(const registers::Register& of, Key key, const char* label);

    /// From then on there are users: Marcos administers, and Lia, at her desk, may do that and nothing else.
    void LiaMay(const Rights& rights);

    std::shared_ptr<Database> here_;
    const Author lia_{"7", "Lia", "2026-11-20 10:04:05", "BALCAO-1"};
};

} // namespace kova::family::test
