#include "tests/conformance/widgets/headless_bench.hpp"

#include "toolkits/common/boxes/check_box.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/common/boxes/option_button.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/label.hpp"
#include "toolkits/common/menu.hpp"
#include "toolkits/headless/toolkit.hpp"
#include "toolkits/headless/user.hpp"

#include <gtest/gtest.h>

namespace kova::conformance {

namespace {

using toolkit::EditCore;

template <class T> std::optional<T> TakeFirst(std::deque<T>& queue)
{
    if (queue.empty())
        return std::nullopt;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

/// Acts where the toolkit waits for the user, as the script says.
class ScriptedDriver final : public headless::Driver {
public:
    ScriptedDriver(Script& script, std::function<void(const std::vector<toolkit::MenuModel*>&)> menuShown)
        : script_(script), menuShown_(std::move(menuShown))
    {
    }

    void RunModal(toolkit::FormModel& form) override
    {
        while (form.Current().visible) {
            const auto action = TakeFirst(script_.actions);
            if (!action) {
                ADD_FAILURE() << form.Design().name << " waits for the user";
                return;
            }
            (*action)();
        }
    }

    Reply Answer(MessageKind kind, const Text& text, const Text& title) override
    {
        script_.questions.push_back({kind, text, title});
        const auto reply = TakeFirst(script_.replies);
        if (!reply)
            ADD_FAILURE() << "message box: " << text;
        // What the box does not offer is its answer to being closed.
        const Reply closed = kind == MessageKind::Question ? Reply::Ok : Reply::No;
        return reply.value_or(closed).value_or(closed);
    }

    toolkit::MenuModel* ChooseMenu(toolkit::MenuModel&,
                                   const std::vector<toolkit::MenuModel*>& entries) override
    {
        menuShown_(entries);
        const auto entry = TakeFirst(script_.menus);
        if (!entry)
            ADD_FAILURE() << "a menu came up";
        auto* chosen = dynamic_cast<toolkit::MenuModel*>(entry.value_or(nullptr));
        return chosen && chosen->IsChoosable() ? chosen : nullptr;
    }

    void DuringPause(Double) override { }

private:
    Script& script_;
    std::function<void(const std::vector<toolkit::MenuModel*>&)> menuShown_;
};

class HeadlessBench final : public Bench {
public:
    HeadlessBench() { toolkit_.SetDriver(&driver_); }

    kova::Toolkit& Kit() override { return toolkit_; }
    Long MakeContainer(Twips width, Twips height) override { return toolkit_.CreateContainer(width, height); }
    void ResizeContainer(Long handle, Twips width, Twips height) override
    {
        toolkit_.ResizeContainer(handle, width, height);
    }
    void CloseContainer(Long handle) override { toolkit_.DestroyContainer(handle); }
    void DestroyContainer(Long handle) override { toolkit_.DestroyContainer(handle); }
    void Settle() override
    {
        toolkit_.ProcessPendingEvents();
        script_.unhandled.clear();
        for (const Failure& failure : toolkit_.UnhandledFailures())
            script_.unhandled.push_back(failure.Number());
    }

    void Press(Widget& button) override { user_.Click(FormOf(button), NameOf(button), button.Index()); }
    void PressBySpace(Widget& button) override
    {
        user_.Focus(FormOf(button), NameOf(button), button.Index());
        Press(button);
    }
    void PressFind(KVFind& box) override { user_.Press(FormOf(box), NameOf(box)); }
    void PressBar(KVNavigationBar& bar, int button) override { user_.Bar(FormOf(bar), NameOf(bar), button); }
    void WalkBar(KVNavigationBar& bar, bool right) override
    {
        dynamic_cast<toolkit::NavigationBarModel&>(bar).UserWalks(right);
    }
    void Key(Form& form, toolkit::FormKey key) override { user_.PressKey(form.Name(), key); }
    void Shortcut(Form& form, const std::string& key) override { user_.PressShortcut(form.Name(), key); }
    void CloseWindow(Form& form) override { user_.CloseForm(form.Name()); }
    void ResizeWindow(Form& form, Twips innerWidth, Twips innerHeight) override
    {
        ModelOf(form).UserResizes({innerWidth, innerHeight});
    }
    void Focus(Widget& box) override { user_.Focus(FormOf(box), NameOf(box), box.Index()); }

    void Type(Widget& box, const std::string& text) override
    {
        user_.Type(FormOf(box), NameOf(box), text, box.Index());
    }
    void TypeOn(Widget& box, const std::string& text) override
    {
        for (const char32_t character : toolkit::ToCharacters(text))
            Edit(box).UserTypes(character);
    }
    void Backspace(Widget& box) override { Edit(box).UserErases(); }
    void DeleteFirst(Widget& box) override
    {
        Edit(box).UserSelects(0, 0);
        Edit(box).UserErasesForward();
    }
    void PasteAtEnd(Widget& box, const std::string& text) override
    {
        const std::size_t end = toolkit::ToCharacters(Edit(box).ShownText()).size();
        Edit(box).UserSelects(end, end);
        Edit(box).UserEdits(Edit(box).ShownText() + text);
    }

    void Choose(KVComboBox& combo, int row) override { user_.Choose(FormOf(combo), NameOf(combo), row); }
    std::vector<std::string> LookAtList(KVComboBox& combo) override
    {
        auto& model = dynamic_cast<toolkit::ComboBoxModel&>(combo);
        std::vector<std::string> rows;
        if (model.UserOpensList()) {
            for (const auto& row : model.ShownRows())
                rows.push_back(row.text);
            model.UserPressesKey(toolkit::ComboKey::Leave);
        }
        return rows;
    }
    void ComboKey(KVComboBox& combo, toolkit::ComboKey key) override
    {
        dynamic_cast<toolkit::ComboBoxModel&>(combo).UserPressesKey(key);
    }
    void TypeLetters(KVComboBox& combo, const std::string& letters) override
    {
        for (const char32_t letter : toolkit::ToCharacters(letters))
            dynamic_cast<toolkit::ComboBoxModel&>(combo).UserTypes(letter);
    }
    void PassTime(Double seconds) override { toolkit_.Clock().Advance(seconds); }
    void Pick(KVDTPicker& box, Date date) override { user_.Pick(FormOf(box), NameOf(box), date); }

    void HoverAt(MSFlexGrid& grid, Twips x, Twips y) override
    {
        user_.RestAt(FormOf(grid), NameOf(grid), x, y);
    }
    void MoveAway(MSFlexGrid& grid, Widget&) override { user_.Leave(FormOf(grid), NameOf(grid)); }
    void ClickAt(MSFlexGrid& grid, Twips x, Twips y) override
    {
        user_.ClickAt(FormOf(grid), NameOf(grid), x, y);
    }
    void Drag(MSFlexGrid& grid, Twips x, Twips y, Twips toX, Twips toY) override
    {
        user_.Drag(FormOf(grid), NameOf(grid), x, y, toX, toY);
    }
    void GridKey(MSFlexGrid& grid, toolkit::GridKey key) override
    {
        user_.GridKey(FormOf(grid), NameOf(grid), key);
    }

    bool IsOnScreen(Widget& widget) override { return CoreOf(widget).IsOnShow(); }
    std::string Focused(Form& form) override { return NameOfFocused(form); }

    std::string ShownText(Widget& widget) override
    {
        if (const auto* combo = dynamic_cast<toolkit::ComboBoxModel*>(&widget))
            return combo->ShownText();
        if (const auto* label = dynamic_cast<toolkit::LabelModel*>(&widget))
            return label->ShownCaption();
        if (const auto* button = dynamic_cast<toolkit::CommandButtonModel*>(&widget))
            return button->ShownCaption();
        if (const auto* option = dynamic_cast<toolkit::OptionButtonModel*>(&widget))
            return option->ShownCaption();
        return Edit(widget).ShownText();
    }
    std::string SelectedText(Widget& box) override
    {
        const auto selection = Edit(box).ShownSelection();
        const auto [first, last] = std::minmax(selection.anchor, selection.caret);
        return toolkit::ToText(toolkit::ToCharacters(Edit(box).ShownText()).substr(first, last - first));
    }
    bool ShowsNonsense(Widget& box) override
    {
        return dynamic_cast<toolkit::MaskEditCore&>(box).ShowsNonsense();
    }
    std::string MarkedRow(KVComboBox& combo) override
    {
        const auto& model = dynamic_cast<toolkit::ComboBoxModel&>(combo);
        if (!model.IsListOpen())
            return "shut";
        return model.MarkedRow() < 0 ? "none" : std::to_string(model.MarkedRow());
    }
    int ButtonWithFocus(KVNavigationBar& bar) override
    {
        const auto& model = dynamic_cast<toolkit::NavigationBarModel&>(bar);
        return model.HasFocus() ? model.CurrentButton() : 0;
    }
    bool ShowsMagnifier(KVFind& box) override
    {
        return dynamic_cast<toolkit::FindBoxModel&>(box).WouldSearch();
    }
    bool Offers(KVNavigationBar& bar, int button) override
    {
        return dynamic_cast<toolkit::NavigationBarModel&>(bar).Offers(button);
    }
    std::string BarText(KVNavigationBar& bar) override
    {
        return dynamic_cast<toolkit::NavigationBarModel&>(bar).ShownText();
    }
    Colour GroundOf(MSFlexGrid& grid, Long row, Long col) override
    {
        return ModelOf(grid).IsPainted() ? ModelOf(grid).BackColorOf(row, col)
                                         : ModelOf(grid).Look().backColorBkg;
    }

private:
    static std::string FormOf(Widget& widget) { return CoreOf(widget).GetForm().Design().name; }
    static std::string NameOf(Widget& widget) { return CoreOf(widget).Design().name; }
    static EditCore& Edit(Widget& box) { return dynamic_cast<EditCore&>(box); }

    ScriptedDriver driver_{script_, [this](const auto& entries) { NoteMenu(entries); }};
    headless::HeadlessToolkit toolkit_;
    headless::User user_{toolkit_};
};

} // namespace

std::unique_ptr<Bench> MakeHeadlessBench() { return std::make_unique<HeadlessBench>(); }

} // namespace kova::conformance
