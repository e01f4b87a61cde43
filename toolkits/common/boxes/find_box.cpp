#include "toolkits/common/boxes/find_box.hpp"

#include "agenda/contracts/utf8.hpp"
#include "toolkits/common/form.hpp"

#include <utility>

namespace kova::toolkit {

namespace {

/// The code of the key that types a character; 0 for one that no key of the basic keyboard types.
Integer KeyCodeOf(char32_t character)
{
    const char32_t upper = utf8::ToUpper(character);
    return upper < 0x80 ? static_cast<Integer>(upper) : Integer{0};
}

Integer ShiftOf(char32_t character) { return utf8::ToLower(character) != character ? 1 : 0; }

/// No column that is searched holds more. A whole document pasted by mistake would be typed for minutes.
constexpr std::size_t MostCharactersToFind = 255;

/// What a filling by code reports: it comes from no key.
constexpr Integer NoKey = 0;

} // namespace

FindBoxModel::FindBoxModel(FormModel& form, const ControlDesign& design) : WidgetModel(form, design)
{
    edit_.Put(design.text);
}

kova::Text FindBoxModel::Text() const { return Read("Text", ShownText()); }

void FindBoxModel::Text(const kova::Text& value)
{
    Writing("Text", value);
    typed_ = false;
    Fill(value);
}

Long FindBoxModel::Status() const { return Read("Status", status_); }

void FindBoxModel::Status(Long value)
{
    Writing("Status", value);
    status_ = value;
    typed_ = false;
    Tell(Aspect::Content);
}

Long FindBoxModel::Style() const { return Read("Style", Design().style); }

void FindBoxModel::DisplayText(const kova::Text& value)
{
    Writing("DisplayText", value);
    if (!value.empty())
        throw Failure(FailureNumber::BadPropertyValue);
    PutText(value);
}

void FindBoxModel::ReiniciarPesquisa()
{
    Calling("ReiniciarPesquisa");
    status_ = find_status::Clear;
    typed_ = false;
    edit_.Select(0, edit_.Characters().size());
    Tell(Aspect::Content);
    Tell(Aspect::Selection);
    RaiseClick();
}

void FindBoxModel::UserPresses()
{
    ByUser([this] {
        if (FocusForPress())
            Press();
    });
}

void FindBoxModel::UserPressesEnter()
{
    ByUser([this] {
        if (WouldSearch())
            UserPresses();
        else
            GetForm().FocusNext(true);
    });
}

bool FindBoxModel::TakesEnter()
{
    UserPressesEnter();
    return true;
}

void FindBoxModel::Press()
{
    if (!WouldSearch()) {
        edit_.Put("");
        return Report(find_status::Clear);
    }
    const bool endsFormerSearch = Design().announcesEndOfSearch && status_ == find_status::Search && typed_;
    if (endsFormerSearch) {
        Report(find_status::Clear);
        if (!TakesInput())
            return;
    }
    Report(find_status::Search);
}

void FindBoxModel::Report(Long status)
{
    status_ = status;
    typed_ = false;
    Tell(Aspect::Content);
    RaiseClick();
}

void FindBoxModel::Fill(const kova::Text& text)
{
    PutText(text);
    filled_ = filled_ || (clicks_ > 0 && !text.empty());
}

// A lookup that fills its own box counts as typing into it, once, when it has ended: a form that guards its
// boxes against what it writes itself is open to the user's next key.
void FindBoxModel::RaiseClick()
{
    const auto form = GetForm().weak_from_this().lock();
    struct Running {
        int& clicks;
        explicit Running(int& count) : clicks(++count) { }
        ~Running() { --clicks; }
    };
    if (clicks_ == 0)
        filled_ = false;
    {
        const Running running(clicks_);
        GetForm().Raise(click_);
    }
    if (clicks_ == 0 && std::exchange(filled_, false))
        GetForm().Raise(keyDown_, NoKey, NoKey);
}

bool FindBoxModel::Admits(char32_t& character)
{
    if (!FreeEditCore::Admits(character))
        return false;
    GetForm().Raise(keyDown_, KeyCodeOf(character), ShiftOf(character));
    return true;
}

void FindBoxModel::Edited()
{
    typed_ = true;
    Tell(Aspect::Content);
}

std::size_t FindBoxModel::MostCharacters() const
{
    const std::size_t designed = FreeEditCore::MostCharacters();
    return designed == 0 ? MostCharactersToFind : designed;
}

void FindBoxModel::RaiseLostFocus() { GetForm().Raise(lostFocus_); }

void FindBoxModel::DropHandlers()
{
    click_ = nullptr;
    keyDown_ = nullptr;
    lostFocus_ = nullptr;
}

} // namespace kova::toolkit
