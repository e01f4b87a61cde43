#include "family/data/stores/work_tables.hpp"

#include "family/data/engine/change_count.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/engine/iso_text.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// A row of any of the three tables; what one of them lacks is 0 or empty.
struct WorkRow {
    enum Kind { OpeningHours, EmployeeHours, Absence };

    int kind = 0;
    Key employee = 0;
    int weekday = 0;
    std::string startDate, startTime, endDate, endTime, reason;
};

void AddHours(WeeklyHours& hours, const WorkRow& row)
{
    constexpr int Sunday = 1, Saturday = 7;
    if (row.weekday >= Sunday && row.weekday <= Saturday)
        hours.Add(row.weekday, {MinutesOf(row.startTime), MinutesOf(row.endTime)});
}

void AddRow(WorkTables& tables, const WorkRow& row)
{
    switch (row.kind) {
    case WorkRow::OpeningHours: AddHours(tables.shop, row); break;
    case WorkRow::EmployeeHours: AddHours(tables.employees[row.employee], row); break;
    default:
        tables.absences[row.employee].push_back({ReadIsoMoment(row.startDate, row.startTime),
                                                 ReadIsoMoment(row.endDate, row.endTime), row.reason});
    }
}

/// All of them with one question, since a server that lies far away answers one as soon as three.
constexpr const char* ReadAll =
    "select 0, 0, dia_da_semana, '', hora_inicial, '', hora_final, '' from expediente"
    " union all select 1, codigo_do_funcionario, dia_da_semana, '', hora_inicial, '', hora_final, ''"
    " from horario_do_funcionario"
    " union all select 2, coalesce(codigo_do_funcionario, 0), 0, data_inicial, hora_inicial, data_final,"
    " hora_final, motivo from ausencia order by 1, 2, 3, 4, 5, 6, 7, 8";

class WorkInMemory : public KeptStatement {
public:
    explicit WorkInMemory(Database& database)
        : changes_(database, NamesOfWorkTables()),
          readAll_((database.Session().prepare << ReadAll, soci::into(row_.kind), soci::into(row_.employee),
                    soci::into(row_.weekday), soci::into(row_.startDate), soci::into(row_.startTime),
                    soci::into(row_.endDate), soci::into(row_.endTime), soci::into(row_.reason)))
    {
    }

    std::shared_ptr<const WorkTables> After(std::optional<long long> changes)
    {
        changes_.ReadAgain(changes, [this] { tables_ = Read(); });
        return tables_;
    }

private:
    std::shared_ptr<const WorkTables> Read()
    {
        auto tables = std::make_shared<WorkTables>();
        readAll_.execute();
        while (readAll_.fetch())
            AddRow(*tables, row_);
        return tables;
    }

    std::shared_ptr<const WorkTables> tables_;
    ChangeCount changes_;
    WorkRow row_;
    soci::statement readAll_;
};

} // namespace

bool WeeklyHours::HasAny() const
{
    return std::any_of(days_.begin(), days_.end(), [](const auto& day) { return !day.empty(); });
}

int MinutesOf(const std::string& time)
{
    const TimeOfDay read = ReadIsoMoment({}, time).time;
    return 60 * read.hour + read.minute;
}

bool WeeklyHours::Cover(int weekday, PartOfDay part) const
{
    int reached = part.from;
    for (const PartOfDay& hours : days_.at(static_cast<std::size_t>(weekday))) {
        if (hours.from <= reached)
            reached = std::max(reached, hours.until);
    }
    return reached >= part.until;
}

std::shared_ptr<const WorkTables> FindWorkTables(Database& database, std::optional<long long> changes)
{
    return database.With<WorkInMemory>([&](WorkInMemory& kept) { return kept.After(changes); });
}

std::vector<std::string> NamesOfWorkTables() { return {"expediente", "horario_do_funcionario", "ausencia"}; }

} // namespace kova::family
