#pragma once

#include <span>
#include <string_view>

/// Word lists of the fictional shop.
namespace kova::family::words {

using List = std::span<const std::string_view>;

List WomensNames();
List MensNames();
List Surnames();
List Streets();
List Districts();
List Cities();
List CompanyKinds();
List CompanyNames();
List FemaleAnimals();
List MaleAnimals();
List Colours();
List AnimalRemarks();
List AppointmentRemarks();

} // namespace kova::family::words
