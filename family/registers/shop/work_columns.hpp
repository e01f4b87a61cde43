#pragma once

#include "family/data/rows/work_rows.hpp"
#include "family/registers/description/column.hpp"

/// The columns of the registers that tell when the shop is open and who is at work.
namespace kova::family::registers {

const Columns<OpeningHoursRow>& OpeningHoursColumns();

/// An employee's hours with his nickname, for lists.
struct EmployeeHoursRecord : EmployeeHoursRow {
    std::string nickname{};
};
const Columns<EmployeeHoursRecord>& EmployeeHoursColumns();

/// An absence with the nickname of its employee; it is empty where it is one of all.
struct AbsenceRecord : AbsenceRow {
    std::string nickname{};
};
const Columns<AbsenceRecord>& AbsenceColumns();

namespace work_columns {
inline constexpr const char* Employee = "Código do funcionário";
inline constexpr const char* Day = "Dia da semana";
inline constexpr const char* FromDate = "Data inicial";
inline constexpr const char* FromTime = "Hora inicial";
inline constexpr const char* UntilDate = "Data final";
inline constexpr const char* UntilTime = "Hora final";
inline constexpr const char* Reason = "Motivo";
} // namespace work_columns

} // namespace kova::family::registers
