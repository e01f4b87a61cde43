#pragma once

#include "tools/agenda-data/command.hpp"
#include "tools/agenda-data/csv/encoding.hpp"

namespace kova::data {

inline constexpr arguments::Option EncodingOption{"--encoding", "utf-8|latin-1",
                                                  "Codificação do arquivo CSV."};
inline constexpr arguments::Option SeparatorOption{"--separator", "\",\"|\";\"",
                                                   "O que separa as colunas do arquivo CSV."};

/// What the call says; nothing where it says nothing. Throws BadArguments.
std::optional<Encoding> GivenEncoding(const Call& call);
std::optional<char> GivenSeparator(const Call& call);

} // namespace kova::data
