#include "reports/growth.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace kova::reports {

namespace {

/// Numbers of the spans, a span before all that it may push.
std::vector<std::size_t> FromTop(const std::vector<Span>& spans)
{
    std::vector<std::size_t> order(spans.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(spans[a].top, spans[a].height) < std::pair(spans[b].top, spans[b].height);
    });
    return order;
}

/// A bottom that has moved.
struct Push {
    Twips bottom = 0;
    Twips by = 0;
};

Twips FarthestPush(const std::vector<Push>& pushes, Twips top)
{
    Twips farthest = 0;
    for (const Push& push : pushes) {
        if (push.bottom <= top)
            farthest = std::max(farthest, push.by);
    }
    return farthest;
}

} // namespace

Grown PushDown(const std::vector<Span>& spans, Twips sectionHeight)
{
    Grown grown{std::vector<Twips>(spans.size()), sectionHeight};
    std::vector<Push> pushes;
    for (const std::size_t number : FromTop(spans)) {
        const Span& span = spans[number];
        const Twips shift = FarthestPush(pushes, span.top);
        const Twips by = shift + std::max(span.needed - span.height, Twips{0});
        grown.tops[number] = span.top + shift;
        if (by > 0)
            pushes.push_back({span.top + span.height, by});
        grown.sectionHeight = std::max(grown.sectionHeight, sectionHeight + by);
    }
    return grown;
}

} // namespace kova::reports
