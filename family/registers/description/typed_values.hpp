#pragma once

#include "agenda/contracts/date_time.hpp"

#include <optional>
#include <string>
#include <string_view>

/// What people type, as it is kept. Nothing where the text cannot be read so.
namespace kova::family::registers {

/// Digits only.
std::optional<long long> ReadWhole(std::string_view text);

/// Cents of "1.234,56", "1234,5", "12" or "R$ 12,00". The point stands between thousands only.
std::optional<long long> ReadMoney(std::string_view text);

/// "Sim" or "Não" in any case, with or without the accent; also S, N, 1 and 0.
std::optional<bool> ReadYesNo(std::string_view text);

/// "dd/mm/yyyy" from 01/01/1900 to 31/12/2999.
std::optional<Date> ReadDate(std::string_view text);

/// "dd/mm/yyyy hh:mm[:ss]" with a date as ReadDate takes it.
std::optional<DateTime> ReadMoment(std::string_view text);

/// A person's number (11 places) or a company's (14, digits and letters) without its punctuation, letters in
/// upper case, check digits right.
std::optional<std::string> ReadDocument(std::string_view text);

/// Eight digits, punctuation allowed.
std::optional<std::string> ReadPostalCode(std::string_view text);

} // namespace kova::family::registers
