#include "family/business/appointments/agenda.hpp"

namespace kova::family {

std::span<const Method<Agenda>> Agenda::Methods()
{
    static constexpr Method<Agenda> methods[] = {
        {"Selecionar", 8, 8, &Agenda::Selecionar},
        {"PaginarResultadoDaSelecaoEmRecordset", 2, 2, &Agenda::PaginarResultadoDaSelecaoEmRecordset},
        {"Adicionar", 0, 0, &Agenda::Adicionar},
        {"Alterar", 0, 0, &Agenda::Alterar},
        {"Excluir", 0, 0, &Agenda::Excluir},
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
        {"NumeroDeLancamento", nullptr, &Agenda::Take<&Input::number, &Value::ToDouble>},
        {"TipoDoAgendamento", nullptr, &Agenda::Take<&Input::kind, &Value::ToLong>},
        {"Situacao", nullptr, &Agenda::Take<&Input::status, &Value::ToLong>},
        {"AtualizarSomenteOCampoSituacao", nullptr, &Agenda::Take<&Input::onlyStatus, &Value::ToBoolean>},
        {"SituacaoAtual", nullptr, &Agenda::Take<&Input::statusNow, &Value::ToInteger>},
        {"SituacaoNova", nullptr, &Agenda::Take<&Input::statusNew, &Value::ToInteger>},
        {"CodigoDoCliente", nullptr, &Agenda::Take<&Input::customer, &Value::ToDouble>},
        {"CodigoDoAnimal", nullptr, &Agenda::Take<&Input::animal, &Value::ToLong>},
        {"NomeOuRazaoSocialDoCliente", nullptr, &Agenda::Take<&Input::customerName, &Value::ToText>},
        {"CanaisdeComunicacaoDoCliente", nullptr, &Agenda::Take<&Input::customerChannels, &Value::ToText>},
        {"NomeDoAnimal", nullptr, &Agenda::Take<&Input::animalName, &Value::ToText>},
        {"SexoDoAnimal", nullptr, &Agenda::Take<&Input::animalSex, &Value::ToText>},
        {"EspecieDoAnimal", nullptr, &Agenda::Take<&Input::animalSpecies, &Value::ToText>},
        {"RacaDoAnimal", nullptr, &Agenda::Take<&Input::animalBreed, &Value::ToText>},
        {"CorDoAnimal", nullptr, &Agenda::Take<&Input::animalColour, &Value::ToText>},
        {"NumeroDoTipoDeServico", nullptr, &Agenda::Take<&Input::serviceType, &Value::ToLong>},
        {"CodigoDoServico", nullptr, &Agenda::Take<&Input::service, &Value::ToDouble>},
        {"CodigoDoFuncionario", nullptr, &Agenda::Take<&Input::employee, &Value::ToLong>},
        {"DataInicial", nullptr, &Agenda::Take<&Input::startDate, &Value::ToText>},
        {"HoraInicial", nullptr, &Agenda::Take<&Input::startTime, &Value::ToText>},
        {"DataFinal", nullptr, &Agenda::Take<&Input::endDate, &Value::ToText>},
        {"HoraFinal", nullptr, &Agenda::Take<&Input::endTime, &Value::ToText>},
        {"Observacao", nullptr, &Agenda::Take<&Input::remark, &Value::ToText>},
        {"TransporteBuscar", nullptr, &Agenda::Take<&Input::fetch, &Value::ToLong>},
        {"TransporteLevar", nullptr, &Agenda::Take<&Input::take, &Value::ToLong>},
        {"QuantidadeDeReagendamentos", nullptr, &Agenda::Take<&Input::repetitions, &Value::ToLong>},
        {"FrequenciaDeReagendamento", nullptr, &Agenda::Take<&Input::frequency, &Value::ToInteger>},
        {"CriadaListaDasDatasEHorasSelecionadas", nullptr, &Agenda::Take<&Input::picked, &Value::ToBoolean>},
        {"ListaDasDatasEHorasSelecionadas", nullptr, &Agenda::ListaDasDatasEHorasSelecionadas},
        {"DadosValidados", nullptr, &Agenda::Take<&Input::validated, &Value::ToBoolean>},
        {"DomingoOuFeriado", nullptr, &Agenda::Take<&Input::toWorkingDay, &Value::ToBoolean>},
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

void Agenda::ListaDasDatasEHorasSelecionadas(const Value& table)
{
    const ArrayRef rows = table.ToArray();
    input_.pickedRows = rows ? std::make_shared<Array>(*rows) : nullptr;
}

} // namespace kova::family
