#include "family/business/shop/company.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "family/business/shop/company_selection.hpp"

namespace kova::family {

std::span<const Method<Company>> Company::Methods()
{
    static constexpr Method<Company> methods[] = {{"SelecionarNova", 4, 4, &Company::SelecionarNova}};
    return methods;
}

std::span<const Property<Company>> Company::Properties() { return SelectionProperties<Company>; }

Value Company::SelecionarNova(std::span<Argument>)
{
    return Select("SelecionarNova", [&] {
        std::vector<std::vector<Value>> rows;
        for (const Text& name : SelectTradeNames(Data()))
            rows.push_back({name});
        return std::make_shared<MemoryRecordSet>(std::vector<Text>{"NomeFantasia"}, rows);
    });
}

} // namespace kova::family
