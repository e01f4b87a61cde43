#pragma once

#include "family/data/rows/kept_rows.hpp"

#include <span>

namespace kova::family {

/// An appointment, as it is told to whom it was for. `Text` holds the texts.
template <class Text> struct AttendanceOf {
    /// The appointment's number.
    long long codigo = 0;
    /// "yyyy-mm-dd", "hh:mm"
    Text date, time;
    Text animal, service, employee;
    int status = 0;
    /// Of its pre-sale; where it has none that stands, today's price of its service.
    long long priceInCents = 0;

    auto Members() { return std::tie(codigo, date, time, animal, service, employee, status, priceInCents); }
};

using Attendances = KeptRows<AttendanceOf>;

/// Numbers of a customer's appointments, of one of the animals or, with 0, of all, newest first.
std::vector<Key> AppointmentsOfCustomer(Database& database, Key customer, Key animal);
/// The same of an animal, whoever it was of.
std::vector<Key> AppointmentsOfAnimal(Database& database, Key animal);
/// Those appointments in that order; what is gone is left out.
Attendances SelectAttendances(Database& database, std::span<const Key> numbers);

/// A package with what has become of its appointments.
template <class Text> struct PackageBalanceOf {
    long long codigo = 0;
    Text service;
    /// "yyyy-mm-dd hh:mm:ss"
    Text madeAt;
    /// That its service has today; Null where it is no package service any more.
    Nullable<int> sessions;
    long long attended = 0, booked = 0, cancelled = 0;

    auto Members() { return std::tie(codigo, service, madeAt, sessions, attended, booked, cancelled); }
};

using PackageBalances = KeptRows<PackageBalanceOf>;

/// Codes of the packages that appointments of the customer belong to, newest first.
std::vector<Key> PackagesOfCustomer(Database& database, Key customer);
/// Those packages in that order; what is gone is left out.
PackageBalances SelectPackageBalances(Database& database, std::span<const Key> packages);

} // namespace kova::family
