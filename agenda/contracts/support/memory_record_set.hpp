#pragma once

#include "agenda/contracts/support/paged_record_set.hpp"

namespace kova {

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
/// Every use of the rows of a closed one fails with 3704.
class MemoryRecordSet : public PagedRecordSet {
public:
    MemoryRecordSet() = default;
    /// Open, with fields that take every value and with these rows, standing on the first. A row
    /// shorter than the names ends in Empty; a longer one fails with 5. Two names that are equal but for case
    /// fail with 3001.
    MemoryRecordSet(const std::vector<Text>& fieldNames, const std::vector<std::vector<Value>>& rows);

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
    /// Saves the edited row, as moving the cursor does. Nothing happens where it is not edited. Fails with
    /// 3021 without a current row.
    void Update();
    /// Takes back what was written since the row was last saved. A row added since then goes, and the
    /// cursor returns to the row that was current before it. Fails with 3021 without a current row.
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
