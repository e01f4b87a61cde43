#pragma once

#include "family/data/engine/long_work.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/waiting_rows.hpp"
#include "family/privacy/person.hpp"
#include "family/registers/description/field.hpp"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kova::family::privacy {

/// An appointment with the names of what it refers to.
struct PersonAppointment {
    AppointmentRow row;
    /// "CODE - NAME"; the animal is empty where it is not registered.
    std::string animal, serviceType, service, employee;
    /// Of one without a registered customer.
    Likeness likeness = Likeness::None;
};

struct PersonPackage {
    PackageRow row;
    /// "CODE - NAME"
    std::string service;
};

/// What the person waits for, or has waited for.
struct PersonWaiting {
    WaitingRow row;
    /// "CODE - NAME", the latter two with commas between; no employee is anybody.
    std::string animal, services, employees;
};

/// A write of one of the person's rows, as the audit tells of it.
struct PersonChange {
    /// "yyyy-mm-dd hh:mm:ss"
    std::string moment;
    /// "CODE - NAME"
    std::string user;
    /// One of audit_operation.
    std::string operation;
    std::string table;
    Key key = 0;
    /// Columns and values; of a change only those that it changed.
    std::vector<std::pair<std::string, std::string>> before, after;
};

/// Everything that the shop holds about one person.
struct PersonData {
    Key code = 0;
    /// The shop's trade name; empty where it has none.
    std::string shop;
    /// Fields of CustomerRegister, and of AnimalRegister for each animal. The customer's row may be gone.
    std::optional<registers::Texts> customer;
    std::vector<ChannelRow> channels;
    std::vector<registers::Texts> animals;
    /// By number. `likely` have no registered customer: something speaks for it that they are this person's.
    std::vector<PersonAppointment> appointments, likely;
    std::vector<PersonPackage> packages;
    std::vector<PreSaleRow> preSales;
    std::vector<PersonWaiting> waiting;
    /// Oldest first; of the likely ones only of those that are taken for his.
    std::vector<PersonChange> changes;
};

/// Nothing where no customer ever had that code. For a connection that sees one moment. Fails with a
/// DatabaseFailure, and with Interrupted where a stop is asked for.
std::optional<PersonData> ReadPerson(Database& database, Key code, const LongWork& work);

} // namespace kova::family::privacy
