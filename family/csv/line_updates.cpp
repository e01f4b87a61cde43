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

bool LineUpdates::Take(family::Database& database, Line& line)
{
    const Key key = family::registers::ReadWhole(line.Cell(0)).value_or(0);
    const auto before = key == 0 ? std::nullopt : register_.Read(database, key);
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
    const Texts typed = TypedOver(before, line);
    const SaveAnswer answer = register_.Check(database, key, before, typed);
    if (!answer.IsDone())
        return Refuse(answer, typed, line);
    if (!answer.changed.empty())
        changing_.insert(line.Number());
    onChange_(key, typed);
    for (const ChangedField& changed : answer.changed)
        changes_ += "linha " + std::to_string(line.Number()) + ": "
            + std::string(register_.Fields()[changed.field].label) + " " + Quoted(changed.before) + " → "
            + Quoted(changed.after) + "\n";
}

LineUpdates::Texts LineUpdates::TypedOver(Texts texts, Line& line) const
{
    const std::vector<FieldInfo>& fields = register_.Fields();
    for (std::size_t column = 1; column < titles_.size(); ++column) {
        const auto field = std::ranges::find(fields, titles_[column].name, &FieldInfo::label);
        if (field != fields.end() && header_.Has(column))
            texts[static_cast<std::size_t>(field - fields.begin())] = line.Cell(column);
        else if (field == fields.end() && !line.Cell(column).empty())
            line.Refuse(titles_[column].name, line.Cell(column), "só entra com um registro novo.");
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
    const SaveAnswer answer = register_.SaveWithin(database, key, *before, typed, author);
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
