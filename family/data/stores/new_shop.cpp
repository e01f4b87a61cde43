#include "family/data/stores/new_shop.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/data/rows/user_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/national_holidays.hpp"

namespace kova::family {

namespace {

/// In the order of their numbers; those before the last are clinical.
constexpr const char* ServiceTypes[] = {"Consulta", "Retorno", "Vacinação", "Banho e tosa"};

constexpr const char* Species[] = {"Canina", "Felina"};
constexpr const char* AnyBreed = "Sem raça definida";

CompanyRow CompanyOf(const NewShop& shop)
{
    CompanyRow company = shop.company;
    if (company.razaoSocial.empty())
        company.razaoSocial = company.nomeFantasia;
    return company;
}

EmployeeRow EmployeeOf(const NewShop& shop)
{
    const std::string& name = shop.nameOfEmployee.empty() ? shop.employee : shop.nameOfEmployee;
    return {0, shop.employee, name, FoldText(name)};
}

/// The one that administers the users, of those that any new database has.
Key RoleOfAdministrators(Database& database)
{
    Key role = 0;
    database.Session() << "select codigo_do_papel from papel_direito where direito = 'usuarios.administrar'",
        soci::into(role);
    return role;
}

Nullable<std::string> KeptOf(const std::string& kept)
{
    return kept.empty() ? Nullable<std::string>() : Nullable(kept);
}

void AddFirstUser(Database& database, const NewShop& shop)
{
    AccountRow account;
    account.nome = shop.user;
    if (!shop.password.empty())
        account.codigoDoPapel = RoleOfAdministrators(database);
    const Key code = InsertNew(database, account);
    if (!shop.password.empty())
        Update(database, SecretsRow{code, KeptOf(shop.password), KeptOf(shop.pin)});
}

/// In the place of the hours that any new database has.
void SetHours(Database& database, const std::vector<OpeningHoursRow>& hours)
{
    if (hours.empty())
        return;
    database.Session() << std::string("delete from ") + OpeningHoursRow::Table;
    for (const OpeningHoursRow& row : hours)
        InsertNew(database, row);
}

// The engine numbers the rows, so that its numbers go on behind them.
void Fill(Database& database, const NewShop& shop)
{
    if (!shop.company.nomeFantasia.empty())
        InsertNew(database, CompanyOf(shop));
    AddFirstUser(database, shop);
    InsertNew(database, EmployeeOf(shop));
    for (const char* name : ServiceTypes)
        InsertNew(database, ServiceTypeRow{0, name, FoldText(name)});
    for (ServiceRow service : shop.services) {
        service.nomeDeBusca = FoldText(service.nome);
        InsertNew(database, service);
    }
    for (const char* name : Species) {
        const Key species = InsertNew(database, SpeciesRow{0, name, FoldText(name)});
        InsertNew(database, BreedRow{0, species, AnyBreed, FoldText(AnyBreed)});
    }
    SetHours(database, shop.openingHours);
    for (const HolidayRow& holiday : NationalHolidays(FirstHolidayYear, LastHolidayYear))
        InsertNew(database, holiday);
}

} // namespace

void CreateNewShop(const std::string& source, const NewShop& shop)
{
    CreateDatabase(source, [&](Database& database) { Fill(database, shop); });
}

} // namespace kova::family
