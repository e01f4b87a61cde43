#include "tests/unit/family/business/appointments/record_form.hpp"

namespace kova::family::test {

namespace {

void SetCustomerAndAnimal(Component& agenda, const RecordSet& record)
{
    agenda.Set("TipoDoAgendamento", Long(0));
    agenda.Set("CodigoDoCliente", record.Field("CodigoDoCliente"));
    agenda.Set("CodigoDoAnimal", record.Field("CodigoDoAnimal"));
    for (const char* transport : {"TransporteBuscar", "TransporteLevar"})
        agenda.Set(transport, Long(record.Field(transport) == Value("Sim") ? -1 : 0));
}

void SetTexts(Component& agenda, const RecordSet& record)
{
    constexpr std::pair<const char*, const char*> FieldsOfMembers[] = {
        {"NomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente"},
        {"CanaisdeComunicacaoDoCliente", "TiposECanaisDeComunicacao"},
        {"NomeDoAnimal", "NomeDoAnimal"},
        {"SexoDoAnimal", "SexoDoAnimal"},
        {"EspecieDoAnimal", "NomeDaEspecie"},
        {"RacaDoAnimal", "NomeDaRaca"},
        {"CorDoAnimal", "CorDoAnimal"},
    };
    agenda.Set("TipoDoAgendamento", Long(1));
    for (const auto& [member, field] : FieldsOfMembers)
        agenda.Set(member, record.Field(field));
}

} // namespace

void GoTo(RecordSet& records, Key number)
{
    for (records.MoveFirst(); static_cast<Key>(records.Field("NumeroDeLancamento").ToDouble()) != number;)
        records.MoveNext();
}

void SetFromRecord(Component& agenda, const RecordSet& record)
{
    for (const char* same :
         {"NumeroDeLancamento", "Situacao", "CodigoDoFuncionario", "DataInicial", "HoraInicial", "DataFinal",
          "HoraFinal", "CodigoDoServico", "NumeroDoTipoDeServico"})
        agenda.Set(same, record.Field(same));
    const Value remark = record.Field("Observacao");
    agenda.Set("Observacao", remark.IsNull() ? Value("") : remark);
    if (record.Field("CodigoDoCliente") == Value(""))
        SetTexts(agenda, record);
    else
        SetCustomerAndAnimal(agenda, record);
}

} // namespace kova::family::test
