#include "family/privacy/identity.hpp"

#include "family/data/engine/fold_text.hpp"

#include <algorithm>

namespace kova::family::privacy {

namespace {

constexpr std::size_t LeastDigits = 8;
constexpr std::string_view Separators = " \t\r\n,;|";

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// Stands inside one number.
bool IsMarkOfNumber(char letter)
{
    return letter == ' ' || letter == '(' || letter == ')' || letter == '.' || letter == '-' || letter == '+';
}

/// Begins another number, where enough digits stand before it.
bool BeginsNumber(char letter) { return letter == '(' || letter == '+'; }

std::vector<std::string> NumbersIn(std::string_view text)
{
    std::vector<std::string> numbers(1);
    for (const char letter : text) {
        const bool isEnough = numbers.back().size() >= LeastDigits;
        if (IsDigit(letter))
            numbers.back() += letter;
        else if (!IsMarkOfNumber(letter) || (isEnough && BeginsNumber(letter)))
            numbers.emplace_back();
    }
    std::erase_if(numbers, [](const std::string& number) { return number.size() < LeastDigits; });
    return numbers;
}

/// "E-mail:ze@example.com>" becomes "ze@example.com".
std::string MailIn(std::string_view word)
{
    const std::size_t before = word.find_last_of(":<(\"'");
    if (before != std::string_view::npos)
        word.remove_prefix(before + 1);
    const std::size_t end = word.find_last_not_of(".>)\"'");
    return FoldText(word.substr(0, end == std::string_view::npos ? 0 : end + 1));
}

/// Folded, with one blank between words.
std::string Plain(std::string_view text)
{
    std::string plain;
    for (const char letter : FoldText(text)) {
        const bool isBlank = Separators.find(letter) != std::string_view::npos;
        if (!isBlank)
            plain += letter;
        else if (!plain.empty() && plain.back() != ' ')
            plain += ' ';
    }
    if (!plain.empty() && plain.back() == ' ')
        plain.pop_back();
    return plain;
}

bool IsOfSeveralWords(const std::string& plain) { return plain.find(' ') != std::string::npos; }

/// A number as it is dialled inside the country.
struct Dialled {
    explicit Dialled(std::string_view digits)
    {
        constexpr std::string_view Country = "55";
        constexpr std::size_t LongestInside = 11, ShortestWithArea = 10, Area = 2;
        const auto dropZeros = [&] {
            digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
        };
        dropZeros();
        if (digits.size() > LongestInside && digits.starts_with(Country)) {
            digits.remove_prefix(Country.size());
            dropZeros();
        }
        last = digits.substr(digits.size() - std::min(digits.size(), LeastDigits));
        if (digits.size() > LongestInside)
            area = digits.substr(0, digits.size() - LeastDigits);
        else if (digits.size() >= ShortestWithArea)
            area = digits.substr(0, Area);
    }

    std::string_view area, last;
};

} // namespace

Contacts ContactsIn(std::string_view text)
{
    Contacts contacts;
    std::string rest;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(Separators), text.size());
        const std::string_view word = text.substr(0, end);
        if (word.find('@') == std::string_view::npos) {
            rest += text.substr(0, std::min(end + 1, text.size()));
        } else {
            contacts.mails.push_back(MailIn(word));
            rest += ';';
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    contacts.phones = NumbersIn(rest);
    return contacts;
}

bool IsSamePhone(std::string_view one, std::string_view other)
{
    const Dialled first(one), second(other);
    return first.last == second.last && first.last.size() == LeastDigits
        && (first.area == second.area || first.area.empty() || second.area.empty());
}

void Identity::AddName(std::string_view name)
{
    if (std::string plain = Plain(name); !plain.empty())
        names_.insert(std::move(plain));
}

void Identity::AddAnimal(std::string_view name)
{
    if (std::string plain = Plain(name); !plain.empty())
        animals_.insert(std::move(plain));
}

void Identity::AddContacts(std::string_view text)
{
    const Contacts contacts = ContactsIn(text);
    phones_.insert(contacts.phones.begin(), contacts.phones.end());
    mails_.insert(contacts.mails.begin(), contacts.mails.end());
}

bool Identity::HasContactOf(std::string_view text) const
{
    const Contacts contacts = ContactsIn(text);
    return std::ranges::any_of(contacts.mails, [&](const std::string& mail) { return mails_.contains(mail); })
        || std::ranges::any_of(contacts.phones, [&](const std::string& phone) {
               return std::ranges::any_of(
                   phones_, [&](const std::string& known) { return IsSamePhone(phone, known); });
           });
}

Likeness Identity::LikenessTo(std::string_view name, std::string_view contacts, std::string_view animal) const
{
    if (HasContactOf(contacts))
        return Likeness::Contact;
    const std::string plain = Plain(name);
    if (!names_.contains(plain))
        return Likeness::None;
    if (animals_.contains(Plain(animal)))
        return Likeness::NameAndAnimal;
    return IsOfSeveralWords(plain) ? Likeness::Name : Likeness::None;
}

} // namespace kova::family::privacy
