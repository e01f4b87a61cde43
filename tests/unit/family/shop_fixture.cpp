#include "tests/unit/family/shop_fixture.hpp"

#include "family/business/appointments/agenda.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/migrations/held_rules.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/customer_store.hpp"
#include "system/path_text.hpp"
#include "tests/support/data_places.hpp"

#include <fstream>
#include <sstream>

namespace kova::family::test {

namespace fs = std::filesystem;

TemporaryFolder::~TemporaryFolder() { fs::permissions(Path(), fs::perms::owner_all); }

std::string ContentOf(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(system::PathOf(path), std::ios::binary).rdbuf();
    return content.str();
}

void WriteContent(const std::string& path, const std::string& content)
{
    std::ofstream(system::PathOf(path), std::ios::binary) << content;
}

namespace {

void WriteRegisters(Database& database)
{
    Insert(database, CompanyRow{1, "Pet Shop Amigo Fiel", "Amigo Fiel Ltda.", "", "", ""});
    Insert(database, ServiceTypeRow{1, "Consulta", "consulta"});
    Insert(database, ServiceTypeRow{4, "Banho e tosa", "banho e tosa"});
    Insert(database, ServiceRow{1, "Consulta clínica", "consulta clinica", "", 1, 30, 15000, 0, {}, 1});
    Insert(database, ServiceRow{2, "Banho", "banho", "", 4, 75, 6000, 0, {}, 1});
    Insert(database, EmployeeRow{1, "Zeca", "José Carlos", "jose carlos", 1, 1});
    Insert(database, EmployeeRow{2, "Bia", "Beatriz", "beatriz", 1, 1});
    Insert(database, EmployeeRow{3, "Ana", "Ana", "ana", 1, 2});
    Insert(database, SpeciesRow{1, "Canina", "canina"});
    Insert(database, BreedRow{1, 1, "Poodle", "poodle"});
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
    customer.numero = std::to_string(100 + code);
    customer.cidade = "Vale Sereno";
    customer.uf = "SP";
    customer.cep = "00123456";
    return customer;
}

void WritePeople(Database& database)
{
    WriteCustomer(database, Customer(10, "Zé", "José Antônio Peçanha", "12345678909"),
                  {{1, 10, "Celular", "(00) 91234-5678"}, {2, 10, "E-mail", "ze@example.com"}});
    WriteCustomer(database, Customer(11, "Canil Céu", "Canil Céu Azul Ltda.", "11222333000181"), {});
    Insert(database,
           AnimalRow{50, 10, "Paçoca", "F", 1, 2, "Caramelo", std::string("999000000000001"),
                     std::string("Tem medo de secador."), 1, "pacoca"});
    Insert(database, AnimalRow{51, 11, "Leão", "M", 1, 4, "Preto", {}, {}, 1, "leao"});
}

AppointmentRow Appointment(Key number, const char* start, Key customer, Key animal, Key service)
{
    AppointmentRow row;
    row.numero = number;
    row.dataInicial = row.dataFinal = "2026-11-20";
    row.horaInicial = start;
    row.horaFinal = "18:00";
    row.codigoDoCliente = customer;
    row.codigoDoAnimal = animal;
    row.codigoDoServico = service;
    row.numeroDoTipoDeServico = service == 1 ? 1 : 4;
    row.codigoDoFuncionario = service;
    row.situacao = 1;
    row.incluidoEm = "2026-11-01 09:05:07";
    row.incluidoPor = "Carla";
    return row;
}

/// 1: booked, plain. 2: changed, with remarks. 3: other customer. 4: simplified, at the hour of 3.
/// 5: attended, fetched and taken. 6: fetched. 7: taken, with a pre-sale. 8: cancelled, the earliest.
/// 9: another day.
void WriteAppointments(Database& database)
{
    std::vector<AppointmentRow> rows;
    for (const auto& [start, customer, animal, service] :
         {std::tuple("09:00", 10, 50, 1), std::tuple("09:30", 10, 50, 2), std::tuple("10:00", 11, 51, 1)})
        rows.push_back(Appointment(static_cast<Key>(rows.size()) + 1, start, customer, animal, service));
    rows[1].observacao = std::string("Laço azul.");
    rows[1].alteradoEm = std::string("2026-11-02 10:00:00");
    rows[1].alteradoPor = std::string("Marcos");
    for (const char* start : {"10:00", "11:00", "12:00", "13:00", "08:00", "09:00"})
        rows.push_back(Appointment(static_cast<Key>(rows.size()) + 1, start, 11, 51, 2));
    AppointmentRow& simplified = rows[3];
    simplified.tipoDoAgendamento = 1;
    simplified.codigoDoCliente = {};
    simplified.codigoDoAnimal = {};
    simplified.nomeDoCliente = "Íris Conceição";
    simplified.canaisDoCliente = "(00) 90000-0001";
    simplified.nomeDoAnimal = "Bidu";
    simplified.sexoDoAnimal = "M";
    simplified.especieDoAnimal = "Felina";
    simplified.racaDoAnimal = "Siamês";
    simplified.corDoAnimal = "Creme";
    rows[4].situacao = 2;
    rows[4].transporteBuscar = rows[4].transporteLevar = 1;
    rows[5].transporteBuscar = 1;
    rows[6].transporteLevar = 1;
    rows[6].situacao = 4;
    rows[7].situacao = 3;
    rows[8].dataInicial = rows[8].dataFinal = "2026-11-21";
    for (AppointmentRow& row : rows) {
        row.Compose();
        Insert(database, row);
    }
}

} // namespace

bool TestsRunOnServer() { return kova::test::TestsRunOnServer(); }

void MakeShop(const std::string& dataSource)
{
    CreateDatabase(dataSource, [](Database& database) {
        WriteRegisters(database);
        WritePeople(database);
        WriteAppointments(database);
    });
}

void UncheckReferences(soci::session& session)
{
    const bool onServer = session.get_backend_name() == "postgresql";
    session << (onServer ? "set session_replication_role = replica" : "pragma foreign_keys = off");
}

void RunUnchecked(const std::string& dataSource, const std::string& statement)
{
    const std::shared_ptr<Database> database = OpenDatabase(dataSource);
    UncheckReferences(database->Session());
    database->Session() << statement;
}

void LiftRulesOf(const std::string& dataSource)
{
    const std::shared_ptr<Database> database = OpenDatabase(dataSource);
    LiftRules(database->Session(), database->GetDialect());
}

ShopDatabase::ShopDatabase() : dataSource_(folder_ / "loja.db")
{
    if (!TestsRunOnServer()) {
        MakeShop(dataSource_);
        return;
    }
    kova::test::PostgresServer& server = kova::test::PostgresServer::Shared();
    onServer_.emplace(server, server.Model("shop", MakeShop));
    dataSource_ = onServer_->Address();
}

ShopTest::ShopTest() : host_(shop_.DataSource()) { }

ShopTest::~ShopTest() { CloseSharedDatabases(); }

std::vector<Argument> DayArguments(const std::string& date, const std::string& text, Long status, Long type,
                                   Long employee, Long transport)
{
    return {Long(2), Integer(0), status, text, date, type, employee, transport};
}

RecordSetRef ResultOf(Component& component)
{
    return component.Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
}

std::vector<int> ShopTest::NumbersOf(RecordSet& records)
{
    std::vector<int> numbers;
    for (; !records.Eof(); records.MoveNext())
        numbers.push_back(records.Field("NumeroDeLancamento").ToLong());
    return numbers;
}

std::vector<int> ShopTest::Find(const std::string& text, Long status, Long type, Long employee,
                                Long transport)
{
    Agenda agenda(host_);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments("20/11/2026", text, status, type, employee, transport)),
              Value(Integer(0)));
    return NumbersOf(*ResultOf(agenda));
}

std::vector<int> ShopTest::FindOn(const std::string& date)
{
    Agenda agenda(host_);
    EXPECT_EQ(agenda.Call("Selecionar", DayArguments(date)), Value(Integer(0)));
    return NumbersOf(*ResultOf(agenda));
}

RecordSetRef ShopTest::Appointment(int number)
{
    Agenda agenda(host_);
    agenda.Call("Selecionar", DayArguments("20/11/2026"));
    RecordSetRef records = ResultOf(agenda);
    while (records->Field("NumeroDeLancamento").ToLong() != number)
        records->MoveNext();
    return records;
}

} // namespace kova::family::test
