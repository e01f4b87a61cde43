#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <functional>

namespace kova {

/// Values of a find box's Status that a press reports or code writes.
namespace find_status {
/// The box shows a found record.
inline constexpr Long Found = 0;
/// A search is asked for, or in force.
inline constexpr Long Search = 1;
/// The box waits for a search; read inside Click: it was cleared.
inline constexpr Long Clear = 2;
} // namespace find_status

/// A text box with a button at its right end, used for every lookup.
///
/// A press reports a search (Status 1) when Status is 2, or when the user has typed since code last
/// wrote Text or Status, or since the last press. Otherwise the box empties itself and reports that it
/// was cleared (Status 2). Writes of Text, Status and DisplayText from code raise nothing, with one
/// exception: a text that is not empty, written while the box's own Click runs, is one KeyDown as soon as the
/// Click has returned.
/// Enter presses the button where that would search; otherwise it goes on to the next widget.
class KVFind : public Widget {
public:
    virtual kova::Text Text() const = 0;
    virtual void Text(const kova::Text&) = 0;
    /// 2 by design. Stays as written until the user presses the button.
    virtual Long Status() const = 0;
    virtual void Status(Long) = 0;
    /// 1 is a text box, 2 a code box. Fixed by design.
    virtual Long Style() const = 0;
    /// Write only; "" empties the box and leaves Status alone. Any other text is failure 380.
    virtual void DisplayText(const kova::Text&) = 0;
    /// Ready for a new search after one that failed: Status 2, the text kept and selected, one Click.
    virtual void ReiniciarPesquisa() = 0;

    /// The button was pressed; Status is already what the press reports.
    virtual void OnClick(Handler) = 0;
    /// The user typed a character: key code and shift state. Once for each character. Both are 0 where a
    /// Click has filled the box.
    virtual void OnKeyDown(std::function<void(Integer keyCode, Integer shift)>) = 0;
    virtual void OnLostFocus(Handler) = 0;
};

} // namespace kova
