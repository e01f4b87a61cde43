#pragma once

#include "family/data/rows/rows.hpp"
#include "family/registers/description/column.hpp"

/// The columns of the registers whose rows are few.
namespace kova::family::registers {

const Columns<ServiceTypeRow>& ServiceTypeColumns();
const Columns<EmployeeRow>& EmployeeColumns();
const Columns<HolidayRow>& HolidayColumns();
const Columns<SpeciesRow>& SpeciesColumns();
const Columns<CompanyRow>& CompanyColumns();

/// A service with the name of its type, for lists.
struct ServiceRecord : ServiceRow {
    std::string typeName{};
};
const Columns<ServiceRecord>& ServiceColumns();

/// A breed with the name of its species.
struct BreedRecord : BreedRow {
    std::string species{};
};
const Columns<BreedRecord>& BreedColumns();

namespace shop_columns {
inline constexpr const char* TypeOfService = "Número do tipo";
inline constexpr const char* Day = "Data";
inline constexpr const char* Name = "Nome";
inline constexpr const char* Nickname = "Apelido";
inline constexpr const char* Species = "Espécie";
inline constexpr const char* Situation = "Situação";
inline constexpr const char* CompanyNumber = "CNPJ";
inline constexpr const char* Phone = "Telefone";
} // namespace shop_columns

/// "dd/mm" of every year, or "dd/mm/yyyy".
std::string WriteDay(const HolidayRow& holiday);

} // namespace kova::family::registers
