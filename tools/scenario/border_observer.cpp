#include "tools/scenario/border_observer.hpp"

#include "tools/scenario/value_text.hpp"

namespace kova::scenario {

namespace {

std::string NameOfControl(const toolkit::MemberAccess& access)
{
    std::string name(access.form);
    if (!access.control.empty())
        name += "." + std::string(access.control);
    if (access.controlIndex >= 0)
        name += "(" + std::to_string(access.controlIndex) + ")";
    return name;
}

std::string NameOfMember(const toolkit::MemberAccess& access)
{
    std::string name = NameOfControl(access) + "." + std::string(access.member);
    for (int at = 0; at < access.indexCount; ++at)
        name += (at == 0 ? "(" : ",") + std::to_string(access.indexes[static_cast<std::size_t>(at)]);
    return access.indexCount > 0 ? name + ")" : name;
}

} // namespace

void BorderObserver::Fail(const std::string& member, Failure failure)
{
    failing_[member].push_back(std::move(failure));
}

void BorderObserver::Read(const toolkit::MemberAccess& access) { Cross(access); }

void BorderObserver::Write(const toolkit::MemberAccess& access, const Value& value)
{
    if (printsWrites)
        line("widget " + NameOfMember(access) + " = " + Print(value));
    Cross(access);
}

void BorderObserver::Call(const toolkit::MemberAccess& access, const Value& argument)
{
    if (printsWrites)
        line("widget " + NameOfMember(access) + "(" + (argument.IsEmpty() ? "" : Print(argument)) + ")");
    Cross(access);
}

void BorderObserver::Cross(const toolkit::MemberAccess& access)
{
    if (++count == failAt)
        throw Failure(FailureNumber::InvalidArgument, "Falha injetada");
    if (failing_.empty())
        return;
    const auto found = failing_.find(NameOfControl(access) + "." + std::string(access.member));
    if (found == failing_.end())
        return;
    const Failure failure = found->second.front();
    found->second.pop_front();
    if (found->second.empty())
        failing_.erase(found);
    throw failure;
}

} // namespace kova::scenario
