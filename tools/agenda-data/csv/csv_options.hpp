#pragma once

#include "tools/agenda-data/command.hpp"
#include "tools/agenda-data/csv/encoding.hpp"

namespace kova::data {

inline constexpr Option EncodingOption{"--encoding", "utf-8|latin-1"};
inline constexpr Option SeparatorOption{"--separator", "\",\"|\";\""};

/// What the call says; nothing where it says nothing. Throws UsageError.
std::optional<Encoding> GivenEncoding(const Call& call);
std::optional<char> GivenSeparator(const Call& call);

} // namespace kova::data
