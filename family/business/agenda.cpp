#include "family/business/agenda.hpp"

namespace kova::family {

std::span<const Method<Agenda>> Agenda::Methods()
{
    static constexpr Method<Agenda> methods[] = {
        {"Selecionar", 8, 8, &Agenda::Selecionar},
        {"PaginarResultadoDaSelecaoEmRecordset", 2, 2, &Agenda::PaginarResultadoDaSelecaoEmRecordset},
    };
    return methods;
}

std::span<const Property<Agenda>> Agenda::Properties()
{
    static constexpr Property<Agenda> properties[] = {
        {"ResultadoDaSelecaoEmRecordSet", &Agenda::ResultadoDaSelecaoEmRecordSet},
        {"NumeroDoErro", &Agenda::NumeroDoErro},
        {"DescricaoDoErro", &Agenda::DescricaoDoErro},
        {"LocalDoErro", &Agenda::LocalDoErro},
        {"DadosDoUsuario", nullptr, &Agenda::DadosDoUsuario},
    };
    return properties;
}

void Agenda::DadosDoUsuario(const Value& user)
{
    if (user.GetType() != ValueType::Object)
        throw Failure(FailureNumber::TypeMismatch);
    user_ = user.ToObject();
}

} // namespace kova::family
