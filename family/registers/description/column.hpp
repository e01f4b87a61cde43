#pragma once

#include "family/registers/description/field.hpp"

#include <functional>

namespace kova::family::registers {

/// A column of a register: what it is, and how its text goes into a record and comes out of one.
template <class Record> struct Column {
    FieldInfo field;
    /// Called for a text that is not empty. Answers why it cannot be read, or nothing.
    std::function<std::string(const std::string& text, Record& record)> read;
    /// As a file has it. Missing where the column is only read; it is no field of a form then.
    std::function<std::string(const Record& record)> write;
    /// Puts there what a new record has.
    std::function<void(Record& record)> clear;
    /// As a form shows it; missing where that is as a file has it.
    std::function<std::string(const Record& record)> show{};

    std::string Show(const Record& record) const { return show ? show(record) : write(record); }
};

template <class Record> using Columns = std::vector<Column<Record>>;

template <class Record> Column<Record> Required(Column<Record> column)
{
    column.field.required = true;
    return column;
}

template <class Record> Column<Record> Unique(Column<Record> column)
{
    column.field.unique = true;
    return column;
}

template <class Record> Column<Record> WithFormer(Column<Record> column)
{
    column.field.withFormer = true;
    return column;
}

template <class Record> Column<Record> RefersTo(std::string_view registerName, Column<Record> column)
{
    column.field.kind = FieldKind::Reference;
    column.field.refersTo = registerName;
    return column;
}

/// Under another name in forms.
template <class Record> Column<Record> AskedAs(std::string_view asked, Column<Record> column)
{
    column.field.asked = asked;
    return column;
}

/// With a sentence that helps whoever fills it in.
template <class Record> Column<Record> Helped(std::string_view help, Column<Record> column)
{
    column.field.help = help;
    return column;
}

} // namespace kova::family::registers
