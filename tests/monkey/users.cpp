#include "tests/monkey/users.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"
#include "family/users/who_enters.hpp"

#include <algorithm>
#include <stdexcept>

namespace kova::monkey {

namespace {

constexpr family::Key Administration = 1, Management = 2, Reception = 3, Nothing = 4;

constexpr Person All[] = {{"Ana", Administration, "Gato-Preto 1", "1379"},
                          {"Gil", Management, "Verde Mar 44", "8042"},
                          {"Lia", Reception, "Azul Turquesa", "2580"},
                          {"Rui", Nothing, "Sol Nascente 9", "6174"}};

/// A desk's own cost would take half of a session's time.
constexpr family::PasswordCost Cheap{1, 8192};

const family::Author Owner{.code = "0", .name = "Dono", .moment = "2026-11-20 08:00:00", .isOwner = true};

family::Key Made(const family::AccountAnswer& answer)
{
    if (!answer.IsDone())
        throw std::runtime_error(answer.why);
    return answer.code;
}

} // namespace

std::span<const Person> People() { return All; }

Users::Users(std::string database) : path_(std::move(database))
{
    const auto shop = family::OpenDatabase(path_);
    const auto add = [&](const char* name, family::Key role, const char* password) {
        const family::Secret secret{std::string(password)};
        codes_.push_back(Made(family::SaveAccount(*shop, {0, name, role, true}, &secret, Owner, Cheap)));
    };
    if (Made(family::SaveRole(*shop, {0, "Visita", {}}, Owner)) != Nothing)
        throw std::runtime_error("the shop has other roles");
    for (const Person& person : All) {
        add(person.name, person.role, person.password);
        const family::Secret pin{std::string(person.pin)};
        Made(family::SetPin(*shop, codes_.back(), &pin, Owner, Cheap));
    }
    add(Colleague, Management, "Outro Posto 2");
}

std::vector<Entry> Users::WhoEnter() const
{
    std::vector<Entry> entries;
    for (const family::UserWhoEnters& user : family::UsersWhoEnter(*family::OpenForReading(path_))) {
        const auto at = static_cast<std::size_t>(std::ranges::find(codes_, user.code) - codes_.begin());
        if (at < std::size(All))
            entries.push_back({user.name, All[at].password});
    }
    return entries;
}

} // namespace kova::monkey
