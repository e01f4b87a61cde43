#include "family/users/own_secrets.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/users/tries.hpp"
#include "family/users/user_names.hpp"
#include "family/users/write_secret.hpp"

#include <cstdlib>

namespace kova::family {

namespace {

constexpr const char* WrongPassword = "A senha atual não confere.";

std::string ObjectionTo(const OwnSecrets& wanted)
{
    if (wanted.password != nullptr) {
        if (std::string objection = ObjectionToPassword(*wanted.password); !objection.empty())
            return objection;
    }
    return wanted.pin != nullptr ? ObjectionToPin(*wanted.pin) : std::string();
}

/// What is to be kept of them.
struct KeptSecrets {
    Nullable<std::string> password, pin;
};

KeptSecrets Keep(const OwnSecrets& wanted, const PasswordCost& cost)
{
    KeptSecrets kept;
    if (wanted.password != nullptr)
        kept.password = HashOf(*wanted.password, cost);
    if (wanted.pin != nullptr)
        kept.pin = HashOf(*wanted.pin, cost);
    return kept;
}

/// Why the password is not the user's, with what follows from a wrong one; empty where it is.
std::string Prove(Database& database, const AccountRow& account, const Secret& current, const Author& author,
                  const Clock& clock)
{
    const std::string digest = DigestOf(FoldUserName(account.nome));
    const long long now = SecondsNow(database, clock);
    const Tries tries = FindTries(database, digest, now);
    if (const long long wait = tries.WaitAt(now); wait > 0)
        return "Houve muitas tentativas erradas. Espere " + WordsOfWait(wait) + " e tente de novo.";
    const auto secrets = FindByKey<SecretsRow>(database, account.codigo);
    if (IsHashOf(secrets->senha.ValueOr(""), current))
        return {};
    CountWrongTry(database, digest, now);
    AuditAccess(database, author, audit_operation::SigningInRefused, account.codigo,
                AuditValues().Add("meio", std::string("senha")).Add("motivo", std::string("senha")));
    const long long wait = WaitAfter(tries.wrong + 1);
    return wait == 0
        ? WrongPassword
        : std::string(WrongPassword) + " A próxima tentativa pode ser feita em " + WordsOfWait(wait) + ".";
}

} // namespace

AccountAnswer ChangeOwnSecrets(Database& database, const Secret& current, const OwnSecrets& wanted,
                               const Author& author, const Clock& clock, const PasswordCost& cost)
{
    if (std::string objection = ObjectionTo(wanted); !objection.empty())
        return {.why = std::move(objection)};
    const KeptSecrets kept = Keep(wanted, cost);
    const Key user = std::strtoll(author.code.c_str(), nullptr, 10);
    AccountAnswer answer;
    WriteSafely(database, [&] {
        const auto account = FindByKey<AccountRow>(database, user);
        if (!account || !account->IsActive() || account->codigoDoPapel.IsNull()) {
            answer = {.why = "O usuário não existe mais, ou não entra mais."};
            return false;
        }
        answer = {.code = user, .why = Prove(database, *account, current, author, clock)};
        if (answer.IsDone() && wanted.password != nullptr)
            WriteSecret(database, user, &SecretsRow::senha, kept.password, author);
        if (answer.IsDone() && (wanted.pin != nullptr || wanted.removesPin))
            WriteSecret(database, user, &SecretsRow::pin, kept.pin, author);
        // A wrong one is counted, too.
        return true;
    });
    return answer;
}

} // namespace kova::family
