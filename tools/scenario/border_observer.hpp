#pragma once

#include "agenda/contracts/failure.hpp"
#include "toolkits/common/access_observer.hpp"

#include <deque>
#include <functional>
#include <map>
#include <string>

namespace kova::scenario {

/// What happens at the widget border: counts the module's accesses, prints its writes where that was
/// asked for, and raises the failures of the script.
class BorderObserver : public toolkit::AccessObserver {
public:
    std::function<void(const std::string&)> line = [](const std::string&) {};
    /// Accesses so far: every read and write of a member and every call.
    int count = 0;
    /// Number of the access that fails with 5, "Falha injetada"; 0 is none.
    int failAt = 0;
    bool printsWrites = false;

    /// The next read or write of "FORM.CONTROL.MEMBER" fails. Several queue.
    void Fail(const std::string& member, Failure failure);

    void Read(const toolkit::MemberAccess& access) override;
    void Write(const toolkit::MemberAccess& access, const Value& value) override;
    void Call(const toolkit::MemberAccess& access, const Value& argument) override;

private:
    void Cross(const toolkit::MemberAccess& access);

    std::map<std::string, std::deque<Failure>> failing_;
};

} // namespace kova::scenario
