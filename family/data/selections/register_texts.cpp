#include "family/data/selections/register_texts.hpp"

#include "family/data/engine/fold_text.hpp"

#include <algorithm>

namespace kova::family {

namespace {

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

bool IsNumberMark(char letter)
{
    switch (letter) {
    case ' ':
    case '(':
    case ')':
    case '+':
    case '.':
    case '-':
    case '/': return true;
    default: return false;
    }
}

/// Takes the situation away, which is the last line.
void TakeSituation(TextOfRow& row)
{
    const std::size_t last = row.text.rfind('\n');
    row.isHidden = IsHiddenSituation(std::stoi(row.text.substr(last + 1)));
    row.text.erase(last);
}

/// The numbers of a text, each a line of its own without its marks.
std::string NumbersIn(std::string_view text)
{
    std::string numbers;
    bool isInside = false;
    for (const char letter : text) {
        if (IsDigit(letter))
            numbers.append(isInside || numbers.empty() ? "" : "\n").push_back(letter);
        isInside = IsDigit(letter) || (isInside && IsNumberMark(letter));
    }
    return numbers;
}

/// A set of places, by a flag for each.
class PlaceSet {
public:
    explicit PlaceSet(const TextRows& rows) : rows_(rows), has_(rows.Count()) { }

    void Add(const std::vector<TextRows::Place>& places)
    {
        for (const TextRows::Place place : places)
            has_[place] = true;
    }
    void AddCode(Key code)
    {
        if (const auto place = rows_.PlaceOf(code))
            has_[*place] = true;
    }

    std::vector<Key> Keys(bool activeOnly) const
    {
        std::vector<Key> keys;
        for (TextRows::Place place = 0; place < has_.size(); ++place) {
            if (has_[place] && !(activeOnly && rows_.IsHidden(place)))
                keys.push_back(rows_.KeyAt(place));
        }
        return keys;
    }

private:
    const TextRows& rows_;
    std::vector<bool> has_;
};

/// Ascending; an owner of several stands there for each.
std::vector<Key> OwnersOfAnimalsWith(Database& database, const std::vector<std::string>& parts)
{
    return database.With<AnimalNamesOfCustomers>([&](AnimalNamesOfCustomers& names) {
        const TextRows& rows = names.Refreshed();
        std::vector<Key> owners;
        for (const TextRows::Place place : rows.PlacesWithAny(parts))
            owners.push_back(rows.OwnerAt(place));
        return owners;
    });
}

/// An empty list of parts finds all.
std::vector<std::string> OrAll(const std::vector<std::string>& parts)
{
    return parts.empty() ? std::vector<std::string>{""} : parts;
}

} // namespace

std::string WithoutNumberMarks(std::string_view folded)
{
    std::string plain(folded);
    if (std::ranges::any_of(plain, IsDigit))
        std::erase_if(plain, IsNumberMark);
    return plain;
}

CustomerTexts::CustomerTexts(Database& database)
    : AuditedTexts(
        database, {"cliente"},
        "select codigo, nome_de_busca || '\n' || apelido || '\n' || documento || '\n' || tipos_e_canais"
        " || '\n' || situacao from cliente",
        {" where codigo = :chave"}, Order::ByFirstLine)
{
}

void CustomerTexts::Shape(TextOfRow& row)
{
    TakeSituation(row);
    std::string& text = row.text;
    const std::size_t name = text.find('\n'), channels = text.rfind('\n') + 1;
    const std::string numbers = NumbersIn(std::string_view(text).substr(channels));
    const std::string folded = FoldText(std::string_view(text).substr(name));
    text.replace(name, std::string::npos, folded);
    if (!numbers.empty())
        text.append("\n").append(numbers);
}

AnimalNamesOfCustomers::AnimalNamesOfCustomers(Database& database)
    : AuditedTexts(database, {"animal"},
                   "select codigo, codigo_do_cliente || '\n' || nome_de_busca from animal",
                   {" where codigo = :chave"}, Order::ByOwner)
{
}

/// The owner stands apart: nobody looks for his code among the names.
void AnimalNamesOfCustomers::Shape(TextOfRow& row)
{
    const std::size_t end = row.text.find('\n');
    row.owner = std::stoll(row.text.substr(0, end));
    row.text.erase(0, end + 1);
}

AnimalTexts::AnimalTexts(Database& database)
    : AuditedTexts(database, {"animal", "cliente"},
                   "select n.codigo, n.nome_de_busca || '\n' || coalesce(n.microchip, '') || '\n'"
                   " || c.nomes_de_busca || '\n' || n.situacao from animal n join cliente c on c.codigo = "
                   "n.codigo_do_cliente",
                   {" where n.codigo = :chave", " where c.codigo = :chave"}, Order::ByFirstLine)
{
}

/// All but the microchip is folded already.
void AnimalTexts::Shape(TextOfRow& row)
{
    TakeSituation(row);
    const std::size_t begin = row.text.find('\n') + 1, length = row.text.find('\n', begin) - begin;
    row.text.replace(begin, length, FoldText(std::string_view(row.text).substr(begin, length)));
}

// An empty search looks through the animals, too: whoever opens the list has them in memory at the first key.
std::vector<Key> CustomersWith(Database& database, const std::vector<std::string>& parts, Key code,
                               bool activeOnly)
{
    const std::vector<std::string> sought = OrAll(parts);
    const std::vector<Key> owners = OwnersOfAnimalsWith(database, sought);
    return database.With<CustomerTexts>([&](CustomerTexts& texts) {
        const TextRows& rows = texts.Refreshed();
        PlaceSet places(rows);
        places.Add(rows.PlacesWithAny(sought));
        places.Add(rows.PlacesOf(owners));
        places.AddCode(code);
        return places.Keys(activeOnly);
    });
}

std::vector<Key> AnimalsWith(Database& database, const std::vector<std::string>& parts, Key code,
                             bool activeOnly)
{
    return database.With<AnimalTexts>([&](AnimalTexts& texts) {
        const TextRows& rows = texts.Refreshed();
        PlaceSet places(rows);
        places.Add(rows.PlacesWithAny(OrAll(parts)));
        places.AddCode(code);
        return places.Keys(activeOnly);
    });
}

} // namespace kova::family
