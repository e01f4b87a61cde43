#pragma once

#include "family/csv/encoding.hpp"
#include "family/csv/register.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/engine/long_work.hpp"

namespace kova::family::csv {

/// A register that is to go to a new file.
struct ExportOrder {
    const Register* from = nullptr;
    std::string path;
    Encoding encoding = Encoding::Utf8;
    char separator = ';';
};

/// Writes all records of the register as they are at one moment; answers how many. The file gets its name
/// only when it is whole, and never replaces another one. Fails with a DatabaseFailure, with RightDenied
/// where the author may not export, or not see the prices that it tells, and with a std::runtime_error in
/// Portuguese where a line has characters that the encoding lacks.
long long ExportTo(const std::string& source, const ExportOrder& order, const Author& author,
                   const LongWork& work);

} // namespace kova::family::csv
