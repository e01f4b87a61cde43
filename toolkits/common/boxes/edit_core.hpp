#pragma once

#include "toolkits/common/boxes/text_edit.hpp"
#include "toolkits/common/widget_core.hpp"

namespace kova::toolkit {

/// A widget that the user types in. The model holds caret and selection too, so that typing gives the
/// same text on every screen; a view either forwards keys (UserTypes, UserErases) or the text that its
/// own editor made of them (UserEdits), and then shows the model's text.
class EditCore : public WidgetCore {
public:
    using WidgetCore::WidgetCore;

    const Text& ShownText() const { return edit_.AsText(); }
    TextSelection ShownSelection() const { return edit_.Selection(); }

    /// The user typed a character, which replaces what is selected.
    void UserTypes(char32_t character);
    /// Backspace and Delete.
    void UserErases();
    void UserErasesForward();
    /// The user changed the text to this one, by pasting or through an input method: what was removed
    /// counts as erased, what is new as typed, character by character.
    void UserEdits(const Text& text);
    /// The user moved the caret or selected with it. No event.
    void UserSelects(std::size_t anchor, std::size_t caret);
    void UserSelectsAll();

    bool IsFocusable() const override { return true; }
    /// Entered by key or code, a box is selected whole: typing replaces what it holds.
    void Entered(Entry entry) override;
    bool HasCaret() const override { return true; }
    void SelectToStart() override;
    /// False where the box shows a value only.
    virtual bool AllowsTyping() const { return true; }

private:
    /// Does what the user wants of the text, where the box takes it.
    void Edit(const std::function<void()>& act);

protected:
    void SelectAll();
    /// A write from code; the caret goes to the end where the widget has the focus, else to the start.
    void PutText(const Text& text);

    virtual void Type(char32_t character) = 0;
    virtual void Erase(bool forward) = 0;
    virtual void Replace(const Text& text) = 0;

    TextEdit edit_;
};

/// A box of any characters: text box, find box, number box.
class FreeEditCore : public EditCore {
public:
    using EditCore::EditCore;

protected:
    /// Before a typed character enters: raises the kind's event. The character may be changed; false
    /// drops it.
    virtual bool Admits(char32_t& character) { return character >= U' '; }
    /// Before a character is erased; `forward` is the Delete key.
    virtual bool AdmitsErasing(bool forward)
    {
        static_cast<void>(forward);
        return true;
    }
    /// After the user's edit changed the text.
    virtual void Edited() { }
    /// How many characters the user may fill the box with; 0 is no limit.
    virtual std::size_t MostCharacters() const;

    void Type(char32_t character) override;
    void Erase(bool forward) override;
    void Replace(const Text& text) override;

private:
    bool HasRoom() const;
    bool IsStillOpen() const;
};

/// A box with a mask such as "__/__/____": digits fill its blanks from the left. A digit behind the last one
/// of a full mask begins it anew.
class MaskEditCore : public EditCore {
public:
    MaskEditCore(FormModel& form, const ControlDesign& design, std::string_view mask);

    /// Nobody points at one digit of such a box: the press that enters it selects it too.
    void Entered(Entry entry) override;
    /// Whether the box shows a complete text that means nothing, such as "31/02/2026".
    bool ShowsNonsense() const;

protected:
    /// A write from code: "" gives the empty mask, any other text is shown as it stands.
    void PutMasked(const Text& text);
    /// After the user's edit changed the text.
    virtual void Edited() { }
    /// Whether the text on show is a value of the box.
    virtual bool ShowsValue() const = 0;

    void Type(char32_t character) override;
    void Erase(bool forward) override;
    void Replace(const Text& text) override;

private:
    bool IsBlank(std::size_t position) const { return mask_[position] == U'_'; }
    bool FitsMask(std::u32string_view characters) const;
    /// Positions behind the separators from `position` on.
    std::size_t SkipSeparators(std::size_t position) const;
    std::size_t FirstBlank(std::u32string_view characters) const;
    /// The text as far as it fits the mask, without what is selected; the caret goes to `caret`.
    std::u32string Editable(std::size_t& caret) const;
    void Change(std::u32string characters, std::size_t caret);

    const std::u32string mask_;
};

} // namespace kova::toolkit
