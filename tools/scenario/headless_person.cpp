#include "tools/scenario/headless_person.hpp"

#include "toolkits/common/edit_core.hpp"

namespace kova::scenario {

std::string HeadlessPerson::Click(const ControlName& at)
{
    return user_.Click(at.form, at.control, at.index);
}

std::string HeadlessPerson::Choose(const ControlName& at, int row)
{
    return user_.Choose(at.form, at.control, row, at.index);
}

std::string HeadlessPerson::Choose(const ControlName& at, std::string_view text)
{
    return user_.Choose(at.form, at.control, text, at.index);
}

std::string HeadlessPerson::Type(const ControlName& at, std::string_view text)
{
    return user_.Type(at.form, at.control, text, at.index);
}

std::string HeadlessPerson::Press(const ControlName& at)
{
    return user_.Press(at.form, at.control, at.index);
}

// A text is selected as if Tab had come there.
std::string HeadlessPerson::Focus(const ControlName& at)
{
    const toolkit::EventScope scope(toolkit_);
    std::string refusal = user_.Focus(at.form, at.control, at.index);
    const toolkit::FormModel* form = toolkit_.FindForm(at.form);
    auto* box = form ? dynamic_cast<toolkit::EditCore*>(form->Find(at.control, at.index)) : nullptr;
    if (refusal.empty() && box && box->HasFocus())
        box->UserSelectsAll();
    return refusal;
}

std::string HeadlessPerson::Hover(const ControlName& at, Long row)
{
    return user_.Hover(at.form, at.control, row);
}

std::string HeadlessPerson::HoverAt(const ControlName& at, Twips x, Twips y)
{
    return user_.HoverAt(at.form, at.control, x, y);
}

std::string HeadlessPerson::Rest(const ControlName& at, Long row)
{
    return user_.Hover(at.form, at.control, row);
}

std::string HeadlessPerson::Select(const ControlName& at, Long row)
{
    return user_.Select(at.form, at.control, row);
}

std::string HeadlessPerson::Bar(const ControlName& at, int button)
{
    return user_.Bar(at.form, at.control, button);
}

std::string HeadlessPerson::Key(const headless::KeyPress& key) { return user_.Key(key); }

std::string HeadlessPerson::CloseForm(const std::string& form) { return user_.CloseForm(form); }

} // namespace kova::scenario
