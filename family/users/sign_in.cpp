#include "family/users/sign_in.hpp"

#include "family/business/clean_text.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/data/rows/user_rows.hpp"
#include "family/users/tries.hpp"
#include "family/users/user_names.hpp"
#include "family/users/user_rights.hpp"
#include "system/computer_name.hpp"

#include <optional>
#include <vector>

namespace kova::family {

namespace {

using Outcome = SignInAnswer::Outcome;

constexpr std::size_t WidthOfShownName = 100;

/// Nothing where no user with a role is called so.
std::optional<AccountRow> FindUser(Database& database, const std::string& folded)
{
    std::optional<AccountRow> user;
    SelectRows<AccountRow>(database, [&](const AccountRow& row) {
        if (!user && !row.codigoDoPapel.IsNull() && FoldUserName(row.nome) == folded)
            user = row;
    });
    return user;
}

/// One try in the transaction that is open.
class Trying {
public:
    Trying(Database& database, const SignInTry& wanted, const Clock& clock, const PasswordCost& cost)
        : database_(database),
          wanted_(wanted),
          cost_(cost),
          folded_(FoldUserName(wanted.name)),
          digest_(DigestOf(folded_)),
          clock_(clock),
          now_(SecondsNow(database, clock))
    {
    }

    SignInAnswer Run()
    {
        const Tries tries = FindTries(database_, digest_, now_);
        if (const long long wait = tries.WaitAt(now_); wait > 0)
            return {.outcome = Outcome::Wait,
                    .text = "Houve muitas tentativas erradas com este nome. Espere " + WordsOfWait(wait)
                        + " e tente de novo.",
                    .wait = wait};
        user_ = FindUser(database_, folded_);
        if (!IsRight())
            return Refuse(tries);
        if (!user_->IsActive())
            return RefuseInactive();
        return LetIn();
    }

private:
    /// Whoever is not there is looked for as hard as the others.
    bool IsRight()
    {
        secrets_ = FindByKey<SecretsRow>(database_, user_ ? user_->codigo : 0).value_or(SecretsRow());
        for (Nullable<std::string>* kept : Compared()) {
            kept_ = kept;
            if (IsHashOf(kept->value, wanted_.secret))
                return true;
        }
        if (kept_ == nullptr)
            HashOf(wanted_.secret, cost_);
        return false;
    }

    /// The kept texts that the secret may be one of. One that is too short for a password, or cannot be a
    /// PIN, is compared with one only: that is what changing places in two seconds lives on.
    std::vector<Nullable<std::string>*> Compared()
    {
        std::vector<Nullable<std::string>*> all;
        const bool isEither = wanted_.kind == SignInTry::Kind::Either;
        if (isEither ? ObjectionToPin(wanted_.secret).empty() : IsPin())
            all.push_back(&secrets_.pin);
        if (isEither ? ObjectionToPassword(wanted_.secret).empty() : !IsPin())
            all.push_back(&secrets_.senha);
        std::erase_if(all, [](const Nullable<std::string>* kept) { return kept->IsNull(); });
        return all;
    }

    bool IsPin() const { return wanted_.kind == SignInTry::Kind::Pin; }

    SignInAnswer Refuse(const Tries& tries)
    {
        CountWrongTry(database_, digest_, now_);
        Audit(audit_operation::SigningInRefused, "senha");
        SignInAnswer answer{.outcome = Outcome::Wrong, .wait = WaitAfter(tries.wrong + 1)};
        answer.text = WhatIsWrong();
        answer.text += answer.wait > 0
            ? " A próxima tentativa pode ser feita em " + WordsOfWait(answer.wait) + "."
            : " Tente de novo. Quem ainda não tem, ou não lembra, pede a quem administra os usuários.";
        return answer;
    }

    std::string WhatIsWrong() const
    {
        switch (wanted_.kind) {
        case SignInTry::Kind::Password: return "O nome ou a senha não confere.";
        case SignInTry::Kind::Pin: return "O nome ou o PIN não confere.";
        case SignInTry::Kind::Either: break;
        }
        return "O nome, o PIN ou a senha não confere.";
    }

    SignInAnswer RefuseInactive()
    {
        ForgetTries(database_, digest_);
        Audit(audit_operation::SigningInRefused, "inativo");
        return {.outcome = Outcome::Inactive,
                .text = user_->nome + " está inativo e não entra mais. Peça a quem administra os usuários."};
    }

    SignInAnswer LetIn()
    {
        ForgetTries(database_, digest_);
        if (IsOutdated(kept_->value, cost_)) {
            *kept_ = HashOf(wanted_.secret, cost_);
            Update(database_, secrets_);
        }
        Audit(audit_operation::SigningIn, {});
        const auto role = FindByKey<RoleRow>(database_, user_->codigoDoPapel.value);
        return {.code = user_->codigo,
                .name = user_->nome,
                .role = role ? role->nome : std::string(),
                .rights = RightsOf(database_, user_->codigo)};
    }

    /// What was typed where nobody is called so stays untold: it may be a password in the wrong field.
    void Audit(const char* operation, const std::string& why)
    {
        Author author{.code = "0",
                      .name = "Desconhecido",
                      .moment = IsoMoment(clock_.Now()),
                      .desk = system::ComputerName(),
                      .isByComputersClock = clock_.IsComputersOwn()};
        if (user_) {
            author.code = std::to_string(user_->codigo);
            author.name = CleanText(user_->nome, WidthOfShownName);
        }
        AuditValues what;
        what.Add("meio", std::string(kept_ == &secrets_.pin || IsPin() ? "pin" : "senha"));
        if (!why.empty())
            what.Add("motivo", why);
        AuditAccess(database_, author, operation, user_ ? user_->codigo : 0, what);
    }

    Database& database_;
    const SignInTry& wanted_;
    const PasswordCost& cost_;
    const std::string folded_, digest_;
    const Clock& clock_;
    const long long now_;
    std::optional<AccountRow> user_;
    SecretsRow secrets_;
    /// The one that was compared last; null where there was none.
    Nullable<std::string>* kept_ = nullptr;
};

} // namespace

SignInAnswer SignIn(Database& database, const SignInTry& wanted, const Clock& clock, const PasswordCost& cost)
{
    SignInAnswer answer;
    WriteSafely(database, [&] {
        answer = Trying(database, wanted, clock, cost).Run();
        return true;
    });
    return answer;
}

} // namespace kova::family
