#include "family/users/write_secret.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/users/passwords.hpp"
#include "family/users/tries.hpp"
#include "family/users/user_names.hpp"

namespace kova::family {

void WriteSecret(Database& database, Key user, Nullable<std::string> SecretsRow::*which,
                 const Nullable<std::string>& kept, const Author& author)
{
    SecretsRow secrets = FindByKey<SecretsRow>(database, user).value();
    secrets.*which = kept;
    Update(database, secrets);
    const char* const name = which == &SecretsRow::pin ? "pin" : "senha";
    AuditChange(database, author, SecretsRow::Table, user, {},
                AuditValues().Add(name, std::string(kept.IsNull() ? "retirada" : "definida")));
    const auto account = FindByKey<AccountRow>(database, user);
    ForgetTries(database, DigestOf(FoldUserName(account->nome)));
}

} // namespace kova::family
