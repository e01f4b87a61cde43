#include "family/demo/registers.hpp"

#include "family/data/checks/documents.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/demo/fictional_shop.hpp"
#include "family/demo/words.hpp"

namespace kova::family {

namespace {

constexpr const char* ServiceTypes[] = {"Consulta",     "Retorno",      "Vacinação",
                                        "Banho e tosa", "Adestramento", "Transporte"};

struct Service {
    int type;
    const char* name;
    const char* description;
    int minutes, price, cost;
    int sessions = 0;
    int situation = 1;
};
constexpr Service Services[] = {
    {1, "Consulta clínica geral", "Exame clínico completo", 30, 15000, 4000},
    {1, "Consulta dermatológica", "Pele, pelos e ouvidos", 45, 22000, 6000},
    {1, "Consulta cardiológica", "Com eletrocardiograma", 60, 28000, 9000},
    {2, "Retorno de consulta", "Até quinze dias depois da consulta", 15, 0, 1000},
    {3, "Vacina antirrábica", "Dose anual", 15, 8000, 3000},
    {3, "Vacina V10", "Cães, dose anual", 15, 11000, 4500},
    {3, "Vacina V4 felina", "Gatos, dose anual", 15, 13000, 5200},
    {4, "Banho", "Banho com secagem", 45, 6000, 1800},
    {4, "Banho e tosa higiênica", "Banho, unhas e tosa higiênica", 60, 8000, 2300},
    {4, "Banho e tosa completa", "Banho e tosa na máquina", 90, 12000, 3500},
    {4, "Tosa na tesoura", "Acabamento à mão", 90, 15000, 3800},
    {4, "Hidratação de pelos", "Máscara hidratante", 30, 5000, 1500},
    {4, "Pacote de 4 banhos", "Um banho por semana", 45, 21000, 7000, 4},
    {4, "Pacote de 8 banhos", "Um banho por semana, dois meses", 45, 40000, 13500, 8},
    {4, "Banho a seco", "Não é mais oferecido", 30, 5500, 2000, 0, 2},
    {5, "Aula de adestramento", "Obediência básica", 60, 9000, 3000},
    {5, "Avaliação comportamental", "Primeira visita", 45, 12000, 3500},
    {6, "Táxi pet", "Busca e entrega na cidade", 30, 3500, 1500},
};

struct Employee {
    const char* nickname;
    const char* name;
    Trade trade;
    int atTheSameTime = 1;
    int situation = 1;
};
constexpr Employee Employees[] = {
    {"Dra. Helena", "Helena Prado Vasconcelos", Trade::Veterinarian},
    {"Bia", "Beatriz Nogueira Sampaio", Trade::Groomer},
    {"Juca", "José Carlos Peçanha", Trade::Groomer, 2},
    {"Dr. Otávio", "Otávio Bragança Leitão", Trade::Veterinarian},
    {"Tânia", "Tânia Regina Assunção", Trade::Groomer},
    {"Neto", "Antônio Galvão Neto", Trade::Trainer},
    {"Lurdes", "Maria de Lurdes Queirós", Trade::Groomer},
    {"Dra. Íris", "Íris Menezes Brandão", Trade::Veterinarian},
    {"Leva e traz", "Equipe de transporte", Trade::Trainer, 0},
    {"Paulão", "Paulo Roberto Ximenes", Trade::Groomer, 1, 2},
};

struct Breeds {
    const char* species;
    std::vector<const char*> names;
};
const std::vector<Breeds>& AllBreeds()
{
    static const std::vector<Breeds> breeds = {
        {"Canina",
         {"Sem raça definida", "Beagle", "Border Collie", "Buldogue Francês", "Dachshund", "Golden Retriever",
          "Labrador", "Lhasa Apso", "Maltês", "Pastor Alemão", "Pinscher", "Poodle", "Pug", "Shih Tzu",
          "Spitz Alemão", "Yorkshire"}},
        {"Felina", {"Sem raça definida", "Angorá", "Maine Coon", "Persa", "Siamês", "Sphynx"}},
        {"Ave", {"Calopsita", "Canário", "Periquito-australiano"}},
        {"Roedor", {"Coelho", "Hamster", "Porquinho-da-índia"}},
        {"Réptil", {}},
    };
    return breeds;
}

void WriteCompany(Database& database)
{
    Insert(database, FictionalCompany());
    Key code = 0;
    for (const char* name : {"Recepção", "Carla", "Marcos"})
        Insert(database, UserRow{++code, name});
}

std::vector<ServiceRow> WriteServices(Database& database)
{
    Key number = 0;
    for (const char* name : ServiceTypes)
        Insert(database, ServiceTypeRow{++number, name, FoldText(name)});
    std::vector<ServiceRow> rows;
    for (const Service& service : Services) {
        ServiceRow row{static_cast<Key>(rows.size()) + 1,
                       service.name,
                       FoldText(service.name),
                       service.description,
                       service.type,
                       service.minutes,
                       service.price,
                       service.cost,
                       {},
                       service.situation};
        if (service.sessions > 0)
            row.quantidadeDeSessoes = service.sessions;
        Insert(database, row);
        rows.push_back(std::move(row));
    }
    return rows;
}

/// Beyond the named staff, a big shop's employees are made up in the same mixture of trades.
ShopEmployee MakeEmployee(std::size_t index, Random& random)
{
    constexpr std::size_t named = std::size(Employees);
    const Employee& model = Employees[index < named ? index : index % (named - 1)];
    ShopEmployee employee{
        {static_cast<Key>(index) + 1, model.nickname, model.name, "", model.atTheSameTime, model.situation},
        model.trade};
    if (index >= named) {
        const std::string first(random.Pick(index % 2 == 0 ? words::WomensNames() : words::MensNames()));
        employee.row.apelido = first + " " + std::to_string(index + 1);
        employee.row.nome = first + " " + std::string(random.Pick(words::Surnames()));
    }
    employee.row.nomeDeBusca = FoldText(employee.row.nome);
    return employee;
}

std::vector<ShopEmployee> WriteEmployees(Database& database, int count, Random& random)
{
    std::vector<ShopEmployee> employees;
    while (employees.size() < static_cast<std::size_t>(count)) {
        employees.push_back(MakeEmployee(employees.size(), random));
        Insert(database, employees.back().row);
    }
    return employees;
}

void WriteBreeds(Database& database, ShopRegisters& registers)
{
    for (const Breeds& breeds : AllBreeds()) {
        const Key species = static_cast<Key>(registers.species.size()) + 1;
        registers.species.push_back({species, breeds.species, FoldText(breeds.species)});
        Insert(database, registers.species.back());
        for (const char* name : breeds.names) {
            const Key breed = static_cast<Key>(registers.breeds.size()) + 1;
            registers.breeds.push_back({breed, species, name, FoldText(name)});
            Insert(database, registers.breeds.back());
        }
    }
}

} // namespace

Trade TradeOf(Key serviceType)
{
    if (serviceType < 4)
        return Trade::Veterinarian;
    return serviceType == 4 ? Trade::Groomer : Trade::Trainer;
}

ShopRegisters WriteRegisters(Database& database, int employees, Random& random)
{
    ShopRegisters registers;
    WriteCompany(database);
    registers.services = WriteServices(database);
    registers.employees = WriteEmployees(database, employees, random);
    WriteBreeds(database, registers);
    return registers;
}

} // namespace kova::family
