#pragma once

#include "family/business/clean_text.hpp"
#include "family/registers/description/column.hpp"
#include "family/registers/description/refusals.hpp"
#include "family/registers/description/register.hpp"

#include <functional>
#include <optional>

namespace kova::family::registers {

/// A record as the texts of a form: one for each column that can be written, the code first. `columns`
/// outlives it.
template <class Record> class RecordTexts {
public:
    explicit RecordTexts(const Columns<Record>& columns)
    {
        for (const Column<Record>& column : columns) {
            if (!column.write)
                continue;
            columns_.push_back(&column);
            fields_.push_back(column.field);
        }
    }

    const std::vector<FieldInfo>& Fields() const { return fields_; }

    /// What the form of a new row shows.
    Texts New() const
    {
        Texts texts = Of(Record());
        for (std::size_t at = 0; at < texts.size(); ++at) {
            if (fields_[at].required)
                texts[at].clear();
        }
        return texts;
    }

    Texts Of(const Record& record) const
    {
        Texts texts;
        for (const Column<Record>* column : columns_)
            texts.push_back(column->Show(record));
        return texts;
    }

    /// What they make; nothing where one cannot be read, or is missing.
    std::optional<Record> RecordOf(const Texts& typed) const
    {
        Record record;
        for (std::size_t at = 1; at < typed.size(); ++at) {
            const Column<Record>& column = *columns_[at];
            const std::string text = CleanText(typed[at]);
            column.clear(record);
            if (text.empty() ? column.field.required : !column.read(text, record).empty())
                return std::nullopt;
        }
        return record;
    }

    /// Reads what can be read of the texts into the record.
    void Fill(const Texts& texts, Record& record) const
    {
        for (std::size_t at = 1; at < texts.size(); ++at) {
            const std::string text = CleanText(texts[at]);
            columns_[at]->clear(record);
            if (!text.empty())
                columns_[at]->read(text, record);
        }
    }

    TidyText Tidy(std::size_t field, const std::string& before, const std::string& typed) const
    {
        const Column<Record>& column = *columns_.at(field);
        const std::string text = CleanText(typed);
        if (text.empty() || text == CleanText(before))
            return {typed};
        Record record;
        if (!before.empty())
            column.read(before, record);
        column.clear(record);
        std::string why = column.read(text, record);
        return why.empty() ? TidyText{column.Show(record)} : TidyText{typed, std::move(why)};
    }

    /// The texts in one way, as the stored ones would be shown. What cannot be read stays as it was typed.
    Texts Comparable(Texts texts) const
    {
        for (std::size_t at = 0; at < texts.size(); ++at) {
            const Column<Record>& column = *columns_[at];
            texts[at] = CleanText(texts[at]);
            Record scratch;
            const bool isEmpty = texts[at].empty();
            if (isEmpty ? !column.field.required : column.read(texts[at], scratch).empty())
                texts[at] = column.Show(scratch);
        }
        return texts;
    }

    /// Reads a text into the record; what is wrong with it goes to `refusals`.
    void Take(std::size_t at, const std::string& text, Record& record, Refusals& refusals) const
    {
        if (at == 0) {
            if (!text.empty())
                refusals.Add(at, "é dado pelo banco de dados e não muda.");
            return;
        }
        columns_[at]->clear(record);
        ReadInto(at, text, record, refusals);
    }

    /// Refuses what of a stored record could not be typed so today.
    void Judge(const Record& record, Refusals& refusals) const
    {
        for (std::size_t at = 1; at < columns_.size(); ++at) {
            Record scratch;
            columns_[at]->clear(scratch);
            ReadInto(at, Written(at, record), scratch, refusals);
        }
    }

    /// As a file has it.
    std::string Written(std::size_t at, const Record& record) const { return columns_[at]->write(record); }

private:
    void ReadInto(std::size_t at, const std::string& text, Record& record, Refusals& refusals) const
    {
        const Column<Record>& column = *columns_[at];
        if (text.empty() && column.field.required)
            refusals.Add(at, "deve ser informado.");
        if (text.empty())
            return;
        if (std::string why = column.read(text, record); !why.empty())
            refusals.Add(at, std::move(why));
    }

    std::vector<const Column<Record>*> columns_;
    std::vector<FieldInfo> fields_;
};

} // namespace kova::family::registers
