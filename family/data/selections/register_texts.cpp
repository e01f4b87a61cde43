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

/// Ends the text of a row that is hidden among active ones; nobody can type it.
constexpr char Hidden = '\x01';

/// Takes the situation away, which is the last line. Answers whether it hides the row.
bool TakeSituation(std::string& text)
{
    const std::size_t last = text.rfind('\n');
    const bool isHidden = IsHiddenSituation(std::stoi(text.substr(last + 1)));
    text.erase(last);
    return isHidden;
}

bool EndsHidden(std::string_view text) { return !text.empty() && text.back() == Hidden; }

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
template <class Texts> class PlaceSet {
public:
    explicit PlaceSet(const Texts& texts) : texts_(texts), has_(texts.Count()) { }

    void Add(std::uint32_t place) { has_[place] = true; }
    void AddThoseWith(const std::vector<std::string>& parts)
    {
        for (const std::string& part : parts) {
            for (const std::uint32_t place : texts_.PlacesWith(part))
                Add(place);
        }
    }
    void AddCode(Key code)
    {
        if (const auto place = texts_.PlaceOf(code))
            Add(*place);
    }

    std::vector<Key> Keys(bool activeOnly) const
    {
        std::vector<Key> keys;
        for (std::uint32_t place = 0; place < has_.size(); ++place) {
            if (has_[place] && !(activeOnly && texts_.IsHidden(place)))
                keys.push_back(texts_.KeyAt(place));
        }
        return keys;
    }

private:
    const Texts& texts_;
    std::vector<bool> has_;
};

std::vector<Key> OwnersOfAnimalsWith(Database& database, const std::vector<std::string>& parts)
{
    return database.With<AnimalNamesOfCustomers>([&](AnimalNamesOfCustomers& names) {
        names.Refresh();
        std::vector<Key> owners;
        for (const std::string& part : parts) {
            for (const std::uint32_t place : names.PlacesWith(part))
                owners.push_back(names.OwnerAt(place));
        }
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

void CustomerTexts::Shape(Key, std::string& text)
{
    const bool isHidden = TakeSituation(text);
    const std::size_t name = text.find('\n'), channels = text.rfind('\n') + 1;
    const std::string numbers = NumbersIn(std::string_view(text).substr(channels));
    const std::string folded = FoldText(std::string_view(text).substr(name));
    text.replace(name, std::string::npos, folded);
    if (!numbers.empty())
        text.append("\n").append(numbers);
    if (isHidden)
        text.push_back(Hidden);
}

bool CustomerTexts::IsHidden(std::uint32_t place) const { return EndsHidden(TextAt(place)); }

AnimalNamesOfCustomers::AnimalNamesOfCustomers(Database& database)
    : AuditedTexts(database, {"animal"},
                   "select codigo, codigo_do_cliente || '\n' || nome_de_busca from animal",
                   {" where codigo = :chave"}, Order::AsSelected)
{
}

/// The owner stands apart: nobody looks for his code among the names.
void AnimalNamesOfCustomers::Shape(Key key, std::string& text)
{
    const std::size_t end = text.find('\n');
    owners_[key] = std::stoll(text.substr(0, end));
    text.erase(0, end + 1);
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
void AnimalTexts::Shape(Key, std::string& text)
{
    const bool isHidden = TakeSituation(text);
    const std::size_t begin = text.find('\n') + 1, length = text.find('\n', begin) - begin;
    const std::string folded = FoldText(std::string_view(text).substr(begin, length));
    text.replace(begin, length, folded);
    if (isHidden)
        text.push_back(Hidden);
}

bool AnimalTexts::IsHidden(std::uint32_t place) const { return EndsHidden(TextAt(place)); }

std::vector<Key> CustomersWith(Database& database, const std::vector<std::string>& parts, Key code,
                               bool activeOnly)
{
    const std::vector<Key> owners = parts.empty() ? std::vector<Key>() : OwnersOfAnimalsWith(database, parts);
    return database.With<CustomerTexts>([&](CustomerTexts& texts) {
        texts.Refresh();
        PlaceSet places(texts);
        places.AddThoseWith(OrAll(parts));
        places.AddCode(code);
        for (const Key owner : owners)
            places.AddCode(owner);
        return places.Keys(activeOnly);
    });
}

std::vector<Key> AnimalsWith(Database& database, const std::vector<std::string>& parts, Key code,
                             bool activeOnly)
{
    return database.With<AnimalTexts>([&](AnimalTexts& texts) {
        texts.Refresh();
        PlaceSet places(texts);
        places.AddThoseWith(OrAll(parts));
        places.AddCode(code);
        return places.Keys(activeOnly);
    });
}

} // namespace kova::family
