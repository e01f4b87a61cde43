#pragma once

#include "agenda/contracts/business_services.hpp"

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kova::scenario {

/// A named table of a script: the rows of a record set.
struct RecordTable {
    std::vector<std::string> fields;
    std::vector<std::vector<Value>> rows;
};

/// One scripted answer: the call's result, the record set that it leaves and the members that can be
/// read afterwards.
struct ScriptedAnswer {
    Value result = Integer{0};
    RecordTable records = {};
    std::map<std::string, Value> members = {};
};

/// Stands in for every component of the family. Queued answers and failures of a member are used up in
/// order, then the standing answer counts; what nobody scripted answers 0 with an empty record set.
/// Members are written "CLASS.MEMBER".
class ScriptedComponents : public ComponentService {
public:
    ScriptedComponents();

    void Answer(const std::string& member, ScriptedAnswer answer);
    void Always(const std::string& member, ScriptedAnswer answer);
    void Fail(const std::string& member, Failure failure);
    void FailCreate(const std::string& className, Failure failure);
    /// The system's name that the version component answers.
    void System(const std::string& name);

    ComponentRef CreateObject(std::string_view className) override;
    /// Objects of the family that have been created and not yet released.
    int LiveObjects() const;

    struct State;

private:
    std::shared_ptr<State> state_;
};

} // namespace kova::scenario
