#pragma once

#include "family/business/appointments/employee_room.hpp"
#include "family/csv/line.hpp"
#include "family/csv/registers/appointment_columns.hpp"
#include "family/data/stores/booking_registers.hpp"

#include <map>
#include <span>
#include <unordered_map>
#include <unordered_set>

namespace kova::family::csv {

using family::Key;
using family::Nullable;

/// What an appointment of a file has to fit to. Services, their types and employees are read once.
class AppointmentChecks {
public:
    /// Appointments that end after `now` need room.
    AppointmentChecks(family::Database& database, DateTime now);

    /// Reads the customers and animals of the records that are checked next.
    void LookUp(std::span<const AppointmentRecord> records);
    /// Tells the line all that speaks against the record, other appointments aside, and fills in what the
    /// file may leave out: the end date, the kind of record and the type of its service.
    void Check(AppointmentRecord& record, Line& line);
    void Complete(AppointmentRecord& record) const;
    /// Tells the line where the employee is not at work, or the record has no room beside the stored
    /// appointments and those before it, and takes the room. The record is good otherwise.
    void TakeRoom(const AppointmentRecord& record, Line& line);
    /// Locks, in the order of their codes, the employees whose room was taken, as a booking does: whoever
    /// books them waits until the transaction that is open ends.
    void LockRoom();

    /// Today's price of its service.
    Key PriceOf(const AppointmentRecord& record) const;

private:
    void CheckRegistered(const AppointmentRecord& record, Line& line) const;
    void CheckAnimal(const AppointmentRecord& record, Line& line) const;
    void CheckSimplified(const AppointmentRecord& record, Line& line) const;
    void CheckService(const AppointmentRecord& record, Line& line) const;
    void CheckEmployee(const AppointmentRecord& record, Line& line) const;
    void CheckTimes(const AppointmentRecord& record, Line& line) const;
    void CheckPreSale(const AppointmentRecord& record, Line& line) const;

    family::Database& database_;
    DateTime now_;
    /// Those that the records name.
    std::unordered_set<Key> customers_;
    /// Each animal's customer.
    std::unordered_map<Key, Key> animals_;
    std::unordered_map<Key, family::BookedService> services_;
    std::unordered_map<Key, family::BookedEmployee> employees_;
    std::map<Key, family::EmployeeRoom> rooms_;
};

} // namespace kova::family::csv
