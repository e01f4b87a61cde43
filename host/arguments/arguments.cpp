#include "host/arguments/arguments.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace kova::arguments {

namespace {

/// Where the help tells what an option does, and what a command.
constexpr std::size_t OptionColumn = 24, CommandColumn = 17;

/// The usage shows the operands; a list of them would repeat it.
class HelpFormat : public CLI::Formatter {
public:
    std::string make_positionals(const CLI::App*) const override { return {}; }
};

/// The library's parser for one declaration. None of its own English words is left where a user may read
/// them: its refusals are told by their kind (Refuse).
class Parser {
public:
    Parser(const Program& program, const Declaration& declaration);

    std::string Help(const Program& program);
    void Parse(std::span<const std::string> words);
    /// What was parsed.
    Call Taken() const;
    /// Tells what is wrong with the words that Parse has refused.
    [[noreturn]] void Refuse(const CLI::ParseError& error, std::span<const std::string> words) const;

private:
    void Speak();
    void Declare(const Declaration& declaration);
    [[noreturn]] void RefuseLeftOver() const;

    std::string name_;
    CLI::App app_;
    std::vector<const CLI::Option*> operands_, options_;
};

std::string NameOf(const Program& program, const Declaration& declaration)
{
    return std::string(program.own.name)
        + (&declaration == &program.own ? "" : " " + std::string(declaration.name));
}

Parser::Parser(const Program& program, const Declaration& declaration)
    : name_(NameOf(program, declaration)), app_(std::string(declaration.help) + "\n", name_)
{
    Speak();
    Declare(declaration);
    app_.set_help_flag("-h,--help", "Mostra esta ajuda.");
    app_.set_version_flag("--version", std::string(program.version), "Mostra a versão.");
}

void Parser::Speak()
{
    app_.allow_windows_style_options(false);
    app_.option_defaults()->group("Opções");
    app_.formatter(std::make_shared<HelpFormat>());
    app_.get_formatter()->column_width(OptionColumn);
    app_.get_formatter()->label("Usage", "Uso");
    app_.get_formatter()->label("OPTIONS", "opções");
    app_.get_formatter()->label("SUBCOMMAND", "COMANDO");
}

void Parser::Declare(const Declaration& declaration)
{
    for (const std::string_view operand : declaration.operands)
        operands_.push_back(app_.add_option(std::string(operand), CLI::callback_t(), "")->required());
    for (const Option& option : declaration.options) {
        const std::string name(option.name), help(option.help);
        options_.push_back(option.value.empty() ? app_.add_flag(name, help)
                                                : app_.add_option(name, CLI::callback_t(), help)
                                                      ->type_name(std::string(option.value))
                                                      ->take_last());
    }
}

std::string Parser::Help(const Program& program)
{
    if (!program.commands.empty() && name_ == program.own.name) {
        for (const Declaration* command : program.commands)
            app_.add_subcommand(std::string(command->name), std::string(command->help))->group("Comandos");
        app_.require_subcommand(1);
        app_.get_formatter()->column_width(CommandColumn);
    }
    app_.footer(std::string(program.closing));
    return app_.help();
}

/// "--name=" in two words: the library would take the next word for the value.
std::vector<std::string> WithEmptyValues(std::span<const std::string> words)
{
    std::vector<std::string> told;
    const auto end = std::find(words.begin(), words.end(), "--");
    for (auto word = words.begin(); word != words.end(); ++word) {
        const bool isEmpty = word < end && word->starts_with("--") && word->find('=') == word->size() - 1;
        told.push_back(isEmpty ? word->substr(0, word->size() - 1) : *word);
        if (isEmpty)
            told.emplace_back();
    }
    return told;
}

void Parser::Parse(std::span<const std::string> words)
{
    std::vector<std::string> told = WithEmptyValues(words);
    // The library takes them from the back.
    std::reverse(told.begin(), told.end());
    app_.parse(std::move(told));
}

Call Parser::Taken() const
{
    Call call(name_);
    for (const CLI::Option* operand : operands_)
        call.AddOperand(operand->results().back());
    for (const CLI::Option* option : options_) {
        if (option->count() == 0)
            continue;
        const std::string value = option->results().back();
        if (option->get_items_expected_max() == 0 && value != "true")
            call.Refuse("A opção " + option->get_name() + " não leva valor.");
        if (value.empty())
            call.Refuse("A opção " + option->get_name() + " precisa de um valor.");
        call.AddOption(option->get_name(), value);
    }
    return call;
}

void Parser::Refuse(const CLI::ParseError& error, std::span<const std::string> words) const
{
    const Call call(name_);
    // Values only run out behind the last word.
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
        call.Refuse("A opção " + words.back() + " precisa de um valor.");
    // "--" alone is no word that found no place.
    if (app_.remaining_size() != 0)
        RefuseLeftOver();
    for (const CLI::Option* operand : operands_) {
        if (operand->count() == 0)
            call.Refuse("Falta informar " + operand->get_name() + ".");
    }
    call.Refuse("A linha de comando não foi entendida.");
}

/// Names the first word that found no place.
void Parser::RefuseLeftOver() const
{
    const Call call(name_);
    const std::vector<std::string> left = app_.remaining();
    const bool mayBeOption = left.front() != "--";
    const std::string& word = mayBeOption ? left.front() : left[1];
    if (mayBeOption && word.size() > 1 && word.starts_with("-"))
        call.Refuse("A opção " + word.substr(0, word.find('=')) + " não existe.");
    call.Refuse("\"" + word + "\" sobra na linha de comando.");
}

Asked ReadBy(const Program& program, const Declaration& declaration, std::span<const std::string> words)
{
    Parser parser(program, declaration);
    try {
        parser.Parse(words);
        return {{}, nullptr, parser.Taken()};
    } catch (const CLI::CallForHelp&) {
        return {parser.Help(program), nullptr, Call("")};
    } catch (const CLI::CallForVersion&) {
        return {std::string(program.version) + "\n", nullptr, Call("")};
    } catch (const CLI::ParseError& error) {
        parser.Refuse(error, words);
    }
}

const Declaration& CommandNamed(const Program& program, const std::string& name)
{
    for (const Declaration* command : program.commands) {
        if (command->name == name)
            return *command;
    }
    Call(std::string(program.own.name)).Refuse("O comando \"" + name + "\" não existe.");
}

} // namespace

Asked Read(const Program& program, std::span<const std::string> words)
{
    if (program.commands.empty())
        return ReadBy(program, program.own, words);
    if (!words.empty() && !words.front().starts_with("-")) {
        const Declaration& command = CommandNamed(program, words.front());
        Asked asked = ReadBy(program, command, words.subspan(1));
        asked.command = &command;
        return asked;
    }
    Asked asked = ReadBy(program, program.own, words);
    if (!asked.answer)
        asked.call.Refuse("Informe um comando.");
    return asked;
}

} // namespace kova::arguments
