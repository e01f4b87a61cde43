#include "family/csv/line_updates.hpp"

#include "family/registers/description/typed_values.hpp"

#include <algorithm>

namespace kova::family::csv {

namespace {

using family::Key;
using family::registers::ChangedField;
using family::registers::FieldInfo;
using family::registers::RefusedField;
using family::registers::SaveAnswer;

std::string Quoted(const std::string& text) { return text.empty() ? "(vazio)" : "\"" + text + "\""; }

} // namespace

bool LineUpdates::Expects() const
{
    for (std::size_t column = 1; column < titles_.size(); ++column) {
        const auto field = FieldOf(column);
        if (field && header_.Has(column) && register_.IsJudgedAmong(*field))
            return true;
    }
    return false;
}

void LineUpdates::Expect(family::Database& database, const Line& line)
{
    const auto [key, before] = Stored(database, line);
    if (!before)
        return;
    Texts typed = TypedOver(*before, line);
    if (typed == *before)
        return;
    const auto [row, isNew] = toBe_.try_emplace(key, std::move(typed));
    if (isNew)
        onChange_(key, row->second);
}

std::pair<Key, std::optional<LineUpdates::Texts>> LineUpdates::Stored(family::Database& database,
                                                                      const Line& line) const
{
    const Key key = family::registers::ReadWhole(line.Cell(0)).value_or(0);
    return {key, key == 0 ? std::nullopt : register_.Read(database, key)};
}

bool LineUpdates::Take(family::Database& database, Line& line)
{
    const auto [key, before] = Stored(database, line);
    if (!before)
        return false;
    keys_[line.Number()] = key;
    const auto [first, isNew] = lines_.try_emplace(key, line.Number());
    if (isNew)
        Check(database, key, *before, line);
    else
        line.Refuse(titles_.front().name, line.Cell(0),
                    "já está na linha " + std::to_string(first->second) + ".");
    return true;
}

void LineUpdates::Check(family::Database& database, Key key, const Texts& before, Line& line)
{
    RefuseWhatIsNoField(line);
    const Texts typed = TypedOver(before, line);
    const SaveAnswer answer = register_.CheckAmong(database, toBe_, key, before, typed);
    if (!answer.IsDone())
        return Refuse(answer, typed, line);
    if (!answer.changed.empty())
        changing_.insert(line.Number());
    for (const ChangedField& changed : answer.changed)
        changes_ += "linha " + std::to_string(line.Number()) + ": "
            + std::string(register_.Fields()[changed.field].label) + " " + Quoted(changed.before) + " → "
            + Quoted(changed.after) + "\n";
}

std::optional<std::size_t> LineUpdates::FieldOf(std::size_t column) const
{
    const std::vector<FieldInfo>& fields = register_.Fields();
    const auto field = std::ranges::find(fields, titles_[column].name, &FieldInfo::label);
    if (field == fields.end())
        return std::nullopt;
    return static_cast<std::size_t>(field - fields.begin());
}

void LineUpdates::RefuseWhatIsNoField(Line& line) const
{
    for (std::size_t column = 1; column < titles_.size(); ++column) {
        if (!FieldOf(column) && !line.Cell(column).empty())
            line.Refuse(titles_[column].name, line.Cell(column), "só entra com um registro novo.");
    }
}

LineUpdates::Texts LineUpdates::TypedOver(Texts texts, const Line& line) const
{
    for (std::size_t column = 1; column < titles_.size(); ++column) {
        const auto field = FieldOf(column);
        if (field && header_.Has(column))
            texts[*field] = line.Cell(column);
    }
    return texts;
}

void LineUpdates::Write(family::Database& database, Line& line, const family::Author& author) const
{
    if (!changing_.contains(line.Number()))
        return;
    const Key key = keys_.at(line.Number());
    const auto before = register_.Read(database, key);
    if (!before)
        return line.Refuse(titles_.front().name, line.Cell(0), "não existe mais.");
    const Texts typed = TypedOver(*before, line);
    const SaveAnswer answer = register_.SaveAmong(database, toBe_, key, *before, typed, author);
    if (!answer.IsDone())
        Refuse(answer, typed, line);
}

void LineUpdates::Refuse(const SaveAnswer& answer, const Texts& typed, Line& line) const
{
    for (const RefusedField& refused : answer.refused) {
        const std::string_view label = register_.Fields()[refused.field].label;
        if (typed[refused.field].empty())
            line.Refuse(label, refused.why);
        else
            line.Refuse(label, typed[refused.field], refused.why);
    }
}

} // namespace kova::family::csv
