#pragma once

#include "agenda/contracts/value.hpp"

#include <optional>
#include <vector>

namespace kova::conformance {

inline constexpr const char* AgendaClass = "KOVA_N_Agenda.clsAgenda";
inline constexpr const char* TypesClass = "KOVA_N_TipoDeServ.clsTiposDeServ";
inline constexpr const char* EmployeesClass = "KOVA_N_Funcionarios.clsFuncionarios";
inline constexpr const char* CompanyClass = "KOVA_N_Empresa.clsEmpresa";
inline constexpr const char* SpeciesClass = "KOVA_N_EspecRacas.clsEspecies";
inline constexpr const char* BreedsClass = "KOVA_N_EspecRacas.clsRacas";
inline constexpr const char* ServicesClass = "KOVA_N_Servicos.clsServicos";
inline constexpr const char* CustomersClass = "KOVA_N_ClientAnim.clsClientes";
inline constexpr const char* AnimalsClass = "KOVA_N_ClientAnim.clsAnimais";
inline constexpr const char* HolidaysClass = "KOVA_N_Feriados.clsFeriados";
inline constexpr const char* SystemClass = "KOVA_N_SO.clsObterVersaoDoSO";

/// The day with appointments 5, 1, 2, 3, 4, 6, 7 in the order of their start; a day with number 8 alone;
/// a day without any.
inline constexpr const char* BusyDay = "20/11/2026";
inline constexpr const char* QuietDay = "21/11/2026";
inline constexpr const char* EmptyDay = "22/11/2026";

/// A selection's content: names of the fields, and a value of each in every row.
struct Rows {
    std::vector<Text> fields;
    std::vector<std::vector<Value>> rows;
};

/// A registered customer with its animal.
struct Customer {
    Long code;
    const char *kind, *nickname, *name;
    const char *street, *number, *town, *state, *postalCode;
    /// The whole address, as the lists show it.
    const char* address;
    const char *phone, *channels;
    Long animal;
    const char *animalName, *sex, *shownSex;
    Long breed;
    const char* breedName;
    int size;
    const char *shownSize, *colour;
    std::optional<const char*> animalRemark;
};

struct Service {
    Long code, type, employee;
    const char *name, *typeName;
    int minutes;
    const char* duration;
    int cents;
    const char* price;
};

struct Employee {
    Long code;
    const char *nickname, *name;
    bool active;
};

/// Without a customer it is a simplified one: the texts of Walk-in stand in its place.
struct Appointment {
    Long number;
    const char *date, *start, *end;
    const Customer* customer;
    const Service* service;
    Long status;
    bool fetched, taken;
    std::optional<const char*> remark, changedBy;
};

/// What was typed for the simplified appointment.
struct WalkIn {
    static constexpr const char* Name = "Íris Conceição";
    static constexpr const char* Channels = "(00) 90000-0001";
    static constexpr const char* Animal = "Bidu";
    static constexpr const char* Species = "Felina";
    static constexpr const char* Breed = "Siamês";
    static constexpr const char* Colour = "Creme";
};

/// The moment at which everything is written that a test writes.
inline constexpr const char* MomentOfWrites = "18/11/2026 10:11:12";

inline constexpr const char* TradeName = "Pet Shop Amigo Fiel";
inline constexpr const char* SpeciesName = "Canina";

/// A customer's second animal, which is no longer active.
struct FormerAnimal {
    static constexpr Long Code = 52;
    static constexpr Long Owner = 10;
    static constexpr const char* Name = "Amora";
};

/// A holiday of every year.
struct YearlyHoliday {
    static constexpr Long Code = 1;
    static constexpr const char* Name = "Natal";
    static constexpr const char* Day = "25/12";
};

/// The shop opens from Monday to Saturday at all hours, but not on this day of the week.
struct ClosedDay {
    static constexpr int Weekday = 4;
    static constexpr const char* Date = "25/11/2026";
    static constexpr const char* Next = "26/11/2026";
};

/// Zeca works on Tuesdays, from and until these times; the others whenever the shop is open.
struct OwnHours {
    static constexpr Long Employee = 1;
    static constexpr int Weekday = 3;
    static constexpr const char* Date = "24/11/2026";
    static constexpr const char *From = "08:00", *Until = "12:00";
};

/// Bia is away on one afternoon.
struct AwayOnce {
    static constexpr Long Employee = 2;
    static constexpr const char* Date = "24/11/2026";
    static constexpr const char *From = "14:00", *Until = "24:00";
    static constexpr const char* Reason = "Curso de tosa";
};

const std::vector<Customer>& Customers();
const std::vector<Service>& Services();
const std::vector<Employee>& ShopEmployees();
const std::vector<Appointment>& Appointments();

/// What the selections find: the appointments of these numbers in this order, the service types, the
/// active employees, the company.
Rows AppointmentRows(const std::vector<int>& numbers);
Rows TypeRows();
Rows EmployeeRows();
Rows CompanyRows();
/// The species; the breeds of that species; the services, the customers and the animals
/// of these codes in this order; the holiday.
Rows SpeciesRows();
Rows BreedRows();
Rows ServiceRows(const std::vector<int>& codes);
Rows CustomerRows(const std::vector<int>& codes);
Rows AnimalRows(const std::vector<int>& codes);
Rows AnimalComboRows(const std::vector<int>& codes);
Rows HolidayRows();

} // namespace kova::conformance
