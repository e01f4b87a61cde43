#include "family/privacy/person.hpp"

#include "family/data/audit/audit_lines.hpp"
#include "family/data/audit/merged_rows.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/select_where.hpp"

namespace kova::family::privacy {

namespace {

struct SimplifiedAppointment : AppointmentRow {
    static constexpr const char* Condition = "tipo_do_agendamento = 1";
};

struct ChannelOfPerson : ChannelRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

struct AnimalOfPerson : AnimalRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

/// The values that a column has had.
std::vector<std::string> FormerValues(const std::vector<AuditLine>& lines, const char* column)
{
    std::vector<std::string> values;
    for (const AuditLine& line : lines) {
        for (const AuditedColumns* columns : {&line.before, &line.after}) {
            const auto found = columns->find(column);
            if (found != columns->end() && found->second)
                values.push_back(*found->second);
        }
    }
    return values;
}

void AddCustomer(const std::optional<CustomerRow>& row, const std::vector<AuditLine>& lines,
                 Identity& identity)
{
    if (row) {
        identity.AddName(row->nome);
        identity.AddName(row->apelido);
    }
    for (const char* column : {"nome", "apelido"}) {
        for (const std::string& name : FormerValues(lines, column))
            identity.AddName(name);
    }
    for (const std::string& channels : FormerValues(lines, "tipos_e_canais"))
        identity.AddContacts(channels);
}

void AddAnimals(Database& database, Database* archive, Key customer, Identity& identity)
{
    SelectWhere<AnimalOfPerson>(database, std::set<Key>{customer}, [&](const AnimalOfPerson& animal) {
        identity.AddAnimal(animal.nome);
        for (const std::string& name :
             FormerValues(FindAllAuditLines(database, archive, AnimalRow::Table, animal.codigo), "nome"))
            identity.AddAnimal(name);
    });
}

} // namespace

std::optional<Person> FindPerson(Database& database, Key code, Database* archive)
{
    Person person{code, {code}, {}};
    for (const Key gone : HaveGoneInto(database, CustomerRow::Table, code))
        person.codes.insert(gone);
    if (archive)
        for (const Key one : std::set<Key>(person.codes))
            for (const Key gone : HaveGoneInto(*archive, CustomerRow::Table, one))
                person.codes.insert(gone);
    bool isKnown = false;
    for (const Key one : person.codes) {
        const std::optional<CustomerRow> row = FindByKey<CustomerRow>(database, one);
        const std::vector<AuditLine> lines = FindAllAuditLines(database, archive, CustomerRow::Table, one);
        isKnown = isKnown || row || !lines.empty();
        AddCustomer(row, lines, person.identity);
        SelectWhere<ChannelOfPerson>(database, std::set<Key>{one}, [&](const ChannelOfPerson& channel) {
            person.identity.AddContacts(channel.canal);
        });
        AddAnimals(database, archive, one, person.identity);
    }
    return isKnown ? std::optional(person) : std::nullopt;
}

std::vector<AppointmentRow> AppointmentsOf(Database& database, Key customer)
{
    std::vector<AppointmentRow> appointments;
    SelectWhere<AppointmentOfCustomer>(
        database, std::set<Key>{customer},
        [&](const AppointmentOfCustomer& row) { appointments.push_back(row); });
    return appointments;
}

void FindLikelyAppointments(Database& database, const Identity& identity,
                            const std::function<void(const AppointmentRow&, Likeness)>& visit)
{
    SelectRows<SimplifiedAppointment>(database, [&](const SimplifiedAppointment& row) {
        const Likeness likeness =
            identity.LikenessTo(row.nomeDoCliente, row.canaisDoCliente, row.nomeDoAnimal);
        if (likeness != Likeness::None)
            visit(row, likeness);
    });
}

} // namespace kova::family::privacy
