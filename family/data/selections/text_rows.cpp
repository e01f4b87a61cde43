#include "family/data/selections/text_rows.hpp"

#include <algorithm>
#include <array>

namespace kova::family {

namespace {

/// Each of these characters has a mark of its own; all others share the last one.
constexpr std::string_view Marked = "abcdefghijklmnopqrstuvwxyz0123456789 @.-_()'/+:,&";
constexpr std::uint64_t SharedMark = std::uint64_t{1} << 62;
static_assert(Marked.size() <= 62);

constexpr std::array<std::uint64_t, 256> MakeMarks()
{
    std::array<std::uint64_t, 256> marks{};
    marks.fill(SharedMark);
    for (std::size_t at = 0; at < Marked.size(); ++at)
        marks[static_cast<unsigned char>(Marked[at])] = std::uint64_t{1} << at;
    return marks;
}
constexpr std::array<std::uint64_t, 256> Marks = MakeMarks();

std::uint64_t MarksIn(std::string_view text)
{
    std::uint64_t marks = 0;
    for (const char letter : text)
        marks |= Marks[static_cast<unsigned char>(letter)];
    return marks;
}

/// Whether the text holds the part. A block of places at a time is looked at for the part's first letter with
/// the last one behind it, which a processor does for many places at once.
bool Holds(std::string_view text, std::string_view part)
{
    constexpr std::size_t Block = 32;
    if (part.empty())
        return true;
    const std::size_t gap = part.size() - 1;
    const char first = part.front(), last = part.back();
    std::size_t at = 0;
    for (; at + Block + gap <= text.size(); at += Block) {
        const char *firsts = text.data() + at, *lasts = firsts + gap;
        unsigned char areThere = 0;
        for (std::size_t place = 0; place < Block; ++place)
            areThere |= static_cast<unsigned char>((firsts[place] == first) & (lasts[place] == last));
        if (areThere != 0 && text.substr(at, Block + gap).find(part) != std::string_view::npos)
            return true;
    }
    return text.substr(at).find(part) != std::string_view::npos;
}

} // namespace

/// What is looked for.
class TextRows::Part {
public:
    explicit Part(std::string_view text)
        : text_(text), marks_(MarksIn(text)), areMarksEnough_(text.size() <= 1 && marks_ != SharedMark)
    {
    }

    bool IsIn(const TextRows& rows, const Row& row) const
    {
        if ((row.marks & marks_) != marks_)
            return false;
        return areMarksEnough_ || Holds(rows.TextOf(row), text_);
    }

private:
    std::string_view text_;
    std::uint64_t marks_;
    bool areMarksEnough_;
};

void TextRows::Clear()
{
    texts_.clear();
    waste_ = 0;
    rows_.clear();
    placesByKey_.clear();
}

TextRows::Row TextRows::Kept(const TextOfRow& row)
{
    const std::string_view text = row.text;
    const std::size_t start = texts_.size();
    texts_.append(text);
    return {row.key,
            row.owner,
            MarksIn(text) | (row.isHidden ? HiddenMark : 0),
            start,
            static_cast<std::uint32_t>(text.size()),
            static_cast<std::uint32_t>(text.substr(0, text.find('\n')).size())};
}

void TextRows::Add(const TextOfRow& row)
{
    rows_.push_back(Kept(row));
    placesByKey_.clear();
}

bool TextRows::StandsBefore(const Row& one, const Row& other) const
{
    const auto line = [this](const Row& row) { return TextOf(row).substr(0, row.lengthOfFirstLine); };
    switch (order_) {
    case Order::AsAdded: return false;
    case Order::ByFirstLine:
        if (const int order = line(one).compare(line(other)); order != 0)
            return order < 0;
        return one.key < other.key;
    case Order::ByOwner: return std::pair(one.owner, one.key) < std::pair(other.owner, other.key);
    }
    return false;
}

void TextRows::Sort()
{
    if (order_ == Order::AsAdded)
        return;
    std::ranges::sort(rows_, [this](const Row& one, const Row& other) { return StandsBefore(one, other); });
    placesByKey_.clear();
    Tidy();
}

void TextRows::Tidy()
{
    std::string texts;
    texts.reserve(texts_.size() - waste_);
    for (Row& row : rows_) {
        const std::size_t start = texts.size();
        texts.append(TextOf(row));
        row.start = start;
    }
    texts_ = std::move(texts);
    waste_ = 0;
}

void TextRows::Insert(const TextOfRow& row)
{
    std::vector<std::pair<Key, Place>>& places = PlacesByKey();
    const Row kept = Kept(row);
    const auto next = std::ranges::upper_bound(
        rows_, kept, [this](const Row& one, const Row& other) { return StandsBefore(one, other); });
    const auto place = static_cast<Place>(next - rows_.begin());
    rows_.insert(next, kept);
    for (auto& [key, behind] : places)
        behind += behind >= place ? 1 : 0;
    places.insert(std::ranges::lower_bound(places, std::pair(row.key, Place{0})), {row.key, place});
}

void TextRows::Remove(Key key)
{
    const std::optional<Place> place = PlaceOf(key);
    if (!place)
        return;
    waste_ += rows_[*place].length;
    rows_.erase(rows_.begin() + *place);
    std::erase(placesByKey_, std::pair(key, *place));
    for (auto& [other, behind] : placesByKey_)
        behind -= behind > *place ? 1 : 0;
    if (waste_ > texts_.size() / 2)
        Tidy();
}

std::vector<TextRows::Place> TextRows::PlacesWith(std::string_view part) const
{
    const Part sought(part);
    std::vector<Place> places;
    for (Place place = 0; place < rows_.size(); ++place) {
        if (sought.IsIn(*this, rows_[place]))
            places.push_back(place);
    }
    return places;
}

std::vector<TextRows::Place> TextRows::PlacesWithAny(std::span<const std::string> parts) const
{
    if (parts.size() == 1)
        return PlacesWith(parts.front());
    const std::vector<Part> sought(parts.begin(), parts.end());
    std::vector<Place> places;
    for (Place place = 0; place < rows_.size(); ++place) {
        const auto isIn = [&](const Part& part) { return part.IsIn(*this, rows_[place]); };
        if (std::ranges::any_of(sought, isIn))
            places.push_back(place);
    }
    return places;
}

std::vector<TextRows::Place> TextRows::PlacesWith(std::string_view part, const std::vector<Key>& others) const
{
    std::vector<Place> places = PlacesWith(part);
    if (others.empty())
        return places;
    for (const Key key : others) {
        if (const auto place = PlaceOf(key))
            places.push_back(*place);
    }
    std::ranges::sort(places);
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

std::vector<std::pair<Key, TextRows::Place>>& TextRows::PlacesByKey() const
{
    if (placesByKey_.size() != rows_.size()) {
        placesByKey_.clear();
        for (Place place = 0; place < rows_.size(); ++place)
            placesByKey_.emplace_back(rows_[place].key, place);
        std::ranges::sort(placesByKey_);
    }
    return placesByKey_;
}

std::optional<TextRows::Place> TextRows::PlaceOf(Key key) const
{
    const auto& places = PlacesByKey();
    const auto found = std::ranges::lower_bound(places, std::pair(key, Place{0}));
    if (found == places.end() || found->first != key)
        return std::nullopt;
    return found->second;
}

std::vector<TextRows::Place> TextRows::PlacesOf(std::span<const Key> keys) const
{
    std::vector<Place> places;
    const auto& all = PlacesByKey();
    auto next = all.begin();
    for (const Key key : keys) {
        while (next != all.end() && next->first < key)
            ++next;
        if (next != all.end() && next->first == key)
            places.push_back(next->second);
    }
    return places;
}

} // namespace kova::family
