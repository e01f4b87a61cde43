#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace kova::toolkit {

/// Look of one cell; 0 as a colour is the grid's own colour for such a cell.
struct CellLook {
    Colour back = 0;
    Colour fore = 0;
    /// Number of the picture's name in GridCells::PictureName; 0 is none.
    std::uint32_t picture = 0;
    std::uint8_t pictureAlignment = 0;
    bool bold = false;

    friend bool operator==(const CellLook&, const CellLook&) = default;
};

/// The cells of a grid, row after row. A cell costs its text and one number: looks are kept once each.
/// Rows and columns are not checked here.
class GridCells {
public:
    GridCells();

    void Resize(Long rows, Long cols);
    void Clear();

    const Text& TextAt(Long row, Long col) const { return texts_[Position(row, col)]; }
    void Write(Long row, Long col, const Text& text) { texts_[Position(row, col)] = text; }
    const CellLook& LookAt(Long row, Long col) const;
    void Look(Long row, Long col, const CellLook& look);

    /// The number of a picture's name, made where it is new; 0 for "".
    std::uint32_t PictureNumber(const Text& name);
    const Text& PictureName(std::uint32_t number) const { return pictures_[number]; }

private:
    struct Hash {
        std::size_t operator()(const CellLook& look) const;
    };

    std::size_t Position(Long row, Long col) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_)
            + static_cast<std::size_t>(col);
    }
    std::uint32_t LookNumber(const CellLook& look);
    template <class T> void Rearrange(std::vector<T>& cells, Long rows, Long cols) const;

    Long rows_ = 0;
    Long cols_ = 0;
    std::vector<Text> texts_;
    /// Numbers in looks_; empty until the first cell gets a look.
    std::vector<std::uint32_t> lookNumbers_;
    std::vector<CellLook> looks_;
    std::unordered_map<CellLook, std::uint32_t, Hash> numberOfLook_;
    std::vector<Text> pictures_;
};

} // namespace kova::toolkit
