#include "family/business/shop/database_component.hpp"

#include "agenda/contracts/platform.hpp"
#include "family/business/shop/company_selection.hpp"
#include "family/data/audit/own_lines.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/demo/fictional_shop.hpp"
#include "family/demo/shop.hpp"
#include "family/users/user_rights.hpp"

namespace kova::family {

namespace {

Text Told(const MigrationReport& report)
{
    if (report.before == report.after)
        return {};
    return "A loja foi atualizada da versão " + std::to_string(report.before) + " para a versão "
        + std::to_string(report.after) + " do banco de dados. Antes disso ela foi copiada para \""
        + report.copy + "\". Programas anteriores a este já não a abrem.";
}

} // namespace

std::span<const Method<DatabaseComponent>> DatabaseComponent::Methods()
{
    static constexpr Method<DatabaseComponent> methods[] = {
        {"GravouALinha", 3, 3, &DatabaseComponent::GravouALinha},
        {"Verificar", 0, 0, &DatabaseComponent::Verificar},
        {"Abrir", 0, 0, &DatabaseComponent::Abrir},
        {"Fechar", 0, 0, &DatabaseComponent::Fechar},
        {"CriarDemonstracao", 0, 1, &DatabaseComponent::CriarDemonstracao},
        {"IniciarCopiaDoDia", 1, 1, &DatabaseComponent::IniciarCopiaDoDia},
    };
    return methods;
}

std::span<const Property<DatabaseComponent>> DatabaseComponent::Properties()
{
    static constexpr Property<DatabaseComponent> properties[] = {
        {"Caminho", &DatabaseComponent::Caminho},
        {"Existe", &DatabaseComponent::Existe},
        {"NomeFantasia", &DatabaseComponent::NomeFantasia},
        {"Atualizacao", &DatabaseComponent::Atualizacao},
        {"TemUsuarios", &DatabaseComponent::TemUsuarios},
        {"Demonstracao", &DatabaseComponent::Demonstracao},
        {"OcultarPrecos", nullptr, &DatabaseComponent::OcultarPrecos},
        {"CopiaDoDiaTerminou", &DatabaseComponent::CopiaDoDiaTerminou},
        {"FalhaDaCopiaDoDia", &DatabaseComponent::FalhaDaCopiaDoDia},
        {"NumeroDoErro", &DatabaseComponent::NumeroDoErro},
        {"DescricaoDoErro", &DatabaseComponent::DescricaoDoErro},
        {"LocalDoErro", &DatabaseComponent::LocalDoErro},
    };
    return properties;
}

Value DatabaseComponent::Caminho() const { return Host().DataSource(); }

Value DatabaseComponent::Existe() const { return DataSourceExists(Host().DataSource()); }

void DatabaseComponent::OcultarPrecos(const Value& value)
{
    HidePrices(Host().DataSource(), value.ToBoolean());
}

Value DatabaseComponent::GravouALinha(std::span<Argument> arguments)
{
    return IsOwnLine(Data().Path(),
                     {static_cast<Key>(arguments[0].Get().ToDouble()), arguments[1].Get().ToText(),
                      static_cast<Key>(arguments[2].Get().ToDouble())});
}

Value DatabaseComponent::Verificar(std::span<Argument>)
{
    return Attempt("Verificar", [&] {
        if (const auto refusal = CheckDataSource(Host().DataSource()))
            throw DatabaseFailure(*refusal);
    });
}

Value DatabaseComponent::Abrir(std::span<Argument>)
{
    return Attempt("Abrir", [&] {
        const std::vector<std::string> names = SelectTradeNames(Data());
        tradeName_ = names.empty() ? Text() : names.front();
        update_ = Told(TakeMigrationReport(Host().DataSource()));
        hasUsers_ = HasUsers(Data());
        isFictional_ = IsFictional(Data());
    });
}

Value DatabaseComponent::Fechar(std::span<Argument>)
{
    LetGo();
    CloseSharedDatabases();
    return Integer(0);
}

Value DatabaseComponent::CriarDemonstracao(std::span<Argument> arguments)
{
    return Attempt("CriarDemonstracao", [&] {
        const Date date = arguments.empty() ? Host().GetPlatform().Clock().Now().date
                                            : RequireDate(arguments[0].Get().ToText());
        CreateShop(Host().DataSource(), DemonstrationPlan(date));
    });
}

Value DatabaseComponent::IniciarCopiaDoDia(std::span<Argument> arguments)
{
    return Attempt("IniciarCopiaDoDia", [&] {
        const Date day = RequireDate(arguments[0].Get().ToText());
        backup_.reset();
        backup_ = std::make_unique<BackgroundBackup>(Host().DataSource(), day);
    });
}

Value DatabaseComponent::CopiaDoDiaTerminou() const { return !backup_ || backup_->HasEnded(); }

Value DatabaseComponent::FalhaDaCopiaDoDia() const { return backup_ ? backup_->Reason() : std::string(); }

} // namespace kova::family
