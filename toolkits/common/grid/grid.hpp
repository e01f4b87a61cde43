#pragma once

#include "agenda/contracts/widgets/grid.hpp"
#include "toolkits/common/grid/grid_cells.hpp"
#include "toolkits/common/grid/grid_layout.hpp"
#include "toolkits/common/text_measure.hpp"
#include "toolkits/common/whole_number.hpp"
#include "toolkits/common/widget_model.hpp"

#include <optional>
#include <vector>

namespace kova::toolkit {

class CommandButtonModel;
class NavigationBarModel;

/// What has to be painted anew.
struct GridChange {
    /// Everything: shape, widths, scrolling, look.
    bool all = false;
    /// Otherwise the cells of these rows; none where `lastRow` is below `firstRow`.
    Long firstRow = 0;
    Long lastRow = -1;

    bool IsEmpty() const { return !all && lastRow < firstRow; }
};

/// Look of the grid as a whole; colours and numbers as the contract's members of these names take them.
struct GridLook {
    Font font;
    Colour backColor = colours::White;
    Colour foreColor = colours::Black;
    Colour backColorFixed = Rgb(240, 240, 240);
    Colour foreColorFixed = colours::Black;
    Colour backColorSel = Rgb(51, 153, 255);
    Colour foreColorSel = colours::White;
    Colour backColorBkg = Rgb(128, 128, 128);
    Colour gridColor = Rgb(192, 192, 192);
    Colour gridColorFixed = colours::Black;
    Integer gridLines = 1;
    Integer gridLinesFixed = 1;
    Integer gridLineWidth = 1;
    bool wordWrap = false;
    Integer focusRect = 1;
    Integer scrollBars = 3;
    Integer allowUserResizing = 0;
    Integer appearance = 1;
    Integer borderStyle = 1;
};

/// Keys that the grid takes.
enum class GridKey { Up, Down, PageUp, PageDown, Home, End };

/// Default width of a column and height of a row, in twips.
inline constexpr Long DefaultColumnWidth = 960;
inline constexpr Long DefaultRowHeight = 240;

class GridModel final : public WidgetModel<MSFlexGrid, WidgetKind::MSFlexGrid> {
public:
    using MouseMoveHandler = std::function<void(Integer button, Integer shift, Twips x, Twips y)>;

    GridModel(FormModel& form, const ControlDesign& design);

    Long Rows() const override { return Read("Rows", rows_.Count()); }
    void Rows(Long count) override;
    Long Cols() const override { return Read("Cols", columns_.Count()); }
    void Cols(Long count) override;
    Long FixedRows() const override { return Read("FixedRows", rows_.Fixed()); }
    void FixedRows(Long count) override;
    Long FixedCols() const override { return Read("FixedCols", columns_.Fixed()); }
    void FixedCols(Long count) override;

    Long Row() const override { return Read("Row", cursor_.row); }
    void Row(Long row) override;
    Long Col() const override { return Read("Col", cursor_.col); }
    void Col(Long col) override;
    Long RowSel() const override { return Read("RowSel", corner_.row); }
    void RowSel(Long row) override;
    Long ColSel() const override { return Read("ColSel", corner_.col); }
    void ColSel(Long col) override;

    Text TextMatrix(Long row, Long col) const override;
    void TextMatrix(Long row, Long col, const Text& text) override;
    void Clear() override;

    /// Reads the width in use: the default width of a fresh column, 0 of a hidden one.
    Long ColWidth(Long col) const override;
    void ColWidth(Long col, Long width) override;
    Integer ColAlignment(Long col) const override;
    void ColAlignment(Long col, Integer alignment) override;
    Long ColData(Long col) const override;
    void ColData(Long col, Long data) override;
    Long RowHeight(Long row) const override;
    void RowHeight(Long row, Long height) override;
    Long TopRow() const override { return Read("TopRow", rows_.First()); }
    void TopRow(Long row) override;

    /// Cell members fail with 30009 on a grid without rows and with 30010 on one without columns.
    void CellBackColor(Colour colour) override;
    void CellForeColor(Colour colour) override;
    void CellFontBold(bool bold) override;
    void CellPicture(const Picture& picture) override;
    void CellPictureAlignment(Integer alignment) override;
    Long CellLeft() const override;
    Long CellTop() const override;
    Long CellWidth() const override;
    Long CellHeight() const override;

    void FontName(const Text& value) override;
    Text FontName() const override { return Read("FontName", look_.font.name); }
    void FontSize(float value) override;
    float FontSize() const override { return Read("FontSize", look_.font.size); }
    void BackColor(Colour value) override;
    void ForeColor(Colour value) override;
    void BackColorFixed(Colour value) override;
    void BackColorSel(Colour value) override;
    void ForeColorSel(Colour value) override;
    void BackColorBkg(Colour value) override;
    void GridColor(Colour value) override;
    void GridColorFixed(Colour value) override;
    void GridLines(Integer value) override;
    void GridLinesFixed(Integer value) override;
    void GridLineWidth(Integer value) override;
    void WordWrap(bool value) override;
    void FocusRect(Integer value) override;
    void ScrollBars(Integer value) override;
    Integer SelectionMode() const override { return Read("SelectionMode", selectionMode_); }
    void SelectionMode(Integer value) override;
    void AllowUserResizing(Integer value) override;
    void Appearance(Integer value) override;
    void BorderStyle(Integer value) override;

    bool Redraw() const override { return Read("Redraw", redraw_); }
    void Redraw(bool value) override;

    void OnClick(Handler handler) override { click_ = std::move(handler); }
    void OnSelChange(Handler handler) override { selChange_ = std::move(handler); }
    void OnMouseMove(MouseMoveHandler handler) override { mouseMove_ = std::move(handler); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    // What the user does. Places are twips inside the grid.

    /// Button 0 none, 1 left, 2 right; shift as a bit set. From now on the grid knows where the mouse rests:
    /// where the rows under it change, MouseMove comes from a place outside the rows and then from there, as
    /// soon as the form takes input. The place is kept also where the form takes none now.
    void UserMovesMouse(Integer button, Integer shift, Twips x, Twips y);
    /// The mouse moved on over something that covers the grid, such as the buttons of a row. No event.
    void UserMovesAbove(Twips x, Twips y);
    /// The mouse left the grid: MouseMove comes from a place outside the rows.
    void UserLeaves();
    /// The left button went down: takes the focus and makes the cell current, in a fixed column the first
    /// free cell of the row. Outside the cells it only takes the focus; in a fixed row the cursor stays.
    void UserPresses(Twips x, Twips y);
    /// It went up: Click, where that is over the cell on which it went down. In a fixed row Row is 0 for the
    /// length of the event.
    void UserReleases(Twips x, Twips y);
    /// Both at one place.
    void UserClicks(Twips x, Twips y);
    /// The mouse moved with the left button down: the selection reaches to that cell.
    void UserDrags(Twips x, Twips y);
    /// A key: the row reached becomes current and is scrolled into view, then MouseMove comes from its
    /// middle, and comes again where the rows change. Page Down at the last row and Page Up at the first one
    /// turn the page, where the design names a bar that offers it.
    void UserKey(GridKey key);
    /// The space bar, and Return where the design names no button of the row: a click on the current row.
    void UserPressesRow();
    /// Presses that button of the design's navigation bar, from anywhere in the form; false where it is not
    /// offered. With the focus here, the keys go on at the new page's first row, after the previous and the
    /// last page at its last row; where the mouse rests on a row, the first and the last page leave it there.
    bool UserTurnsTo(int button);
    /// The keys of the first and the last page, which the bar stands for; in a box they move the caret.
    bool TakesFormKey(std::string_view key) override;
    void AddRowKeys(std::vector<KeyHelp>& keys) const override;
    /// Scroll bars and wheel; values beyond the ends are cut. No event.
    void UserScrolls(Long topRow, Long leftCol);
    /// Dragging a header edge; ignored unless AllowUserResizing lets the user.
    void UserResizesColumn(Long col, Long width);
    void UserResizesRow(Long row, Long height);

    // For painting: cheap, and no access of the contract. Rows and columns must exist.

    const GridLook& Look() const { return look_; }
    const GridAxis& RowAxis() const { return rows_; }
    const GridAxis& ColumnAxis() const { return columns_; }
    /// False while the grid is being filled.
    bool IsPainted() const { return redraw_; }
    GridCell Cursor() const { return cursor_; }
    GridCell Corner() const { return corner_; }
    const Text& CellText(Long row, Long col) const { return cells_.TextAt(row, col); }
    const CellLook& LookOfCell(Long row, Long col) const { return cells_.LookAt(row, col); }
    /// "" is none.
    const Text& PictureOfCell(Long row, Long col) const;
    /// The colours to paint with, selection included.
    Colour BackColorOf(Long row, Long col) const;
    Colour ForeColorOf(Long row, Long col) const;
    Integer AlignmentOf(Long col) const { return columnData_[static_cast<std::size_t>(col)].alignment; }
    Integer ShownSelectionMode() const { return selectionMode_; }
    bool IsFixed(Long row, Long col) const { return row < rows_.Fixed() || col < columns_.Fixed(); }
    /// Whether the selection highlights the cell; fixed cells never are.
    bool IsHighlighted(Long row, Long col) const;
    /// The cell at a place, fixed ones included; nothing beside the cells.
    std::optional<GridCell> HitTest(Twips x, Twips y) const;

    /// What changed since the last call; the view takes it when Aspect::Content comes (once per change
    /// not yet taken, never while Redraw is false).
    GridChange TakeChange();

    /// Whether the design's navigation bar offers that button; false where it names none.
    bool OffersPage(int button) const;
    /// Whether the mouse stands on a row, of which the form has been told.
    bool MouseRests() const;
    /// Whether a click on a row means anything.
    bool HasClick() const { return static_cast<bool>(click_); }
    /// What the design names; null where it names none.
    NavigationBarModel* PageBar() const;
    CommandButtonModel* RowButton() const;

    bool IsFocusable() const override { return true; }
    bool TellPointer() override;
    void ForgetPointer() override { pointer_ = {}; }
    bool TakesEnter() override;
    void RaiseLostFocus() override;
    void DropHandlers() override;

protected:
    void VisibilityChanged() override { RowsChanged(); }

private:
    struct ColumnData {
        Integer alignment = 9;
        Long data = 0;
    };

    void CheckRow(Long row) const;
    void CheckCol(Long col) const;
    void CheckCell(Long row, Long col) const;
    void CheckCurrent() const;
    void CheckSize(Long rows, Long cols) const;
    void Shape(Long rows, Long cols);
    void ClampCursor();
    /// Sets cursor and corner; SelChange where the range differs from before.
    void Select(GridCell cursor, GridCell corner);
    void ChangeCellLook(const CellLook& look);
    void Touch(Long firstRow, Long lastRow);
    void TouchAll();
    void Announce();
    template <class T> void WriteLook(std::string_view member, T GridLook::*field, T value);
    MemberAccess AccessToCell(std::string_view member, Long row, Long col) const;
    /// Who stands at a row, by the mouse or by keys. What changes under him he is told.
    struct Pointer {
        enum class Kind { Nobody, Mouse, Keys };
        Kind kind = Kind::Nobody;
        /// Place of the mouse.
        Twips x = 0;
        Twips y = 0;
        /// Row that the keys have reached.
        Long row = 0;
        /// Something has changed since he was told last.
        bool isUntold = false;
    };

    void RowsChanged();
    void MarkUntold();
    void RaiseMouseMoveAt(Twips x, Twips y);
    void WalkTo(Long row);
    void ClickHeader();
    Long RowReached(GridKey key) const;
    Long WindowHeight() const { return WholeNumber<Long>(state_.height); }
    Long WindowWidth() const { return WholeNumber<Long>(state_.width); }
    Twips MiddleOfFirstColumn() const;
    bool TurnsPage(GridKey key);
    void AddPageKeys(std::vector<KeyHelp>& keys) const;
    bool PressesRowButton();

    GridAxis rows_{DefaultRowHeight};
    GridAxis columns_{DefaultColumnWidth};
    std::vector<ColumnData> columnData_;
    GridCells cells_;
    GridCell cursor_;
    GridCell corner_;
    GridLook look_;
    Integer selectionMode_ = 0;
    bool redraw_ = true;
    GridChange change_;
    Pointer pointer_;
    /// Where the left button went down, if the press was not lost.
    std::optional<GridCell> pressed_;
    Handler click_;
    Handler selChange_;
    MouseMoveHandler mouseMove_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
