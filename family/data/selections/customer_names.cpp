#include "family/data/selections/customer_names.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr char Separator = '\0';

} // namespace

CustomerNames::CustomerNames(Database& database)
    : countChanges_((database.Session().prepare
                         << "select alteracoes from contador_de_alteracoes where tabela = 'cliente'",
                     soci::into(changes_))),
      readNames_((database.Session().prepare
                      << "select codigo, nomes_de_busca from cliente order by nome_de_busca, codigo",
                  soci::into(code_), soci::into(name_)))
{
}

/// The count is read first: a change that comes in between is then seen at the next search.
void CustomerNames::Refresh()
{
    countChanges_.execute();
    while (countChanges_.fetch())
        continue;
    if (changes_ == readAt_)
        return;
    readAt_ = -1;
    Read();
    readAt_ = changes_;
}

void CustomerNames::Read()
{
    names_.clear();
    starts_.clear();
    codes_.clear();
    readNames_.execute();
    while (readNames_.fetch()) {
        starts_.push_back(names_.size());
        codes_.push_back(code_);
        names_.append(name_).push_back(Separator);
    }
    starts_.push_back(names_.size());
}

std::string_view CustomerNames::NamesAt(std::uint32_t place) const
{
    const std::size_t start = starts_[place];
    return std::string_view(names_).substr(start, starts_[place + 1] - start - 1);
}

/// All names are looked through as one text; after a find it goes on with the next customer.
std::vector<std::uint32_t> CustomerNames::PlacesWith(std::string_view part) const
{
    std::vector<std::uint32_t> places;
    if (part.find(Separator) != std::string_view::npos)
        return places;
    std::uint32_t place = 0;
    for (std::size_t at = names_.find(part); at < names_.size(); at = names_.find(part, starts_[place])) {
        while (starts_[place + 1] <= at)
            ++place;
        places.push_back(place++);
    }
    return places;
}

void CustomerNames::AddPlaceOf(Key code, std::vector<std::uint32_t>& places) const
{
    const auto found = std::find(codes_.begin(), codes_.end(), code);
    if (found != codes_.end())
        places.push_back(static_cast<std::uint32_t>(found - codes_.begin()));
}

} // namespace kova::family
