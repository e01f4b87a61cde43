#pragma once

#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/data/audit/author.hpp"

namespace kova::family::test {

/// The shop of DeskTest, looked at on 20/11/2026 at 09:04:05. Customer 10 has an animal, 50, two channels,
/// the appointments 1 and 2 of that day and those of package 1, 21 to 23, and waits for a bath, 1. Somebody
/// without a register has appointment 4. Each column of theirs that can tell who they are holds "zq", its
/// table and its own name.
class PrivacyTest : public DeskTest {
protected:
    PrivacyTest();

    /// The texts that Marked has put into the customer's rows, those of appointment 4 among them.
    const std::vector<std::string>& Marks() const { return marks_; }
    /// Books and changes in the shop's own ways, so that the audit tells of it.
    void Write();
    /// Every value of every table but the links of the audit, a line for each row.
    std::string WholeDatabase();

    const Author ana_{"3", "Ana", "2026-11-20 09:04:05", "BALCAO-1"};
    const DateTime now_{{2026, 11, 20}, {9, 4, 5}};

private:
    void Mark(const std::string& table, const std::string& condition);

    std::vector<std::string> marks_;
};

} // namespace kova::family::test
