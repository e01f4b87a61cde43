#pragma once

#include "family/business/shown_values.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/rows.hpp"
#include "tools/agenda-data/csv/cell_values.hpp"
#include "tools/agenda-data/csv/column.hpp"

#include <span>

namespace kova::data {

using family::Key;
using family::Nullable;

/// Codes leave room for those that the engine gives behind them.
inline constexpr long long HighestCode = 999'999'999;

/// A number of a row and the word that stands for it in a file.
struct Choice {
    int value;
    std::string_view word;
};
using Choices = std::span<const Choice>;

/// The situations of most registers.
inline constexpr Choice ActiveOrNot[] = {{1, "Ativo"}, {2, "Inativo"}};

/// Why a text is too long; empty where it is not.
std::string CheckWidth(const std::string& text, std::size_t width);
/// The value of a word, case and accents aside; `why` says which words there are.
int ReadChoice(const std::string& word, Choices choices, std::string& why);
std::string WriteChoice(int value, Choices choices);
/// A whole number from `least` to `most`.
long long ReadNumber(const std::string& cell, long long least, long long most, std::string& why);

inline constexpr std::string_view WrongMoney = "não é um valor. Escreva como 1.234,56.";

/// The kinds of columns of a register whose rows are Records. Each names a member of the row.
template <class Record> struct ColumnsOf {
    using Col = Column<Record>;

    /// At most `width` characters.
    static Col Text(std::string_view name, std::string Record::*member, std::size_t width)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    record.*member = cell;
                    return CheckWidth(cell, width);
                },
                [=](const Record& record) { return record.*member; }};
    }
    static Col Text(std::string_view name, Nullable<std::string> Record::*member, std::size_t width)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    record.*member = cell;
                    return CheckWidth(cell, width);
                },
                [=](const Record& record) { return (record.*member).ValueOr(""); }};
    }

    /// 0 is an empty cell.
    static Col Code(std::string_view name, Key Record::*member)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    std::string why;
                    record.*member = ReadNumber(cell, 1, HighestCode, why);
                    return why;
                },
                [=](const Record& record) {
                    return record.*member == 0 ? std::string() : std::to_string(record.*member);
                }};
    }
    static Col Code(std::string_view name, Nullable<Key> Record::*member)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    std::string why;
                    record.*member = ReadNumber(cell, 1, HighestCode, why);
                    return why;
                },
                [=](const Record& record) {
                    return (record.*member).IsNull() ? std::string() : std::to_string((record.*member).value);
                }};
    }

    static Col Number(std::string_view name, int Record::*member, int least, int most)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    std::string why;
                    record.*member = static_cast<int>(ReadNumber(cell, least, most, why));
                    return why;
                },
                [=](const Record& record) { return std::to_string(record.*member); }};
    }
    static Col Number(std::string_view name, Nullable<int> Record::*member, int least, int most)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    std::string why;
                    record.*member = static_cast<int>(ReadNumber(cell, least, most, why));
                    return why;
                },
                [=](const Record& record) {
                    return (record.*member).IsNull() ? std::string() : std::to_string((record.*member).value);
                }};
    }

    /// Cents.
    static Col Money(std::string_view name, Key Record::*member)
    {
        return Read<long long>(
            name, ReadMoney, WrongMoney, [=](long long cents, Record& record) { record.*member = cents; },
            [=](const Record& record) { return family::ShownMoney(record.*member); });
    }

    static Col YesNo(std::string_view name, int Record::*member)
    {
        return Read<bool>(
            name, ReadYesNo, "deve ser Sim ou Não.",
            [=](bool yes, Record& record) { record.*member = yes ? 1 : 0; },
            [=](const Record& record) { return family::YesOrNo(record.*member != 0); });
    }

    static Col OneOf(std::string_view name, int Record::*member, Choices choices)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    std::string why;
                    record.*member = ReadChoice(cell, choices, why);
                    return why;
                },
                [=](const Record& record) { return WriteChoice(record.*member, choices); }};
    }

    /// "yyyy-mm-dd" in the row.
    static Col Date(std::string_view name, std::string Record::*member)
    {
        return Read<kova::Date>(
            name, ReadDate, "não é uma data válida. Escreva dd/mm/aaaa, de 01/01/1900 a 31/12/2999.",
            [=](kova::Date date, Record& record) { record.*member = family::IsoDate(date); },
            [=](const Record& record) { return family::ShownDate(record.*member); });
    }

    /// "hh:mm" in the row.
    static Col Time(std::string_view name, std::string Record::*member)
    {
        return Read<TimeOfDay>(
            name, ParseTime, "não é uma hora válida. Escreva hh:mm.",
            [=](TimeOfDay time, Record& record) { record.*member = FormatTime(time); },
            [=](const Record& record) { return record.*member; });
    }

    /// "yyyy-mm-dd hh:mm:ss" in the row.
    static Col Moment(std::string_view name, std::string Record::*member)
    {
        return Read<DateTime>(
            name, ReadMoment, WrongMoment,
            [=](DateTime moment, Record& record) { record.*member = family::IsoMoment(moment); },
            [=](const Record& record) { return family::ShownMoment(record.*member); });
    }
    static Col Moment(std::string_view name, Nullable<std::string> Record::*member)
    {
        return Read<DateTime>(
            name, ReadMoment, WrongMoment,
            [=](DateTime moment, Record& record) { record.*member = family::IsoMoment(moment); },
            [=](const Record& record) { return family::ShownMoment((record.*member).ValueOr("")); });
    }

    /// A cell that is read into a `Value`, or refused with the text `wrong`.
    template <class Value>
    static Col Read(std::string_view name, std::optional<Value> (*read)(std::string_view),
                    std::string_view wrong, std::function<void(Value, Record&)> keep,
                    std::function<std::string(const Record&)> write)
    {
        return {name,
                [=](const std::string& cell, Record& record) {
                    const std::optional<Value> value = read(cell);
                    if (value)
                        keep(*value, record);
                    return value ? std::string() : std::string(wrong);
                },
                std::move(write)};
    }

private:
    static constexpr std::string_view WrongMoment = "não é um momento válido. Escreva dd/mm/aaaa hh:mm:ss.";
};

} // namespace kova::data
