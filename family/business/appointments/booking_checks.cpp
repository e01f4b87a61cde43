#include "family/business/appointments/booking.hpp"
#include "family/business/appointments/repetition.hpp"
#include "family/business/clean_text.hpp"
#include "family/business/merged_row_text.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/stores/appointment_status.hpp"

#include <span>

namespace kova::family {

namespace {

using BookingCheck = Refusal (*)(Booking&);

Refusal CustomerIsUsable(Booking& booking);
Refusal CustomerHasAName(Booking& booking);
Refusal AnimalIsOfCustomer(Booking& booking);
Refusal AnimalHasAName(Booking& booking);
Refusal ServiceTypeIsKnown(Booking& booking);
Refusal ServiceIsOfThatType(Booking& booking);
Refusal TimesArePossible(Booking& booking);
Refusal EmployeeIsActive(Booking& booking);
Refusal StatusIsKnown(Booking& booking);

/// What a booking has to pass, in this order. Beside each check stand the fields that its refusal names.
constexpr BookingCheck ChecksOfFullRecord[] = {
    /* 1. CodigoDoCliente           */ CustomerIsUsable,
    /* 2. CodigoDoAnimal            */ AnimalIsOfCustomer,
    /* 3. NumeroDoTipoDeServico     */ ServiceTypeIsKnown,
    /* 4. CodigoDoServico           */ ServiceIsOfThatType,
    /* 5. DataInicial ... HoraFinal */ TimesArePossible,
    /* 6. CodigoDoFuncionario       */ EmployeeIsActive,
    /* 7. Situacao                  */ StatusIsKnown,
    /* 8. HoraInicial               */ EmployeeIsAtWork,
    /* 9. HoraInicial               */ EmployeeHasRoom,
    /* 10. DomingoOuFeriado         */ NoDayIsFree,
    /* 11. DataInicial              */ DaysOffMoveAway,
};

constexpr BookingCheck ChecksOfSimplifiedRecord[] = {
    /* 1. NomeOuRazaoSocialDoCliente */ CustomerHasAName,
    /* 2. NomeDoAnimal               */ AnimalHasAName,
    /* 3. NumeroDoTipoDeServico      */ ServiceTypeIsKnown,
    /* 4. CodigoDoServico            */ ServiceIsOfThatType,
    /* 5. DataInicial ... HoraFinal  */ TimesArePossible,
    /* 6. CodigoDoFuncionario        */ EmployeeIsActive,
    /* 7. Situacao                   */ StatusIsKnown,
    /* 8. HoraInicial                */ EmployeeIsAtWork,
    /* 9. HoraInicial                */ EmployeeHasRoom,
};

/// Which row goes on in the place of the one that was chosen; `usual` where none does.
template <class Row> Text TextForMissing(Booking& booking, Key key, const char* usual)
{
    const Text merged = key == 0 ? Text() : MergedText<Row>(booking.database, key);
    return merged.empty() ? Text(usual) : merged;
}

Refusal CustomerIsUsable(Booking& booking)
{
    const auto& customer = booking.registers.customer;
    if (!customer)
        return WriteAnswer::InvalidField(
            "CodigoDoCliente",
            TextForMissing<CustomerRow>(booking, KeyOf(booking.input.customer), "Informe o cliente."));
    if (!customer->IsUsable())
        return WriteAnswer::InvalidField("CodigoDoCliente", "O cliente informado não está ativo.");
    booking.row.codigoDoCliente = customer->code;
    return std::nullopt;
}

Refusal CustomerHasAName(Booking& booking)
{
    booking.row.nomeDoCliente = CleanText(booking.input.customerName, AppointmentInput::WidthOfName);
    if (booking.row.nomeDoCliente.empty())
        return WriteAnswer::InvalidField("NomeOuRazaoSocialDoCliente",
                                         "Informe o nome ou a razão social do cliente.");
    booking.row.canaisDoCliente = CleanText(booking.input.customerChannels, AppointmentInput::WidthOfText);
    return std::nullopt;
}

Refusal AnimalIsOfCustomer(Booking& booking)
{
    const auto& animal = booking.registers.animal;
    if (!animal)
        return WriteAnswer::InvalidField(
            "CodigoDoAnimal",
            TextForMissing<AnimalRow>(booking, booking.input.animal, "Selecione o animal."));
    if (animal->customer != booking.row.codigoDoCliente.value)
        return WriteAnswer::InvalidField("CodigoDoAnimal", "Selecione o animal.");
    booking.row.codigoDoAnimal = animal->code;
    return std::nullopt;
}

Refusal AnimalHasAName(Booking& booking)
{
    const AppointmentInput& input = booking.input;
    booking.row.nomeDoAnimal = CleanText(input.animalName, AppointmentInput::WidthOfName);
    if (booking.row.nomeDoAnimal.empty())
        return WriteAnswer::InvalidField("NomeDoAnimal", "Informe o nome do animal.");
    booking.row.sexoDoAnimal = CleanText(input.animalSex, AppointmentInput::WidthOfText);
    booking.row.especieDoAnimal = CleanText(input.animalSpecies, AppointmentInput::WidthOfText);
    booking.row.racaDoAnimal = CleanText(input.animalBreed, AppointmentInput::WidthOfText);
    booking.row.corDoAnimal = CleanText(input.animalColour, AppointmentInput::WidthOfText);
    return std::nullopt;
}

Refusal ServiceTypeIsKnown(Booking& booking)
{
    const auto& type = booking.registers.serviceType;
    if (!type)
        return WriteAnswer::InvalidField("NumeroDoTipoDeServico", "Selecione o tipo de serviço.");
    booking.row.numeroDoTipoDeServico = type->number;
    return std::nullopt;
}

Refusal ServiceIsOfThatType(Booking& booking)
{
    const auto& service = booking.registers.service;
    if (!service || !service->IsActive())
        return WriteAnswer::InvalidField("CodigoDoServico", "Informe o serviço.");
    if (service->type != booking.row.numeroDoTipoDeServico)
        return WriteAnswer::InvalidField("CodigoDoServico", "O serviço informado não é do tipo selecionado.");
    booking.service = *service;
    booking.row.codigoDoServico = service->code;
    return std::nullopt;
}

Refusal PickedTimesArePossible(Booking& booking)
{
    for (const TypedTimes& row : PickedTimes(booking.input.pickedRows)) {
        if (const Refusal refusal = row.ReadInto(booking.times.emplace_back()))
            return Naming(refusal, row.startDate);
    }
    if (booking.times.empty())
        return WriteAnswer::InvalidField("DataInicial", "Informe uma data inicial válida.");
    return std::nullopt;
}

Refusal TimesArePossible(Booking& booking)
{
    if (booking.IsPicked())
        return PickedTimesArePossible(booking);
    const AppointmentInput& input = booking.input;
    const TypedTimes typed{input.startDate, input.startTime, input.endDate, input.endTime};
    TimeSpan first;
    if (const Refusal refusal = typed.ReadInto(first))
        return refusal;
    booking.times = Repeated(first, booking.Repeats() ? input.repetitions : 0, input.frequency);
    for (const TimeSpan& span : booking.times) {
        if (const Refusal refusal = CheckLimits(span))
            return Naming(refusal, FormatDate(span.start.date));
    }
    return std::nullopt;
}

Refusal EmployeeIsActive(Booking& booking)
{
    const auto& employee = booking.registers.employee;
    if (!employee || !employee->IsActive())
        return WriteAnswer::InvalidField("CodigoDoFuncionario", "Selecione o(a) funcionário(a).");
    booking.employee = *employee;
    booking.row.codigoDoFuncionario = employee->code;
    return std::nullopt;
}

Refusal StatusIsKnown(Booking& booking)
{
    if (!appointment_status::IsKnown(booking.input.status))
        return WriteAnswer::InvalidField("Situacao", "Selecione a situação.");
    booking.row.situacao = booking.input.status;
    return std::nullopt;
}

void LookUpRegisters(Booking& booking)
{
    const AppointmentInput& input = booking.input;
    booking.registers = FindBookingRegisters(
        booking.database,
        {KeyOf(input.customer), input.animal, input.serviceType, KeyOf(input.service), input.employee});
}

/// What no check is about.
void TakeTheRest(Booking& booking)
{
    const AppointmentInput& input = booking.input;
    booking.row.tipoDoAgendamento = input.IsSimplified() ? 1 : 0;
    if (const Text remark = CleanText(input.remark, AppointmentInput::WidthOfRemark); !remark.empty())
        booking.row.observacao = remark;
    if (input.IsSimplified())
        return;
    booking.row.transporteBuscar = input.fetch != 0 ? 1 : 0;
    booking.row.transporteLevar = input.take != 0 ? 1 : 0;
}

} // namespace

Refusal Check(Booking& booking)
{
    LookUpRegisters(booking);
    TakeTheRest(booking);
    const std::span<const BookingCheck> checks = booking.input.IsSimplified()
        ? std::span<const BookingCheck>(ChecksOfSimplifiedRecord)
        : std::span<const BookingCheck>(ChecksOfFullRecord);
    for (const BookingCheck passes : checks) {
        if (Refusal refusal = passes(booking))
            return refusal;
    }
    return std::nullopt;
}

} // namespace kova::family
