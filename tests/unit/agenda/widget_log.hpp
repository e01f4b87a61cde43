#pragma once

#include "toolkits/common/access_observer.hpp"
#include "tools/scenario/value_text.hpp"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kova::agenda {

/// Hears the module's writes and calls of widget members, and fails one of them or a read where it is told
/// to.
class WidgetLog : public toolkit::AccessObserver {
public:
    enum class Kind { Read, Write, Call };

    void Read(const toolkit::MemberAccess& access) override { Hear(Kind::Read, access, {}); }
    void Write(const toolkit::MemberAccess& access, const Value& value) override
    {
        Hear(Kind::Write, access, value);
    }
    void Call(const toolkit::MemberAccess& access, const Value& argument) override
    {
        Hear(Kind::Call, access, argument);
    }

    /// The next access of that kind to FORM.CONTROL.MEMBER fails with number 5.
    void FailNext(Kind kind, std::string member) { failing_ = {kind, std::move(member)}; }
    /// Runs before each write or call of FORM.CONTROL.MEMBER.
    void Before(std::string member, std::function<void()> act)
    {
        before_ = {std::move(member), std::move(act)};
    }

    /// "FORM.CONTROL.MEMBER VALUE" of the writes and calls whose members are of that form or control.
    std::vector<std::string> Of(const std::string& beginning) const
    {
        std::vector<std::string> found;
        for (const std::string& line : lines_)
            if (line.starts_with(beginning))
                found.push_back(line);
        return found;
    }
    void Clear() { lines_.clear(); }

private:
    static std::string NameOf(const toolkit::MemberAccess& access)
    {
        std::string name(access.form);
        if (!access.control.empty())
            name.append(".").append(access.control);
        return name.append(".").append(access.member);
    }

    void Hear(Kind kind, const toolkit::MemberAccess& access, const Value& value)
    {
        const std::string name = NameOf(access);
        if (failing_ == std::pair(kind, name)) {
            failing_ = {};
            throw Failure(FailureNumber::InvalidArgument);
        }
        if (kind == Kind::Read)
            return;
        if (name == before_.first)
            before_.second();
        lines_.push_back(name + " " + scenario::Print(value));
    }

    std::pair<Kind, std::string> failing_;
    std::pair<std::string, std::function<void()>> before_;
    std::vector<std::string> lines_;
};

} // namespace kova::agenda
