#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/user_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"
#include "family/users/user_names.hpp"
#include "host/session/computer_user.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/password.hpp"
#include "tools/agenda-data/told_migration.hpp"

#include <optional>

namespace kova::data {

namespace {

/// Of those who have a role.
std::optional<family::AccountRow> UserNamed(family::Database& database, const std::string& name)
{
    const std::string folded = family::FoldUserName(name);
    std::optional<family::AccountRow> user;
    family::SelectRows<family::AccountRow>(database, [&](const family::AccountRow& row) {
        if (!row.codigoDoPapel.IsNull() && family::FoldUserName(row.nome) == folded)
            user = row;
    });
    return user;
}

int Run(const Call& call, Surroundings& surroundings)
{
    const std::string name = call.Option("--user").value_or("");
    if (name.empty())
        call.Refuse("Informe com --user de quem é a senha.");
    BringFileUpToDate(call.Operand(0), surroundings.error);
    const std::shared_ptr<family::Database> database = family::OpenDatabase(call.Operand(0));
    const auto user = UserNamed(*database, name);
    if (!user) {
        surroundings.error << "Não há usuário com papel que se chame \"" << name << "\" nesta loja.\n";
        return 1;
    }
    const auto password = NewPassword(surroundings);
    if (!password)
        return 1;
    family::Author author = AuthorOf(call, surroundings);
    author.name = host::NameOfThisUser();
    const auto answer = family::SetPassword(*database, user->codigo, *password, author);
    if (!answer.IsDone()) {
        surroundings.error << answer.why << "\n";
        return 1;
    }
    surroundings.output << "Senha definida: " << user->nome << "\n";
    if (!user->IsActive())
        surroundings.output << "O usuário está inativo e não entra enquanto estiver.\n";
    return 0;
}

} // namespace

const Command ResetPasswordCommand{
    {"reset-password",
     "Dá uma senha nova a um usuário, para quem perdeu a sua e não tem a quem pedir. A\n"
     "senha é digitada duas vezes, ou é a primeira linha da entrada padrão; nunca uma\n"
     "palavra da linha de comando. Quem a deu, quando e em que posto fica na auditoria.",
     {"BANCO"},
     {{"--user", "NOME", "De quem é a senha."}}},
    Run,
};

} // namespace kova::data
