#pragma once

#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/registers/registers.hpp"

namespace kova::family::test {

/// What is typed into the fields that are called so.
using Typed = std::vector<std::pair<const char*, const char*>>;

/// The shop of DeskTest with its registers. Lia writes on 20/11/2026 at 09:04:05; Marcos writes at another
/// desk, by a connection of his own, at 09:30. On that day and later Bia, employee 2, has seven appointments,
/// and so has service 2, the bath; customer 10 has four.
class RegisterTest : public DeskTest {
protected:
    using Register = registers::Register;
    using SaveAnswer = registers::SaveAnswer;

    Database& Data();

    static registers::Texts Over(const Register& of, registers::Texts texts, const Typed& typed);
    /// Lia opens a row, types and saves.
    SaveAnswer Change(const Register& of, Key key, const Typed& typed);
    SaveAnswer Add(const Register& of, const Typed& typed);
    /// The text of one field of a stored row.
    std::string Field(const Register& of, Key key, const char* label);

    /// "LABEL: why" of every refused field, joined by blanks; "feito" where it was done, "não existe" where
    /// the row is gone.
    static std::string Told(const Register& of, const SaveAnswer& answer);
    /// The answer is that, and nothing was written.
    void ExpectRefused(const Register& of, Key key, const Typed& typed, const std::string& told);
    void ExpectDone(const Register& of, Key key, const Typed& typed);

    /// Every column of the registers' tables, and the audit.
    std::vector<std::string> AllRows();

    const Author lia_{"7", "Lia", "2026-11-20 09:04:05", "BALCAO-1"};
    const Author marcos_{"8", "Marcos", "2026-11-20 09:30:00", "BALCAO-2"};
};

} // namespace kova::family::test
