#pragma once

#include "agenda/contracts/component_server.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace kova::bench {

/// A statement that answers every day with appointments once, in their order.
inline constexpr const char* AllDaysStatement =
    "select distinct data_inicial from agendamento order by data_inicial";

/// Ten of all days, spread evenly over them; each is "yyyy-mm-dd". Throws std::runtime_error where there are
/// fewer.
std::vector<std::string> SpreadDays(const std::vector<std::string>& all);

/// Selects every day into the record set of KOVA_N_Agenda.clsAgenda, called by name, with that text to search
/// for, or "". Answers how many rows there were. Throws std::runtime_error with the component's words.
std::int64_t SelectByName(Component& agenda, const std::vector<std::string>& days, const char* text);

/// What a floor has read.
struct Read {
    std::int64_t rows = 0;
    /// Of every column of every row, so that none is left out.
    std::int64_t checksum = 0;
};

} // namespace kova::bench
