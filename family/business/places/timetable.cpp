#include "family/business/places/timetable.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/stores/holiday_calendar.hpp"

#include <algorithm>
#include <array>
#include <list>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

namespace kova::family {

namespace {

constexpr Key Everybody = 0;
constexpr int Active = 1;
constexpr int MinutesOfDay = 24 * 60;

struct Worker {
    Key code = 0;
    std::string nickname, folded;
    bool isActive = false;
};

/// By nickname and code.
std::vector<Worker> WorkersFor(Database& database, Key wanted)
{
    std::vector<Worker> workers;
    SelectRows<EmployeeRow>(database, [&](const EmployeeRow& row) {
        if (wanted == Everybody || wanted == row.codigo) {
            const std::string& called = row.apelido.empty() ? row.nome : row.apelido;
            workers.push_back({row.codigo, called, FoldText(called), row.situacao == Active});
        }
    });
    std::ranges::sort(workers, {}, [](const Worker& one) { return std::tie(one.folded, one.code); });
    return workers;
}

/// Why each minute of a day is closed; the first reason that is told stays.
class ClosedMinutes {
public:
    void Close(PartOfDay part, const std::string& why)
    {
        const std::string* const reason = &*kept_.insert(kept_.end(), why);
        for (int minute = std::max(part.from, 0); minute < std::min(part.until, MinutesOfDay); ++minute) {
            const std::string*& told = reasons_[static_cast<std::size_t>(minute)];
            if (told == nullptr)
                told = reason;
        }
    }

    /// What the hours do not have.
    void CloseOutside(const std::vector<PartOfDay>& hours, const std::string& why)
    {
        int open = 0;
        std::vector<PartOfDay> sorted = hours;
        std::ranges::sort(sorted, {}, &PartOfDay::from);
        for (const PartOfDay& part : sorted) {
            Close({open, part.from}, why);
            open = std::max(open, part.until);
        }
        Close({open, MinutesOfDay}, why);
    }

    std::vector<ClosedPart> Parts() const
    {
        std::vector<ClosedPart> parts;
        const std::string* before = nullptr;
        for (int minute = 0; minute < MinutesOfDay; ++minute) {
            const std::string* reason = reasons_[static_cast<std::size_t>(minute)];
            const bool goesOn =
                reason != nullptr && before != nullptr && (reason == before || *reason == *before);
            if (goesOn)
                ++parts.back().part.until;
            else if (reason != nullptr)
                parts.push_back({{minute, minute + 1}, *reason});
            before = reason;
        }
        return parts;
    }

private:
    std::array<const std::string*, MinutesOfDay> reasons_{};
    std::list<std::string> kept_;
};

class Reader {
public:
    Reader(Database& database, const TimetableWish& wish)
        : wish_(wish),
          workers_(WorkersFor(database, wish.employee)),
          tables_(FindWorkTables(database, std::nullopt)),
          holidays_(database)
    {
        const Date last = AddDays(wish.from, wish.days - 1);
        for (DayAppointmentRow& row :
             FindDayAppointments(database, {IsoDate(wish.from), IsoDate(last), wish.employee}))
            rows_[row.employee].push_back(std::move(row));
    }

    std::vector<TimetableColumn> Columns()
    {
        std::vector<TimetableColumn> columns;
        for (int day = 0; day < wish_.days; ++day) {
            const Date date = AddDays(wish_.from, day);
            for (const Worker& worker : workers_) {
                TimetableColumn column{date, worker.code, worker.nickname, {}, BlocksOf(worker.code, date)};
                if (!worker.isActive && wish_.employee == Everybody && column.blocks.empty())
                    continue;
                column.closed = ClosedFor(worker, date);
                columns.push_back(std::move(column));
            }
        }
        return columns;
    }

private:
    std::vector<TimetableBlock> BlocksOf(Key employee, Date date) const
    {
        std::vector<TimetableBlock> blocks;
        const auto found = rows_.find(employee);
        if (found == rows_.end())
            return blocks;
        for (const DayAppointmentRow& row : found->second) {
            const BookedTimeRow& times = row.times;
            const TimeSpan span = ReadIsoSpan(times.startDate, times.startTime, times.endDate, times.endTime);
            PartOfDay part = PartOn(date, span);
            // One that ends when it begins is there all the same.
            if (span.start == span.end && span.start.date == date)
                part.until = part.from + 1;
            if (part.from < part.until)
                blocks.push_back({row, span, part});
        }
        std::ranges::sort(blocks, {}, [](const TimetableBlock& block) {
            return std::tuple(block.part.from, -block.part.until, block.row.number);
        });
        return blocks;
    }

    std::vector<ClosedPart> ClosedFor(const Worker& worker, Date date)
    {
        ClosedMinutes closed;
        if (const auto holiday = holidays_.On(date))
            closed.Close({0, MinutesOfDay}, "Feriado: " + *holiday);
        CloseAbsences(closed, Everybody, date, "Todos ausentes");
        CloseAbsences(closed, worker.code, date, worker.nickname + " está ausente");
        closed.CloseOutside(tables_->shop.On(Weekday(date)), "A loja está fechada");
        if (const auto own = tables_->employees.find(worker.code); own != tables_->employees.end())
            closed.CloseOutside(own->second.On(Weekday(date)), worker.nickname + " não trabalha");
        if (!worker.isActive)
            closed.Close({0, MinutesOfDay}, worker.nickname + " não atende mais");
        return closed.Parts();
    }

    void CloseAbsences(ClosedMinutes& closed, Key whose, Date date, const std::string& why) const
    {
        const auto found = tables_->absences.find(whose);
        if (found == tables_->absences.end())
            return;
        for (const Absence& absence : found->second) {
            const std::string reason = absence.reason.empty() ? "" : " (" + absence.reason + ")";
            closed.Close(PartOn(date, {absence.from, absence.until}), why + reason);
        }
    }

    const TimetableWish& wish_;
    std::vector<Worker> workers_;
    std::shared_ptr<const WorkTables> tables_;
    HolidayCalendar holidays_;
    std::map<Key, std::vector<DayAppointmentRow>> rows_;
};

} // namespace

std::vector<TimetableColumn> ReadTimetable(Database& database, const TimetableWish& wish)
{
    if (wish.days < 1)
        throw Failure(FailureNumber::InvalidArgument);
    return Reader(database, wish).Columns();
}

} // namespace kova::family
