#pragma once

#include "family/data/rows/people_rows.hpp"
#include "family/registers/description/column.hpp"

namespace kova::family::registers {

/// An animal with the names of its species and breed.
struct AnimalRecord : AnimalRow {
    std::string species, breed;
    /// The nickname or name of its customer, for lists.
    std::string customer{};

    void Complete();
};

namespace animal_columns {
inline constexpr const char* Customer = "Código do cliente";
inline constexpr const char* Species = "Espécie";
inline constexpr const char* Breed = "Raça";
} // namespace animal_columns

/// Of an animal whose breed is not told.
inline constexpr const char* BreedOfNone = "Sem raça definida";

const Columns<AnimalRecord>& AnimalColumns();

} // namespace kova::family::registers
