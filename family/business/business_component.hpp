#pragma once

#include "agenda/contracts/component_server.hpp"
#include "agenda/contracts/support/paged_record_set.hpp"
#include "family/data/engine/database.hpp"

#include <functional>
#include <memory>

namespace kova::family {

/// What the business classes have in common: the data source, the last selection, and the three values
/// that describe a technical failure.
class BusinessComponent : public Component {
protected:
    /// `className` is the name it is registered by; `host` must outlive it.
    BusinessComponent(ServerHost& host, std::string_view className) : host_(host), className_(className) { }

    ServerHost& Host() const { return host_; }

    /// The connection shared by the process, opened at the first use. Fails as OpenDatabase.
    Database& Data() { return *SharedData(); }
    /// The same, for what goes on reading after the member has returned.
    const std::shared_ptr<Database>& SharedData();
    /// Gives the component's share of the connection back; the next use takes it again.
    void LetGo() { database_.reset(); }

    /// Runs a member. Answers 0, or 1 where it fails; the failure then stands in the three members and
    /// does not leave the component.
    Integer Attempt(std::string_view member, const std::function<void()>& action);

    /// Attempt of a selection, whose rows become the result. After a failure the former result stays.
    Integer Select(std::string_view member, const std::function<RecordSetRef()>& selection);

public:
    Value NumeroDoErro() const { return errorNumber_; }
    Value DescricaoDoErro() const { return errorDescription_; }
    Value LocalDoErro() const { return errorPlace_; }
    /// Empty before the first selection.
    Value ResultadoDaSelecaoEmRecordSet() const;

protected:
    const RecordSetRef& Result() const { return result_; }

private:
    void Remember(std::string_view member, std::int32_t number, const std::string& description);

    ServerHost& host_;
    std::string className_;
    std::shared_ptr<Database> database_;
    RecordSetRef result_;
    Long errorNumber_ = 0;
    Text errorDescription_;
    Text errorPlace_;
};

} // namespace kova::family
