#include "host/timetable/timetable_tab.hpp"

#include "family/business/current_author.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "host/session/tab_explanation.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"

#include <QMenu>
#include <QShortcut>

#include <algorithm>
#include <set>

namespace kova::host {

using timetable::Command;
using timetable::Target;

TimetableTab::TimetableTab(std::string source, ObjectRef user, const Clock& clock, UserChange& change,
                           toolkit::ToolkitModel& toolkit)
    : source_(std::move(source)),
      user_(std::move(user)),
      clock_(clock),
      change_(change),
      agenda_(toolkit),
      finder_(source_, clock, agenda_),
      waiting_(source_, user_, clock, agenda_, finder_)
{
}

void TimetableTab::AddTo(MainWindow& window)
{
    window_ = &window;
    tab_ = window.AddTab(QStringLiteral("Horários"), [this](QWidget& parent) { return MakePage(parent); });
    const auto show = [this] { window_->ShowTab(tab_); };
    window.Menu().addAction(QStringLiteral("Horá&rios\tCtrl+T"), &window, show);
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_T), &window), &QShortcut::activated,
                     &window, show);
    finder_.AddTo(window);
    waiting_.AddTo(window);
}

void TimetableTab::Hear(const DeskNews& news)
{
    if (page_ && IsOnShow(news))
        page_->RefreshSoon();
    for (const AppointmentNews& one : news.appointments) {
        if (one.isOwn)
            waiting_.LookAtFreed(one.number);
    }
}

bool TimetableTab::IsOnShow(const DeskNews& news) const
{
    static const std::set<std::string> shown{
        "funcionario", "horario_do_funcionario", "ausencia", "expediente", "feriado", "cliente", "animal",
        "servico"};
    const auto isShown = [](const std::string& table) { return shown.contains(table); };
    if (std::ranges::any_of(news.otherTables, isShown))
        return true;
    for (int day = 0; day < page_->Days(); ++day) {
        const std::string date = family::IsoDate(AddDays(page_->FirstDay(), day));
        if (std::ranges::any_of(news.appointments,
                                [&](const AppointmentNews& one) { return one.IsOn(date); }))
            return true;
    }
    return false;
}

QWidget* TimetableTab::MakePage(QWidget& parent)
{
    try {
        const timetable::Desk desk{family::OpenDatabase(source_), [this] { return clock_.Now(); },
                                   [this] { return family::CurrentAuthor(user_, clock_); }};
        page_ = new timetable::TimetablePage(desk, MakeCommands(), &parent);
        page_->whyNotMoved = [this] {
            return QString::fromStdString(agenda_.WhyDenied(row_commands::Alter));
        };
        change_.Follow(*page_, [page = page_.data()] { page->Refresh(); });
        return page_;
    } catch (const Failure& failure) {
        return ExplanationInTab(QStringLiteral("Os horários não puderam ser abertos."), failure.Description(),
                                parent);
    }
}

Command TimetableTab::OfRow(const char* text, const RowCommand& command)
{
    Command made;
    made.text = QString::fromUtf8(text);
    if (!command.key.empty())
        made.keys =
            QKeySequence(QString::fromLatin1(command.key.data(), static_cast<int>(command.key.size())));
    made.run = [this, command](const Target& target) {
        return QString::fromStdString(agenda_.Run(command, target.number, target.when.date));
    };
    made.why = [this, command] { return QString::fromStdString(agenda_.WhyDenied(command)); };
    return made;
}

timetable::Commands TimetableTab::MakeCommands()
{
    namespace rows = row_commands;
    const QString cards = QStringLiteral("&Imprimir");
    timetable::Commands commands;
    commands.push_back(OfRow("&Detalhar", rows::Detail));
    commands.push_back(OfRow("&Alterar", rows::Alter));
    commands.push_back(OfRow("E&xcluir", rows::Delete));
    commands.push_back(OfRow("Marcar como a&gendado", rows::MarkBooked));
    commands.back().beginsPart = true;
    commands.push_back(OfRow("Marcar como a&tendido", rows::MarkAttended));
    commands.push_back(OfRow("Marcar como &cancelado", rows::MarkCancelled));
    commands.push_back(OfRow("Marcar como atendido e gerado &pré-venda", rows::MarkWithPreSale));
    for (auto [text, command] : {std::pair("Ficha para &transporte", rows::TransportCard),
                                 std::pair("Ficha para &inspeção do animal", rows::InspectionCard),
                                 std::pair("&Etiqueta de endereço", rows::AddressLabel)}) {
        commands.push_back(OfRow(text, command));
        commands.back().group = cards;
    }
    Command book;
    book.text = QStringLiteral("&Novo agendamento neste horário");
    book.keys = QKeySequence(Qt::Key_F2);
    book.needs = Command::Needs::Place;
    book.run = [this](const Target& target) {
        return QString::fromStdString(
            agenda_.Book({.date = target.when.date, .time = target.when.time, .employee = target.employee}));
    };
    book.why = [this] { return QString::fromStdString(agenda_.WhyNotBooked()); };
    commands.push_back(book);
    Command find;
    find.text = FreePlaceFinder::Name;
    find.keys = QKeySequence(Qt::CTRL | Qt::Key_L);
    find.needs = Command::Needs::Nothing;
    find.beginsPart = true;
    find.run = [this](const Target& target) {
        return QString::fromStdString(finder_.Find(*window_, {.from = target.when.date}));
    };
    find.why = book.why;
    commands.push_back(find);
    return commands;
}

} // namespace kova::host
