#pragma once

#include "family/data/rows/rows.hpp"

#include <optional>

/// What a booking has to know of the registers that it refers to.
namespace kova::family {

class Database;

struct BookedCustomer {
    static constexpr const char* Table = "cliente";
    /// Whoever books for a customer holds the row, so that nobody removes or empties it before the booking is
    /// there, or waits for whoever does so, and sees it then.
    static constexpr bool SharesRow = true;
    Key code = 0;
    /// 1 active, 2 inactive, 3 blocked, 4 deleted.
    int status = 0;

    bool IsUsable() const { return status < 2 || status > 4; }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("situacao", status);
    }
};

struct BookedAnimal {
    static constexpr const char* Table = "animal";
    Key code = 0, customer = 0;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("codigo_do_cliente", customer);
    }
};

struct BookedServiceType {
    static constexpr const char* Table = "tipo_de_servico";
    Key number = 0;

    template <class Visit> void Columns(Visit visit) { visit("numero", number); }
};

struct BookedService {
    static constexpr const char* Table = "servico";
    Key code = 0, type = 0, priceInCents = 0;
    Nullable<int> sessions;
    int status = 0;

    bool IsActive() const { return status == 1; }
    /// Sold as several sessions.
    bool IsPackage() const { return !sessions.IsNull(); }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("numero_do_tipo_de_servico", type);
        visit("preco_em_centavos", priceInCents);
        visit("quantidade_de_sessoes", sessions);
        visit("situacao", status);
    }
};

struct BookedEmployee {
    static constexpr const char* Table = "funcionario";
    /// Whoever books an employee waits here for the others who do, and then sees what they have booked.
    static constexpr bool LocksRow = true;
    Key code = 0;
    std::string nickname;
    /// Appointments that can run at the same time; 0 is unlimited.
    int limit = 1;
    int status = 0;

    bool IsActive() const { return status == 1; }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("apelido", nickname);
        visit("agendamentos_simultaneos", limit);
        visit("situacao", status);
    }
};

/// What a booking refers to; 0 is nothing.
struct BookingKeys {
    Key customer = 0, animal = 0, serviceType = 0, service = 0, employee = 0;
};

/// The rows of these keys; nothing where there is none.
struct BookingRegisters {
    std::optional<BookedCustomer> customer;
    std::optional<BookedAnimal> animal;
    std::optional<BookedServiceType> serviceType;
    std::optional<BookedService> service;
    std::optional<BookedEmployee> employee;
    /// How often the holidays were changed, for HolidayCalendar.
    long long changesOfHolidays = 0;
    /// The same of opening hours, employees' hours and absences, for FindWorkTables.
    long long changesOfWorkTables = 0;
};

/// Reads them all at once, since a server that lies far away answers one question as soon as five. Locks the
/// employee and holds the customer, as FindByKey does, in the transaction that is open. Fails as
/// Database::With.
BookingRegisters FindBookingRegisters(Database& database, const BookingKeys& keys);

} // namespace kova::family
