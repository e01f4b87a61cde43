#include "family/demo/fictional_shop.hpp"

#include "family/data/checks/documents.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/setting_row.hpp"

namespace kova::family {

namespace {

constexpr const char* Yes = "sim";

} // namespace

CompanyRow FictionalCompany()
{
    return {1,
            "Pet Shop Amigo Fiel",
            "Amigo Fiel Serviços para Animais Ltda.",
            WithCnpjCheckDigits("999999990001"),
            "Avenida das Hortênsias, 1200 - Centro - Vale Sereno/SP",
            "(11) 90100-0000"};
}

void MarkAsFictional(Database& database) { InsertNew(database, SettingRow{0, setting::Demonstration, Yes}); }

bool IsFictional(Database& database)
{
    bool isMarked = false;
    SelectRows<SettingRow>(database, [&](const SettingRow& row) {
        isMarked = isMarked || (row.nome == setting::Demonstration && row.valor == Yes);
    });
    const CompanyRow fictional = FictionalCompany();
    const auto company = FindByKey<CompanyRow>(database, fictional.codigo);
    return isMarked && company && company->cnpj == fictional.cnpj
        && company->razaoSocial == fictional.razaoSocial;
}

} // namespace kova::family
