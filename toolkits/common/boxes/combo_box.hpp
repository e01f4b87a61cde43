#pragma once

#include "agenda/contracts/widgets/combo_box.hpp"
#include "toolkits/common/widget_model.hpp"

#include <string>
#include <vector>

namespace kova::toolkit {

/// Keys of a combo beside letters. Closed, all but Enter, Tab and Escape open the list; open, they walk in it
/// without an event, and Enter and Tab take the marked row.
enum class ComboKey { Open, Up, Down, PageUp, PageDown, Home, End, Take, Leave };

/// A row of the list, with the number that code has given it.
struct ComboRow {
    Text text;
    Long data = 0;
};

class ComboBoxModel final : public WidgetModel<KVComboBox, WidgetKind::KVComboBox> {
public:
    ComboBoxModel(FormModel& form, const ControlDesign& design);

    kova::Text Text() const override;
    void Text(const kova::Text& value) override;
    Integer ListIndex() const override;
    void ListIndex(Integer row) override;
    Integer NewIndex() const override;
    Integer ListCount() const override;
    kova::Text List(Integer row) const override;
    Long ItemData(Integer row) const override;
    void ItemData(Integer row, Long data) override;
    /// A row beyond 32767 is failure 6.
    void AddItem(const kova::Text& text) override;
    void Clear() override;
    void OnClick(Handler handler) override { click_ = std::move(handler); }
    void OnDropDown(Handler handler) override { dropDown_ = std::move(handler); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    /// The user asks for the list: takes the focus and raises DropDown. True where the list is open then,
    /// which it is not where there are no rows, or where the handler left the box hidden, disabled or on an
    /// unloaded form.
    bool UserOpensList();
    /// The user chose a row: closes the list and raises Click, also for the row already selected. A row that
    /// does not exist is ignored.
    void UserChooses(Integer row);
    /// The list was left without a choice, also on a form that takes no input meanwhile.
    void UserLeavesList();
    /// The user points at a row of the open list. No event.
    void UserMarks(int row);
    void UserPressesKey(ComboKey key);
    /// Letters typed within a second are one text, compared without case and accents, at the beginnings of
    /// the rows first and then inside them. Closed, the row is chosen; in the open list it is marked.
    void UserTypes(char32_t character);

    bool IsListOpen() const { return open_; }
    /// The row of the open list that Enter takes; -1 is none.
    int MarkedRow() const { return marked_; }
    static constexpr int RowsOfPage = 12;

    const std::vector<ComboRow>& ShownRows() const { return rows_; }
    const kova::Text& ShownText() const { return text_; }
    /// -1 is none.
    int ShownRow() const { return row_; }

    bool IsFocusable() const override { return true; }
    bool TakesKey(FormKey key) override;
    void RaiseLostFocus() override;
    void DropHandlers() override;

private:
    void Select(int row);
    void ShowList(bool open);
    void Mark(int row);
    void Take(int row);
    void Walk(ComboKey key);
    int RowOf(const std::u32string& typed) const;

    std::vector<ComboRow> rows_;
    kova::Text text_;
    int row_ = -1;
    int newRow_ = -1;
    bool open_ = false;
    int marked_ = -1;
    /// The letters of the word that is being typed, and when the last one came.
    std::u32string typed_;
    Double lastTyped_ = 0;
    Handler click_;
    Handler dropDown_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
