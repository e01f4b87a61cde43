#include "host/timetable/waiting_desk.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/business/current_author.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/last_appointment.hpp"
#include "family/waiting/freed_place.hpp"
#include "family/waiting/waiting_writes.hpp"
#include "host/shell/main_window.hpp"
#include "screens/question.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "waiting/waiting_words.hpp"

#include <QMenu>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace kova::host {

namespace {

/// The subject of the notice.
const QString Freed = QStringLiteral("espera");

} // namespace

WaitingDesk::WaitingDesk(std::string source, ObjectRef user, const Clock& clock, AgendaScreens& agenda,
                         FreePlaceFinder& finder)
    : source_(std::move(source)), user_(std::move(user)), clock_(clock), agenda_(agenda), finder_(finder)
{
}

void WaitingDesk::AddTo(MainWindow& window)
{
    window_ = &window;
    window.Menu().addAction(QStringLiteral("Lista de &espera...\tCtrl+E"), &window, [this] { Open(); });
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_E), &window), &QShortcut::activated,
                     &window, [this] { Open(); });
}

waiting::Desk WaitingDesk::OpenDesk()
{
    if (!database_)
        database_ = family::OpenDatabase(source_);
    return {{database_, [this] { return family::CurrentAuthor(user_, clock_); }},
            [this] { return clock_.Now(); }};
}

void WaitingDesk::Open()
{
    try {
        const auto freed = std::exchange(freed_, std::nullopt);
        window_->ShowNotice(Freed, {});
        return freed ? OpenFits(*freed) : OpenList();
    } catch (const Failure& failure) {
        screens::ShowWarning(*window_, qt::Lines(failure.Description()));
    }
}

void WaitingDesk::OpenFits(const family::waiting::FreedPlace& freed)
{
    waiting::WaitingDialog dialog(OpenDesk(), freed, window_);
    dialog.exec();
    if (dialog.Chosen())
        Book(*dialog.Chosen());
}

void WaitingDesk::OpenList()
{
    QString told;
    for (;;) {
        waiting::WaitingDialog dialog(OpenDesk(), window_);
        if (!told.isEmpty())
            dialog.Tell(told);
        dialog.exec();
        if (!dialog.Chosen())
            return;
        told = Book(*dialog.Chosen());
    }
}

QString WaitingDesk::Book(const waiting::Waiter& waiter)
{
    if (waiter.fit)
        return BookAt(*waiter.fit, 1, 1);
    const family::WaitingEntry& entry = waiter.entry;
    const Date first = family::ReadIsoMoment(entry.row.dataInicial, "00:00").date;
    const auto chosen = finder_.Ask(*window_,
                                    {.service = entry.services.empty() ? 0 : *entry.services.begin(),
                                     .employee = entry.employees.size() == 1 ? *entry.employees.begin() : 0,
                                     .from = std::max(first, clock_.Now().date)});
    return chosen ? BookAt({entry, chosen->service, chosen->place}, chosen->sessions, chosen->weeks)
                  : QString();
}

QString WaitingDesk::BookAt(const family::waiting::WaitingFit& fit, int sessions, int weeks)
{
    const waiting::Desk desk = OpenDesk();
    family::Database& database = *desk.data.database;
    const family::WaitingRow& row = fit.entry.row;

    // 1. In hand, so that no other desk books the same one.
    const family::waiting::WaitingAnswer taken =
        family::waiting::Take(database, row.codigo, desk.data.author());
    if (!taken.IsDone()) {
        screens::ShowWarning(*window_, qt::Lines(taken.text));
        return {};
    }

    // 2. The agenda's own form, filled in.
    const family::Key before = family::LastAppointmentOf(database, row.codigoDoAnimal);
    const std::string why = agenda_.Book({.date = fit.place.span.start.date,
                                          .time = fit.place.span.start.time,
                                          .employee = fit.place.employee,
                                          .customer = row.codigoDoCliente,
                                          .animal = row.codigoDoAnimal,
                                          .service = fit.service,
                                          .sessions = sessions,
                                          .weeks = weeks});

    // 3. Booked, or back on the list.
    const family::Key booked = family::LastAppointmentOf(database, row.codigoDoAnimal);
    const bool isBooked = booked > before;
    const family::waiting::WaitingAnswer answer = isBooked
        ? family::waiting::MarkBooked(database, row.codigo, taken.version, booked, desk.data.author())
        : family::waiting::PutBack(database, row.codigo, taken.version, desk.data.author());
    if (!why.empty() || !answer.IsDone())
        screens::ShowWarning(*window_, qt::Lines(why.empty() ? answer.text : why));
    return isBooked ? QStringLiteral("Marcado: %1.").arg(waiting::WhoWaits(database, fit.entry)) : QString();
}

void WaitingDesk::LookAtFreed(family::Key appointment)
{
    try {
        family::Database& database = *OpenDesk().data.database;
        const auto freed = family::waiting::FreedByLastWrite(database, appointment);
        if (!freed)
            return;
        const std::size_t count = family::waiting::WhoFits(database, *freed, clock_.Now()).size();
        if (count == 0)
            return;
        freed_ = freed;
        const QString when = QString::fromStdString(FormatDate(freed->span.start.date) + " às "
                                                    + FormatTime(freed->span.start.time));
        const QString who = count == 1 ? QStringLiteral("há uma pessoa para esse horário")
                                       : QStringLiteral("há %1 pessoas para esse horário").arg(count);
        window_->ShowNotice(
            Freed, QStringLiteral("Vagou %1. Na lista de espera %2. Ctrl+E mostra quem.").arg(when, who));
    } catch (const Failure&) {
        // Nobody has asked; what is asked next says what is wrong.
    }
}

} // namespace kova::host
