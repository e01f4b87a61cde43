#include "family/business/customers.hpp"

#include "family/business/customer_record_set.hpp"
#include "family/business/selection_arguments.hpp"

namespace kova::family {

namespace {

/// Positions of the arguments of Selecionar that it looks at.
enum Position { Mode, PageRows, SearchedText = 3, Name, Code, Address };
constexpr std::size_t CountOfArguments = 11;

CustomerFilter FilterOf(std::span<const Argument> arguments)
{
    CustomerFilter filter;
    filter.text = arguments[SearchedText].Get().ToText();
    filter.name = arguments[Name].Get().ToText();
    filter.code = KeyOf(arguments[Code].Get());
    filter.address = arguments[Address].Get().ToText();
    return filter;
}

} // namespace

std::span<const Method<Customers>> Customers::Methods()
{
    static constexpr Method<Customers> methods[] = {
        {"Selecionar", CountOfArguments, CountOfArguments, &Customers::Selecionar}};
    return methods;
}

std::span<const Property<Customers>> Customers::Properties()
{
    static constexpr Property<Customers> properties[] = {
        {"ResultadoDaSelecaoEmRecordSet", &Customers::ResultadoDaSelecaoEmRecordSet},
        {"NumeroDoErro", &Customers::NumeroDoErro},
        {"DescricaoDoErro", &Customers::DescricaoDoErro},
        {"LocalDoErro", &Customers::LocalDoErro},
        {"DadosDoUsuario", nullptr, &Customers::DadosDoUsuario},
    };
    return properties;
}

void Customers::DadosDoUsuario(const Value& user) { RequireUserObject(user); }

Value Customers::Selecionar(std::span<Argument> arguments)
{
    return Select("Selecionar", [&] {
        auto selection =
            std::make_shared<CustomerRecordSet>(SharedData(), SelectCustomers(Data(), FilterOf(arguments)));
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

} // namespace kova::family
