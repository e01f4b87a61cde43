#include "reports/pages.hpp"

#include <algorithm>

namespace kova::reports {

bool Overlap(const Box& a, const Box& b)
{
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

std::vector<Box> InkOf(const Item& item)
{
    if (item.kind == ItemKind::Band)
        return {item.box};
    if (item.kind == ItemKind::Rule)
        return {{item.box.left, item.box.top, std::max(item.box.width, RuleThickness),
                 std::max(item.box.height, RuleThickness)}};
    std::vector<Box> ink;
    for (const TextLine& line : item.lines) {
        if (!line.text.empty())
            ink.push_back({line.left, line.top, line.width, item.inkHeight});
    }
    return ink;
}

} // namespace kova::reports
