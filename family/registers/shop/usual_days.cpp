#include "family/registers/shop/usual_days.hpp"

#include "agenda/contracts/date_time.hpp"

namespace kova::family::registers {

namespace {

constexpr const char* Weekdays[] = {"domingo",      "segunda-feira", "terça-feira", "quarta-feira",
                                    "quinta-feira", "sexta-feira",   "sábado"};

} // namespace

std::string DayInWords(const std::string& date)
{
    return std::string(Weekdays[Weekday(RequireDate(date)) - 1]) + ", " + date;
}

} // namespace kova::family::registers
