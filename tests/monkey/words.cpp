#include "tests/monkey/words.hpp"

#include "agenda/contracts/utf8.hpp"
#include "tests/support/sqlite_file.hpp"

namespace kova::monkey {

namespace {

std::string Digits(int number, std::size_t width)
{
    std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

/// The first characters of a text, none of them cut apart.
std::string Beginning(const std::string& text, int characters)
{
    std::size_t end = 0;
    for (int i = 0; i < characters && end < text.size(); ++i) {
        ++end;
        while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
            ++end;
    }
    return text.substr(0, end);
}

} // namespace

std::string Words::Name(Chance& chance) const
{
    const std::string& name = chance.OneOf(names_);
    return chance.InHundred(60) ? Beginning(name, chance.Between(1, 6)) : name;
}

std::string Words::DateDigits(Chance& chance)
{
    if (chance.InHundred(25))
        return chance.OneOf<std::string>(
            {"31022026", "00000000", "99999999", "01011900", "31122999", "15", "2911", "1"});
    return Digits(chance.Between(1, 30), 2) + Digits(chance.Between(10, 12), 2) + "2026";
}

std::string Words::FreeDateDigits(Chance& chance)
{
    const int monday = chance.OneOf<int>({7, 14});
    return Digits(monday + chance.Between(0, 4), 2) + "122026";
}

std::string Words::OpenTimeDigits(Chance& chance)
{
    return Digits(chance.Between(8, 16), 2) + Digits(chance.Between(0, 3) * 15, 2);
}

std::string Words::TimeDigits(Chance& chance)
{
    if (chance.InHundred(20))
        return chance.OneOf<std::string>({"2500", "9999", "0000", "2359", "7", "24"});
    return Digits(chance.Between(7, 22), 2) + Digits(chance.Between(0, 3) * 15, 2);
}

std::string Words::Any(Chance& chance) const
{
    static const std::vector<std::string> oddities{"a",
                                                   "%",
                                                   "_",
                                                   "'",
                                                   "\"; --",
                                                   "áéíóú ÃÕÇ",
                                                   "ção",
                                                   "poodle",
                                                   "banho",
                                                   "123456789",
                                                   "0",
                                                   "-1",
                                                   "1,5",
                                                   "99999999999999999999",
                                                   "{HOME}",
                                                   "<b>x</b>",
                                                   "a&b&&c",
                                                   "çãõ¨´`^~",
                                                   "日本語",
                                                   "🐶🐱",
                                                   "   ",
                                                   "Rua das Flores, 12",
                                                   "(11) 98765-4321",
                                                   "ana@exemplo.com.br",
                                                   "é um cão de porte médio, não morde"};
    switch (chance.ByWeight({45, 15, 10, 20, 10})) {
    case 0: return Name(chance);
    case 1: return std::to_string(chance.Between(1, 60));
    case 2: return chance.InHundred(50) ? DateDigits(chance) : TimeDigits(chance);
    case 3: return chance.OneOf(oddities);
    default:
        return std::string(static_cast<std::size_t>(chance.Between(20, 300)),
                           chance.InHundred(50) ? 'w' : 'i');
    }
}

std::vector<std::string> NamesIn(const std::string& database)
{
    test::SqliteFile file(database);
    std::vector<std::string> names;
    for (const char* selection : {"select nome from cliente order by codigo limit 60",
                                  "select apelido from cliente order by codigo limit 60",
                                  "select nome from animal order by codigo limit 60",
                                  "select nome from servico order by codigo limit 40",
                                  "select apelido from funcionario order by codigo",
                                  "select nome from raca order by codigo limit 20"}) {
        for (const std::string& name : file.Run(selection)) {
            if (!name.empty())
                names.push_back(name);
        }
    }
    return names;
}

} // namespace kova::monkey
