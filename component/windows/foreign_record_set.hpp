#pragma once

#include "component/windows/foreign.hpp"

namespace kova::component {

/// A record set of another maker, by the names that such have everywhere.
class ForeignRecordSet : public RecordSet, public Foreign {
public:
    explicit ForeignRecordSet(Held<IDispatch> dispatch) : Foreign(std::move(dispatch)) { }

    Long RecordCount() const override { return Read("RecordCount").ToLong(); }
    int FieldCount() const override;
    Text FieldName(int index) const override;
    Value Field(std::string_view name) const override;
    Value Field(int index) const override;

    bool Eof() const override { return Read("EOF").ToBoolean(); }
    bool Bof() const override { return Read("BOF").ToBoolean(); }
    void MoveFirst() override { Run("MoveFirst", {}); }
    void MoveLast() override { Run("MoveLast", {}); }
    void MoveNext() override { Run("MoveNext", {}); }
    void MovePrevious() override { Run("MovePrevious", {}); }

    Text Sort() const override { return Read("Sort").ToText(); }
    void Sort(std::string_view order) override { Write("Sort", order); }

    Long PageSize() const override { return Read("PageSize").ToLong(); }
    void PageSize(Long rows) override { Write("PageSize", rows); }
    Long PageCount() const override { return Read("PageCount").ToLong(); }
    Long AbsolutePage() const override { return Read("AbsolutePage").ToLong(); }
    void AbsolutePage(Long page) override { Write("AbsolutePage", page); }
    Long AbsolutePosition() const override { return Read("AbsolutePosition").ToLong(); }

private:
    ComponentRef FieldBy(const Value& nameOrNumber) const;
};

} // namespace kova::component
