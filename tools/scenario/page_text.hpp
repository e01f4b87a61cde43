#pragma once

#include "reports/pages.hpp"

#include <string>
#include <vector>

namespace kova::scenario {

/// What is placed on each page, one line each in drawing order: "page 1 LEFT TOP WIDTH HEIGHT "text" 9.75
/// bold right", "rule 1 LEFT TOP WIDTH HEIGHT 224,224,224", "band 1 ...". Twips from the paper's corner;
/// the box of a text is the one after growing.
std::vector<std::string> ShowPages(const reports::Document& document);

} // namespace kova::scenario
