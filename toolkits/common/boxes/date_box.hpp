#pragma once

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/widgets/date_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class DateBoxModel final : public WidgetModel<KVDTPicker, WidgetKind::KVDTPicker, MaskEditCore> {
public:
    DateBoxModel(FormModel& form, const ControlDesign& design);

    kova::Text Text() const override;
    void Text(const kova::Text& value) override;
    void OnChange(Handler handler) override { change_ = std::move(handler); }
    void OnGotFocus(Handler handler) override { gotFocus_ = std::move(handler); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    /// The user chose a day in the calendar: Change where the text changes. A day outside the box's
    /// range is ignored.
    void UserPicks(const Date& date);
    /// The user asks for the same day again: Change, where a day is on show.
    void UserRepeats();
    bool TakesFormKey(std::string_view key) override;
    void AddFormKeys(std::vector<KeyHelp>& keys) const override;
    /// The day on show, where the text is a complete and valid date.
    std::optional<Date> ShownDate() const;

    static constexpr Date FirstDate{1900, 1, 1};
    static constexpr Date LastDate{2999, 12, 31};

    void RaiseLostFocus() override;
    void RaiseGotFocus() override;
    void DropHandlers() override;

protected:
    void Edited() override;
    bool ShowsValue() const override { return ShownDate().has_value(); }

private:
    Handler change_;
    Handler gotFocus_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
