#pragma once

#include "agenda/contracts/text.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/rows.hpp"
#include "family/registers/description/column.hpp"
#include "family/registers/description/typed_values.hpp"

#include <algorithm>
#include <span>
#include <type_traits>

namespace kova::family::registers {

/// Codes leave room for those that the engine gives behind them.
inline constexpr long long HighestCode = 999'999'999;

/// A number of a row and the word that stands for it.
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
long long ReadNumber(const std::string& text, long long least, long long most, std::string& why);

inline constexpr std::string_view WrongMoney = "não é um valor. Escreva como 1.234,56.";

/// What a member holds, as `write` puts it; empty where it is null.
template <class Value, class Write> std::string Written(const Value& value, Write write)
{
    return write(value);
}
template <class Value, class Write> std::string Written(const Nullable<Value>& value, Write write)
{
    return value.IsNull() ? std::string() : write(value.value);
}

/// The kinds of columns of a register whose rows are Records. Each names a member of the row.
template <class Record> struct ColumnsOf {
    using Col = Column<Record>;

    /// A column that is kept in one member, not yet read or written.
    template <class Member, class Owner>
    static Col InMember(std::string_view label, FieldKind kind, std::size_t longest, Member Owner::*given)
    {
        Member Record::*const member = given;
        Col column;
        column.field.label = label;
        column.field.kind = kind;
        column.field.longest = longest;
        column.field.stored = StoredAs(member);
        column.clear = [=](Record& record) { record.*member = Record().*member; };
        return column;
    }

    /// At most `width` characters.
    template <class Member, class Owner>
    static Col Text(std::string_view label, Member Owner::*given, std::size_t width)
    {
        Member Record::*const member = given;
        Col column = InMember(label, FieldKind::Text, width, given);
        column.read = [=](const std::string& text, Record& record) {
            record.*member = text;
            return CheckWidth(text, width);
        };
        column.write = [=](const Record& record) {
            return Written(record.*member, [](const std::string& text) { return text; });
        };
        return column;
    }

    /// The number of a row, its own or that of another one. 0 is an empty text where it cannot be null.
    template <class Member, class Owner> static Col Code(std::string_view label, Member Owner::*given)
    {
        Member Record::*const member = given;
        Col column = Limited(InMember(label, FieldKind::Code, WidthOfCode, given), 1, HighestCode);
        column.read = [=](const std::string& text, Record& record) {
            std::string why;
            record.*member = ReadNumber(text, 1, HighestCode, why);
            return why;
        };
        column.write = [=](const Record& record) {
            return Written(record.*member, [](Key code) {
                return std::is_same_v<Member, Key> && code == 0 ? std::string() : std::to_string(code);
            });
        };
        return column;
    }

    template <class Member, class Owner>
    static Col Number(std::string_view label, Member Owner::*given, int least, int most)
    {
        Member Record::*const member = given;
        Col column = Limited(InMember(label, FieldKind::WholeNumber, WidthOf(most), given), least, most);
        column.read = [=](const std::string& text, Record& record) {
            std::string why;
            record.*member = static_cast<int>(ReadNumber(text, least, most, why));
            return why;
        };
        column.write = [=](const Record& record) {
            return Written(record.*member, [](int number) { return std::to_string(number); });
        };
        return column;
    }

    /// Cents.
    template <class Member, class Owner> static Col Money(std::string_view label, Member Owner::*given)
    {
        Member Record::*const member = given;
        return Read<long long>(
            InMember(label, FieldKind::Money, WidthOfMoney, given), ReadMoney, WrongMoney,
            [=](long long cents, Record& record) { record.*member = cents; },
            [=](const Record& record) { return Written(record.*member, ShownMoney); });
    }

    static Col YesNo(std::string_view label, int Record::*member)
    {
        return Read<bool>(
            InMember(label, FieldKind::YesNo, 3, member), ReadYesNo, "deve ser Sim ou Não.",
            [=](bool yes, Record& record) { record.*member = yes ? 1 : 0; },
            [=](const Record& record) { return YesOrNo(record.*member != 0); });
    }

    static Col OneOf(std::string_view label, int Record::*member, Choices choices)
    {
        Col column = InMember(label, FieldKind::Choice, 0, member);
        for (const Choice& choice : choices)
            AddWord(column.field, choice.word);
        column.read = [=](const std::string& text, Record& record) {
            std::string why;
            record.*member = ReadChoice(text, choices, why);
            return why;
        };
        column.write = [=](const Record& record) { return WriteChoice(record.*member, choices); };
        return column;
    }

    /// An upper case word out of a few, kept as it is written; another one is refused with the text `wrong`.
    static Col OneOf(std::string_view label, std::string Record::*member,
                     std::span<const std::string_view> words, std::string_view wrong)
    {
        Col column = InMember(label, FieldKind::Choice, 0, member);
        for (const std::string_view word : words)
            AddWord(column.field, word);
        column.read = [=](const std::string& text, Record& record) {
            record.*member = UpperCase(text);
            const bool known = std::ranges::find(words, record.*member) != words.end();
            return known ? std::string() : std::string(wrong);
        };
        column.write = [=](const Record& record) { return record.*member; };
        return column;
    }

    /// "yyyy-mm-dd" in the row.
    static Col Date(std::string_view label, std::string Record::*member)
    {
        return Read<kova::Date>(
            InMember(label, FieldKind::Date, WidthOfDate, member), ReadDate,
            "não é uma data válida. Escreva dd/mm/aaaa, de 01/01/1900 a 31/12/2999.",
            [=](kova::Date date, Record& record) { record.*member = IsoDate(date); },
            [=](const Record& record) { return ShownDate(record.*member); });
    }

    /// "hh:mm" in the row.
    static Col Time(std::string_view label, std::string Record::*member)
    {
        return Read<TimeOfDay>(
            InMember(label, FieldKind::Time, WidthOfTime, member), ParseTime,
            "não é uma hora válida. Escreva hh:mm.",
            [=](TimeOfDay time, Record& record) { record.*member = FormatTime(time); },
            [=](const Record& record) { return record.*member; });
    }

    /// "hh:mm" in the row; "24:00" ends the day. Spreadsheets write seconds behind it.
    static Col EndTime(std::string_view label, std::string Record::*member)
    {
        Col column = Time(label, member);
        column.read = [=, readTime = column.read](const std::string& text, Record& record) {
            if (text == "24:00" || text == "24:00:00") {
                record.*member = "24:00";
                return std::string();
            }
            const bool isTime = readTime(text, record).empty();
            return std::string(isTime ? "" : "não é uma hora válida. Escreva hh:mm, até 24:00.");
        };
        return column;
    }

    /// "yyyy-mm-dd hh:mm:ss" in the row.
    template <class Member, class Owner> static Col Moment(std::string_view label, Member Owner::*given)
    {
        Member Record::*const member = given;
        return Read<DateTime>(
            InMember(label, FieldKind::Moment, WidthOfMoment, given), ReadMoment, WrongMoment,
            [=](DateTime moment, Record& record) { record.*member = IsoMoment(moment); },
            [=](const Record& record) { return Written(record.*member, ShownMoment); });
    }

private:
    static constexpr std::string_view WrongMoment = "não é um momento válido. Escreva dd/mm/aaaa hh:mm:ss.";
    static constexpr std::size_t WidthOfCode = 9, WidthOfMoney = 18, WidthOfDate = 10, WidthOfTime = 5,
                                 WidthOfMoment = 19;

    static std::size_t WidthOf(int most) { return std::to_string(most).size(); }

    static Col Limited(Col column, long long least, long long most)
    {
        column.field.least = least;
        column.field.most = most;
        return column;
    }

    static void AddWord(FieldInfo& field, std::string_view word)
    {
        field.choices.push_back(word);
        field.longest = std::max(field.longest, Length(word));
    }

    /// The table's column that the member is; none where it is something beside the row.
    template <class Member> static std::vector<std::string> StoredAs(Member Record::*member)
    {
        Record record;
        std::vector<std::string> names;
        record.Columns([&](const char* name, auto& field) {
            if (static_cast<const void*>(&field) == &(record.*member))
                names.emplace_back(name);
        });
        return names;
    }

    /// A text that is read into a `Value`, or refused with the text `wrong`.
    template <class Value>
    static Col Read(Col column, std::optional<Value> (*read)(std::string_view), std::string_view wrong,
                    std::function<void(Value, Record&)> keep, std::function<std::string(const Record&)> write)
    {
        column.read = [=](const std::string& text, Record& record) {
            const std::optional<Value> value = read(text);
            if (value)
                keep(*value, record);
            return value ? std::string() : std::string(wrong);
        };
        column.write = std::move(write);
        return column;
    }
};

} // namespace kova::family::registers
