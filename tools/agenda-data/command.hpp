#pragma once

#include "agenda/contracts/date_time.hpp"

#include <map>
#include <optional>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace kova::data {

/// A command line that cannot be carried out; the text is Portuguese.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What a command meets: where it writes, and when it runs.
struct Surroundings {
    /// What was asked for.
    std::ostream& output;
    /// What went wrong, and how far long work has come.
    std::ostream& error;
    DateTime now;
};

/// The words that follow a command's name, read by its declaration.
class Call {
public:
    Call(std::vector<std::string> operands, std::map<std::string, std::string, std::less<>> options)
        : operands_(std::move(operands)), options_(std::move(options))
    {
    }

    /// The operand at that position of the declaration.
    const std::string& Operand(std::size_t position) const { return operands_.at(position); }
    bool Has(std::string_view option) const { return options_.find(option) != options_.end(); }
    /// The option's word; nothing where it was not given.
    std::optional<std::string> Option(std::string_view option) const;
    /// The option as a number from 1 to `most`, or `otherwise` where it was not given. Throws UsageError.
    long long Count(std::string_view option, long long otherwise, long long most) const;
    /// The option as a date, or `otherwise` where it was not given. Throws UsageError.
    Date Day(std::string_view option, Date otherwise) const;
    /// The operand as a number from 1 on. Throws UsageError.
    long long Number(std::size_t position) const;

private:
    std::vector<std::string> operands_;
    std::map<std::string, std::string, std::less<>> options_;
};

/// An option of a command. Without a name for its value it is a switch.
struct Option {
    std::string_view name;
    std::string_view value = {};
};

/// A command's declaration; each stands in a file of its own and in the list of commands.cpp.
struct Command {
    std::string_view name;
    /// Names of its operands; all have to be given.
    std::vector<std::string_view> operands;
    std::vector<Option> options;
    /// What it does, for the help; lines are separated by '\n'.
    std::string_view help;
    /// Carries it out. Answers 0, or 1 where it has told in `error` what is wrong. Throws UsageError for
    /// values it cannot take, and a Failure where the data cannot be read or written.
    int (*run)(const Call& call, Surroundings& surroundings);
};

/// Reads the words after the command's name. Throws UsageError.
Call ReadCall(const Command& command, std::span<const char* const> words);

} // namespace kova::data
