#include "family/business/business_component.hpp"

#include "family/business/lent_record_sets.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family {

const std::shared_ptr<Database>& BusinessComponent::SharedData()
{
    if (!database_)
        database_ = SharedDatabase(host_.DataSource());
    return database_;
}

Value BusinessComponent::ResultadoDaSelecaoEmRecordSet() const { return result_ ? Value(result_) : Value(); }

Integer BusinessComponent::Attempt(std::string_view member, const std::function<void()>& action)
{
    errorNumber_ = 0;
    errorDescription_.clear();
    errorPlace_.clear();
    try {
        action();
        return 0;
    } catch (const Failure& failure) {
        Remember(member, failure.Number(), failure.Description());
    } catch (const std::bad_alloc&) {
        const Failure failure(FailureNumber::OutOfMemory);
        Remember(member, failure.Number(), failure.Description());
    } catch (const std::runtime_error& cause) {
        const Failure failure = TranslatedFailure(host_.DataSource(), cause);
        Remember(member, failure.Number(), failure.Description());
    }
    return 1;
}

Integer BusinessComponent::Select(std::string_view member, const std::function<RecordSetRef()>& selection)
{
    return Attempt(member, [&] { result_ = Lend(selection()); });
}

void BusinessComponent::Remember(std::string_view member, std::int32_t number, const std::string& description)
{
    errorNumber_ = number;
    errorDescription_ = description;
    errorPlace_ = className_ + ", " + std::string(member);
}

} // namespace kova::family
