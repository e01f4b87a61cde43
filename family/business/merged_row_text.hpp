#pragma once

#include "family/data/audit/merged_rows.hpp"
#include "family/data/rows/find_by_key.hpp"

#include <string>

// What is told of the code of a customer or an animal whose row has become one with another. Both tables are
// called as people call one of their rows.
namespace kova::family {

/// "foi unido ao cliente 10. Use o código 10."
std::string MergedInto(const char* table, Key now);

/// That of a code whose row goes on in another one, which is there; empty of every other code. Fails as
/// FindAuditLines.
template <class Row> std::string WhyMerged(Database& database, Key key)
{
    const Key now = GoesOnAs(database, Row::Table, key);
    return now == key || !FindByKey<Row>(database, now) ? std::string() : MergedInto(Row::Table, now);
}

/// The same as a sentence: "O cliente 11 foi unido ao cliente 10. Use o código 10."
template <class Row> std::string MergedText(Database& database, Key key)
{
    const std::string why = WhyMerged<Row>(database, key);
    return why.empty() ? why : std::string("O ") + Row::Table + " " + std::to_string(key) + " " + why;
}

/// Why a customer that is not there cannot be referred to: WhyMerged, or that there is none of that code.
std::string WhyNoCustomer(Database& database, Key code);

} // namespace kova::family
