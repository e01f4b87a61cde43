#include "host/sign_in/user_dialogs.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/user_rows.hpp"
#include "family/users/own_secrets.hpp"
#include "family/users/role_rights.hpp"
#include "host/session/computer_user.hpp"
#include "host/sign_in/door.hpp"
#include "host/sign_in/idle_minutes_dialog.hpp"
#include "host/sign_in/secrets_dialog.hpp"
#include "screens/question.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::host {

namespace {

using family::AccountAnswer;
using family::AccountRow;
using family::Key;
using registers::Desk;

/// Runs what needs the database before anything is asked, and tells what it reports.
void Telling(QWidget& over, const std::function<void()>& act)
{
    try {
        act();
    } catch (const family::DatabaseFailure& failure) {
        screens::ShowWarning(over, qt::Lines(failure.Description()));
    }
}

/// A name that was written down before there were users goes on as the same user.
Key CodeOfFormerName(family::Database& database, const std::string& name)
{
    Key code = 0;
    family::SelectRows<AccountRow>(database, [&](const AccountRow& row) {
        if (code == 0 && row.codigoDoPapel.IsNull() && family::FoldText(row.nome) == family::FoldText(name))
            code = row.codigo;
    });
    return code;
}

/// 0 where no role administers the users.
Key RoleOfAdministrators(family::Database& database)
{
    for (const auto& [role, rights] : family::RightsOfRoles(database)) {
        if (rights.contains(family::Right::AdministerUsers))
            return role;
    }
    return 0;
}

/// The user with whom a shop begins to have users, saved step by step: what is saved stays saved.
struct FirstUser {
    /// 0 before there is one.
    Key code = 0;
    std::string name;
};

std::string SaveFirstUser(const Desk& desk, const SecretsDialog::Typed& typed, FirstUser& first)
{
    family::Database& database = *desk.database;
    const Key former = CodeOfFormerName(database, typed.name);
    const AccountAnswer made =
        family::SaveAccount(database, {former, typed.name, RoleOfAdministrators(database), true},
                            typed.password.get(), desk.author());
    if (made.IsDone())
        first = {made.code, typed.name};
    return made.why;
}

// From then on the shop has users, and this is the only one.
std::string SavePinOf(const FirstUser& first, const Desk& desk, const family::Secret& pin)
{
    family::Author author = desk.author();
    author.code = std::to_string(first.code);
    author.name = first.name;
    try {
        return family::SetPin(*desk.database, first.code, &pin, author).why;
    } catch (const Failure& failure) {
        return failure.Description();
    }
}

std::string BeginWith(const Desk& desk, const SecretsDialog::Typed& typed, FirstUser& first,
                      SecretsDialog& dialog)
{
    if (first.code == 0) {
        if (std::string why = SaveFirstUser(desk, typed, first); !why.empty())
            return why;
    }
    const std::string why = typed.pin ? SavePinOf(first, desk, *typed.pin) : std::string();
    if (why.empty())
        return {};
    dialog.AskOnlyForPin();
    return first.name + " está salvo, com a senha, e a loja já tem usuários. O PIN não foi salvo. " + why
        + "\nTente de novo, ou continue sem ele: Mudar minha senha, no menu, o define depois.";
}

std::string SetSecrets(const Desk& desk, Key user, const SecretsDialog::Typed& typed)
{
    if (typed.password) {
        const auto answer = family::SetPassword(*desk.database, user, *typed.password, desk.author());
        if (!answer.IsDone())
            return answer.why;
    }
    if (!typed.pin && !typed.removesPin)
        return {};
    return family::SetPin(*desk.database, user, typed.pin.get(), desk.author()).why;
}

registers::ActionResult AskForSecrets(const registers::ActionTarget& target)
{
    const auto account = family::FindByKey<AccountRow>(*target.desk.database, target.key);
    const QString name = account ? QString::fromStdString(account->nome) : QString();
    SecretsDialog dialog(
        {.title = QStringLiteral("Senha e PIN: ") + name,
         .explanation = QStringLiteral("O que fica em branco continua como está. Quem tentou "
                                       "senhas erradas não precisa mais esperar."),
         .mayRemovePin = true},
        [&](const SecretsDialog::Typed& typed) { return SetSecrets(target.desk, target.key, typed); },
        &target.over);
    const bool isSaved = dialog.exec() == QDialog::Accepted;
    return {target.key, isSaved ? QStringLiteral("Salvo.") : QString()};
}

} // namespace

void ChangeMySecrets(Door& door, QWidget& over)
{
    Telling(over, [&] {
        const Desk desk = door.OpenDesk();
        const auto save = [&](const SecretsDialog::Typed& typed) {
            return family::ChangeOwnSecrets(*desk.database, *typed.current,
                                            {typed.password.get(), typed.pin.get(), typed.removesPin},
                                            desk.author(), door.GetClock())
                .why;
        };
        SecretsDialog dialog(
            {.title = QStringLiteral("Mudar minha senha"),
             .explanation = QString::fromStdString(desk.author().name)
                 + QStringLiteral(": a senha e o PIN são só seus. O que fica em branco continua como está."),
             .asksForCurrent = true,
             .mayRemovePin = true},
            save, &over);
        dialog.exec();
    });
}

void BeginWithUsers(Door& door, QWidget& over)
{
    Telling(over, [&] {
        const Desk desk = door.OpenDesk();
        FirstUser first;
        SecretsDialog* asking = nullptr;
        SecretsDialog dialog(
            {.title = QStringLiteral("Começar a usar usuários"),
             .explanation = QStringLiteral(
                 "O primeiro usuário administra a loja: pode fazer tudo, e cadastra os outros em Cadastros, "
                 "Usuários. A partir de agora só entra na loja quem tem um usuário com senha, em todos os "
                 "postos, e o que cada um grava fica com o nome dele."),
             .password = SecretFields::Password::Required,
             .name = NameOfThisUser()},
            [&](const SecretsDialog::Typed& typed) { return BeginWith(desk, typed, first, *asking); }, &over);
        asking = &dialog;
        dialog.exec();
        if (first.code != 0)
            door.BeginWithUsers(first.code, first.name);
    });
}

void AskForIdleMinutes(Door& door, QWidget& over) { IdleMinutesDialog(door, &over).exec(); }

registers::RecordAction SecretsAction()
{
    return {"usuarios", QStringLiteral("&Senha e PIN..."), AskForSecrets};
}

} // namespace kova::host
