#pragma once

#include "tests/window/shop.hpp"

namespace kova::window_test {

/// A shop whose appointment book is empty, and how a receptionist fills the full record in it.
///
/// Registered customers that a test may count on:
/// - 17 "Zulmar Quaresma" and 10 "Zulmira Quaresma", the only ones with "quaresma" in their name, in that
/// order;
///   Zulmira has several animals, of which "Tobias" (14) is the only one in T;
/// - 1, whose only animal (1) bears the microchip 900123000000001.
class AppointmentBook : public Shop {
protected:
    static constexpr const char* List = "frmLista";
    static constexpr const char* Record = "frmFichaCompleta";

    AppointmentBook();

    /// From the list to the record for a new appointment; the first box of the customer has the focus.
    void OpensNewRecord();
    /// Zulmira by her code, and of her animals Tobias.
    void EntersCustomerAndAnimal();
    /// A part of a name that only one service has.
    void EntersService(const std::string& part);
    /// Digits alone, as they are typed over the masks: "24112026", "1500".
    void EntersStart(const std::string& date, const std::string& time);
    /// The first letter of a nickname.
    void EntersEmployee(const std::string& letter);
    /// "Reagendar" on "Sim"; the number of repetitions has the focus.
    void AsksForRepetition();
    /// By mouse, in that form.
    void SavesAndLeaves(const char* form = Record);

    /// "date start|date end|customer|animal|service|employee", a row for each appointment, by their start.
    std::vector<std::string> Appointments() const;
};

} // namespace kova::window_test
