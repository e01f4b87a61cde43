#include "host/timetable/free_place_finder.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/sources/data_source.hpp"
#include "host/shell/main_window.hpp"
#include "screens/question.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

namespace kova::host {

namespace {

bool IsItsKey(const QKeyEvent& key)
{
    return key.key() == Qt::Key_L && (key.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier;
}

/// The record form that the widget stands in; null where it stands in none.
QWidget* RecordAround(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const auto* form = dynamic_cast<qt::FormWidget*>(widget);
        if (form != nullptr && AgendaScreens::IsRecord(form->Model()))
            return widget;
    }
    return nullptr;
}

Booking BookingOf(const timetable::ChosenPlace& chosen)
{
    return {.date = chosen.place.span.start.date,
            .time = chosen.place.span.start.time,
            .employee = chosen.place.employee,
            .service = chosen.service,
            .sessions = chosen.sessions,
            .weeks = chosen.weeks};
}

} // namespace

const QString FreePlaceFinder::Name = QStringLiteral("Próximo horário &livre");

FreePlaceFinder::FreePlaceFinder(std::string source, const Clock& clock, AgendaScreens& agenda)
    : source_(std::move(source)), clock_(clock), agenda_(agenda)
{
}

void FreePlaceFinder::AddTo(MainWindow& window)
{
    window_ = &window;
    window.Menu().addAction(Name + QStringLiteral("...\tCtrl+L"), &window, [this] { FindForList(); });
    // Forms are windows of their own, which know nothing of the application's keys.
    qApp->installEventFilter(this);
}

bool FreePlaceFinder::IsMeant(const QObject* object) const
{
    const auto* widget = dynamic_cast<const QWidget*>(object);
    if (widget == nullptr || QApplication::focusWidget() != widget)
        return false;
    return RecordAround(QApplication::focusWidget()) != nullptr
        ? agenda_.OpenBooking().has_value()
        : window_->Container().isAncestorOf(widget) && agenda_.WhyNotBooked().empty();
}

bool FreePlaceFinder::eventFilter(QObject* object, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || window_ == nullptr || !IsItsKey(*static_cast<QKeyEvent*>(event)) || !IsMeant(object))
        return false;
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        // Out of the key's own handling, which the dialog would hold up.
        QTimer::singleShot(0, this, [this] {
            QWidget* record = RecordAround(QApplication::focusWidget());
            return record != nullptr ? FindForRecord(*record->window()) : FindForList();
        });
    }
    return true;
}

std::optional<timetable::ChosenPlace> FreePlaceFinder::Ask(QWidget& over,
                                                           const timetable::PlaceQuestion& question)
{
    try {
        if (!database_)
            database_ = family::OpenDatabase(source_);
        // The author is asked for by what writes, and a search writes nothing.
        timetable::FreePlaceDialog dialog({database_, [this] { return clock_.Now(); }, {}}, question, &over);
        dialog.exec();
        return dialog.Chosen();
    } catch (const Failure& failure) {
        screens::ShowWarning(over, qt::Lines(failure.Description()));
        return std::nullopt;
    }
}

std::string FreePlaceFinder::Find(QWidget& over, const timetable::PlaceQuestion& question)
{
    if (std::string why = agenda_.WhyNotBooked(); !why.empty())
        return why;
    const auto chosen = Ask(over, question);
    return chosen ? agenda_.Book(BookingOf(*chosen)) : std::string();
}

void FreePlaceFinder::FindForList()
{
    if (const std::string why = Find(*window_, {.from = agenda_.DayOfList()}); !why.empty())
        screens::ShowWarning(*window_, qt::Lines(why));
}

void FreePlaceFinder::FindForRecord(QWidget& over)
{
    const auto open = agenda_.OpenBooking();
    if (!open)
        return;
    const auto chosen = Ask(over, {.service = open->service, .employee = open->employee, .from = open->date});
    if (chosen)
        agenda_.FillOpen(BookingOf(*chosen));
}

} // namespace kova::host
