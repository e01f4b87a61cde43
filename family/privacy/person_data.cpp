#include "family/privacy/person_data.hpp"

#include "family/data/audit/short_names.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/stores/register_names.hpp"
#include "family/data/stores/waiting_list.hpp"
#include "family/privacy/audited_values.hpp"
#include "family/privacy/personal_columns.hpp"
#include "family/registers/registers.hpp"

#include <set>

namespace kova::family::privacy {

namespace {

struct ChannelOfPerson : ChannelRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

struct AnimalOfPerson : AnimalRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

struct PreSaleOfAppointment : PreSaleRow {
    static constexpr const char* FoundBy = "numero_do_agendamento";
};

class Reading {
public:
    Reading(Database& database, Person person) : database_(database), person_(std::move(person))
    {
        data_.code = person_.code;
    }

    PersonData Run(const LongWork& work)
    {
        SelectRows<CompanyRow>(database_, [&](const CompanyRow& row) { data_.shop = row.nomeFantasia; });
        ReadRegisters();
        ReadAppointments();
        ReadSales();
        ReadWaiting();
        ReadChanges(work);
        return std::move(data_);
    }

private:
    void ReadRegisters()
    {
        const std::set<Key> code{person_.code};
        data_.customer = registers::CustomerRegister().Read(database_, person_.code);
        SelectWhere<ChannelOfPerson>(database_, code,
                                     [&](const ChannelOfPerson& row) { data_.channels.push_back(row); });
        SelectWhere<AnimalOfPerson>(database_, code,
                                    [&](const AnimalOfPerson& row) { animals_.insert(row.codigo); });
        for (const Key animal : animals_)
            data_.animals.push_back(registers::AnimalRegister().Read(database_, animal).value());
    }

    void ReadAppointments()
    {
        for (const AppointmentRow& row : AppointmentsOf(database_, person_.code))
            data_.appointments.push_back(Named(row, Likeness::None));
        FindLikelyAppointments(database_, person_.identity,
                               [&](const AppointmentRow& row, Likeness likeness) {
                                   data_.likely.push_back(Named(row, likeness));
                               });
    }

    PersonAppointment Named(const AppointmentRow& row, Likeness likeness)
    {
        return {row,
                NamedAnimal(database_, row.codigoDoAnimal.ValueOr(0)),
                NamedServiceType(database_, row.numeroDoTipoDeServico),
                NamedService(database_, row.codigoDoServico),
                NamedEmployee(database_, row.codigoDoFuncionario),
                likeness};
    }

    void ReadSales()
    {
        const std::set<Key> numbers = HisNumbers();
        std::set<Key> packages;
        for (const auto* appointments : {&data_.appointments, &data_.likely}) {
            for (const PersonAppointment& appointment : *appointments) {
                if (numbers.contains(appointment.row.numero) && !appointment.row.codigoDoPacote.IsNull())
                    packages.insert(appointment.row.codigoDoPacote.value);
            }
        }
        SelectWhere<PreSaleOfAppointment>(
            database_, numbers, [&](const PreSaleOfAppointment& row) { data_.preSales.push_back(row); });
        SelectWhere<PackageRow>(database_, packages, [&](const PackageRow& row) {
            data_.packages.push_back({row, NamedService(database_, row.codigoDoServico)});
        });
    }

    void ReadWaiting()
    {
        for (const WaitingRow& row : FindWaitingOf(database_, person_.code)) {
            const std::optional<WaitingEntry> entry = FindWaiting(database_, row.codigo);
            if (entry)
                data_.waiting.push_back({row, NamedAnimal(database_, row.codigoDoAnimal),
                                         Named(entry->services, NamedService),
                                         Named(entry->employees, NamedEmployee)});
        }
    }

    std::string Named(const std::set<Key>& codes, std::string (*name)(Database&, Key))
    {
        std::string names;
        for (const Key code : codes)
            names += (names.empty() ? "" : ", ") + name(database_, code);
        return names;
    }

    std::set<Key> HisNumbers() const
    {
        std::set<Key> numbers;
        for (const PersonAppointment& appointment : data_.appointments)
            numbers.insert(appointment.row.numero);
        for (const PersonAppointment& appointment : data_.likely) {
            if (IsHis(appointment.likeness))
                numbers.insert(appointment.row.numero);
        }
        return numbers;
    }

    void ReadChanges(const LongWork& work)
    {
        constexpr Key FromTheFirst = 0;
        LinesOfPerson::Rows rows{HisNumbers(), animals_, {}};
        for (const PersonWaiting& waiting : data_.waiting)
            rows.waiting.insert(waiting.row.codigo);
        LinesOfPerson lines(person_, rows);
        VisitAudit(database_, FromTheFirst, work, [&](const StoredAuditLine& line) {
            AuditedValues before = HisValues(lines, line, line.antes);
            AuditedValues after = HisValues(lines, line, line.depois);
            if (before.empty() && after.empty() && !lines.IsAboutHis(line))
                return;
            DropWhatStayed(before, after);
            data_.changes.push_back({line.momento, line.usuario, line.operacao, line.tabela, line.chave,
                                     Exported(line, before), Exported(line, after)});
        });
    }

    /// Empty where they are not of his rows.
    static AuditedValues HisValues(LinesOfPerson& lines, const StoredAuditLine& line,
                                   const Nullable<std::string>& text)
    {
        return IsHis(lines.Of(line, text)) ? ReadValues(text.value) : AuditedValues::object();
    }

    static void DropWhatStayed(AuditedValues& before, AuditedValues& after)
    {
        std::vector<std::string> stayed;
        for (const auto& [column, value] : before.items()) {
            const auto found = after.find(column);
            if (found != after.end() && *found == value)
                stayed.push_back(column);
        }
        for (const std::string& column : stayed) {
            before.erase(column);
            after.erase(column);
        }
    }

    static std::vector<std::pair<std::string, std::string>> Exported(const StoredAuditLine& line,
                                                                     const AuditedValues& values)
    {
        std::vector<std::pair<std::string, std::string>> exported;
        for (const auto& [name, value] : values.items()) {
            const std::string column(ColumnOfName(name));
            if (IsExported(line.tabela, column))
                exported.emplace_back(column, TextOf(value));
        }
        return exported;
    }

    Database& database_;
    const Person person_;
    std::set<Key> animals_;
    PersonData data_;
};

} // namespace

std::optional<PersonData> ReadPerson(Database& database, Key code, const LongWork& work)
{
    std::optional<Person> person = FindPerson(database, code);
    if (!person)
        return std::nullopt;
    return Reading(database, *std::move(person)).Run(work);
}

} // namespace kova::family::privacy
