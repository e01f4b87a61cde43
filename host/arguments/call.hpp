#pragma once

#include "agenda/contracts/date_time.hpp"

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kova::arguments {

/// A command line that cannot be carried out; the text says why, and how help is asked for.
class BadArguments : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How somebody called a program: its words, read by what the program declares. Options are named as they are
/// typed, with their dashes. What cannot be read is refused with BadArguments.
class Call {
public:
    /// "agenda-data check": the program's name and its command's, if it has any.
    explicit Call(std::string name) : name_(std::move(name)) { }

    void AddOperand(std::string operand) { operands_.push_back(std::move(operand)); }
    void AddOption(std::string_view option, std::string value);

    /// The operand at that position of the declaration.
    const std::string& Operand(std::size_t position) const { return operands_.at(position); }
    /// The operand as a number from 1 on.
    long long Number(std::size_t position) const;

    bool Has(std::string_view option) const { return options_.find(option) != options_.end(); }
    /// The option's word, which is never empty; nothing where it was not given.
    std::optional<std::string> Option(std::string_view option) const;
    /// The option as a number from 1 to `most`, or `otherwise` where it was not given.
    long long Count(std::string_view option, long long otherwise, long long most) const;
    /// The option as a date that the agenda shows; nothing where it was not given.
    std::optional<Date> Day(std::string_view option) const;

    /// Throws BadArguments: the reason, a sentence, and how help is asked for.
    [[noreturn]] void Refuse(const std::string& reason) const;

private:
    std::string name_;
    std::vector<std::string> operands_;
    std::map<std::string, std::string, std::less<>> options_;
};

} // namespace kova::arguments
