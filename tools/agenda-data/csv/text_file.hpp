#pragma once

#include "tools/agenda-data/csv/encoding.hpp"

namespace kova::data {

/// The whole text of a file as UTF-8, without a byte order mark. Without an encoding: UTF-8 where all of it
/// is, else Latin-1. Throws std::runtime_error, in Portuguese with the path, where the file cannot be read
/// or is no text, or not in the encoding asked for.
std::string ReadTextFile(const std::string& path, std::optional<Encoding> encoding);

} // namespace kova::data
