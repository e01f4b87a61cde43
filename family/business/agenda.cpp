#include "family/business/agenda.hpp"

namespace kova::family {

std::span<const Method<Agenda>> Agenda::Methods()
{
    static constexpr Method<Agenda> methods[] = {
        {"Selecionar", 8, 8, &Agenda::Selecionar},
        {"PaginarResultadoDaSelecaoEmRecordset", 2, 2, &Agenda::PaginarResultadoDaSelecaoEmRecordset},
        {"Alterar", 0, 0, &Agenda::Alterar},
        {"AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", 0, 1,
         &Agenda::AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa},
    };
    return methods;
}

std::span<const Property<Agenda>> Agenda::Properties()
{
    using Input = AppointmentInput;
    static constexpr Property<Agenda> properties[] = {
        {"ResultadoDaSelecaoEmRecordSet", &Agenda::ResultadoDaSelecaoEmRecordSet},
        {"NumeroDoErro", &Agenda::NumeroDoErro},
        {"DescricaoDoErro", &Agenda::DescricaoDoErro},
        {"LocalDoErro", &Agenda::LocalDoErro},
        {"DescricaoDaFalha", &Agenda::DescricaoDaFalha},
        {"NomeDoCampoValidado", &Agenda::NomeDoCampoValidado},
        {"RegistroPercenteAUmPacoteDeBanhoETosa", &Agenda::RegistroPercenteAUmPacoteDeBanhoETosa},
        {"DadosDoUsuario", nullptr, &Agenda::DadosDoUsuario},
        {"AtualizarSomenteOCampoSituacao", nullptr, &Agenda::Take<&Input::onlyStatus, &Value::ToBoolean>},
        {"NumeroDeLancamento", nullptr, &Agenda::Take<&Input::number, &Value::ToDouble>},
        {"SituacaoAtual", nullptr, &Agenda::Take<&Input::statusNow, &Value::ToInteger>},
        {"SituacaoNova", nullptr, &Agenda::Take<&Input::statusNew, &Value::ToInteger>},
        {"CodigoDoCliente", nullptr, &Agenda::Take<&Input::customer, &Value::ToDouble>},
        {"CodigoDoAnimal", nullptr, &Agenda::Take<&Input::animal, &Value::ToLong>},
        {"NumeroDoTipoDeServico", nullptr, &Agenda::Take<&Input::serviceType, &Value::ToLong>},
        {"CodigoDoServico", nullptr, &Agenda::Take<&Input::service, &Value::ToDouble>},
        {"CodigoDoFuncionario", nullptr, &Agenda::Take<&Input::employee, &Value::ToLong>},
        {"DataInicial", nullptr, &Agenda::Take<&Input::startDate, &Value::ToText>},
    };
    return properties;
}

/// A dropped reference is taken too: the write that needs a user then says that there is none.
void Agenda::DadosDoUsuario(const Value& user)
{
    if (user.GetType() != ValueType::Object)
        throw Failure(FailureNumber::TypeMismatch);
    user_ = user.HeldObject();
}

} // namespace kova::family
