#include "toolkits/common/grid/grid_cells.hpp"

#include <algorithm>
#include <utility>

namespace kova::toolkit {

GridCells::GridCells() : looks_(1), pictures_(1) { numberOfLook_.emplace(CellLook(), 0); }

template <class T> void GridCells::Rearrange(std::vector<T>& cells, Long rows, Long cols) const
{
    std::vector<T> moved(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
    for (Long row = 0; row < std::min(rows, rows_); ++row) {
        for (Long col = 0; col < std::min(cols, cols_); ++col) {
            const auto target = static_cast<std::size_t>(row) * static_cast<std::size_t>(cols)
                + static_cast<std::size_t>(col);
            moved[target] = std::move(cells[Position(row, col)]);
        }
    }
    cells = std::move(moved);
}

void GridCells::Resize(Long rows, Long cols)
{
    const auto count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    if (cols == cols_) {
        texts_.resize(count);
        if (!lookNumbers_.empty())
            lookNumbers_.resize(count);
    } else {
        Rearrange(texts_, rows, cols);
        if (!lookNumbers_.empty())
            Rearrange(lookNumbers_, rows, cols);
    }
    rows_ = rows;
    cols_ = cols;
}

void GridCells::Clear()
{
    for (Text& text : texts_)
        text.clear();
    lookNumbers_.clear();
}

const CellLook& GridCells::LookAt(Long row, Long col) const
{
    return lookNumbers_.empty() ? looks_.front() : looks_[lookNumbers_[Position(row, col)]];
}

void GridCells::Look(Long row, Long col, const CellLook& look)
{
    const std::uint32_t number = LookNumber(look);
    if (lookNumbers_.empty())
        lookNumbers_.resize(texts_.size());
    lookNumbers_[Position(row, col)] = number;
}

std::uint32_t GridCells::LookNumber(const CellLook& look)
{
    const auto [place, isNew] = numberOfLook_.try_emplace(look, static_cast<std::uint32_t>(looks_.size()));
    if (isNew)
        looks_.push_back(look);
    return place->second;
}

std::uint32_t GridCells::PictureNumber(const Text& name)
{
    const auto found = std::find(pictures_.begin(), pictures_.end(), name);
    const auto number = static_cast<std::uint32_t>(found - pictures_.begin());
    if (found == pictures_.end())
        pictures_.push_back(name);
    return number;
}

std::size_t GridCells::Hash::operator()(const CellLook& look) const
{
    const auto colours = static_cast<std::uint64_t>(static_cast<std::uint32_t>(look.back)) << 32
        | static_cast<std::uint32_t>(look.fore);
    const auto rest = static_cast<std::uint64_t>(look.picture) << 16
        | static_cast<std::uint64_t>(look.pictureAlignment) << 1 | static_cast<std::uint64_t>(look.bold);
    return std::hash<std::uint64_t>()(colours * 0x9E3779B97F4A7C15ULL ^ rest * 0xC2B2AE3D27D4EB4FULL);
}

} // namespace kova::toolkit
