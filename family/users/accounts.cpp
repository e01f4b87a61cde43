#include "family/users/accounts.hpp"

#include "family/business/clean_text.hpp"
#include "family/data/audit/add_row.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/data/rows/user_rows.hpp"
#include "family/users/administrators.hpp"
#include "family/users/denials.hpp"
#include "family/users/role_rights.hpp"
#include "family/users/user_names.hpp"
#include "family/users/write_secret.hpp"

#include <optional>

namespace kova::family {

namespace {

constexpr int Active = 1, Inactive = 2;

/// Runs `write`, which answers an AccountAnswer, for whoever may administer the users.
template <class Write> AccountAnswer Administer(Database& database, const Author& author, Write write)
{
    AccountAnswer answer;
    TellingDenials(database, author, [&] {
        WriteSafely(database, [&] {
            RequireRight(database, author, Right::AdministerUsers);
            LockImports(database);
            const bool had = HasAdministrator(database);
            answer = write();
            if (answer.IsDone())
                answer.why = WhyNobodyAdministers(database, had);
            return answer.IsDone();
        });
    });
    return answer;
}

/// Whether another row that `isMeant` takes is called so (FoldUserName).
template <class Row, class IsMeant>
bool IsNameTaken(Database& database, const std::string& name, Key code, IsMeant isMeant)
{
    bool taken = false;
    SelectRows<Row>(database, [&](const Row& row) {
        taken = taken || (row.codigo != code && isMeant(row) && FoldUserName(row.nome) == FoldUserName(name));
    });
    return taken;
}

std::string ObjectionToAccount(Database& database, const Account& account, const std::string& name)
{
    if (std::string objection = ObjectionToUserName(name); !objection.empty())
        return objection;
    const auto hasRole = [](const AccountRow& row) { return !row.codigoDoPapel.IsNull(); };
    if (account.role != 0 && IsNameTaken<AccountRow>(database, name, account.code, hasRole))
        return "Já há um usuário com este nome.";
    if (account.role != 0 && !FindByKey<RoleRow>(database, account.role))
        return "O papel não existe mais. Escolha outro.";
    return {};
}

/// Writes the row over the stored one, or a new one. Answers its code.
template <class Row>
Key WriteRow(Database& database, const Row& row, const std::optional<Row>& stored, const Author& author)
{
    if (!stored)
        return AddRow(database, row, author);
    if (ValuesOf(row).Line() == ValuesOf(*stored).Line())
        return row.codigo;
    Update(database, row);
    AuditChange(database, author, Row::Table, row.codigo, ValuesOf(*stored), ValuesOf(row));
    return row.codigo;
}

AccountRow RowOf(const Account& account, const std::string& name)
{
    AccountRow row{account.code, name, account.isActive ? Active : Inactive, {}};
    if (account.role != 0)
        row.codigoDoPapel = account.role;
    return row;
}

AccountAnswer SetSecret(Database& database, Key user, Nullable<std::string> SecretsRow::*which,
                        const Nullable<std::string>& kept, const Author& author)
{
    return Administer(database, author, [&]() -> AccountAnswer {
        if (!FindByKey<SecretsRow>(database, user))
            return {.why = "O usuário não existe mais."};
        WriteSecret(database, user, which, kept, author);
        return {.code = user};
    });
}

} // namespace

AccountAnswer SaveAccount(Database& database, const Account& account, const Secret* password,
                          const Author& author, const PasswordCost& cost)
{
    if (std::string objection = password ? ObjectionToPassword(*password) : std::string(); !objection.empty())
        return {.why = std::move(objection)};
    const std::string name = CleanText(account.name);
    const Nullable<std::string> kept = password ? HashOf(*password, cost) : Nullable<std::string>();
    return Administer(database, author, [&]() -> AccountAnswer {
        const auto stored = FindByKey<AccountRow>(database, account.code);
        if (account.code != 0 && !stored)
            return {.why = "O usuário não existe mais."};
        if (std::string objection = ObjectionToAccount(database, account, name); !objection.empty())
            return {.why = std::move(objection)};
        const Key code = WriteRow(database, RowOf(account, name), stored, author);
        if (password)
            WriteSecret(database, code, &SecretsRow::senha, kept, author);
        return {.code = code};
    });
}

AccountAnswer SetPassword(Database& database, Key user, const Secret& password, const Author& author,
                          const PasswordCost& cost)
{
    if (std::string objection = ObjectionToPassword(password); !objection.empty())
        return {.why = std::move(objection)};
    return SetSecret(database, user, &SecretsRow::senha, HashOf(password, cost), author);
}

AccountAnswer SetPin(Database& database, Key user, const Secret* pin, const Author& author,
                     const PasswordCost& cost)
{
    if (std::string objection = pin ? ObjectionToPin(*pin) : std::string(); !objection.empty())
        return {.why = std::move(objection)};
    const Nullable<std::string> kept = pin ? HashOf(*pin, cost) : Nullable<std::string>();
    return SetSecret(database, user, &SecretsRow::pin, kept, author);
}

AccountAnswer SaveRole(Database& database, const Role& role, const Author& author)
{
    const std::string name = CleanText(role.name);
    return Administer(database, author, [&]() -> AccountAnswer {
        const auto stored = FindByKey<RoleRow>(database, role.code);
        if (role.code != 0 && !stored)
            return {.why = "O papel não existe mais."};
        if (std::string objection = ObjectionToUserName(name); !objection.empty())
            return {.why = std::move(objection)};
        if (IsNameTaken<RoleRow>(database, name, role.code, [](const RoleRow&) { return true; }))
            return {.why = "Já há um papel com este nome."};
        const Key code = WriteRow(database, RoleRow{role.code, name}, stored, author);
        WriteRightsOf(database, code, role.rights, author);
        return {.code = code};
    });
}

} // namespace kova::family
