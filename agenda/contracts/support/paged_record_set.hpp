#pragma once

#include "agenda/contracts/business_services.hpp"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kova {

/// Names of fields, found without regard to the case of ASCII letters.
class FieldNames {
public:
    FieldNames() = default;
    /// Fails with 3001 where two names are equal but for case.
    explicit FieldNames(const std::vector<Text>& names);

    int Count() const { return static_cast<int>(names_.size()); }
    /// Fails with 3265 outside 0 to Count() - 1.
    const Text& At(int index) const;
    /// Number of the field; -1 where there is none. Readers go through the fields in their order and
    /// with their exact spelling, so the field after the last one found is tried first.
    int Find(std::string_view name) const;
    /// False, and nothing is added, where a field of that name is there.
    bool Add(const Text& name);
    void Clear();

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view name) const;
    };
    struct Same {
        using is_transparent = void;
        bool operator()(std::string_view a, std::string_view b) const;
    };

    std::vector<Text> names_;
    std::unordered_map<Text, int, Hash, Same> numbers_;
    mutable std::size_t expected_ = 0;
};

/// A record set but for its rows: fields by name, cursor, order and pages. A derived class keeps the
/// rows in a form of its own and makes a Value only where one is read.
class PagedRecordSet : public RecordSet {
public:
    static constexpr Long DefaultPageSize = 10;

    Long RecordCount() const override;
    int FieldCount() const override { return fields_.Count(); }
    Text FieldName(int index) const override { return fields_.At(index); }
    Value Field(std::string_view name) const override;
    Value Field(int index) const override;

    bool Eof() const override;
    bool Bof() const override;
    void MoveFirst() override;
    void MoveLast() override;
    void MoveNext() override;
    void MovePrevious() override;

    Text Sort() const override { return sort_; }
    /// Fails with 3001 on an order that cannot be read. Null and Empty are lower than every number,
    /// numbers lower than every text; texts are compared by code point.
    void Sort(std::string_view order) override;

    Long PageSize() const override { return pageSize_; }
    void PageSize(Long rows) override;
    Long PageCount() const override;
    Long AbsolutePage() const override;
    void AbsolutePage(Long page) override;
    Long AbsolutePosition() const override;

protected:
    PagedRecordSet() = default;
    /// Fails with 3001 where two names are equal but for case.
    explicit PagedRecordSet(const std::vector<Text>& fieldNames) : fields_(fieldNames) { }

    /// Rows of the store, and one of its cells; both counted from 0 in the store's own order.
    virtual Long RowCount() const = 0;
    virtual Value CellAt(Long row, int field) const = 0;
    /// Called before every use of rows; fails where the record set is closed.
    virtual void RequireOpen() const { }
    /// Called before the cursor goes elsewhere.
    virtual void LeaveRow() { }

    FieldNames& Fields() { return fields_; }
    /// Number of a field. Fails with 3265.
    int FieldNumber(std::string_view name) const;
    /// The store's number of the current row. Fails with 3021.
    Long CurrentRow() const;
    /// Place of the cursor in the current order, from 0.
    Long Position() const { return position_; }
    void Position(Long position) { position_ = position; }
    /// The store has a new last row: it becomes the last of the order too. A cursor at Eof stays there.
    void RowAdded();
    /// The store has lost its last row; the cursor goes back to `position`.
    void RowTakenBack(Long position);
    /// On the first row of the original order.
    void ResetCursor();

private:
    void RequireRows() const;
    Long CurrentPage() const { return position_ / pageSize_ + 1; }

    FieldNames fields_;
    /// The store's row numbers in the order of Sort; without meaning while `sort_` is "".
    std::vector<Long> order_;
    Text sort_;
    Long pageSize_ = DefaultPageSize;
    /// -1 at Bof, RowCount() at Eof.
    Long position_ = 0;
};

} // namespace kova
