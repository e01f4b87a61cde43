#include "tests/monkey/chooser.hpp"

#include "tests/monkey/screen.hpp"
#include "tests/monkey/users.hpp"
#include "toolkits/qt/boxes/combo_field.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"

#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>

#include <algorithm>
#include <cstdlib>
#include <regex>
#include <utility>

namespace kova::monkey {

namespace {

constexpr int Middle = 500;
constexpr int Whole = 1000;

/// Buttons of the row under the mouse: what the list is there for.
bool IsRowButton(const std::string& name)
{
    return name.find("kvcmdMarcar") != std::string::npos || name == "frmLista.kvcmdDetalhar"
        || name == "frmLista.kvcmdAlterar" || name == "frmLista.kvcmdExcluir"
        || name == "frmLista.kvcmdImprimirFicha";
}

bool Holds(const std::string& name, const char* part) { return name.find(part) != std::string::npos; }

} // namespace

std::optional<Act> Replay::Next()
{
    return next_ < acts_.size() ? std::optional(acts_[next_++]) : std::nullopt;
}

Chooser::Chooser(std::uint64_t seed, int count, Words words, std::deque<Act> first)
    : first_(std::move(first)),
      hasUsers_(std::ranges::find(first_, Verb::Users, &Act::verb) != first_.end()),
      chance_(seed),
      left_(count),
      words_(std::move(words))
{
}

std::optional<Act> Chooser::Next()
{
    if (!first_.empty()) {
        Act act = std::move(first_.front());
        first_.pop_front();
        return act;
    }
    if (left_-- <= 0)
        return std::nullopt;
    Act act = Choose();
    while (IsLeftOut(act))
        act = Choose();
    act.hasty = chance_.InHundred(12);
    return act;
}

bool Chooser::IsLeftOut(const Act& act)
{
    const char* leftOut = std::getenv(LeaveOutVariable);
    return leftOut && std::regex_search(ToLine(act), std::regex(leftOut));
}

// Half of them without a slip, so that some come to their end.
void Chooser::BeginPlan()
{
    isCareful_ = chance_.InHundred(50);
    plan_ = PlanSomething(chance_, words_, isCareful_);
}

// The screens behind the list are reached by plans.
std::optional<Act> Chooser::NextOfPlan()
{
    const toolkit::FormModel* form = FormInFront();
    if (plan_.empty() && form && form->Design().name == "frmLista" && chance_.InHundred(15))
        BeginPlan();
    if (plan_.empty() || !chance_.InHundred(isCareful_ ? 99 : 85))
        return std::nullopt;
    const Act act = plan_.front();
    plan_.pop_front();
    return act;
}

Act Chooser::Choose()
{
    if (const auto planned = NextOfPlan())
        return *planned;
    if (chance_.InHundred(4))
        return Seldom();
    if (hasUsers_ && !SignInInFront() && chance_.InHundred(4))
        return Key(chance_.OneOf<std::string>({"Ctrl+Shift+U", "Ctrl+Shift+U", "Ctrl+Shift+L"}));
    if (QApplication::activePopupWidget())
        return InPopup();
    if (SignInInFront())
        return InSignIn();
    if (BoxInFront())
        return InBox();
    if (dynamic_cast<QFileDialog*>(QApplication::activeModalWidget()))
        return InFileDialog();
    if (IsInOtherArea())
        return InOtherArea();
    return FormInFront() ? InForm() : InOtherWindow();
}

Act Chooser::At(Verb verb, const std::string& target, int x, int y) const
{
    return {.verb = verb, .target = target, .numbers = {x, y}};
}

Act Chooser::Key(const std::string& keys) const { return {.verb = Verb::Key, .text = keys}; }

Act Chooser::Type(const std::string& text) const { return {.verb = Verb::Type, .text = text}; }

Act Chooser::Somewhere(Verb verb, const std::string& target)
{
    return At(verb, target, chance_.Between(1, Whole - 1), chance_.Between(1, Whole - 1));
}

Act Chooser::InPopup()
{
    switch (chance_.ByWeight({60, 22, 8, 6, 4})) {
    case 0: return Somewhere(chance_.InHundred(8) ? Verb::DoublePress : Verb::Press, "@popup");
    case 1:
        return Key(chance_.OneOf<std::string>({"Down", "Up", "Return", "Return", "Left", "Right", "Home",
                                               "End", "PgDown", "PgUp", "Tab", "Space", "F4", "B", "P"}));
    case 2: return Key("Esc");
    case 3: return Somewhere(Verb::Press, "@main");
    default: {
        Act act = Somewhere(Verb::Wheel, "@popup");
        act.numbers[2] = chance_.InHundred(50) ? 120 : -240;
        return act;
    }
    }
}

Act Chooser::InBox()
{
    const auto targets = Targets();
    switch (chance_.ByWeight({55, 15, 12, 12, 6})) {
    case 0:
        return targets.empty() ? Key("Return")
                               : At(Verb::Press, chance_.OneOf(targets).first, Middle, Middle);
    case 1: return Key("Return");
    case 2: return Key("Esc");
    case 3: return Key(chance_.OneOf<std::string>({"S", "N", "O", "Alt+S", "Tab", "Left", "Space"}));
    default: return Somewhere(chance_.InHundred(50) ? Verb::Press : Verb::DoublePress, "@main");
    }
}

// The folders of the computer are no place for random presses.
Act Chooser::InFileDialog()
{
    switch (chance_.ByWeight({45, 35, 20})) {
    case 0: return Key("Return");
    case 1: return Key("Esc");
    default: return Type(chance_.OneOf<std::string>({"a", "lista", "ção", "1"}));
    }
}

Act Chooser::InForm()
{
    switch (chance_.ByWeight({62, 18, 14, 6})) {
    case 0: return AtTarget();
    case 1: return Keys();
    case 2: return Typing();
    default: return Somewhere(chance_.InHundred(70) ? Verb::Press : Verb::Move, "@front");
    }
}

Act Chooser::InOtherWindow()
{
    switch (chance_.ByWeight({45, 30, 15, 7, 3})) {
    case 0: return AtTarget();
    case 1:
        return Key(chance_.OneOf<std::string>(
            {"PgDown", "PgUp", "Home", "End",   "Ctrl++", "Ctrl+-", "Ctrl+0", "Ctrl+L", "Ctrl+P", "Ctrl+S",
             "Ctrl+F", "F3",   "Tab",  "Space", "Return", "Down",   "F1",     "Alt+S",  "Alt+C",  "Alt+F"}));
    case 2: return Key("Esc");
    case 3: return Typing();
    default: return {.verb = Verb::Close, .target = "@front"};
    }
}

Act Chooser::InOtherArea()
{
    switch (chance_.ByWeight({50, 25, 20, 5})) {
    case 0: return AtTarget();
    case 1:
        return Key(chance_.OneOf<std::string>({"Tab",
                                               "Tab",
                                               "Tab",
                                               "Shift+Tab",
                                               "Down",
                                               "Up",
                                               "Return",
                                               "Esc",
                                               "F3",
                                               "Ctrl+N",
                                               "Ctrl+S",
                                               "Space",
                                               "Alt+Down",
                                               "PgDown",
                                               "End",
                                               "Home",
                                               "Ctrl+A",
                                               "Del",
                                               "Alt+1",
                                               "Alt+2",
                                               "Ctrl+PgDown",
                                               "Left",
                                               "Right",
                                               "F2",
                                               "F4",
                                               "F6",
                                               "F8",
                                               "Ctrl+2",
                                               "Ctrl+3",
                                               "Ctrl+Z",
                                               "Ctrl+L",
                                               "Ctrl+E",
                                               "Ctrl+Shift+Down",
                                               "Ctrl+Shift+Right",
                                               "Shift+PgDown"}));
    case 2: return Type(words_.Any(chance_));
    default: return Somewhere(Verb::Press, "@front");
    }
}

// What is in the midst of being done elsewhere goes on behind it.
void Chooser::PlanToSignIn()
{
    const std::span<const Person> people = People();
    const Person& person =
        people[static_cast<std::size_t>(chance_.Between(0, static_cast<int>(people.size()) - 1))];
    const bool isWrong = chance_.InHundred(12);
    const bool isByPin = MainWindow() != nullptr && chance_.InHundred(70);
    const std::string secret = isWrong ? chance_.OneOf<std::string>({"4321", "2581", "senha errada", "ção"})
        : isByPin                      ? person.pin
                                       : person.password;
    const std::vector<Act> acts{At(Verb::Press, "nome", Middle / 2, Middle),
                                Key("Ctrl+A"),
                                Type(person.name),
                                At(Verb::Press, "segredo", Middle, Middle),
                                Key("Ctrl+A"),
                                Type(secret),
                                Key("Return")};
    plan_.insert(plan_.begin(), acts.begin(), acts.end());
}

// Keys and places by which somebody might try to get past it, too.
Act Chooser::InSignIn()
{
    switch (chance_.ByWeight({60, 12, 12, 8, 8})) {
    case 0: {
        PlanToSignIn();
        const Act act = plan_.front();
        plan_.pop_front();
        return act;
    }
    case 1: return Key(chance_.OneOf<std::string>({"Tab", "Return", "Down", "F4", "Alt+E", "Ctrl+Z", "Del"}));
    case 2:
        return Key(
            chance_.OneOf<std::string>({"Alt+1", "Alt+2", "F2", "F5", "Ctrl+1", "Ctrl+3", "Ctrl+S", "Ctrl+L",
                                        "Ctrl+Shift+L", "Ctrl+Shift+U", "F10", "Ctrl+H", "Alt+F4"}));
    case 3: return Somewhere(Verb::Press, chance_.InHundred(50) ? "@main" : "@front");
    default:
        if (MainWindow() == nullptr)
            return Key("Tab");
        return chance_.InHundred(70) ? Key("Esc") : Act{.verb = Verb::Close, .target = "@front"};
    }
}

Act Chooser::AtTarget()
{
    const auto targets = Targets();
    if (targets.empty())
        return Somewhere(Verb::Press, "@front");
    std::vector<int> weights;
    for (const auto& [name, widget] : targets) {
        const bool isGrid = dynamic_cast<qt::GridCanvas*>(widget) != nullptr;
        const bool isCombo = dynamic_cast<qt::ComboField*>(widget) != nullptr;
        const bool isLabel = Holds(name, ".lbl") || Holds(name, ".shp") || Holds(name, ".pic");
        weights.push_back(isGrid ? 24 : IsRowButton(name) ? 5 : isCombo ? 6 : isLabel ? 1 : 4);
    }
    const auto& [name, widget] = targets[chance_.ByWeight(weights)];
    return AtControl(name, *widget);
}

Act Chooser::AtControl(const std::string& name, QWidget& widget)
{
    const Verb press = chance_.InHundred(10) ? Verb::DoublePress
        : chance_.InHundred(3)               ? Verb::RightPress
                                             : Verb::Press;
    if (dynamic_cast<qt::GridCanvas*>(&widget)) {
        switch (chance_.ByWeight({40, 35, 15, 5, 5})) {
        case 0: return Somewhere(Verb::Move, name);
        case 1: return Somewhere(press, name);
        case 2: return Somewhere(Verb::DoublePress, name);
        case 3: {
            Act act = Somewhere(Verb::Wheel, name);
            act.numbers[2] = chance_.InHundred(50) ? 120 : -120;
            return act;
        }
        default: {
            Act act = Somewhere(Verb::Drag, name);
            if (chance_.InHundred(50))
                act.numbers[1] = 10;
            act.numbers[2] = chance_.Between(1, Whole - 1);
            act.numbers[3] = chance_.Between(1, Whole - 1);
            return act;
        }
        }
    }
    // A button stands at the right end of a date or find box, and a list's arrow.
    if (chance_.InHundred(40))
        return At(press, name, widget.width() > 60 ? Whole - 14'000 / widget.width() : Middle, Middle);
    return chance_.InHundred(6) ? Somewhere(press, name) : At(press, name, Middle, Middle);
}

Act Chooser::Keys()
{
    static const std::vector<std::string> common{
        "Tab",  "Tab",   "Tab",    "Shift+Tab", "Return", "Return", "Esc",   "Down",      "Down", "Up",
        "Left", "Right", "PgDown", "PgUp",      "Home",   "End",    "Space", "Backspace", "Del"};
    static const std::vector<std::string> commands{
        "F1",        "F2",       "F3",       "F4",          "F5",        "F6",        "F7",         "F8",
        "F9",        "F11",      "F12",      "Ctrl+1",      "Ctrl+2",    "Ctrl+3",    "Ctrl+4",     "Ctrl+5",
        "Ctrl+S",    "Ctrl+S",   "Ctrl+P",   "Ctrl+A",      "Ctrl+C",    "Ctrl+V",    "Ctrl+X",     "Ctrl+Z",
        "Ctrl+Home", "Ctrl+End", "Alt+Down", "Alt+Left",    "Alt+Right", "Alt+A",     "Alt+C",      "Alt+S",
        "Alt+F",     "Alt+R",    "Ctrl+F",   "Ctrl+PgDown", "Ctrl+PgUp", "Ctrl+Left", "Ctrl+Right", "Alt+2",
        "Alt+4",     "Ctrl+T",   "Ctrl+T",   "Ctrl+L",      "Ctrl+E"};
    return Key(chance_.InHundred(60) ? chance_.OneOf(common) : chance_.OneOf(commands));
}

Act Chooser::Typing()
{
    const toolkit::FormModel* form = FormInFront();
    const std::string focus = form && form->Focused() ? form->Focused()->FullName() : "";
    if (chance_.InHundred(4))
        return {.verb = Verb::Paste,
                .numbers = {chance_.Between(1, 20'000)},
                .text = chance_.OneOf<std::string>({"m", "7", "é "})};
    if (Holds(focus, "kvdtp"))
        return Type(Words::DateDigits(chance_));
    if (Holds(focus, "kvtim"))
        return Type(Words::TimeDigits(chance_));
    return Type(words_.Any(chance_));
}

Act Chooser::Seldom()
{
    switch (chance_.ByWeight({35, 20, 8, 4, 33})) {
    case 0: {
        Act act{.verb = Verb::OtherDesk, .numbers = {chance_.Between(0, Whole - 1)}};
        act.text = hasUsers_ && chance_.InHundred(20)
            ? "role " + std::to_string(chance_.Between(1, 4))
            : chance_.OneOf<std::string>(
                {"book", "status 1", "status 2", "status 3", "status 4", "remark", "delete"});
        return act;
    }
    case 1:
        return {.verb = Verb::Resize,
                .target = chance_.InHundred(80) ? "@main" : "@front",
                .numbers = {chance_.Between(700, 2200), chance_.Between(500, 1300)}};
    case 2: return {.verb = Verb::Close, .target = "@front"};
    case 3: return {.verb = Verb::Close, .target = "@main"};
    default: return {.verb = Verb::GoHome};
    }
}

} // namespace kova::monkey
