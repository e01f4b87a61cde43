#include "agenda/contracts/support/record_order.hpp"

#include "agenda/contracts/text.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace kova {

namespace {

/// What a value is sorted by: its kind, then its content. Values that have no order among themselves
/// share a kind and an empty content.
struct Content {
    enum class Kind { Nothing, Number, Text, Other };
    Kind kind = Kind::Nothing;
    Double number = 0;
    Text text;
};

Content ContentOf(const Value& value)
{
    switch (value.GetType()) {
    case ValueType::Empty:
    case ValueType::Null: return {};
    case ValueType::Text: return {Content::Kind::Text, 0, value.ToText()};
    case ValueType::Object:
    case ValueType::Array: return {Content::Kind::Other, 0, {}};
    default: break;
    }
    const Double number = value.ToDouble();
    return std::isnan(number) ? Content() : Content{Content::Kind::Number, number, {}};
}

/// Below 0, 0 or above 0. UTF-8 keeps the order of the code points, so bytes are compared.
int Compare(const Content& a, const Content& b)
{
    if (a.kind != b.kind)
        return a.kind < b.kind ? -1 : 1;
    if (a.number != b.number)
        return a.number < b.number ? -1 : 1;
    return a.text.compare(b.text);
}

std::optional<SortKey> ParseKey(std::string_view item, const std::function<int(std::string_view)>& numberOf)
{
    const Text trimmed = Trim(item);
    const auto blank = trimmed.find(' ');
    const Text direction = UpperCase(blank == Text::npos ? "ASC" : Trim(trimmed.substr(blank)));
    if (trimmed.empty() || (direction != "ASC" && direction != "DESC"))
        return std::nullopt;
    return SortKey{numberOf(trimmed.substr(0, blank)), direction == "DESC"};
}

} // namespace

std::vector<SortKey> ParseOrder(std::string_view order,
                                const std::function<int(std::string_view name)>& numberOf)
{
    std::vector<SortKey> keys;
    if (Trim(order).empty())
        return keys;
    for (std::size_t begin = 0; begin <= order.size();) {
        const auto end = std::min(order.find(',', begin), order.size());
        const auto key = ParseKey(order.substr(begin, end - begin), numberOf);
        if (!key)
            throw Failure(FailureNumber::BadRecordSetValue);
        keys.push_back(*key);
        begin = end + 1;
    }
    return keys;
}

std::vector<Long> SortedRows(const std::vector<SortKey>& keys, Long rows,
                             const std::function<Value(Long row, int field)>& cellAt)
{
    if (keys.empty())
        return {};
    std::vector<Content> contents;
    contents.reserve(static_cast<std::size_t>(rows) * keys.size());
    for (Long row = 0; row < rows; ++row)
        for (const SortKey& key : keys)
            contents.push_back(ContentOf(cellAt(row, key.field)));

    std::vector<Long> sorted(static_cast<std::size_t>(rows));
    std::iota(sorted.begin(), sorted.end(), 0);
    std::stable_sort(sorted.begin(), sorted.end(), [&](Long a, Long b) {
        const Content* left = &contents[static_cast<std::size_t>(a) * keys.size()];
        const Content* right = &contents[static_cast<std::size_t>(b) * keys.size()];
        for (std::size_t at = 0; at < keys.size(); ++at)
            if (const int order = Compare(left[at], right[at]))
                return (order < 0) != keys[at].descending;
        return false;
    });
    return sorted;
}

} // namespace kova
