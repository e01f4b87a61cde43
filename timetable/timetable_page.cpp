#include "timetable/timetable_page.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/business/places/timetable.hpp"
#include "screens/plain_label.hpp"
#include "timetable/block_model.hpp"
#include "timetable/calendar_dates.hpp"
#include "timetable/command_menu.hpp"
#include "timetable/employees.hpp"
#include "timetable/timetable_view.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kova::timetable {

namespace {

constexpr int DaysOfWeek = 7, MinutesOfHour = 60;
constexpr int NowEachMilliseconds = 20'000;

/// The Monday of that week.
Date MondayOf(Date date) { return AddDays(date, -((Weekday(date) + DaysOfWeek - 2) % DaysOfWeek)); }

} // namespace

TimetablePage::TimetablePage(Desk desk, Commands commands, QWidget* parent)
    : QWidget(parent),
      desk_(std::move(desk)),
      moves_(desk_, *this),
      blocks_(new BlockModel(this)),
      view_(new TimetableView(*blocks_, this)),
      day_(new QDateEdit(ToQt(desk_.now().date), this)),
      employee_(new QComboBox(this)),
      step_(new QComboBox(this)),
      cancelled_(new QCheckBox(QStringLiteral("&Cancelados"), this)),
      soon_(new QTimer(this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      place_(screens::MakePlainLabel(QStringLiteral("lugar"), this)),
      commands_(new CommandMenu(
          *this, std::move(commands), [this] { return Under(); },
          [this](const QString& text) {
              Refresh();
              Tell(text);
          }))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 12);
    layout->addWidget(MakeBar());
    layout->addWidget(told_);
    layout->addWidget(view_, 1);
    layout->addWidget(place_);
    FillEmployees();
    AddShortcuts();
    setFocusProxy(view_);
    connect(day_, &QDateEdit::dateChanged, this, [this] { Read(); });
    connect(employee_, &QComboBox::currentIndexChanged, this, [this] { Read(); });
    connect(step_, &QComboBox::currentIndexChanged, this, [this] { Read(); });
    connect(cancelled_, &QCheckBox::toggled, this, [this] { Read(); });
    view_->onMoved = [this] { TellPlace(); };
    view_->onBlock = [this](int) { commands_->RunFirst(); };
    view_->onPlace = [this](int, int) { commands_->RunFirst(); };
    view_->onMenu = [this](const QPoint& at) { commands_->Open(at); };
    view_->onShift = [this](const BlockShift& shift) { Move(shift); };
    view_->onShifting = [this](const auto& shift) { TellShift(shift); };
    soon_->setObjectName(QStringLiteral("lerEmBreve"));
    connect(soon_, &QTimer::timeout, this, [this] { RefreshIfIdle(); });
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, [this] { view_->TellNow(desk_.now()); });
    clock->start(NowEachMilliseconds);
    Read();
}

TimetablePage::~TimetablePage() = default;

QWidget* TimetablePage::MakeBar()
{
    auto* bar = new QWidget(this);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString& text, const QString& name, const QString& tip, auto pressed) {
        auto* button = new QPushButton(text, bar);
        button->setObjectName(name);
        button->setAccessibleName(tip);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, pressed);
        layout->addWidget(button);
        return button;
    };
    constexpr int Narrow = 36, WidthOfToday = 64;
    add(QStringLiteral("<"), QStringLiteral("anterior"),
        QStringLiteral("Dia ou semana anterior (Alt+Esquerda)"), [this] { Step(-1); })
        ->setFixedWidth(Narrow);
    day_->setObjectName(QStringLiteral("dia"));
    day_->setAccessibleName(QStringLiteral("Dia"));
    day_->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    day_->setDisplayFormat(QStringLiteral("ddd dd/MM/yyyy"));
    day_->setCalendarPopup(true);
    layout->addWidget(day_);
    add(QStringLiteral(">"), QStringLiteral("proximo"), QStringLiteral("Próximo dia ou semana (Alt+Direita)"),
        [this] { Step(1); })
        ->setFixedWidth(Narrow);
    add(QStringLiteral("&Hoje"), QStringLiteral("hoje"), QStringLiteral("Hoje (Alt+H)"), [this] {
        ShowToday();
    })->setFixedWidth(WidthOfToday);
    employee_->setObjectName(QStringLiteral("funcionario"));
    employee_->setAccessibleName(QStringLiteral("Funcionário: todos em um dia, ou um em uma semana"));
    layout->addWidget(employee_);
    step_->setObjectName(QStringLiteral("intervalo"));
    step_->setAccessibleName(QStringLiteral("Minutos de cada linha"));
    for (const int minutes : {5, 10, 15, 20, 30, 60})
        step_->addItem(QStringLiteral("%1 min").arg(minutes), minutes);
    step_->setCurrentIndex(2);
    layout->addWidget(step_);
    cancelled_->setObjectName(QStringLiteral("cancelados"));
    cancelled_->setToolTip(QStringLiteral("Mostra também os cancelados"));
    layout->addWidget(cancelled_);
    layout->addStretch(1);
    return bar;
}

void TimetablePage::AddShortcuts()
{
    const auto add = [this](const QKeySequence& keys, auto pressed) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, pressed);
    };
    add(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { Step(-1); });
    add(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { Step(1); });
    add(QKeySequence(Qt::Key_F5), [this] {
        Refresh();
        Tell({});
    });
    add(QKeySequence(Qt::CTRL | Qt::Key_Z), [this] { TakeBack(); });
}

void TimetablePage::FillEmployees()
{
    const QSignalBlocker quiet(employee_);
    const qlonglong chosen = employee_->currentData().toLongLong();
    employee_->clear();
    employee_->addItem(QStringLiteral("Todos os funcionários"), 0);
    AddActiveEmployees(*employee_, *desk_.database);
    employee_->setCurrentIndex(std::max(0, employee_->findData(chosen)));
}

family::Key TimetablePage::Employee() const { return employee_->currentData().toLongLong(); }

Date TimetablePage::Day() const { return FromQt(day_->date()); }

void TimetablePage::ShowDay(Date date) { day_->setDate(ToQt(date)); }

void TimetablePage::Step(int direction)
{
    day_->setDate(day_->date().addDays(direction * (IsWeek() ? DaysOfWeek : 1)));
}

void TimetablePage::ShowToday()
{
    ShowDay(desk_.now().date);
    BeginAtNow();
}

/// The cursor at this hour where it is today's, and the hours before the first one open scrolled away.
void TimetablePage::BeginAtNow()
{
    constexpr int HourAbove = 60, UsualBegin = 7 * 60;
    const DateTime now = desk_.now();
    const int first = blocks_->FirstMinute();
    view_->ScrollTo(std::max(0, (first == 0 ? UsualBegin : first) - HourAbove / 2));
    const int minute = view_->Measures().LineOf(now.time.hour * MinutesOfHour + now.time.minute);
    view_->MoveTo(std::max(0, view_->Column()), Day() == now.date ? minute : first);
}

Date TimetablePage::FirstDay() const { return IsWeek() ? MondayOf(Day()) : Day(); }

int TimetablePage::Days() const { return IsWeek() ? DaysOfWeek : 1; }

void TimetablePage::RefreshSoon()
{
    constexpr int LookMilliseconds = 100;
    if (isVisible() && !soon_->isActive())
        soon_->start(LookMilliseconds);
}

void TimetablePage::RefreshIfIdle()
{
    const bool isBusy = view_->IsShifting() || QApplication::activeModalWidget() != nullptr
        || QApplication::activePopupWidget() != nullptr;
    if (isBusy)
        return;
    soon_->stop();
    Refresh();
}

void TimetablePage::Refresh()
{
    FillEmployees();
    Read();
}

void TimetablePage::Read()
{
    try {
        blocks_->Show(family::ReadTimetable(*desk_.database, {FirstDay(), Days(), Employee()}),
                      cancelled_->isChecked());
    } catch (const Failure& failure) {
        blocks_->Show({}, false);
        Tell(qt::Lines(failure.Description()));
    }
    view_->LayOut(step_->currentData().toInt());
    view_->TellNow(desk_.now());
    TellPlace();
}

void TimetablePage::Tell(const QString& text)
{
    told_->setText(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent said(told_, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

std::optional<Target> TimetablePage::Under() const
{
    const QModelIndex current = view_->currentIndex();
    if (view_->Column() < 0)
        return std::nullopt;
    if (current.isValid()) {
        const family::TimetableBlock& block = blocks_->Block(current.row());
        return Target{block.row.number, block.row.employee, block.span.start};
    }
    const family::TimetableColumn& of = blocks_->Columns()[static_cast<std::size_t>(view_->Column())];
    const int minute = view_->Minute();
    return Target{0, of.employee, {of.date, {minute / MinutesOfHour, minute % MinutesOfHour, 0}}};
}

void TimetablePage::ShowAppointment(family::Key number, Date date)
{
    if (Day() != date)
        ShowDay(date);
    else
        Read();
    if (const int row = blocks_->RowOf(number); row >= 0)
        view_->MoveTo(blocks_->ColumnOf(row), blocks_->Block(row).part.from);
}

void TimetablePage::Move(const BlockShift& shift)
{
    if (const QString why = whyNotMoved(); !why.isEmpty())
        return Tell(why);
    // As it stood when it was taken, whatever is read meanwhile.
    const family::TimetableBlock block = blocks_->Block(shift.row);
    const family::TimetableColumn from =
        blocks_->Columns()[static_cast<std::size_t>(blocks_->ColumnOf(shift.row))];
    const family::TimetableColumn to = blocks_->Columns()[static_cast<std::size_t>(shift.column)];
    Show(moves_.Move(from, block, {to, shift.part}));
}

void TimetablePage::TakeBack() { Show(moves_.TakeBack()); }

void TimetablePage::Show(const MoveOutcome& outcome)
{
    if (outcome.number != 0)
        ShowAppointment(outcome.number, outcome.date);
    else
        Read();
    Tell(outcome.told);
}

void TimetablePage::TellShift(const std::optional<BlockShift>& shift)
{
    if (!shift)
        return TellPlace();
    const family::TimetableColumn& to = blocks_->Columns()[static_cast<std::size_t>(shift->column)];
    place_->setText(QStringLiteral("Mover para %1, %2, das %3 às %4. Enter confirma, Esc desiste.")
                        .arg(QString::fromStdString(to.nickname), QString::fromStdString(FormatDate(to.date)),
                             TextOfMinute(shift->part.from), TextOfMinute(shift->part.until)));
}

void TimetablePage::TellPlace()
{
    const QModelIndex current = view_->currentIndex();
    place_->setText(current.isValid() ? current.data(Qt::AccessibleTextRole).toString()
                                      : view_->PlaceAsText());
}

void TimetablePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Refresh();
    if (!std::exchange(wasShown_, true))
        BeginAtNow();
}

} // namespace kova::timetable
