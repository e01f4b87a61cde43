#include "timetable/appointment_moves.hpp"

#include "agenda/contracts/failure.hpp"
#include "screens/question.hpp"
#include "timetable/block_model.hpp"
#include "toolkits/qt/look/theme.hpp"

namespace kova::timetable {

namespace {

constexpr Long MinutesOfDay = 24 * 60;

/// By as much as what is seen of it on its day is moved and lengthened.
family::TimeSpan MovedSpan(const family::TimetableColumn& from, const family::TimetableBlock& block,
                           const NewPlace& to)
{
    const Long days = DayNumber(to.column.date) - DayNumber(from.date);
    return {AddMinutes(block.span.start, days * MinutesOfDay + to.part.from - block.part.from),
            AddMinutes(block.span.end, days * MinutesOfDay + to.part.until - block.part.until)};
}

QString Of(const std::string& text) { return QString::fromStdString(text); }

QString Told(const std::string& nickname, const family::TimeSpan& span)
{
    const QString end = span.end.date == span.start.date
        ? Of(FormatTime(span.end.time))
        : Of(FormatDate(span.end.date)) + QLatin1Char(' ') + Of(FormatTime(span.end.time));
    return QStringLiteral("%1, %2, das %3 às %4")
        .arg(Of(nickname), Of(FormatDate(span.start.date)), Of(FormatTime(span.start.time)), end);
}

} // namespace

MoveOutcome AppointmentMoves::Move(const family::TimetableColumn& from, const family::TimetableBlock& block,
                                   const NewPlace& to)
{
    const family::AppointmentMove wanted{block.row.number, block.row.version, to.column.employee,
                                         MovedSpan(from, block, to)};
    const QString who = WhoAndWhat(block.row);
    const QString now = Told(from.nickname, block.span), then = Told(to.column.nickname, wanted.span);
    QString question = QStringLiteral("Mover o agendamento de %1?\n\nDe: %2\nPara: %3").arg(who, now, then);
    if (wanted.span.start < desk_.now())
        question += QStringLiteral("\n\nEsse horário já passou.");
    const family::Key written = screens::AskWhether(over_, question) ? Write(wanted) : 0;
    if (written == 0)
        return {};
    const family::AppointmentMove back{block.row.number, written, from.employee, block.span, true};
    done_.push_back({back, QStringLiteral("%1 voltou para %2.").arg(who, now)});
    return {QStringLiteral("%1 agora está com %2. Ctrl+Z desfaz.").arg(who, then), wanted.number,
            wanted.span.start.date};
}

MoveOutcome AppointmentMoves::TakeBack()
{
    if (done_.empty())
        return {QStringLiteral("Nenhuma mudança foi feita aqui que se possa desfazer."), 0, {}};
    const Done last = done_.back();
    done_.pop_back();
    const family::Key written = Write(last.back);
    if (written == 0)
        return {};
    // One that was moved more than once goes back again from here.
    for (Done& before : done_) {
        if (before.back.number == last.back.number)
            before.back.version = written;
    }
    return {last.what, last.back.number, last.back.span.start.date};
}

family::Key AppointmentMoves::Write(family::AppointmentMove move)
{
    try {
        for (;;) {
            const family::WriteAnswer answer = family::MoveAppointment(*desk_.database, move, desk_.author());
            if (answer.IsDone())
                return answer.version;
            if (answer.field != family::DayOffField) {
                screens::ShowWarning(over_, qt::Lines(answer.text));
                return 0;
            }
            if (!screens::AskWhether(over_,
                                     qt::Lines(answer.text) + QStringLiteral(" Confirma o agendamento?")))
                return 0;
            move.isDayOffWanted = true;
        }
    } catch (const Failure& failure) {
        screens::ShowWarning(over_, qt::Lines(failure.Description()));
        return 0;
    }
}

} // namespace kova::timetable
