#pragma once

#include "agenda/contracts/date_time.hpp"
#include "family/data/engine/key.hpp"
#include "toolkits/common/user/user.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kova::toolkit {
class FormModel;
class ToolkitModel;
} // namespace kova::toolkit

namespace kova::host {

/// What the list does with one of its rows: a button of the row, or an entry of its menu of cards.
struct RowCommand {
    std::string_view control;
    /// The button's key; "" is an entry.
    std::string_view key;
};

namespace row_commands {
inline constexpr RowCommand Detail{"kvcmdDetalhar", "F4"};
inline constexpr RowCommand Alter{"kvcmdAlterar", "F6"};
inline constexpr RowCommand Delete{"kvcmdExcluir", "F8"};
inline constexpr RowCommand MarkBooked{"kvcmdMarcarAgendamentoComoAgendado", "Ctrl+1"};
inline constexpr RowCommand MarkAttended{"kvcmdMarcarAgendamentoComoAtendido", "Ctrl+2"};
inline constexpr RowCommand MarkCancelled{"kvcmdMarcarAgendamentoComoCancelado", "Ctrl+3"};
inline constexpr RowCommand MarkWithPreSale{"kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda", "Ctrl+4"};
inline constexpr RowCommand TransportCard{"mnuImprimirFichaDoAgendamentoParaTransporte", ""};
inline constexpr RowCommand InspectionCard{"mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal", ""};
inline constexpr RowCommand AddressLabel{"mnuImprimirEtiquetaDeEndereco", ""};
} // namespace row_commands

/// What is known of an appointment that is to be booked; what is 0 or not there the user gives himself.
struct Booking {
    Date date;
    std::optional<TimeOfDay> time{};
    family::Key employee = 0, customer = 0, animal = 0, service = 0;
    /// How many times, and how many weeks lie between two of them: 1 or 2.
    int sessions = 1, weeks = 1;
};

/// The agenda's own screens, used for somebody who is at work elsewhere in the window, as if he had used
/// their controls himself: what the agenda asks, refuses and writes is what it would be then, and the agenda
/// knows nothing of it. The list shows afterwards the day that it had shown, under the same filters.
class AgendaScreens {
public:
    explicit AgendaScreens(toolkit::ToolkitModel& toolkit) : toolkit_(toolkit), user_(toolkit) { }

    /// Returns when the user is done with what the command has opened. Answers "", or for the user why
    /// nothing was done.
    std::string Run(const RowCommand& command, family::Key number, Date date);
    /// Opens the form of a new appointment, fills in what is known, and returns when the user has closed it.
    /// Answers as Run.
    std::string Book(const Booking& booking);
    /// What stands in the record form that is open and can be typed into; nothing where there is none.
    std::optional<Booking> OpenBooking() const;
    /// Puts service, date, hour, employee and repetition into it.
    void FillOpen(const Booking& booking);
    static bool IsRecord(const toolkit::FormModel& form);
    /// The day that the list shows; nothing where it shows none.
    std::optional<Date> DayOfList() const;
    /// Why the user may not do it, as the list says it; "" where he may.
    std::string WhyDenied(const RowCommand& command) const;
    std::string WhyNotBooked() const;

private:
    class ListAsItWas;

    std::string WhyDenied(std::string_view control) const;
    bool ShowRow(family::Key number, Date date);
    Long RowOnPage(family::Key number) const;
    /// Puts the mouse on the row of an appointment; false where the list does not have it.
    bool FindRow(family::Key number);
    bool IsRecordOpen() const;
    void Fill(const Booking& booking);
    void FillRepetition(const Booking& booking);

    toolkit::ToolkitModel& toolkit_;
    toolkit::User user_;
};

} // namespace kova::host
