#pragma once

#include "agenda/contracts/widgets/find_box.hpp"
#include "toolkits/common/boxes/edit_core.hpp"
#include "toolkits/common/widget_model.hpp"

namespace kova::toolkit {

class FindBoxModel final : public WidgetModel<KVFind, WidgetKind::KVFind, FreeEditCore> {
public:
    using KeyDownHandler = std::function<void(Integer keyCode, Integer shift)>;

    FindBoxModel(FormModel& form, const ControlDesign& design);

    kova::Text Text() const override;
    void Text(const kova::Text& value) override;
    Long Status() const override;
    void Status(Long value) override;
    Long Style() const override;
    void DisplayText(const kova::Text& value) override;
    void ReiniciarPesquisa() override;
    void OnClick(Handler handler) override { click_ = std::move(handler); }
    void OnKeyDown(KeyDownHandler handler) override { keyDown_ = std::move(handler); }
    void OnLostFocus(Handler handler) override { lostFocus_ = std::move(handler); }

    /// The user pressed the button; takes the focus first.
    void UserPresses();
    /// Enter in the box: presses the button where that would search, else goes on to the next widget.
    void UserPressesEnter();
    /// Whether a press would search (magnifier) or clear the box (cross).
    bool WouldSearch() const { return status_ == find_status::Clear || typed_; }

    bool TakesEnter() override;
    void RaiseLostFocus() override;
    void DropHandlers() override;

protected:
    bool Admits(char32_t& character) override;
    void Edited() override;
    std::size_t MostCharacters() const override;

private:
    void Press();
    void Report(Long status);
    void RaiseClick();
    void Fill(const kova::Text& text);

    Long status_ = find_status::Clear;
    /// The user has edited the text since code wrote Text or Status, or since the last press.
    bool typed_ = false;
    /// Clicks of this box on the stack.
    int clicks_ = 0;
    /// Code has written a text that is not empty since the outermost of them began.
    bool filled_ = false;
    Handler click_;
    KeyDownHandler keyDown_;
    Handler lostFocus_;
};

} // namespace kova::toolkit
