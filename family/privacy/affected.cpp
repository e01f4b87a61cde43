#include "family/privacy/affected.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/pre_sales.hpp"

namespace kova::family::privacy {

namespace {

struct PreSaleOfAppointment : PreSaleRow {
    static constexpr const char* FoundBy = "numero_do_agendamento";
};

/// "3, 5 e mais 12"
std::string Listed(const std::vector<Key>& numbers)
{
    constexpr std::size_t Most = 10;
    std::string list;
    for (std::size_t at = 0; at < numbers.size() && at < Most; ++at)
        list += (at == 0 ? "" : ", ") + std::to_string(numbers[at]);
    if (numbers.size() > Most)
        list += " e mais " + std::to_string(numbers.size() - Most);
    return list;
}

bool IsStillToCome(const AppointmentRow& row, const std::string& moment)
{
    return row.situacao == appointment_status::Booked
        && row.dataInicial + " " + row.horaInicial
        >= moment.substr(0, std::string("yyyy-mm-dd hh:mm").size());
}

std::vector<Key> StillToCome(const AffectedAppointments& affected, const std::string& moment)
{
    std::vector<Key> numbers;
    for (const AppointmentRow& row : affected.all) {
        if (IsStillToCome(row, moment))
            numbers.push_back(row.numero);
    }
    return numbers;
}

std::vector<Key> WithOpenPreSale(Database& database, const AffectedAppointments& affected)
{
    std::set<Key> numbers;
    for (const AppointmentRow& row : affected.all)
        numbers.insert(row.numero);
    std::vector<Key> open;
    SelectWhere<PreSaleOfAppointment>(database, numbers, [&](const PreSaleOfAppointment& row) {
        if (row.situacao == pre_sale_status::Open)
            open.push_back(row.numeroDoAgendamento);
    });
    return open;
}

} // namespace

AffectedAppointments FindAffected(Database& database, const Person& person, std::optional<bool> sameName)
{
    AffectedAppointments affected{AppointmentsOf(database, person.code), {}};
    FindLikelyAppointments(database, person.identity, [&](const AppointmentRow& row, Likeness likeness) {
        if (IsHis(likeness) || sameName.value_or(false))
            affected.all.push_back(row);
        else if (!sameName)
            affected.undecided.push_back(row.numero);
    });
    return affected;
}

std::string WhyNotNow(Database& database, const Person& person, const AffectedAppointments& affected,
                      const std::string& moment)
{
    if (!MayRewriteAudit(database))
        return "O usuário deste endereço não pode alterar a auditoria, como convém a um posto. Quem cuida do "
               "servidor torna o cliente anônimo com \"agenda-data forget\" e o usuário que é dono do banco.";
    const std::string customer = "O cliente " + std::to_string(person.code);
    if (const std::vector<Key> numbers = StillToCome(affected, moment); !numbers.empty())
        return customer + " ainda tem agendamentos marcados: " + Listed(numbers)
            + ". Cancele-os, ou marque-os como atendidos, e tente novamente.";
    if (const std::vector<Key> numbers = WithOpenPreSale(database, affected); !numbers.empty())
        return customer + " tem pré-vendas abertas, dos agendamentos " + Listed(numbers)
            + ". Fature-as ou cancele-as e tente novamente.";
    if (!affected.undecided.empty())
        return "Há agendamentos sem cadastro que têm só o mesmo nome: " + Listed(affected.undecided)
            + ". Confira se são desta pessoa e diga se também ficam anônimos.";
    return {};
}

} // namespace kova::family::privacy
