#pragma once

#include "family/data/rows/page_size.hpp"

#include <soci/soci.h>

namespace kova::family {

/// Executes a statement that is limited to PageSize rows as often as it fills a page: `visit` is called at
/// each row, `turn` behind each page, to have the next one begin behind the row that was fetched last.
template <class Visit, class Turn> void WalkPages(soci::statement& statement, Visit visit, Turn turn)
{
    for (std::size_t found = PageSize; found == PageSize;) {
        found = 0;
        statement.execute();
        while (statement.fetch()) {
            ++found;
            visit();
        }
        turn();
    }
}

} // namespace kova::family
