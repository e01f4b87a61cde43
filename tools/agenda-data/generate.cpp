#include "family/demo/shop.hpp"
#include "tools/agenda-data/commands.hpp"

#include <algorithm>

namespace kova::data {

namespace {

constexpr long long MostCustomers = 10'000'000;
constexpr long long MostAppointments = 100'000'000;
constexpr long long MostEmployees = 1000;

family::ShopPlan PlanOf(const Call& call, Date date)
{
    const int customers = static_cast<int>(call.Count("--customers", 50'000, MostCustomers));
    const long long appointments = call.Count("--appointments", 1'000'000, MostAppointments);
    const int employees = static_cast<int>(call.Count("--employees", 0, MostEmployees));
    return employees == 0
        ? family::MeasuringPlan(date, customers, appointments)
        : family::MeasuringPlan(date, customers, appointments, std::max(employees, family::FewestEmployees));
}

int Run(const Call& call, Surroundings& surroundings)
{
    const Date date = call.Day("--date").value_or(surroundings.now.date);
    family::ShopPlan plan = PlanOf(call, date);
    plan.appointments.audited = call.Has("--audit");
    family::CreateShop(call.Operand(0), plan);
    surroundings.output << "Banco de dados criado: " << call.Operand(0) << "\n";
    return 0;
}

} // namespace

const Command GenerateCommand{
    {"generate",
     "Cria uma loja grande para medições (padrão: 50000 clientes e 1000000 agendamentos);\n"
     "os mesmos números dão sempre o mesmo conteúdo.",
     {"BANCO"},
     {{"--customers", "N", "Quantos clientes (padrão: 50000)."},
      {"--appointments", "N", "Quantos agendamentos (padrão: 1000000)."},
      {"--employees", "N",
       "Quantos funcionários, no mínimo 6 (padrão: um para cada 6 agendamentos de um dia)."},
      {"--audit", {}, "Com a auditoria das gravações, como em uma loja de verdade."},
      {"--date", "dd/mm/aaaa", "O dia em torno do qual há agendamentos (padrão: hoje)."}}},
    Run,
};

} // namespace kova::data
