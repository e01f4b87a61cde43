#include "component/record_set_component.hpp"

#include "agenda/contracts/text.hpp"

namespace kova::component {

namespace {

int NumberOfField(const RecordSet& records, const Value& nameOrNumber)
{
    if (nameOrNumber.GetType() != ValueType::Text) {
        const int number = nameOrNumber.ToLong();
        records.FieldName(number);
        return number;
    }
    const Text wanted = LowerCase(nameOrNumber.ToText());
    for (int number = 0; number < records.FieldCount(); ++number)
        if (LowerCase(records.FieldName(number)) == wanted)
            return number;
    throw Failure(FailureNumber::NoSuchField);
}

} // namespace

std::span<const Method<RecordSetComponent>> RecordSetComponent::Methods()
{
    using This = RecordSetComponent;
    static constexpr Method<This> methods[] = {
        {"Fields", 0, 1, &This::Fields},
        {"MoveFirst", 0, 0, &This::Moved<&RecordSet::MoveFirst>},
        {"MoveLast", 0, 0, &This::Moved<&RecordSet::MoveLast>},
        {"MoveNext", 0, 0, &This::Moved<&RecordSet::MoveNext>},
        {"MovePrevious", 0, 0, &This::Moved<&RecordSet::MovePrevious>},
    };
    return methods;
}

std::span<const Property<RecordSetComponent>> RecordSetComponent::Properties()
{
    using This = RecordSetComponent;
    static constexpr Property<This> properties[] = {
        {"RecordCount", &This::RecordCount},
        {"EOF", &This::Eof},
        {"BOF", &This::Bof},
        {"Sort", &This::Sort, &This::Sort},
        {"PageSize", &This::PageSize, &This::PageSize},
        {"PageCount", &This::PageCount},
        {"AbsolutePage", &This::AbsolutePage, &This::AbsolutePage},
        {"AbsolutePosition", &This::AbsolutePosition},
    };
    return properties;
}

const Member& RecordSetComponent::DefaultMember() const
{
    static const Member member = {"Fields", true, false, false};
    return member;
}

Value RecordSetComponent::Fields(std::span<Argument> arguments)
{
    if (arguments.empty())
        return std::make_shared<FieldsComponent>(records_);
    return std::make_shared<FieldComponent>(records_, arguments[0].Get());
}

std::span<const Method<FieldsComponent>> FieldsComponent::Methods()
{
    static constexpr Method<FieldsComponent> methods[] = {{"Item", 1, 1, &FieldsComponent::Item}};
    return methods;
}

std::span<const Property<FieldsComponent>> FieldsComponent::Properties()
{
    static constexpr Property<FieldsComponent> properties[] = {{"Count", &FieldsComponent::Count}};
    return properties;
}

const Member& FieldsComponent::DefaultMember() const
{
    static const Member member = {"Item", true, false, false};
    return member;
}

Value FieldsComponent::Item(std::span<Argument> arguments)
{
    return std::make_shared<FieldComponent>(records_, arguments[0].Get());
}

FieldComponent::FieldComponent(RecordSetRef records, const kova::Value& nameOrNumber)
    : records_(std::move(records)), number_(NumberOfField(*records_, nameOrNumber))
{
}

std::span<const Property<FieldComponent>> FieldComponent::Properties()
{
    static constexpr Property<FieldComponent> properties[] = {{"Name", &FieldComponent::Name},
                                                              {"Value", &FieldComponent::Value}};
    return properties;
}

const Member& FieldComponent::DefaultMember() const
{
    static const Member member = {"Value", false, true, false};
    return member;
}

} // namespace kova::component
