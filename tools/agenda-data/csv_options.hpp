#pragma once

#include "family/csv/encoding.hpp"
#include "family/csv/register.hpp"
#include "tools/agenda-data/command.hpp"

namespace kova::data {

namespace csv = family::csv;

inline constexpr arguments::Option EncodingOption{"--encoding", "utf-8|latin-1",
                                                  "Codificação do arquivo CSV."};
inline constexpr arguments::Option SeparatorOption{"--separator", "\",\"|\";\"",
                                                   "O que separa as colunas do arquivo CSV."};

/// What the call says; nothing where it says nothing. Throws BadArguments.
std::optional<csv::Encoding> GivenEncoding(const Call& call);
std::optional<char> GivenSeparator(const Call& call);

/// The register that the operand names. Throws BadArguments where there is none.
const csv::Register& FindRegister(const Call& call, std::size_t operand);

} // namespace kova::data
