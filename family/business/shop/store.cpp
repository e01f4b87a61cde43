#include "family/business/shop/store.hpp"

#include "agenda/contracts/platform.hpp"
#include "family/business/shop/company_selection.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/demo/shop.hpp"

namespace kova::family {

std::span<const Method<Store>> Store::Methods()
{
    static constexpr Method<Store> methods[] = {
        {"Verificar", 0, 0, &Store::Verificar},
        {"Abrir", 0, 0, &Store::Abrir},
        {"Fechar", 0, 0, &Store::Fechar},
        {"CriarDemonstracao", 0, 1, &Store::CriarDemonstracao},
        {"IniciarCopiaDoDia", 1, 1, &Store::IniciarCopiaDoDia},
    };
    return methods;
}

std::span<const Property<Store>> Store::Properties()
{
    static constexpr Property<Store> properties[] = {
        {"Caminho", &Store::Caminho},
        {"Existe", &Store::Existe},
        {"NomeFantasia", &Store::NomeFantasia},
        {"CopiaDoDiaTerminou", &Store::CopiaDoDiaTerminou},
        {"FalhaDaCopiaDoDia", &Store::FalhaDaCopiaDoDia},
        {"NumeroDoErro", &Store::NumeroDoErro},
        {"DescricaoDoErro", &Store::DescricaoDoErro},
        {"LocalDoErro", &Store::LocalDoErro},
    };
    return properties;
}

Value Store::Caminho() const { return Host().DataSource(); }

Value Store::Existe() const { return DataSourceExists(Host().DataSource()); }

Value Store::Verificar(std::span<Argument>)
{
    return Attempt("Verificar", [&] {
        if (const auto refusal = CheckDataSource(Host().DataSource()))
            throw DatabaseFailure(*refusal);
    });
}

Value Store::Abrir(std::span<Argument>)
{
    return Attempt("Abrir", [&] {
        const std::vector<std::string> names = SelectTradeNames(Data());
        tradeName_ = names.empty() ? Text() : names.front();
    });
}

Value Store::Fechar(std::span<Argument>)
{
    LetGo();
    CloseSharedDatabases();
    return Integer(0);
}

Value Store::CriarDemonstracao(std::span<Argument> arguments)
{
    return Attempt("CriarDemonstracao", [&] {
        const Date date = arguments.empty() ? Host().GetPlatform().Clock().Now().date
                                            : RequireDate(arguments[0].Get().ToText());
        CreateShop(Host().DataSource(), DemonstrationPlan(date));
    });
}

Value Store::IniciarCopiaDoDia(std::span<Argument> arguments)
{
    return Attempt("IniciarCopiaDoDia", [&] {
        const Date day = RequireDate(arguments[0].Get().ToText());
        backup_.reset();
        backup_ = std::make_unique<BackgroundBackup>(Host().DataSource(), day);
    });
}

Value Store::CopiaDoDiaTerminou() const { return !backup_ || backup_->HasEnded(); }

Value Store::FalhaDaCopiaDoDia() const { return backup_ ? backup_->Reason() : std::string(); }

} // namespace kova::family
