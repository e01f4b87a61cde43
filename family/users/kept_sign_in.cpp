#include "family/users/kept_sign_in.hpp"

#include "family/business/clean_text.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/user_rows.hpp"
#include "family/users/passwords.hpp"
#include "family/users/user_rights.hpp"
#include "family/users/who_enters.hpp"
#include "system/computer_name.hpp"

namespace kova::family {

namespace {

/// Of the one user who enters; "" where there are others, or none.
std::string TokenOf(Database& database, const std::vector<UserWhoEnters>& users)
{
    if (users.size() != 1)
        return {};
    const auto secrets = FindByKey<SecretsRow>(database, users.front().code);
    return DigestOf(system::ComputerName() + '\n' + secrets.value_or(SecretsRow()).senha.ValueOr(""));
}

SignInAnswer LetIn(Database& database, const UserWhoEnters& user, const Clock& clock)
{
    const Author author{.code = std::to_string(user.code),
                        .name = CleanText(user.name),
                        .moment = IsoMoment(clock.Now()),
                        .desk = system::ComputerName(),
                        .isByComputersClock = clock.IsComputersOwn()};
    AuditAccess(database, author, audit_operation::SigningIn, user.code,
                AuditValues().Add("meio", std::string("computador")));
    const auto account = FindByKey<AccountRow>(database, user.code);
    const auto role = FindByKey<RoleRow>(database, account ? account->codigoDoPapel.ValueOr(0) : 0);
    return {.code = user.code,
            .name = user.name,
            .role = role ? role->nome : std::string(),
            .rights = RightsOf(database, user.code)};
}

} // namespace

std::string SignInToken(Database& database, Key user)
{
    const std::vector<UserWhoEnters> users = UsersWhoEnter(database);
    return users.size() == 1 && users.front().code == user ? TokenOf(database, users) : std::string();
}

SignInAnswer SignInByToken(Database& database, const std::string& token, const Clock& clock)
{
    SignInAnswer answer;
    WriteSafely(database, [&] {
        const std::vector<UserWhoEnters> users = UsersWhoEnter(database);
        const bool isRight = !token.empty() && TokenOf(database, users) == token;
        answer = isRight ? LetIn(database, users.front(), clock)
                         : SignInAnswer{.outcome = SignInAnswer::Outcome::Wrong};
        return isRight;
    });
    return answer;
}

} // namespace kova::family
