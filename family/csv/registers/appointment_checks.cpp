#include "family/csv/registers/appointment_checks.hpp"

#include "family/business/merged_row_text.hpp"
#include "family/csv/import_of.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/stores/appointment_status.hpp"

namespace kova::family::csv {

namespace {

using family::BookedAnimal;
using family::BookedEmployee;
using family::BookedService;
using family::SelectRows;
using family::SelectWhere;
using family::TimeSpan;
namespace status = family::appointment_status;
namespace name = appointment_columns;

/// Types below it are clinical and sell nothing.
constexpr Key FirstTypeWithPreSales = 4;

/// The texts that stand in the place of a registered customer and animal.
struct TypedText {
    const char* column;
    std::string family::AppointmentRow::*member;
};
constexpr TypedText TypedTexts[] = {
    {name::CustomerName, &family::AppointmentRow::nomeDoCliente},
    {name::Channels, &family::AppointmentRow::canaisDoCliente},
    {name::AnimalName, &family::AppointmentRow::nomeDoAnimal},
    {name::Sex, &family::AppointmentRow::sexoDoAnimal},
    {name::Species, &family::AppointmentRow::especieDoAnimal},
    {name::Breed, &family::AppointmentRow::racaDoAnimal},
    {name::Colour, &family::AppointmentRow::corDoAnimal},
};

TimeSpan SpanOf(const AppointmentRecord& record)
{
    return {family::ReadIsoMoment(record.dataInicial, record.horaInicial),
            family::ReadIsoMoment(record.dataFinal, record.horaFinal)};
}

} // namespace

AppointmentChecks::AppointmentChecks(family::Database& database, DateTime now)
    : database_(database), now_(now)
{
    SelectRows<BookedService>(database, [&](const BookedService& row) { services_[row.code] = row; });
    SelectRows<BookedEmployee>(database, [&](const BookedEmployee& row) { employees_[row.code] = row; });
}

void AppointmentChecks::LookUp(std::span<const AppointmentRecord> records)
{
    std::set<Key> customers, animals;
    for (const AppointmentRecord& record : records) {
        customers.insert(record.codigoDoCliente.ValueOr(0));
        animals.insert(record.codigoDoAnimal.ValueOr(0));
    }
    customers_.clear();
    animals_.clear();
    using KnownCustomer = CodeOf<family::CustomerRow>;
    SelectWhere<KnownCustomer>(database_, customers,
                               [this](const KnownCustomer& known) { customers_.insert(known.code); });
    SelectWhere<BookedAnimal>(database_, animals,
                              [this](const BookedAnimal& row) { animals_[row.code] = row.customer; });
}

void AppointmentChecks::Complete(AppointmentRecord& record) const
{
    if (record.dataFinal.empty())
        record.dataFinal = record.dataInicial;
    record.tipoDoAgendamento = record.codigoDoCliente.IsNull() ? 1 : 0;
    const auto service = services_.find(record.codigoDoServico);
    if (record.numeroDoTipoDeServico == 0 && service != services_.end())
        record.numeroDoTipoDeServico = service->second.type;
}

void AppointmentChecks::Check(AppointmentRecord& record, Line& line)
{
    Complete(record);
    if (record.tipoDoAgendamento == 0)
        CheckRegistered(record, line);
    else
        CheckSimplified(record, line);
    CheckService(record, line);
    CheckEmployee(record, line);
    CheckPreSale(record, line);
    CheckTimes(record, line);
}

void AppointmentChecks::CheckRegistered(const AppointmentRecord& record, Line& line) const
{
    const Key customer = record.codigoDoCliente.value;
    if (customers_.count(customer) > 0)
        CheckAnimal(record, line);
    else if (customer != 0)
        line.Refuse(name::Customer, std::to_string(customer), family::WhyNoCustomer(database_, customer));
    for (const TypedText& text : TypedTexts) {
        if (!(record.*text.member).empty())
            line.Refuse(text.column, record.*text.member, "deve ficar vazio quando há código do cliente.");
    }
}

void AppointmentChecks::CheckAnimal(const AppointmentRecord& record, Line& line) const
{
    if (record.codigoDoAnimal.IsNull())
        return line.Refuse(name::Animal, "deve ser informado quando há código do cliente.");
    const Key code = record.codigoDoAnimal.value;
    const auto animal = animals_.find(code);
    if (code == 0 || (animal != animals_.end() && animal->second == record.codigoDoCliente.value))
        return;
    const std::string why = family::WhyMerged<family::AnimalRow>(database_, code);
    line.Refuse(name::Animal, std::to_string(code),
                why.empty() ? "o cliente não tem animal com este código." : why);
}

void AppointmentChecks::CheckSimplified(const AppointmentRecord& record, Line& line) const
{
    if (!record.codigoDoAnimal.IsNull())
        line.Refuse(name::Customer, "deve ser informado quando há código do animal.");
    for (const TypedText& text : TypedTexts) {
        const bool required = text.column == name::CustomerName || text.column == name::AnimalName;
        if (required && (record.*text.member).empty())
            line.Refuse(text.column, "deve ser informado quando não há código do cliente.");
    }
}

void AppointmentChecks::CheckService(const AppointmentRecord& record, Line& line) const
{
    if (record.codigoDoServico == 0)
        return;
    const auto service = services_.find(record.codigoDoServico);
    if (service == services_.end())
        line.Refuse(name::Service, std::to_string(record.codigoDoServico), "não há serviço com este código.");
    else if (service->second.type != record.numeroDoTipoDeServico)
        line.Refuse(name::ServiceType, std::to_string(record.numeroDoTipoDeServico),
                    "o serviço " + std::to_string(record.codigoDoServico) + " é do tipo "
                        + std::to_string(service->second.type) + ".");
}

void AppointmentChecks::CheckEmployee(const AppointmentRecord& record, Line& line) const
{
    if (record.codigoDoFuncionario != 0 && employees_.count(record.codigoDoFuncionario) == 0)
        line.Refuse(name::Employee, std::to_string(record.codigoDoFuncionario),
                    "não há funcionário com este código.");
}

void AppointmentChecks::CheckPreSale(const AppointmentRecord& record, Line& line) const
{
    const bool generated = record.situacao == status::PreSaleGenerated;
    if (!generated && (record.preSaleStatus != 0 || !record.preSaleValue.IsNull()))
        line.Refuse(name::PreSale, "só a situação Pré-venda gerada tem pré-venda.");
    if (generated && record.tipoDoAgendamento != 0)
        line.Refuse(name::Status, "Pré-venda gerada", "exige um cliente cadastrado.");
    if (generated && record.numeroDoTipoDeServico != 0
        && record.numeroDoTipoDeServico < FirstTypeWithPreSales)
        line.Refuse(name::Status, "Pré-venda gerada", "não existe para serviços clínicos.");
}

void AppointmentChecks::CheckTimes(const AppointmentRecord& record, Line& line) const
{
    if (record.dataInicial.empty() || record.horaInicial.empty() || record.horaFinal.empty())
        return;
    const TimeSpan span = SpanOf(record);
    if (span.end <= span.start)
        line.Refuse(name::EndTime, record.horaFinal, "o término deve ser posterior ao início.");
}

/// What is over has taken place, room or not; what is to come must not exceed it, nor lie where the employee
/// is not at work.
void AppointmentChecks::TakeRoom(const AppointmentRecord& record, Line& line)
{
    const TimeSpan span = SpanOf(record);
    if (record.situacao == status::Cancelled || span.end <= now_)
        return;
    const BookedEmployee& employee = employees_.at(record.codigoDoFuncionario);
    family::EmployeeRoom& room =
        rooms_.try_emplace(employee.code, database_, employee, 0, AddDays(now_.date, -1), now_.date)
            .first->second;
    const Text objection = room.ObjectionTo(span);
    room.Reserve(span);
    if (!objection.empty())
        line.Refuse(name::StartTime, record.horaInicial, objection);
}

void AppointmentChecks::LockRoom()
{
    for (const auto& [employee, room] : rooms_)
        family::FindByKey<BookedEmployee>(database_, employee);
}

Key AppointmentChecks::PriceOf(const AppointmentRecord& record) const
{
    return services_.at(record.codigoDoServico).priceInCents;
}

} // namespace kova::family::csv
