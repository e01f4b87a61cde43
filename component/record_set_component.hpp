#pragma once

#include "agenda/contracts/support/member_tables.hpp"

namespace kova::component {

/// A component with a member that is meant where none is named.
class HasDefaultMember {
public:
    virtual ~HasDefaultMember() = default;
    virtual const Member& DefaultMember() const = 0;
};

/// A record set by the member names that such have everywhere: RecordCount, EOF, BOF, MoveFirst, MoveLast,
/// MoveNext, MovePrevious, Sort, PageSize, PageCount, AbsolutePage, AbsolutePosition, and Fields, which
/// answers the field of a name or a number, or without an argument all of them.
class RecordSetComponent : public ByTables<RecordSetComponent>, public HasDefaultMember {
public:
    static constexpr std::string_view ClassName = "O conjunto de registros";

    explicit RecordSetComponent(RecordSetRef records) : records_(std::move(records)) { }

    static std::span<const Method<RecordSetComponent>> Methods();
    static std::span<const Property<RecordSetComponent>> Properties();
    const Member& DefaultMember() const override;

private:
    Value RecordCount() const { return records_->RecordCount(); }
    Value Eof() const { return records_->Eof(); }
    Value Bof() const { return records_->Bof(); }
    Value Sort() const { return records_->Sort(); }
    void Sort(const Value& order) { records_->Sort(order.ToText()); }
    Value PageSize() const { return records_->PageSize(); }
    void PageSize(const Value& rows) { records_->PageSize(rows.ToLong()); }
    Value PageCount() const { return records_->PageCount(); }
    Value AbsolutePage() const { return records_->AbsolutePage(); }
    void AbsolutePage(const Value& page) { records_->AbsolutePage(page.ToLong()); }
    Value AbsolutePosition() const { return records_->AbsolutePosition(); }

    template <void (RecordSet::*Move)()> Value Moved(std::span<Argument>)
    {
        (records_.get()->*Move)();
        return {};
    }
    Value Fields(std::span<Argument> arguments);

    RecordSetRef records_;
};

/// The fields of a record set: Count, and Item of a name or a number.
class FieldsComponent : public ByTables<FieldsComponent>, public HasDefaultMember {
public:
    static constexpr std::string_view ClassName = "A lista de campos";

    explicit FieldsComponent(RecordSetRef records) : records_(std::move(records)) { }

    static std::span<const Method<FieldsComponent>> Methods();
    static std::span<const Property<FieldsComponent>> Properties();
    const Member& DefaultMember() const override;

private:
    Value Count() const { return Long(records_->FieldCount()); }
    Value Item(std::span<Argument> arguments);

    RecordSetRef records_;
};

/// A field of a record set: Name, and Value in the row that is current when it is read.
class FieldComponent : public ByTables<FieldComponent>, public HasDefaultMember {
public:
    static constexpr std::string_view ClassName = "O campo";

    /// By its name or its number, counted from 0. Fails with 3265 where there is none.
    FieldComponent(RecordSetRef records, const kova::Value& nameOrNumber);

    static std::span<const Method<FieldComponent>> Methods() { return {}; }
    static std::span<const Property<FieldComponent>> Properties();
    const Member& DefaultMember() const override;

private:
    kova::Value Name() const { return records_->FieldName(number_); }
    kova::Value Value() const { return records_->Field(number_); }

    RecordSetRef records_;
    int number_;
};

} // namespace kova::component
