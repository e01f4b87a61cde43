#include "tests/conformance/business/shop.hpp"

#include <algorithm>

namespace kova::conformance {

const std::vector<Customer>& Customers()
{
    static const std::vector<Customer> customers = {
        {10,
         "PF",
         "Zé",
         "José Antônio Peçanha",
         "Rua do Ipê",
         "110",
         "Vale Sereno",
         "SP",
         "00123456",
         "Rua do Ipê, 110 - Vale Sereno/SP - CEP 00123-456",
         "(00) 91234-5678",
         "Celular: (00) 91234-5678",
         50,
         "Paçoca",
         "F",
         "Fêmea",
         1,
         "Poodle",
         2,
         "Médio",
         "Caramelo",
         "Tem medo de secador."},
        {11,
         "PJ",
         "Canil Céu",
         "Canil Céu Azul Ltda.",
         "Rua da Serra",
         "7",
         "Vale Sereno",
         "SP",
         "00123000",
         "Rua da Serra, 7 - Vale Sereno/SP - CEP 00123-000",
         "(00) 3333-0001",
         "Celular: (00) 3333-0001",
         51,
         "Leão",
         "M",
         "Macho",
         2,
         "Fila",
         4,
         "Gigante",
         "Preto",
         std::nullopt},
    };
    return customers;
}

const std::vector<Service>& Services()
{
    static const std::vector<Service> services = {
        {1, 1, 1, "Consulta clínica", "Consulta", 30, "00:30", 120000, "1.200,00"},
        {2, 4, 2, "Banho", "Banho e tosa", 75, "01:15", 4500, "45,00"},
    };
    return services;
}

const std::vector<Employee>& ShopEmployees()
{
    static const std::vector<Employee> employees = {
        {1, "Zeca", "José Carlos", true}, {2, "Bia", "Beatriz", true}, {3, "Dora", "Aurora", false}};
    return employees;
}

const std::vector<Appointment>& Appointments()
{
    static const Customer* const person = &Customers()[0];
    static const Customer* const company = &Customers()[1];
    static const Service* const visit = &Services()[0];
    static const Service* const bath = &Services()[1];
    static const std::vector<Appointment> appointments = {
        {1, BusyDay, "09:00", "09:30", person, visit, 1, false, false, {}, {}},
        {2, BusyDay, "09:30", "10:45", person, bath, 1, true, true, "Laço azul.", "Marcos"},
        {3, BusyDay, "10:00", "10:30", company, visit, 2, false, false, {}, {}},
        {4, BusyDay, "10:00", "11:15", nullptr, bath, 1, false, false, {}, {}},
        {5, BusyDay, "08:00", "09:15", company, bath, 3, true, false, {}, {}},
        {6, BusyDay, "13:00", "14:15", company, bath, 4, false, true, {}, {}},
        {7, BusyDay, "14:30", "15:00", person, visit, 1, false, false, "", {}},
        {8, QuietDay, "09:00", "09:30", person, visit, 1, false, false, {}, {}},
    };
    return appointments;
}

namespace {

Value TextOrNull(const std::optional<const char*>& text) { return text ? Value(*text) : Value(Null()); }
Value YesOrNo(bool yes) { return yes ? "Sim" : "Não"; }

using Row = std::vector<Value>;

void AddCustomer(Row& row, const Customer& customer)
{
    const Row values = {Double(customer.code), customer.nickname,
                        customer.name,         customer.kind,
                        customer.address,      customer.channels,
                        customer.animal,       customer.animalName,
                        customer.shownSex,     Long(1),
                        SpeciesName,           customer.breed,
                        customer.breedName,    customer.shownSize,
                        customer.colour,       TextOrNull(customer.animalRemark)};
    row.insert(row.end(), values.begin(), values.end());
}

void AddWalkIn(Row& row)
{
    const Row values = {"",
                        WalkIn::Name,
                        WalkIn::Name,
                        "PF",
                        "",
                        WalkIn::Channels,
                        "",
                        WalkIn::Animal,
                        "Macho",
                        Long(0),
                        WalkIn::Species,
                        Long(0),
                        WalkIn::Breed,
                        "",
                        WalkIn::Colour,
                        Null()};
    row.insert(row.end(), values.begin(), values.end());
}

void AddService(Row& row, const Service& service)
{
    const Employee& employee = ShopEmployees()[static_cast<std::size_t>(service.employee - 1)];
    const Row values = {service.type,     service.typeName, Double(service.code), service.name,
                        service.duration, employee.code,    employee.nickname,    employee.name};
    row.insert(row.end(), values.begin(), values.end());
}

Row RowOf(const Appointment& appointment)
{
    Row row = {Double(appointment.number), appointment.date, appointment.start, appointment.date,
               appointment.end};
    if (appointment.customer)
        AddCustomer(row, *appointment.customer);
    else
        AddWalkIn(row);
    AddService(row, *appointment.service);
    const Row values = {TextOrNull(appointment.remark),
                        YesOrNo(appointment.fetched),
                        YesOrNo(appointment.taken),
                        appointment.status,
                        "01/11/2026 09:05:07",
                        "Carla",
                        appointment.changedBy ? Value("02/11/2026 10:00:00") : Value(Null()),
                        TextOrNull(appointment.changedBy)};
    row.insert(row.end(), values.begin(), values.end());
    return row;
}

const Appointment& AppointmentOf(int number)
{
    return *std::find_if(Appointments().begin(), Appointments().end(),
                         [&](const Appointment& appointment) { return appointment.number == number; });
}

} // namespace

Rows AppointmentRows(const std::vector<int>& numbers)
{
    Rows found{{"NumeroDeLancamento",
                "DataInicial",
                "HoraInicial",
                "DataFinal",
                "HoraFinal",
                "CodigoDoCliente",
                "ApelidoOuNomeFantasiaDoCliente",
                "NomeOuRazaoSocialDoCliente",
                "TipoDeCliente",
                "EnderecoCompletoComCEP",
                "TiposECanaisDeComunicacao",
                "CodigoDoAnimal",
                "NomeDoAnimal",
                "SexoDoAnimal",
                "CodigoDaEspecie",
                "NomeDaEspecie",
                "CodigoDaRaca",
                "NomeDaRaca",
                "PorteDoAnimal",
                "CorDoAnimal",
                "ObservacaoDoAnimal",
                "NumeroDoTipoDeServico",
                "NomeDoTipoDeServico",
                "CodigoDoServico",
                "NomeDoServico",
                "TempoDeExecucao",
                "CodigoDoFuncionario",
                "ApelidoDoFuncionario",
                "NomeDoFuncionario",
                "Observacao",
                "TransporteBuscar",
                "TransporteLevar",
                "Situacao",
                "DataEHoraDaInclusao",
                "UsuarioDaInclusao",
                "DataEHoraDaAlteracao",
                "UsuarioDaAlteracao"},
               {}};
    for (const int number : numbers)
        found.rows.push_back(RowOf(AppointmentOf(number)));
    return found;
}

Rows TypeRows() { return {{"Nome", "Numero"}, {{"Banho e tosa", Long(4)}, {"Consulta", Long(1)}}}; }

Rows EmployeeRows() { return {{"Apelido", "Codigo"}, {{"Bia", Long(2)}, {"Zeca", Long(1)}}}; }

Rows CompanyRows() { return {{"NomeFantasia"}, {{TradeName}}}; }

Rows SpeciesRows() { return {{"Nome", "Codigo"}, {{SpeciesName, Long(1)}}}; }

Rows BreedRows() { return {{"Nome", "Codigo"}, {{"Fila", Long(2)}, {"Poodle", Long(1)}}}; }

Rows ServiceRows(const std::vector<int>& codes)
{
    Rows found{
        {"Codigo", "Nome", "Descricao", "ValorDeVenda", "Custo", "NumeroDoTipoDeServico", "TempoDeExecucao"},
        {}};
    for (const int code : codes) {
        const Service& service = Services()[static_cast<std::size_t>(code - 1)];
        found.rows.push_back(
            {Double(service.code), service.name, "", service.price, "0,00", service.type, service.duration});
    }
    return found;
}

namespace {

/// The address as the lookups show it, without the postal code.
Text ShortAddress(const Customer& customer)
{
    const Text address = customer.address;
    return address.substr(0, address.find(" - CEP"));
}

const Customer& CustomerWith(Long Customer::*key, int code)
{
    return *std::find_if(Customers().begin(), Customers().end(),
                         [&](const Customer& customer) { return customer.*key == code; });
}

} // namespace

Rows CustomerRows(const std::vector<int>& codes)
{
    Rows found{{"CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial", "Situacao",
                "EnderecoCompleto", "TiposECanaisDeComunicacao", "VIP", "CategoriaDaCurvaABC"},
               {}};
    for (const int code : codes) {
        const Customer& customer = CustomerWith(&Customer::code, code);
        found.rows.push_back({Double(code), customer.nickname, customer.name, Long(1), ShortAddress(customer),
                              customer.channels, "Não", "A"});
    }
    return found;
}

Rows AnimalRows(const std::vector<int>& codes)
{
    Rows found{{"Codigo", "Nome", "Sexo", "CodigoDaEspecie", "NomeDaEspecie", "CodigoDaRaca", "NomeDaRaca",
                "Cor", "CodigoDoCliente", "ApelidoOuNomeFantasia", "NomeOuRazaoSocial", "SituacaoDoCliente",
                "Situacao", "EnderecoCompleto", "TiposECanaisDeComunicacao", "VIP", "CategoriaDaCurvaABC"},
               {}};
    for (const int code : codes) {
        const Customer& owner = CustomerWith(&Customer::animal, code);
        found.rows.push_back({owner.animal, owner.animalName, owner.shownSex, Long(1), SpeciesName,
                              owner.breed, owner.breedName, owner.colour, Double(owner.code), owner.nickname,
                              owner.name, Long(1), Long(1), ShortAddress(owner), owner.channels, "Não", "A"});
    }
    return found;
}

Rows AnimalComboRows(const std::vector<int>& codes)
{
    Rows found{{"Nome", "Codigo"}, {}};
    for (const int code : codes)
        found.rows.push_back({CustomerWith(&Customer::animal, code).animalName, Long(code)});
    return found;
}

Rows HolidayRows()
{
    return {{"Codigo", "Nome", "Data"}, {{YearlyHoliday::Code, YearlyHoliday::Name, YearlyHoliday::Day}}};
}

} // namespace kova::conformance
