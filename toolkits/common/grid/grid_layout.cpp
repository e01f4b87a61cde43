#include "toolkits/common/grid/grid_layout.hpp"

#include <algorithm>

namespace kova::toolkit {

void GridAxis::Count(Long count)
{
    sizes_.resize(static_cast<std::size_t>(count), -1);
    fixed_ = std::min(fixed_, count);
    first_ = std::clamp(first_, fixed_, std::max(fixed_, count - 1));
}

void GridAxis::Fixed(Long count)
{
    const bool atStart = first_ == fixed_;
    fixed_ = count;
    first_ = atStart ? fixed_ : std::max(first_, fixed_);
}

Long GridAxis::Size(Long index) const
{
    const Long size = sizes_[static_cast<std::size_t>(index)];
    return size == -1 ? defaultSize_ : size;
}

void GridAxis::Size(Long index, Long size) { sizes_[static_cast<std::size_t>(index)] = size < -1 ? 0 : size; }

void GridAxis::First(Long index, Long window)
{
    first_ = std::clamp(index, fixed_, std::max(fixed_, LastFirst(window)));
}

Long GridAxis::SizeOfFixed() const
{
    Long size = 0;
    for (Long index = 0; index < fixed_; ++index)
        size += Size(index);
    return size;
}

Long GridAxis::LastFirst(Long window) const
{
    Long room = window - SizeOfFixed();
    Long first = Count() - 1;
    for (Long index = first; index >= fixed_ && Size(index) <= room; --index) {
        room -= Size(index);
        first = index;
    }
    return first;
}

Long GridAxis::Start(Long index) const
{
    Long start = 0;
    if (index < fixed_) {
        for (Long before = 0; before < index; ++before)
            start += Size(before);
        return start;
    }
    start = SizeOfFixed();
    for (Long at = first_; at < index; ++at)
        start += Size(at);
    for (Long at = index; at < first_; ++at)
        start -= Size(at);
    return start;
}

std::optional<Long> GridAxis::At(Twips distance) const
{
    if (distance < 0)
        return std::nullopt;
    Twips end = 0;
    for (Long index = fixed_ > 0 ? 0 : first_; index < Count(); ++index) {
        if (index == fixed_)
            index = first_;
        end += static_cast<Twips>(Size(index));
        if (distance < end)
            return index;
    }
    return std::nullopt;
}

Long GridAxis::PageSize(Long window) const
{
    Long room = window - SizeOfFixed();
    Long count = 0;
    for (Long index = first_; index < Count() && Size(index) <= room; ++index, ++count)
        room -= Size(index);
    return std::max<Long>(count, 1);
}

void GridAxis::BringIntoView(Long index, Long window)
{
    if (index < fixed_)
        return;
    Long room = window - SizeOfFixed() - Size(index);
    Long lowest = index;
    while (lowest > fixed_ && Size(lowest - 1) <= room)
        room -= Size(--lowest);
    first_ = std::clamp(first_, lowest, index);
}

} // namespace kova::toolkit
