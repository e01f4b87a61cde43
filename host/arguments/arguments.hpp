#pragma once

#include "host/arguments/call.hpp"

#include <span>
#include <variant>

namespace kova::arguments {

/// An option that is declared. Without a name for its value it is a switch.
struct Option {
    std::string_view name;
    std::string_view value = {};
    /// What it does, for the help; lines are separated by '\n'.
    std::string_view help = {};
};

/// What a program, or a command of one, takes. `--help` and `-h` are there without being declared.
struct Declaration {
    std::string_view name;
    /// What it does, for the help; lines are separated by '\n'.
    std::string_view help;
    /// Names of its operands; all have to be given.
    std::vector<std::string_view> operands = {};
    std::vector<Option> options = {};
};

struct Program {
    Declaration own;
    /// What `--version` answers.
    std::string_view version;
    /// What else the help tells.
    std::string_view closing;
    /// With commands the first word is one of them, and the words behind it are read by its declaration.
    std::vector<const Declaration*> commands = {};
};

/// What the words ask for.
struct Asked {
    /// The help or the version, to be printed as it stands; the rest is empty then.
    std::optional<std::string> answer;
    /// The command of a program that has any.
    const Declaration* command = nullptr;
    Call call;
};

/// Reads the words behind the program's name. An option's value is the next word, or stands in the same one
/// behind '='; of two values the last counts; behind "--" no word is an option. `--help` is answered also
/// where an operand is missing. Throws BadArguments.
Asked Read(const Program& program, std::span<const std::string> words);

} // namespace kova::arguments
