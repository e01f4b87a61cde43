#include "family/registers/description/field.hpp"

#include "agenda/contracts/text.hpp"

namespace kova::family::registers {

std::string Sentence(std::string_view why)
{
    const Text first = Left(why, 1);
    return UpperCase(first).append(why.substr(first.size()));
}

} // namespace kova::family::registers
