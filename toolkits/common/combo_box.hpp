#pragma once

#include "agenda/contracts/widgets/combo_box.hpp"
#include "toolkits/common/widget_model.hpp"

#include <vector>

namespace kova::toolkit {

class ComboBoxModel final : public WidgetModel<KVComboBox, WidgetKind::KVComboBox> {
public:
    struct Row {
        kova::Text text;
        Long data = 0;
    };

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

    /// The user asks for the list: takes the focus and raises DropDown. True where the list may open,
    /// which it may not where the handler left the box hidden, disabled or on an unloaded form. The view
    /// reads the rows after the call.
    bool UserOpensList();
    /// The user chose a row, in the open list or by an arrow key: raises Click, also for the row already
    /// selected. A row that does not exist is ignored.
    void UserChooses(Integer row);

    const std::vector<Row>& ShownRows() const { return rows_; }
    const kova::Text& ShownText() const { return text_; }
    /// -1 is none.
    int ShownRow() const { return row_; }

    bool IsFocusable() const override { return true; }
    void RaiseLostFocus() override;
    void DropHandlers() override;

private:
    void Select(int row);

    std::vector<Row> rows_;
    kova::Text text_;
    int row_ = -1;
    int newRow_ = -1;
    Handler click_;
    Handler dropDown_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
