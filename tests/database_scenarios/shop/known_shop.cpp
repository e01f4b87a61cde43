#include "tests/database_scenarios/shop/known_shop.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/customer_store.hpp"
#include "family/data/stores/national_holidays.hpp"
#include "family/data/stores/pre_sales.hpp"

namespace kova::database_scenarios {

using namespace kova::family;

namespace {

constexpr Key Package = 1;

void WriteServices(Database& database)
{
    Key number = 0;
    for (const char* name : {"Consulta", "Retorno", "Vacinação", "Banho e tosa"})
        Insert(database, ServiceTypeRow{++number, name, FoldText(name)});
    const auto insert = [&](Key code, const char* name, Key type, int minutes, Key price) {
        ServiceRow row{code, name, FoldText(name), "", type, minutes, price, 0, {}, 1};
        if (code == 4)
            row.quantidadeDeSessoes = 4;
        Insert(database, row);
    };
    insert(1, "Consulta clínica", 1, 30, 15000);
    insert(2, "Banho", 4, 45, 6000);
    insert(3, "Banho e tosa higiênica", 4, 90, 12050);
    insert(4, "Pacote de 4 banhos", 4, 45, 21000);
}

/// Ana does one thing at a time, Beto two; Lia does not work here any more.
void WriteStaff(Database& database)
{
    Insert(database, CompanyRow{1, "Pata Feliz", "Pata Feliz Serviços Ltda.", "", "", ""});
    Insert(database, UserRow{1, "Roteiro"});
    Insert(database, EmployeeRow{1, "Ana", "Ana Souza", "ana souza", 1, 1});
    Insert(database, EmployeeRow{2, "Beto", "Roberto Gonçalves", "roberto goncalves", 2, 1});
    Insert(database, EmployeeRow{3, "Lia", "Lia Prado", "lia prado", 1, 2});
}

void WriteAnimals(Database& database)
{
    Insert(database, SpeciesRow{1, "Canina", "canina"});
    Insert(database, SpeciesRow{2, "Felina", "felina"});
    Insert(database, BreedRow{1, 1, "Poodle", "poodle"});
    Insert(database, BreedRow{2, 2, "Siamês", "siames"});
    Insert(database,
           AnimalRow{50, 10, "Paçoca", "F", 1, 2, "Caramelo", std::string("900123000000001"),
                     std::string("Tem medo de secador."), 1, "pacoca"});
    Insert(database, AnimalRow{51, 10, "Bidu", "M", 1, 1, "Branco", {}, {}, 1, "bidu"});
    Insert(database, AnimalRow{52, 10, "Rex", "M", 1, 3, "Preto", {}, {}, 2, "rex"});
    Insert(database, AnimalRow{53, 11, "Leão", "M", 2, 4, "Bege", {}, {}, 1, "leao"});
}

CustomerRow Customer(Key code, const char* nickname, const char* name, const char* document)
{
    CustomerRow customer;
    customer.codigo = code;
    customer.tipoDePessoa = code == 11 ? "PJ" : "PF";
    customer.apelido = nickname;
    customer.nome = name;
    customer.documento = document;
    customer.categoriaDaCurvaABC = "A";
    customer.logradouro = "Rua do Ipê";
    customer.numero = std::to_string(code);
    customer.bairro = "Céu Azul";
    customer.cidade = "Vale Sereno";
    customer.uf = "SP";
    customer.cep = "00123456";
    return customer;
}

void WriteCustomers(Database& database)
{
    CustomerRow vip = Customer(10, "Zé", "José Antônio Peçanha", "12345678909");
    vip.vip = 1;
    WriteCustomer(database, vip,
                  {{1, 10, "Celular", "(00) 91234-5678"}, {2, 10, "E-mail", "ze@example.com"}});
    WriteCustomer(database, Customer(11, "Canil Céu", "Canil Céu Azul Ltda.", "11222333000181"), {});
    CustomerRow inactive = Customer(12, "Nena", "Helena Peçanha", "");
    inactive.situacao = 2;
    WriteCustomer(database, inactive, {});
}

struct Visit {
    Key number;
    const char *date, *start, *end;
    Key customer, animal, service, employee;
    int status;
};

/// 24/11/2026 is a Tuesday. 3 is turned into a simplified one, 6 to 9 are a package, 10 has a pre-sale.
constexpr Visit Visits[] = {
    {1, "2026-11-24", "09:00", "09:45", 10, 50, 2, 1, 1},
    {2, "2026-11-24", "09:30", "10:00", 11, 53, 1, 2, 1},
    {3, "2026-11-24", "10:30", "12:00", 0, 0, 3, 2, 1},
    {4, "2026-11-24", "14:00", "14:45", 10, 51, 2, 2, 2},
    {5, "2026-11-24", "08:00", "08:45", 11, 53, 2, 1, 3},
    {6, "2026-11-24", "15:00", "15:45", 10, 50, 4, 1, 1},
    {7, "2026-12-01", "15:00", "15:45", 10, 50, 4, 1, 2},
    {8, "2026-12-08", "15:00", "15:45", 10, 50, 4, 1, 1},
    {9, "2026-12-15", "15:00", "15:45", 10, 50, 4, 1, 1},
    {10, "2026-11-24", "16:00", "16:45", 10, 51, 2, 2, 4},
    {11, "2026-11-25", "09:00", "09:45", 11, 53, 2, 1, 1},
};

void MakeSimplified(AppointmentRow& row)
{
    row.tipoDoAgendamento = 1;
    row.codigoDoCliente = {};
    row.codigoDoAnimal = {};
    row.nomeDoCliente = "Íris Conceição";
    row.canaisDoCliente = "(00) 90000-0001";
    row.nomeDoAnimal = "Tobias";
    row.sexoDoAnimal = "M";
    row.especieDoAnimal = "Felina";
    row.racaDoAnimal = "Siamês";
    row.corDoAnimal = "Creme";
}

AppointmentRow RowOf(const Visit& visit)
{
    AppointmentRow row;
    row.numero = visit.number;
    row.dataInicial = row.dataFinal = visit.date;
    row.horaInicial = visit.start;
    row.horaFinal = visit.end;
    row.codigoDoCliente = visit.customer;
    row.codigoDoAnimal = visit.animal;
    row.codigoDoServico = visit.service;
    row.numeroDoTipoDeServico = visit.service == 1 ? 1 : 4;
    row.codigoDoFuncionario = visit.employee;
    row.situacao = visit.status;
    row.incluidoEm = "2026-11-01 09:05:07";
    row.incluidoPor = "Carla";
    if (visit.customer == 0)
        MakeSimplified(row);
    if (visit.service == 4)
        row.codigoDoPacote = Package;
    if (visit.number == 1)
        row.observacao = std::string("Laço azul.");
    if (visit.number == 4)
        row.transporteBuscar = row.transporteLevar = 1;
    return row;
}

void WriteVisits(Database& database)
{
    Insert(database, PackageRow{Package, 4, "2026-11-01 09:05:07", "Carla"});
    for (const Visit& visit : Visits) {
        AppointmentRow row = RowOf(visit);
        row.Compose();
        Insert(database, row);
    }
    Insert(database, PreSaleRow{1, 10, 6000, pre_sale_status::Open, "2026-11-24 08:00:00"});
}

} // namespace

void MakeKnownShop(const std::string& dataSource)
{
    CreateDatabase(dataSource, [](Database& database) {
        WriteStaff(database);
        WriteServices(database);
        for (const HolidayRow& holiday : NationalHolidays(2026, 2027))
            Insert(database, holiday);
        WriteCustomers(database);
        WriteAnimals(database);
        WriteVisits(database);
    });
}

} // namespace kova::database_scenarios
