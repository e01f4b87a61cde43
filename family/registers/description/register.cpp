#include "family/registers/description/register.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/users/denials.hpp"

#include <algorithm>

namespace kova::family::registers {

namespace {

/// `write` may run more than once; the last answer counts.
template <class Write> auto InTransaction(Database& database, const Author& author, Write write)
{
    decltype(write()) answer;
    TellingDenials(database, author, [&] {
        WriteSafely(database, [&] {
            answer = write();
            return answer.IsDone();
        });
    });
    return answer;
}

} // namespace

SaveAnswer Register::Save(Database& database, Key key, const Texts& before, const Texts& typed,
                          const Author& author) const
{
    return InTransaction(database, author, [&] { return SaveWithin(database, key, before, typed, author); });
}

RemoveAnswer Register::Remove(Database& database, Key key, const Author& author) const
{
    return InTransaction(database, author, [&] { return RemoveWithin(database, key, author); });
}

RemoveAnswer Register::Restore(Database& database, Key key, const AuditedColumns& columns,
                               const Author& author) const
{
    return InTransaction(database, author, [&] { return RestoreWithin(database, key, columns, author); });
}

std::string Register::ConcernAbout(Database&, Key, const Texts&) const { return {}; }

std::vector<Suggestion> Register::Suggestions(Database&, int) const { return {}; }

SaveAnswer Register::AddAll(Database& database, std::span<const Texts> rows, const Author& author) const
{
    return InTransaction(database, author, [&] {
        SaveAnswer answer;
        for (const Texts& row : rows) {
            answer = SaveWithin(database, 0, {}, row, author);
            if (!answer.IsDone())
                break;
        }
        return answer;
    });
}

ListPage Register::Search(Database& database, const std::string& text, std::size_t first, std::size_t most,
                          Listed listed) const
{
    const std::vector<Key> keys = Find(database, text, listed);
    const std::size_t begin = std::min(first, keys.size());
    const std::size_t count = std::min(most, keys.size() - begin);
    return {keys.size(), Rows(database, std::span(keys).subspan(begin, count))};
}

std::vector<LikelyDouble> Register::LikelyDoubles(Database&, Key, const Texts&, const Texts&) const
{
    return {};
}

std::vector<Offer> Register::Offers(Database&, std::size_t, const Texts&) const { return {}; }

bool HasPrices(const Register& of)
{
    return std::ranges::any_of(of.Fields(),
                               [](const FieldInfo& field) { return field.kind == FieldKind::Money; });
}

bool NeedsPrice(const Register& of)
{
    return std::ranges::any_of(
        of.Fields(), [](const FieldInfo& field) { return field.kind == FieldKind::Money && field.required; });
}

std::size_t FieldNamed(const std::vector<FieldInfo>& fields, std::string_view label)
{
    const auto found = std::ranges::find(fields, label, &FieldInfo::label);
    if (found == fields.end())
        throw Failure(FailureNumber::InvalidArgument);
    return static_cast<std::size_t>(found - fields.begin());
}

} // namespace kova::family::registers
