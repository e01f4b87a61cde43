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
    explicit FieldNames(std::vector<Text> names);

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
    /// Of names that differ only in case, the first is found.
    explicit PagedRecordSet(std::vector<Text> fieldNames) : fields_(std::move(fieldNames)) { }

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

/// What a field of a MemoryRecordSet takes. Empty and Null are kept in each.
enum class FieldType {
    /// Every value, as it is.
    Any,
    /// Long, or what reads as one.
    Integer32,
    /// Text, cut to the field's size in characters; not padded.
    FixedText,
    /// Text of any length.
    LongText,
};

/// A record set in memory, filled by its owner. Made closed: fields are appended, then it is opened.
/// Every other use of a closed one fails with 3704.
class MemoryRecordSet : public PagedRecordSet {
public:
    MemoryRecordSet() = default;
    /// Open, with fields that take every value and with these rows, standing on the first. A row
    /// shorter than the names ends in Empty; a longer one fails with 5.
    MemoryRecordSet(std::vector<Text> fieldNames, const std::vector<std::vector<Value>>& rows);

    /// Adds a field. `size` counts characters and matters to FixedText only. Fails with 3705 while
    /// open, and with 3001 on a name that is there already and on a fixed text without length.
    void Append(const Text& name, FieldType type, Long size = 0);
    /// Opens without rows. Fails with 3709 without fields and with 3705 while open.
    void Open();
    /// Drops rows and fields. Fails with 3704 while closed.
    void Close();
    /// 0 closed, 1 open.
    Long State() const { return open_ ? 1 : 0; }

    /// Adds a row of Empty values, which counts at once and becomes the current one. A row that is
    /// being edited is saved before.
    void AddNew();
    /// Writes a field of the current row, which is thereby being edited. Fails with 3265 on an unknown
    /// field, 3021 without a current row, and -2147217887 where the field cannot take the value: then
    /// it keeps the one that it had.
    void SetField(std::string_view name, const Value& value);
    void SetField(int index, const Value& value);
    /// Saves the edited row, as moving the cursor does. Nothing happens where none is edited.
    void Update();
    /// Takes back what was written since the row was last saved. A row added since then goes, and the
    /// cursor returns to the row that was current before it.
    void CancelUpdate();

    /// Adds a saved row and leaves the cursor where it is, for filling in bulk. A row shorter than the
    /// fields ends in Empty. Fails with 5 on a longer one and with -2147217887 where a field cannot take
    /// its value; then nothing is added. A row that is being edited is saved before.
    void AddRow(std::vector<Value> values);

protected:
    Long RowCount() const override;
    Value CellAt(Long row, int field) const override { return cells_[CellNumber(row, field)]; }
    void RequireOpen() const override;
    void LeaveRow() override;

private:
    struct Column {
        FieldType type = FieldType::Any;
        Long size = 0;
    };
    enum class EditMode { None, Changing, Adding };

    std::size_t CellNumber(Long row, int field) const
    {
        return static_cast<std::size_t>(row) * columns_.size() + static_cast<std::size_t>(field);
    }
    void BeginChange(Long row);
    void EndEdit();

    std::vector<Column> columns_;
    std::vector<Value> cells_;
    bool open_ = false;
    EditMode editMode_ = EditMode::None;
    /// While a row is being changed: its store number and its saved values.
    Long editedRow_ = 0;
    std::vector<Value> savedValues_;
    /// While a row is being added: where the cursor stood before.
    Long formerPosition_ = 0;
};

/// A new record set with the fields of `selection` and the rows of the page on which it stands: at most
/// `rowsPerPage` of them (below 1 counts as 1), from that page's first row on. It stands on its first
/// row; it is empty where the selection has no current row. The selection's cursor stays where it was.
RecordSetRef CopyPage(RecordSet& selection, Long rowsPerPage);

} // namespace kova
