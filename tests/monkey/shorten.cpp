#include "tests/monkey/shorten.hpp"

#include <algorithm>

namespace kova::monkey {

namespace {

using Acts = std::vector<Act>;

Acts Last(const Acts& acts, std::size_t count)
{
    return {acts.end() - static_cast<std::ptrdiff_t>(count), acts.end()};
}

Acts Without(const Acts& acts, std::size_t from, std::size_t count)
{
    Acts rest(acts.begin(), acts.begin() + static_cast<std::ptrdiff_t>(from));
    const std::size_t end = std::min(acts.size(), from + count);
    rest.insert(rest.end(), acts.begin() + static_cast<std::ptrdiff_t>(end), acts.end());
    return rest;
}

} // namespace

std::vector<Act> Shorten(std::vector<Act> acts, const std::function<bool(const Acts&)>& fails,
                         const std::function<bool()>& enough)
{
    // What matters has mostly come last.
    for (std::size_t count = 4; count < acts.size() && !enough(); count *= 2) {
        if (Acts last = Last(acts, count); fails(last)) {
            acts = std::move(last);
            break;
        }
    }
    // Ever smaller pieces are left out, the later ones first. Behind each that can go, the same place is
    // tried again with what came before it.
    for (std::size_t piece = std::max<std::size_t>(1, acts.size() / 2); !acts.empty();) {
        bool isShorter = false;
        for (std::size_t end = acts.size(); end > 0 && !enough();) {
            const std::size_t from = end > piece ? end - piece : 0;
            if (Acts rest = Without(acts, from, end - from); fails(rest)) {
                acts = std::move(rest);
                isShorter = true;
            }
            end = from;
        }
        if (enough() || (piece == 1 && !isShorter))
            break;
        piece = std::max<std::size_t>(1, piece / 2);
    }
    return acts;
}

} // namespace kova::monkey
