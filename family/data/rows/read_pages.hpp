#pragma once

#include "family/data/rows/key_of_row.hpp"
#include "family/data/rows/page_size.hpp"

#include <functional>
#include <limits>
#include <vector>

namespace kova::family {

/// Goes through a selection that is ordered by its key: `read` answers the rows behind a key, PageSize at
/// most, `visit` takes each page of them that is not empty.
template <class Row>
void ReadPages(const std::function<std::vector<Row>(Key after)>& read,
               const std::function<void(std::vector<Row>& page)>& visit)
{
    Key after = std::numeric_limits<Key>::min();
    for (bool goesOn = true; goesOn;) {
        std::vector<Row> page = read(after);
        goesOn = page.size() == PageSize;
        if (page.empty())
            break;
        after = KeyOfRow(page.back());
        visit(page);
    }
}

} // namespace kova::family
