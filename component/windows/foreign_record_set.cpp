#include "component/windows/foreign_record_set.hpp"

namespace kova::component {

int ForeignRecordSet::FieldCount() const
{
    return Read("Fields").ToObject<Component>()->Get("Count").ToLong();
}

Text ForeignRecordSet::FieldName(int index) const { return FieldBy(Long(index))->Get("Name").ToText(); }

Value ForeignRecordSet::Field(std::string_view name) const { return FieldBy(name)->Get("Value"); }

Value ForeignRecordSet::Field(int index) const { return FieldBy(Long(index))->Get("Value"); }

ComponentRef ForeignRecordSet::FieldBy(const Value& nameOrNumber) const
{
    Argument argument = nameOrNumber;
    const auto fields = Read("Fields").ToObject<Component>();
    return fields->Call("Item", {&argument, 1}).ToObject<Component>();
}

} // namespace kova::component
