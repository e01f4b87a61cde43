#include "tests/conformance/business/shop_database.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/work_rows.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/customer_store.hpp"
#include "tests/conformance/business/shop.hpp"

namespace kova::conformance {

using namespace family;

namespace {

Nullable<std::string> Stored(const std::optional<const char*>& text)
{
    return text ? Nullable<std::string>(*text) : Nullable<std::string>();
}

void WriteService(Database& database, const Service& service)
{
    Insert(database, ServiceTypeRow{service.type, service.typeName, FoldText(service.typeName)});
    ServiceRow row;
    row.codigo = service.code;
    row.nome = service.name;
    row.nomeDeBusca = FoldText(service.name);
    row.numeroDoTipo = service.type;
    row.duracaoEmMinutos = service.minutes;
    row.precoEmCentavos = service.cents;
    Insert(database, row);
}

void WriteEmployee(Database& database, const Employee& employee)
{
    Insert(database,
           EmployeeRow{employee.code, employee.nickname, employee.name, FoldText(employee.name), 1,
                       employee.active ? 1 : 2});
}

void WriteCustomer(Database& database, const Customer& customer)
{
    CustomerRow row;
    row.codigo = customer.code;
    row.tipoDePessoa = customer.kind;
    row.apelido = customer.nickname;
    row.nome = customer.name;
    row.categoriaDaCurvaABC = "A";
    row.logradouro = customer.street;
    row.numero = customer.number;
    row.cidade = customer.town;
    row.uf = customer.state;
    row.cep = customer.postalCode;
    WriteCustomer(database, row, {{customer.code, customer.code, "Celular", customer.phone}});
}

void WriteAnimal(Database& database, const Customer& owner)
{
    Insert(database, BreedRow{owner.breed, 1, owner.breedName, FoldText(owner.breedName)});
    AnimalRow row;
    row.codigo = owner.animal;
    row.codigoDoCliente = owner.code;
    row.nome = owner.animalName;
    row.sexo = owner.sex;
    row.codigoDaRaca = owner.breed;
    row.porte = owner.size;
    row.cor = owner.colour;
    row.observacao = Stored(owner.animalRemark);
    row.nomeDeBusca = FoldText(owner.animalName);
    Insert(database, row);
}

void FillCustomer(AppointmentRow& row, const Customer& customer)
{
    row.codigoDoCliente = Key(customer.code);
    row.codigoDoAnimal = Key(customer.animal);
}

void FillWalkIn(AppointmentRow& row)
{
    row.tipoDoAgendamento = 1;
    row.nomeDoCliente = WalkIn::Name;
    row.canaisDoCliente = WalkIn::Channels;
    row.nomeDoAnimal = WalkIn::Animal;
    row.sexoDoAnimal = "M";
    row.especieDoAnimal = WalkIn::Species;
    row.racaDoAnimal = WalkIn::Breed;
    row.corDoAnimal = WalkIn::Colour;
}

void WriteAppointment(Database& database, const Appointment& appointment)
{
    AppointmentRow row;
    row.numero = appointment.number;
    row.dataInicial = row.dataFinal = IsoDate(RequireDate(appointment.date));
    row.horaInicial = appointment.start;
    row.horaFinal = appointment.end;
    if (appointment.customer)
        FillCustomer(row, *appointment.customer);
    else
        FillWalkIn(row);
    row.numeroDoTipoDeServico = appointment.service->type;
    row.codigoDoServico = appointment.service->code;
    row.codigoDoFuncionario = appointment.service->employee;
    row.observacao = Stored(appointment.remark);
    row.transporteBuscar = appointment.fetched;
    row.transporteLevar = appointment.taken;
    row.situacao = appointment.status;
    row.incluidoEm = "2026-11-01 09:05:07";
    row.incluidoPor = "Carla";
    row.alteradoPor = Stored(appointment.changedBy);
    if (appointment.changedBy)
        row.alteradoEm = std::string("2026-11-02 10:00:00");
    row.Compose();
    Insert(database, row);
}

void WriteWork(Database& database)
{
    database.Session() << "delete from expediente where dia_da_semana = "
            + std::to_string(ClosedDay::Weekday);
    Insert(database,
           EmployeeHoursRow{1, OwnHours::Employee, OwnHours::Weekday, OwnHours::From, OwnHours::Until});
    const std::string date = IsoDate(RequireDate(AwayOnce::Date));
    Insert(database,
           AbsenceRow{1, Key(AwayOnce::Employee), date, AwayOnce::From, date, AwayOnce::Until,
                      AwayOnce::Reason});
}

} // namespace

void WriteShop(Database& database)
{
    Insert(database, CompanyRow{1, TradeName, "Amigo Fiel Ltda.", "", "", ""});
    Insert(database, SpeciesRow{1, SpeciesName, FoldText(SpeciesName)});
    for (const Service& service : Services())
        WriteService(database, service);
    for (const Employee& employee : ShopEmployees())
        WriteEmployee(database, employee);
    for (const Customer& customer : Customers()) {
        WriteCustomer(database, customer);
        WriteAnimal(database, customer);
    }
    Insert(database,
           AnimalRow{FormerAnimal::Code,
                     FormerAnimal::Owner,
                     FormerAnimal::Name,
                     "F",
                     1,
                     1,
                     "Branco",
                     {},
                     {},
                     2,
                     FoldText(FormerAnimal::Name)});
    Insert(database, HolidayRow{YearlyHoliday::Code, YearlyHoliday::Name, 25, 12, {}});
    WriteWork(database);
    for (const Appointment& appointment : Appointments())
        WriteAppointment(database, appointment);
}

} // namespace kova::conformance
