#include "family/business/merged_row_text.hpp"

#include "family/data/rows/people_rows.hpp"

namespace kova::family {

std::string MergedInto(const char* table, Key now)
{
    const std::string code = std::to_string(now);
    return std::string("foi unido ao ") + table + " " + code + ". Use o código " + code + ".";
}

std::string WhyNoCustomer(Database& database, Key code)
{
    const std::string why = WhyMerged<CustomerRow>(database, code);
    return why.empty() ? "não há cliente com este código." : why;
}

} // namespace kova::family
