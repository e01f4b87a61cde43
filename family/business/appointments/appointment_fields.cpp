#include "family/business/appointments/appointment_fields.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "family/business/clean_text.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/register_names.hpp"

namespace kova::family {

namespace {

using Input = AppointmentInput;

template <auto... Members>
constexpr AppointmentField Field(const char* caption, std::string (*show)(Database&, const Input&))
{
    return {caption,
            [](const Input& one, const Input& other) { return ((one.*Members == other.*Members) && ...); },
            [](Input& to, const Input& from) { ((to.*Members = from.*Members), ...); }, show};
}

template <auto Member> constexpr AppointmentField TextField(const char* caption)
{
    return Field<Member>(caption, [](Database&, const Input& input) { return std::string(input.*Member); });
}

template <auto Member> constexpr AppointmentField Transport(const char* caption)
{
    return Field<Member>(caption, [](Database&, const Input& input) { return YesOrNo(input.*Member != 0); });
}

std::string CustomerAndAnimal(Database& database, const Input& input)
{
    if (input.IsSimplified())
        return "sem cadastro";
    return NamedCustomer(database, KeyOf(input.customer)) + ", " + NamedAnimal(database, input.animal);
}

std::string TypeAndService(Database& database, const Input& input)
{
    return NamedServiceType(database, input.serviceType) + ", "
        + NamedService(database, KeyOf(input.service));
}

std::string StartAndEnd(Database&, const Input& input)
{
    return input.startDate + " " + input.startTime + " a " + input.endDate + " " + input.endTime;
}

constexpr AppointmentField Fields[] = {
    Field<&Input::kind, &Input::customer, &Input::animal>("Cliente e animal", CustomerAndAnimal),
    TextField<&Input::customerName>("Nome ou razão social"),
    TextField<&Input::customerChannels>("Canais de comunicação"),
    TextField<&Input::animalName>("Nome do animal"),
    TextField<&Input::animalSex>("Sexo"),
    TextField<&Input::animalSpecies>("Espécie"),
    TextField<&Input::animalBreed>("Raça"),
    TextField<&Input::animalColour>("Cor"),
    Field<&Input::serviceType, &Input::service>("Serviço", TypeAndService),
    Field<&Input::startDate, &Input::startTime, &Input::endDate, &Input::endTime>("Data e hora", StartAndEnd),
    Field<&Input::employee>(
        "Funcionário(a)",
        [](Database& database, const Input& input) { return NamedEmployee(database, input.employee); }),
    TextField<&Input::remark>("Observação"),
    Transport<&Input::fetch>("Buscar"),
    Transport<&Input::take>("Levar"),
    Field<&Input::status>("Situação",
                          [](Database&, const Input& input) { return ShownStatus(input.status); }),
};

/// What cannot be read stays as it was typed; a check will refuse it.
Text Date(const Text& typed)
{
    const auto date = ParseDate(Trim(typed));
    return date ? FormatDate(*date) : typed;
}

Text Time(const Text& typed)
{
    const auto time = ParseTime(Trim(typed));
    return time ? FormatTime(*time) : typed;
}

void ClearTexts(Input& input)
{
    for (Text* text : {&input.customerName, &input.customerChannels, &input.animalName, &input.animalSex,
                       &input.animalSpecies, &input.animalBreed, &input.animalColour})
        text->clear();
}

void CleanTexts(Input& input)
{
    for (Text* text : {&input.customerName, &input.animalName})
        *text = CleanText(*text, Input::WidthOfName);
    for (Text* text : {&input.customerChannels, &input.animalSex, &input.animalSpecies, &input.animalBreed,
                       &input.animalColour})
        *text = CleanText(*text, Input::WidthOfText);
    input.animalSex = ShownSex(input.animalSex);
}

} // namespace

std::span<const AppointmentField> AppointmentFields() { return Fields; }

AppointmentInput InputOf(const AppointmentRow& row)
{
    Input input;
    input.number = static_cast<Double>(row.numero);
    input.kind = row.tipoDoAgendamento;
    input.status = row.situacao;
    input.serviceType = static_cast<Long>(row.numeroDoTipoDeServico);
    input.service = static_cast<Double>(row.codigoDoServico);
    input.employee = static_cast<Long>(row.codigoDoFuncionario);
    input.startDate = ShownDate(row.dataInicial);
    input.startTime = row.horaInicial;
    input.endDate = ShownDate(row.dataFinal);
    input.endTime = row.horaFinal;
    input.remark = row.observacao.ValueOr("");
    input.customer = static_cast<Double>(row.codigoDoCliente.ValueOr(0));
    input.animal = static_cast<Long>(row.codigoDoAnimal.ValueOr(0));
    input.fetch = row.transporteBuscar;
    input.take = row.transporteLevar;
    input.customerName = row.nomeDoCliente;
    input.customerChannels = row.canaisDoCliente;
    input.animalName = row.nomeDoAnimal;
    input.animalSex = row.sexoDoAnimal;
    input.animalSpecies = row.especieDoAnimal;
    input.animalBreed = row.racaDoAnimal;
    input.animalColour = row.corDoAnimal;
    return input;
}

AppointmentInput Comparable(AppointmentInput input)
{
    input.startDate = Date(input.startDate);
    input.startTime = Time(input.startTime);
    input.endDate = Date(input.endDate);
    input.endTime = Time(input.endTime);
    input.remark = CleanText(input.remark, Input::WidthOfRemark);
    if (input.IsSimplified()) {
        input.customer = 0;
        input.animal = input.fetch = input.take = 0;
        CleanTexts(input);
    } else {
        input.kind = 0;
        input.fetch = input.fetch != 0 ? 1 : 0;
        input.take = input.take != 0 ? 1 : 0;
        ClearTexts(input);
    }
    return input;
}

} // namespace kova::family
