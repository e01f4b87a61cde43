#include "family/business/registers/customers.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "family/business/fetched_record_set.hpp"
#include "family/business/selection_arguments.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/selections/customer_address.hpp"
#include "family/data/selections/customer_selection.hpp"

#include <iterator>

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

using Row = FoundCustomerOf<std::string_view>;

constexpr KeptField<FoundCustomerOf> Fields[] = {
    {"CodigoDoCliente", [](const Row& row) { return Value(static_cast<Double>(row.codigo)); }},
    {"ApelidoOuNomeFantasia", [](const Row& row) { return Value(row.apelido); }},
    {"NomeOuRazaoSocial", [](const Row& row) { return Value(row.nome); }},
    {"Situacao", [](const Row& row) { return Value(static_cast<Long>(row.situacao)); }},
    {"EnderecoCompleto", [](const Row& row) { return Value(row.enderecoCompleto); }},
    {"TiposECanaisDeComunicacao", [](const Row& row) { return Value(row.tiposECanais); }},
    {"VIP", [](const Row& row) { return Value(YesOrNo(row.vip != 0)); }},
    {"CategoriaDaCurvaABC", [](const Row& row) { return Value(row.categoriaDaCurvaABC); }},
};

constexpr const char* AddressFields[] = {"CodigoDoCliente",
                                         "ApelidoOuNomeFantasia",
                                         "NomeOuRazaoSocial",
                                         "Situacao",
                                         "Logradouro",
                                         "Numero",
                                         "Complemento",
                                         "Bairro",
                                         "Cidade",
                                         "UF",
                                         "CEP"};

std::vector<Value> RowOf(const CustomerAddress& customer)
{
    return {static_cast<Double>(customer.codigo),
            customer.apelido,
            customer.nome,
            static_cast<Long>(customer.situacao),
            customer.logradouro,
            customer.numero,
            customer.complemento,
            customer.bairro,
            customer.cidade,
            customer.uf,
            customer.cep};
}

} // namespace

std::span<const Method<Customers>> Customers::Methods()
{
    static constexpr Method<Customers> methods[] = {
        {"Selecionar", CountOfArguments, CountOfArguments, &Customers::Selecionar},
        {"SelecionarEndereco", 1, 1, &Customers::SelecionarEndereco}};
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
        std::vector<Key> codes = SelectCustomers(Data(), FilterOf(arguments));
        auto selection = std::make_shared<FetchedRecordSet<FoundCustomerOf>>(Fields, FetchCustomers,
                                                                             SharedData(), std::move(codes));
        selection->PageSize(RowsOfPage(arguments, selection->RecordCount()));
        return selection;
    });
}

Value Customers::SelecionarEndereco(std::span<Argument> arguments)
{
    return Select("SelecionarEndereco", [&] {
        std::vector<std::vector<Value>> rows;
        if (const auto customer = FindByKey<CustomerAddress>(Data(), KeyOf(arguments[0].Get())))
            rows.push_back(RowOf(*customer));
        return std::make_shared<MemoryRecordSet>(
            std::vector<Text>(std::begin(AddressFields), std::end(AddressFields)), rows);
    });
}

} // namespace kova::family
