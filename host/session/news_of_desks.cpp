#include "host/session/news_of_desks.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/audit/own_lines.hpp"
#include "host/session/news_listener.hpp"
#include "system/computer_name.hpp"

#include <algorithm>
#include <utility>

namespace kova::host {

namespace {

constexpr const char* Appointments = "agendamento";

} // namespace

Writer WriterOf(ComponentService& components, const std::string& source, family::Key line, family::Key number)
{
    if (family::IsOwnLine(source, {line, Appointments, number}))
        return Writer::OtherArea;
    const bool isByAgenda =
        components.CreateObject("KOVA_N_Dados.clsBanco")
            ->Call("GravouALinha",
                   {static_cast<Double>(line), Text(Appointments), static_cast<Double>(number)})
            .ToBoolean();
    return isByAgenda ? Writer::Agenda : Writer::Another;
}

bool AppointmentNews::IsOn(std::string_view day) const
{
    return std::ranges::any_of(days, [day](const auto& one) { return one.first <= day && day <= one.last; });
}

bool AppointmentNews::BeginsOn(std::string_view day) const
{
    return std::ranges::any_of(days, [day](const auto& one) { return one.first == day; });
}

NewsOfDesks::NewsOfDesks(std::string source, AskWriter writer)
    : source_(std::move(source)), writer_(std::move(writer))
{
}

NewsOfDesks::~NewsOfDesks() = default;

void NewsOfDesks::Follow(QObject& area, Hear hear) { followers_.push_back({&area, std::move(hear)}); }

void NewsOfDesks::Begin()
{
    listener_ = std::make_unique<NewsListener>(source_, [this] {
        QMetaObject::invokeMethod(
            &here_, [this] { Tell(); }, Qt::QueuedConnection);
    });
}

void NewsOfDesks::End() { listener_.reset(); }

void NewsOfDesks::CatchUp(std::chrono::milliseconds patience)
{
    if (!listener_)
        return;
    listener_->LookNow(patience);
    Tell();
}

void NewsOfDesks::Tell()
{
    const auto rows = listener_ ? listener_->Take() : std::vector<family::NewsOfRow>();
    if (rows.empty())
        return;
    const DeskNews news = Judged(rows);
    // One that is told may have others follow.
    const std::vector<Follower> followers = followers_;
    for (const Follower& follower : followers) {
        if (follower.area)
            follower.hear(news);
    }
}

DeskNews NewsOfDesks::Judged(const std::vector<family::NewsOfRow>& rows) const
{
    DeskNews news;
    for (const family::NewsOfRow& row : rows) {
        if (row.table != Appointments) {
            news.otherTables.insert(row.table);
            continue;
        }
        const Writer writer = WriterOfRow(row);
        news.appointments.push_back(
            {row.key, writer != Writer::Another, writer == Writer::Agenda, DaysOf(row)});
    }
    return news;
}

Writer NewsOfDesks::WriterOfRow(const family::NewsOfRow& row) const
{
    if (row.desk != system::ComputerName())
        return Writer::Another;
    try {
        return writer_(row.line, row.key);
    } catch (const Failure&) {
        return Writer::Another;
    }
}

} // namespace kova::host
