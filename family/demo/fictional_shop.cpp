#include "family/demo/fictional_shop.hpp"

#include "family/data/checks/documents.hpp"
#include "family/data/rows/find_by_key.hpp"

namespace kova::family {

CompanyRow FictionalCompany()
{
    return {1,
            "Pet Shop Amigo Fiel",
            "Amigo Fiel Serviços para Animais Ltda.",
            WithCnpjCheckDigits("999999990001"),
            "Avenida das Hortênsias, 1200 - Centro - Vale Sereno/SP",
            "(11) 90100-0000"};
}

bool IsFictional(Database& database)
{
    const CompanyRow fictional = FictionalCompany();
    const auto company = FindByKey<CompanyRow>(database, fictional.codigo);
    return company && company->cnpj == fictional.cnpj && company->razaoSocial == fictional.razaoSocial;
}

} // namespace kova::family
