#include "family/data/selections/folded_texts.hpp"

#include <algorithm>
#include <tuple>

namespace kova::family {

namespace {

constexpr char Separator = '\0';

} // namespace

FoldedTexts::FoldedTexts(Database& database, const std::vector<std::string>& tables, const char* selection,
                         Order order)
    : order_(order),
      changes_(database, tables),
      readTexts_((database.Session().prepare << selection, soci::into(key_), soci::into(text_)))
{
}

/// The count is asked first: a change that comes in between is then seen at the next search.
void FoldedTexts::Refresh()
{
    changes_.ReadOn([this](std::optional<long long> since) {
        if (!since || !TakeChanges(*since))
            Read();
    });
}

void FoldedTexts::Read()
{
    texts_.clear();
    starts_.clear();
    keys_.clear();
    BeginReading();
    readTexts_.execute();
    while (readTexts_.fetch()) {
        starts_.push_back(texts_.size());
        keys_.push_back(key_);
        Shape(key_, text_);
        texts_.append(text_).push_back(Separator);
    }
    starts_.push_back(texts_.size());
    placesByKey_.clear();
    if (order_ == Order::ByFirstLine)
        SortByFirstLine();
}

void FoldedTexts::SortByFirstLine()
{
    std::vector<std::tuple<std::string_view, Key, std::uint32_t>> order;
    order.reserve(keys_.size());
    for (std::uint32_t place = 0; place < keys_.size(); ++place) {
        const std::string_view text = TextAt(place);
        order.emplace_back(text.substr(0, text.find('\n')), keys_[place], place);
    }
    std::ranges::sort(order);
    std::string texts;
    texts.reserve(texts_.size());
    std::vector<std::size_t> starts;
    starts.reserve(starts_.size());
    std::vector<Key> keys;
    keys.reserve(keys_.size());
    for (const auto& [line, key, place] : order) {
        starts.push_back(texts.size());
        keys.push_back(key);
        texts.append(TextAt(place)).push_back(Separator);
    }
    starts.push_back(texts.size());
    texts_ = std::move(texts);
    starts_ = std::move(starts);
    keys_ = std::move(keys);
}

bool FoldedTexts::StandsBehind(std::uint32_t place, Key key, std::string_view text) const
{
    if (order_ == Order::AsSelected)
        return false;
    const std::string_view stored = TextAt(place);
    return std::pair(stored.substr(0, stored.find('\n')), keys_[place])
        > std::pair(text.substr(0, text.find('\n')), key);
}

void FoldedTexts::Replace(const std::set<Key>& gone, const std::map<Key, std::string>& come)
{
    std::vector<std::pair<Key, std::string_view>> coming(come.begin(), come.end());
    std::ranges::sort(coming, {}, [](const auto& one) {
        return std::pair(one.second.substr(0, one.second.find('\n')), one.first);
    });
    std::string texts;
    texts.reserve(texts_.size() + 1024);
    std::vector<std::size_t> starts;
    starts.reserve(starts_.size() + coming.size());
    std::vector<Key> keys;
    keys.reserve(keys_.size() + coming.size());
    const auto put = [&](Key key, std::string_view text) {
        starts.push_back(texts.size());
        keys.push_back(key);
        texts.append(text).push_back(Separator);
    };
    auto next = coming.begin();
    for (std::uint32_t place = 0; place < keys_.size(); ++place) {
        for (; next != coming.end() && StandsBehind(place, next->first, next->second); ++next)
            put(next->first, next->second);
        if (!gone.contains(keys_[place]))
            put(keys_[place], TextAt(place));
    }
    for (; next != coming.end(); ++next)
        put(next->first, next->second);
    starts.push_back(texts.size());
    texts_ = std::move(texts);
    starts_ = std::move(starts);
    keys_ = std::move(keys);
    placesByKey_.clear();
}

std::string_view FoldedTexts::TextAt(std::uint32_t place) const
{
    const std::size_t start = starts_[place];
    return std::string_view(texts_).substr(start, starts_[place + 1] - start - 1);
}

/// All texts are looked through as one; after a find it goes on with the next row.
std::vector<std::uint32_t> FoldedTexts::PlacesWith(std::string_view part) const
{
    std::vector<std::uint32_t> places;
    if (part.find(Separator) != std::string_view::npos)
        return places;
    std::uint32_t place = 0;
    for (std::size_t at = texts_.find(part); at < texts_.size(); at = texts_.find(part, starts_[place])) {
        while (starts_[place + 1] <= at)
            ++place;
        places.push_back(place++);
    }
    return places;
}

std::vector<std::uint32_t> FoldedTexts::PlacesWith(std::string_view part,
                                                   const std::vector<Key>& others) const
{
    std::vector<std::uint32_t> places = PlacesWith(part);
    if (others.empty())
        return places;
    for (const Key key : others) {
        if (const auto place = PlaceOf(key))
            places.push_back(*place);
    }
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    return places;
}

std::optional<std::uint32_t> FoldedTexts::PlaceOf(Key key) const
{
    if (placesByKey_.empty()) {
        for (std::uint32_t place = 0; place < keys_.size(); ++place)
            placesByKey_.emplace_back(keys_[place], place);
        std::ranges::sort(placesByKey_);
    }
    const auto found = std::ranges::lower_bound(placesByKey_, std::pair(key, std::uint32_t(0)));
    if (found == placesByKey_.end() || found->first != key)
        return std::nullopt;
    return found->second;
}

CustomerNames::CustomerNames(Database& database)
    : FoldedTexts(database, "cliente",
                  "select codigo, nomes_de_busca from cliente order by nome_de_busca, codigo")
{
}

CustomerAddresses::CustomerAddresses(Database& database)
    : FoldedTexts(database, "cliente", "select codigo, endereco_de_busca from cliente order by codigo")
{
}

AnimalNames::AnimalNames(Database& database)
    : FoldedTexts(
        database, "animal",
        "select codigo, nome_de_busca from animal where situacao = 1 order by nome_de_busca, codigo")
{
}

} // namespace kova::family
