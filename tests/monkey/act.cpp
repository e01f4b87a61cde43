#include "tests/monkey/act.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace kova::monkey {

namespace {

struct Grammar {
    Verb verb;
    const char* word;
    bool hasTarget;
    int numbers;
    bool hasText;
};

constexpr std::array<Grammar, 15> Words{{
    {Verb::Screen, "screen", false, 3, true},
    {Verb::Users, "users", false, 0, false},
    {Verb::Press, "press", true, 2, false},
    {Verb::DoublePress, "double", true, 2, false},
    {Verb::RightPress, "right", true, 2, false},
    {Verb::Move, "move", true, 2, false},
    {Verb::Drag, "drag", true, 4, false},
    {Verb::Wheel, "wheel", true, 3, false},
    {Verb::Key, "key", false, 0, true},
    {Verb::Type, "type", false, 0, true},
    {Verb::Paste, "paste", false, 1, true},
    {Verb::Resize, "resize", true, 2, false},
    {Verb::Close, "close", true, 0, false},
    {Verb::OtherDesk, "desk", false, 1, true},
    {Verb::GoHome, "home", false, 0, false},
}};

const Grammar& GrammarOf(Verb verb)
{
    return *std::ranges::find_if(Words, [verb](const Grammar& word) { return word.verb == verb; });
}

const Grammar& GrammarOf(const std::string& word)
{
    const auto found = std::ranges::find_if(Words, [&](const Grammar& entry) { return word == entry.word; });
    if (found == Words.end())
        throw BadAct("there is no act \"" + word + "\"");
    return *found;
}

} // namespace

std::string ToLine(const Act& act)
{
    const Grammar& grammar = GrammarOf(act.verb);
    std::string line = act.hasty ? "now " : "";
    line += grammar.word;
    if (grammar.hasTarget)
        line += " " + act.target;
    for (int i = 0; i < grammar.numbers; ++i)
        line += " " + std::to_string(act.numbers[static_cast<std::size_t>(i)]);
    if (grammar.hasText)
        line += " " + act.text;
    return line;
}

Act FromLine(const std::string& line)
{
    std::istringstream words(line);
    std::string word;
    Act act;
    words >> word;
    if (word == "now") {
        act.hasty = true;
        words >> word;
    }
    const Grammar& grammar = GrammarOf(word);
    act.verb = grammar.verb;
    if (grammar.hasTarget)
        words >> act.target;
    for (int i = 0; i < grammar.numbers; ++i)
        words >> act.numbers[static_cast<std::size_t>(i)];
    if (words.fail())
        throw BadAct("something is missing in \"" + line + "\"");
    if (grammar.hasText) {
        words.get();
        std::getline(words, act.text);
    }
    return act;
}

std::vector<Act> ReadActs(const std::string& file)
{
    std::ifstream lines(file);
    if (!lines)
        throw BadAct(file + " cannot be read");
    std::vector<Act> acts;
    std::string line;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.front() != '#')
            acts.push_back(FromLine(line));
    }
    return acts;
}

void WriteActs(const std::string& file, const std::string& remark, const std::vector<Act>& acts)
{
    std::ofstream lines(file);
    std::istringstream remarks(remark);
    for (std::string line; std::getline(remarks, line);)
        lines << "# " << line << "\n";
    for (const Act& act : acts)
        lines << ToLine(act) << "\n";
}

} // namespace kova::monkey
