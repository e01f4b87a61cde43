#pragma once

#include "agenda/contracts/business_services.hpp"
#include "toolkits/headless/quoted.hpp"

#include <string>
#include <string_view>

namespace kova::scenario {

/// An object that prints as a fixed text, such as the session's user.
class PrintedObject {
public:
    virtual ~PrintedObject() = default;
    virtual std::string PrintedText() const = 0;
};

class NamedObject : public Object, public PrintedObject {
public:
    explicit NamedObject(std::string text) : text_(std::move(text)) { }
    std::string PrintedText() const override { return text_; }

private:
    std::string text_;
};

using headless::Quoted;

/// A value as transcripts show it: its type and its content, such as `Long 1` or `Text "x"`.
std::string Print(const Value& value);
/// An argument likewise; "&" after the type marks one by reference: `Integer& 15`.
std::string Print(const Argument& argument);

} // namespace kova::scenario
