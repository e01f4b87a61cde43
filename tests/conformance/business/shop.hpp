#pragma once

#include "agenda/contracts/value.hpp"

#include <optional>
#include <vector>

namespace kova::conformance {

inline constexpr const char* AgendaClass = "KOVA_N_Agenda.clsAgenda";
inline constexpr const char* TypesClass = "KOVA_N_TipoDeServ.clsTiposDeServ";
inline constexpr const char* EmployeesClass = "KOVA_N_Funcionarios.clsFuncionarios";
inline constexpr const char* CompanyClass = "KOVA_N_Empresa.clsEmpresa";
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

inline constexpr const char* TradeName = "Pet Shop Amigo Fiel";
inline constexpr const char* SpeciesName = "Canina";

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

} // namespace kova::conformance
