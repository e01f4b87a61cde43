#include "toolkits/common/boxes/number_box.hpp"

#include "toolkits/common/form.hpp"

#include <limits>

namespace kova::toolkit {

namespace {

constexpr Integer Backspace = 8;

} // namespace

NumberBoxModel::NumberBoxModel(FormModel& form, const ControlDesign& design) : WidgetModel(form, design)
{
    edit_.Put(design.text);
}

kova::Text NumberBoxModel::Text() const { return Read("Text", ShownText()); }

void NumberBoxModel::Text(const kova::Text& value)
{
    Writing("Text", value);
    PutText(value);
}

Integer NumberBoxModel::AskHandler(Integer character)
{
    GetForm().Raise(keyPress_, character);
    return character;
}

bool NumberBoxModel::Admits(char32_t& character)
{
    if (!FreeEditCore::Admits(character)
        || character > static_cast<char32_t>(std::numeric_limits<Integer>::max()))
        return false;
    const Integer left = AskHandler(static_cast<Integer>(character));
    character = static_cast<char32_t>(left);
    return left >= '0' && left <= '9';
}

bool NumberBoxModel::AdmitsErasing(bool forward) { return forward || AskHandler(Backspace) == Backspace; }

void NumberBoxModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

void NumberBoxModel::DropHandlers()
{
    keyPress_ = nullptr;
    lostFocus_ = nullptr;
}

} // namespace kova::toolkit
