#pragma once

#include "family/registers/description/related_list.hpp"

namespace kova::family::registers {

/// A customer's appointments, newest first, to be narrowed to one of the animals.
const RelatedList& CustomerAppointments();
const RelatedList& AnimalAppointments();
/// A customer's packages, newest first, with what each still has: the sessions of its service that were not
/// attended, booked ones among them.
const RelatedList& CustomerPackages();

} // namespace kova::family::registers
