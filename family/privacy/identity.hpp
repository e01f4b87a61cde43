#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kova::family::privacy {

/// Phone numbers and e-mail addresses, in the forms in which they are compared.
struct Contacts {
    std::vector<std::string> phones, mails;
};

/// Those that a text names, whatever else stands in it. A number of less than eight digits is no phone's.
Contacts ContactsIn(std::string_view text);

/// Whether two numbers, digits only, are those of one phone: the last eight digits are the same, and so is
/// the area where both have one. The country's number and the digit before the eight do not count.
bool IsSamePhone(std::string_view one, std::string_view other);

/// What speaks for it that an appointment without a registered customer was somebody's.
enum class Likeness {
    None,
    /// The same full name and nothing else: others may be called so too.
    Name,
    /// The same name or nickname, and an animal that is called like one of his.
    NameAndAnimal,
    /// A phone number or an e-mail address in common.
    Contact,
};

/// Whether it is taken for his. Where the name alone speaks for it, a person has to look.
constexpr bool IsHis(Likeness likeness) { return likeness > Likeness::Name; }

/// What a customer is known by, today and by the values that the audit tells of.
class Identity {
public:
    /// A name or a nickname.
    void AddName(std::string_view name);
    void AddContacts(std::string_view text);
    void AddAnimal(std::string_view name);

    Likeness LikenessTo(std::string_view name, std::string_view contacts, std::string_view animal) const;

    bool operator==(const Identity&) const = default;

private:
    bool HasContactOf(std::string_view text) const;

    /// Folded, with one blank between words.
    std::set<std::string> names_, animals_, mails_;
    std::set<std::string> phones_;
};

} // namespace kova::family::privacy
