#pragma once

#include "agenda/contracts/widgets/image.hpp"
#include "agenda/contracts/widgets/widget.hpp"

#include <functional>

namespace kova {

/// Alignment of a column or a picture: 0 to 2 left, 3 to 5 centre, 6 to 8 right; each at the top,
/// the middle and the bottom; 9 general (numbers right, text left).
namespace grid_alignment {
inline constexpr Integer LeftMiddle = 1;
inline constexpr Integer CentreMiddle = 4;
inline constexpr Integer RightMiddle = 7;
} // namespace grid_alignment

/// The grid. Rows and columns count from 0, fixed ones included; code may make a fixed cell current.
/// Fresh: 2 by 2 cells, one fixed row and column, Row and Col 1, Redraw true.
///
/// Failures: TextMatrix outside the cells 381; Row, RowSel, RowHeight outside 30009; Col, ColSel,
/// ColWidth, ColAlignment, ColData outside 30010; a negative Rows or Cols, or a cell count above the
/// design's limit, 380 (350000 cells unless the design sets none).
class MSFlexGrid : public Widget {
public:
    /// Cutting rows loses their cells for good and moves the cursor to the last row; added rows are
    /// empty and keep the cursor. Cols likewise. No event.
    virtual Long Rows() const = 0;
    virtual void Rows(Long) = 0;
    virtual Long Cols() const = 0;
    virtual void Cols(Long) = 0;
    /// At most Rows-1 when set, else failure 380; Rows may be cut down to it afterwards.
    virtual Long FixedRows() const = 0;
    virtual void FixedRows(Long) = 0;
    virtual Long FixedCols() const = 0;
    virtual void FixedCols(Long) = 0;

    /// The current cell. Writing Row or Col moves RowSel and ColSel to it.
    virtual Long Row() const = 0;
    virtual void Row(Long) = 0;
    virtual Long Col() const = 0;
    virtual void Col(Long) = 0;
    /// The other corner of the selection. SelChange is raised inside each write of Row, Col, RowSel or
    /// ColSel that changes the selected range, once.
    virtual Long RowSel() const = 0;
    virtual void RowSel(Long) = 0;
    virtual Long ColSel() const = 0;
    virtual void ColSel(Long) = 0;

    /// A cell's text; does not move the cursor.
    virtual Text TextMatrix(Long row, Long col) const = 0;
    virtual void TextMatrix(Long row, Long col, const Text&) = 0;
    /// Empties all cells, fixed ones included, of text, colours and pictures; Rows and Cols stay.
    virtual void Clear() = 0;

    /// Width in twips; 0 hides the column, and so does a negative one, which counts as 0.
    virtual Long ColWidth(Long col) const = 0;
    virtual void ColWidth(Long col, Long) = 0;
    virtual Integer ColAlignment(Long col) const = 0;
    virtual void ColAlignment(Long col, Integer) = 0;
    virtual Long ColData(Long col) const = 0;
    virtual void ColData(Long col, Long) = 0;
    /// Height in twips; -1 is the default height, which a fresh row has.
    virtual Long RowHeight(Long row) const = 0;
    virtual void RowHeight(Long row, Long) = 0;
    /// The first row below the fixed ones that is on show; too large a value is reduced silently.
    virtual Long TopRow() const = 0;
    virtual void TopRow(Long) = 0;

    /// Look of the cell at Row, Col.
    virtual void CellBackColor(Colour) = 0;
    virtual void CellForeColor(Colour) = 0;
    virtual void CellFontBold(bool) = 0;
    /// The picture of an image widget; an empty picture removes it.
    virtual void CellPicture(const Picture&) = 0;
    virtual void CellPictureAlignment(Integer) = 0;
    /// Place of the cell at Row, Col inside the grid, in twips. A hidden column is 0 wide.
    virtual Long CellLeft() const = 0;
    virtual Long CellTop() const = 0;
    virtual Long CellWidth() const = 0;
    virtual Long CellHeight() const = 0;

    virtual void FontName(const Text&) = 0;
    virtual Text FontName() const = 0;
    /// Points.
    virtual void FontSize(float) = 0;
    virtual float FontSize() const = 0;
    virtual void BackColor(Colour) = 0;
    virtual void ForeColor(Colour) = 0;
    virtual void BackColorFixed(Colour) = 0;
    virtual void BackColorSel(Colour) = 0;
    virtual void ForeColorSel(Colour) = 0;
    virtual void BackColorBkg(Colour) = 0;
    virtual void GridColor(Colour) = 0;
    virtual void GridColorFixed(Colour) = 0;
    /// 0 none, 1 flat lines.
    virtual void GridLines(Integer) = 0;
    virtual void GridLinesFixed(Integer) = 0;
    virtual void GridLineWidth(Integer) = 0;
    virtual void WordWrap(bool) = 0;
    /// 0 none, 1 light, 2 heavy.
    virtual void FocusRect(Integer) = 0;
    /// 0 none, 1 horizontal, 2 vertical, 3 both.
    virtual void ScrollBars(Integer) = 0;
    /// 0 free, 1 by row, 2 by column. Decides what is highlighted; 0 highlights nothing but a range.
    virtual Integer SelectionMode() const = 0;
    virtual void SelectionMode(Integer) = 0;
    /// 0 none, 1 columns, 2 rows, 3 both: what the user may resize by dragging header edges.
    virtual void AllowUserResizing(Integer) = 0;
    virtual void Appearance(Integer) = 0;
    virtual void BorderStyle(Integer) = 0;

    /// False while the grid is filled: nothing is painted until it is true again.
    virtual bool Redraw() const = 0;
    virtual void Redraw(bool) = 0;

    /// The user clicked a cell, which is current then, or pressed Enter on a row for which the design names
    /// no button. A click in a fixed row leaves the cursor where it is but sets Row 0 for the length of the
    /// event.
    virtual void OnClick(Handler) = 0;
    virtual void OnSelChange(Handler) = 0;
    /// Button 0 none, 1 left, 2 right; shift as a bit set; x and y in twips inside the grid. The arrow
    /// keys come as a move to the middle of the row they reach. Where rows change under the mouse or under
    /// the keys, or the mouse leaves, a move to -1, -1 comes first, then one to where the user is, if that is
    /// a row.
    virtual void OnMouseMove(std::function<void(Integer button, Integer shift, Twips x, Twips y)>) = 0;
    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
