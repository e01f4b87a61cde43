#pragma once

#include "agenda/contracts/widgets/navigation_bar.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class NavigationBarModel final : public WidgetModel<KVNavigationBar, WidgetKind::KVNavigationBar> {
public:
    using ClickHandler = std::function<void(Integer& button)>;

    enum Button { FirstPage = 1, PreviousPage, NextPage, LastPage };

    NavigationBarModel(FormModel& form, const ControlDesign& design);

    Double FirstRecord() const override { return Read("FirstRecord", written_.first); }
    void FirstRecord(Double value) override;
    Double LastRecord() const override { return Read("LastRecord", written_.last); }
    void LastRecord(Double value) override;
    Double RecordCount() const override { return Read("RecordCount", written_.count); }
    void RecordCount(Double value) override;
    Double PageSize() const override { return Read("PageSize", written_.pageSize); }
    void PageSize(Double value) override;
    void Refresh() override;
    void OnClick(ClickHandler handler) override { click_ = std::move(handler); }

    /// The user pressed a button, 1 to 4; one that is not offered does nothing.
    void UserPresses(int button);
    /// The user walked to the next button on offer, to the left or to the right.
    void UserWalks(bool right);

    /// As of the last Refresh: whether the bar offers a button, and its text "1 - 15 de 42".
    bool Offers(int button) const;
    Text ShownText() const;
    /// The button that Enter presses: the one pressed or reached last, as long as it is offered; 0 is none.
    /// At first it is the first one on offer.
    int CurrentButton() const;

    bool IsFocusable() const override { return true; }
    bool TakesEnter() override;
    void DropHandlers() override { click_ = nullptr; }

private:
    struct Numbers {
        Double first = 0;
        Double last = 0;
        Double count = 0;
        Double pageSize = 0;
    };

    void Reach(int button);

    Numbers written_;
    Numbers shown_;
    /// The button pressed or walked to last; 0 where none was.
    int reached_ = 0;
    ClickHandler click_;
};

} // namespace kova::toolkit
