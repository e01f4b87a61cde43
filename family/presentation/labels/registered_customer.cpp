#include "family/presentation/labels/registered_customer.hpp"

namespace kova::family {

namespace {

RegisteredCustomer CustomerOf(const RecordSet& row)
{
    const auto text = [&](const char* field) { return row.Field(field).ToText(); };
    return {.address = {.nickname = text("ApelidoOuNomeFantasia"),
                        .name = text("NomeOuRazaoSocial"),
                        .street = text("Logradouro"),
                        .number = text("Numero"),
                        .complement = text("Complemento"),
                        .district = text("Bairro"),
                        .town = text("Cidade"),
                        .state = text("UF"),
                        .postalCode = text("CEP")},
            .situation = row.Field("Situacao").ToLong()};
}

} // namespace

std::optional<RegisteredCustomer> FindCustomer(ComponentService& components, const Value& user, Double code)
{
    const ComponentRef customers = components.CreateObject("KOVA_N_ClientAnim.clsClientes");
    customers->Set("DadosDoUsuario", user);
    if (customers->Call("SelecionarEndereco", {code}).ToInteger() != 0)
        throw BusinessFailure(
            Failure(customers->Get("NumeroDoErro").ToLong(), customers->Get("DescricaoDoErro").ToText()),
            customers->Get("LocalDoErro").ToText());
    const auto found = customers->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
    if (found->RecordCount() == 0)
        return std::nullopt;
    return CustomerOf(*found);
}

} // namespace kova::family
