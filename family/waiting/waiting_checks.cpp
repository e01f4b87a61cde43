#include "family/waiting/waiting_checks.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/stores/work_tables.hpp"

#include <algorithm>
#include <limits>
#include <string_view>

namespace kova::family::waiting {

namespace {

constexpr int Active = 1, DeletedCustomer = 4;

/// The checks in their order; the first that fails is the answer.
class Checks {
public:
    Checks(Database& database, const WaitingEntry& entry, const std::string& today)
        : database_(database), entry_(entry), row_(entry.row), today_(today)
    {
    }

    WriteAnswer Run()
    {
        CheckCustomer();
        CheckAnimal();
        CheckServices();
        CheckEmployees();
        CheckDays();
        CheckWeekdays();
        CheckHours();
        return answer_;
    }

private:
    void Require(bool isRight, const char* field, std::string text)
    {
        if (answer_.IsDone() && !isRight)
            answer_ = WriteAnswer::InvalidField(field, std::move(text));
    }

    void CheckCustomer()
    {
        const auto customer = FindByKey<CustomerRow>(database_, row_.codigoDoCliente);
        Require(customer.has_value(), "codigo_do_cliente", "Informe um cliente cadastrado.");
        Require(customer && customer->situacao != DeletedCustomer, "codigo_do_cliente",
                "O cliente está excluído.");
    }

    void CheckAnimal()
    {
        const auto animal = FindByKey<AnimalRow>(database_, row_.codigoDoAnimal);
        Require(animal && animal->codigoDoCliente == row_.codigoDoCliente, "codigo_do_animal",
                "Informe um animal do cliente.");
        Require(animal && animal->situacao == Active, "codigo_do_animal", "O animal está inativo.");
    }

    void CheckServices()
    {
        Require(!entry_.services.empty(), "servicos", "Informe o serviço.");
        for (const Key code : entry_.services) {
            const auto service = FindByKey<ServiceRow>(database_, code);
            Require(service && service->situacao == Active, "servicos",
                    "O serviço " + std::to_string(code) + " não existe ou está inativo.");
            if (service && service->duracaoEmMinutos < shortest_) {
                shortest_ = service->duracaoEmMinutos;
                shortestName_ = service->nome;
            }
        }
    }

    void CheckEmployees()
    {
        for (const Key code : entry_.employees) {
            const auto employee = FindByKey<EmployeeRow>(database_, code);
            Require(employee && employee->situacao == Active, "funcionarios",
                    "O(a) funcionário(a) " + std::to_string(code) + " não existe ou está inativo(a).");
        }
    }

    void CheckDays()
    {
        Require(IsIsoDate(row_.dataInicial), "data_inicial", "Informe o primeiro dia.");
        Require(IsIsoDate(row_.dataFinal), "data_final", "Informe o último dia.");
        Require(row_.dataFinal >= row_.dataInicial, "data_final", "O último dia é anterior ao primeiro.");
        Require(row_.dataFinal >= today_, "data_final", "O último dia já passou.");
    }

    void CheckWeekdays()
    {
        const std::string& digits = row_.diasDaSemana;
        const bool areDays = !digits.empty() && digits.find_first_not_of("1234567") == std::string::npos
            && std::ranges::adjacent_find(digits, std::ranges::greater_equal()) == digits.end();
        Require(areDays, "dias_da_semana", "Informe os dias da semana.");
        if (answer_.IsDone())
            Require(HasSuchADay(), "dias_da_semana",
                    "Nenhum desses dias da semana cai entre o primeiro e o último dia.");
    }

    bool HasSuchADay() const
    {
        constexpr int DaysOfWeek = 7;
        const Date last = ReadIsoMoment(row_.dataFinal, "00:00").date;
        Date date = ReadIsoMoment(row_.dataInicial, "00:00").date;
        for (int day = 0; day < DaysOfWeek && date <= last; ++day, date = AddDays(date, 1)) {
            if (row_.diasDaSemana.find(static_cast<char>('0' + Weekday(date))) != std::string::npos)
                return true;
        }
        return false;
    }

    void CheckHours()
    {
        Require(IsIsoTime(row_.horaInicial), "hora_inicial", "Informe a hora a partir da qual serve.");
        Require(IsIsoEndTime(row_.horaFinal), "hora_final", "Informe a hora até a qual serve.");
        Require(row_.horaFinal > row_.horaInicial, "hora_final", "O fim não é posterior ao início.");
        if (answer_.IsDone())
            Require(MinutesOf(row_.horaFinal) - MinutesOf(row_.horaInicial) >= shortest_, "hora_final",
                    "Das " + row_.horaInicial + " às " + row_.horaFinal + " não cabe " + shortestName_
                        + ", que leva " + std::to_string(shortest_) + " minutos.");
    }

    Database& database_;
    const WaitingEntry& entry_;
    const WaitingRow& row_;
    const std::string& today_;
    int shortest_ = std::numeric_limits<int>::max();
    std::string shortestName_;
    WriteAnswer answer_;
};

} // namespace

WriteAnswer CheckEntry(Database& database, const WaitingEntry& entry, const std::string& today)
{
    return Checks(database, entry, today).Run();
}

bool CanStillCome(Database& database, const WaitingRow& row)
{
    const auto customer = FindByKey<CustomerRow>(database, row.codigoDoCliente);
    const auto animal = FindByKey<AnimalRow>(database, row.codigoDoAnimal);
    return customer && customer->situacao != DeletedCustomer && animal && animal->situacao == Active;
}

} // namespace kova::family::waiting
