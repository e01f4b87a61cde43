#include "host/session/day_list_news.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "family/data/engine/iso_text.hpp"
#include "host/session/heard_components.hpp"
#include "host/shell/main_window.hpp"
#include "host/shell/news_bar.hpp"
#include "toolkits/common/command_button.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/toolkit.hpp"

#include <QApplication>
#include <QKeySequence>
#include <QShortcut>

namespace kova::host {

namespace {

using toolkit::FormModel;
using toolkit::GridKey;
using toolkit::GridModel;
using toolkit::NavigationBarModel;

/// How often it is looked whether what is open was closed.
constexpr int LookMilliseconds = 200;

template <class Kind> Kind& In(const FormModel& form, const char* control)
{
    return dynamic_cast<Kind&>(form.Control(control));
}

std::string NumberIn(const GridModel& grid, Long row)
{
    return grid.CellText(row, agenda::colunas::NumeroDeLancamento);
}

/// 0 where it is not on the page.
Long RowOf(const GridModel& grid, const std::string& number)
{
    for (Long row = grid.RowAxis().Fixed(); row < grid.RowAxis().Count(); ++row) {
        if (NumberIn(grid, row) == number)
            return row;
    }
    return 0;
}

/// Turns pages until the appointment is there: forward, then back to the first one.
Long TurnTo(GridModel& grid, const std::string& number)
{
    Long row = RowOf(grid, number);
    while (row == 0 && grid.UserTurnsTo(NavigationBarModel::NextPage))
        row = RowOf(grid, number);
    if (row == 0 && grid.UserTurnsTo(NavigationBarModel::LastPage))
        row = RowOf(grid, number);
    while (row == 0 && grid.UserTurnsTo(NavigationBarModel::PreviousPage))
        row = RowOf(grid, number);
    return row;
}

void TurnToPage(GridModel& grid, const NavigationBarModel& bar, double first)
{
    while (bar.FirstRecord() > first && grid.UserTurnsTo(NavigationBarModel::PreviousPage))
        continue;
    while (bar.FirstRecord() < first && grid.UserTurnsTo(NavigationBarModel::NextPage))
        continue;
}

/// "A agenda de hoje"
QString AgendaOf(const std::optional<Date>& day, Date today)
{
    return day == today
        ? QStringLiteral("A agenda de hoje")
        : QStringLiteral("A agenda de %1").arg(QString::fromStdString(FormatDate(day.value_or(today))));
}

} // namespace

DayListNews::DayListNews(toolkit::ToolkitModel& toolkit, const Clock& clock, NewsOfDesks& news,
                         MainWindow& window)
    : QObject(&window),
      toolkit_(toolkit),
      clock_(clock),
      news_(news),
      window_(window),
      waiting_(new QTimer(this))
{
    waiting_->setObjectName(QStringLiteral("novidadesEsperam"));
    waiting_->setInterval(LookMilliseconds);
    connect(waiting_, &QTimer::timeout, this, [this] { Show(); });
    news.Follow(*this, [this](const DeskNews& told) { Count(told); });
    connect(&window.News(), &QAbstractButton::clicked, this, [this] { Reload(); });
    // Where the list is not on show the key is free.
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_R), &window.Container()), &QShortcut::activated,
            this, [this] { Reload(); });
}

void DayListNews::Hear(HeardComponents& components)
{
    components.onSelecting = [this] {
        if (IsListSelecting())
            news_.CatchUp();
    };
    components.onSelected = [this](const Text& day) {
        if (IsListSelecting())
            Selected(day);
    };
}

FormModel* DayListNews::List() const { return toolkit_.FindForm("frmLista"); }

bool DayListNews::IsListSelecting() const { return List() != nullptr && toolkit_.ModalForm() == nullptr; }

void DayListNews::Selected(const std::string& day)
{
    day_ = ParseDate(day);
    changes_ = ownChanges_ = 0;
    Show();
}

void DayListNews::Count(const DeskNews& news)
{
    if (!day_)
        return;
    const std::string day = family::IsoDate(*day_);
    for (const AppointmentNews& one : news.appointments) {
        if (one.BeginsOn(day) && !one.isByAgenda)
            ++(one.isOwn ? ownChanges_ : changes_);
    }
    Show();
}

bool DayListNews::IsSomethingOpen() const
{
    const FormModel* list = List();
    return list == nullptr || !list->Refusal().empty() || QApplication::activeModalWidget() != nullptr
        || QApplication::activePopupWidget() != nullptr;
}

void DayListNews::Show()
{
    waiting_->stop();
    if (changes_ == 0 && ownChanges_ == 0)
        return window_.News().Show({});
    if (IsSomethingOpen())
        return waiting_->start();
    const QString where = changes_ > 0 ? QStringLiteral(" mudou em outro posto (%1)").arg(changes_)
                                       : QStringLiteral(" mudou em outra tela (%1)").arg(ownChanges_);
    const QString whole = AgendaOf(day_, clock_.Now().date) + where;
    const QString count = QStringLiteral("Mudou (%1): Ctrl+R").arg(changes_ > 0 ? changes_ : ownChanges_);
    window_.News().Show(
        {whole + QStringLiteral(". Ctrl+R atualiza a lista."), whole + QStringLiteral(": Ctrl+R"), count});
}

void DayListNews::Reload()
{
    FormModel* list = List();
    if (list == nullptr || IsSomethingOpen())
        return;
    const Place place = PlaceIn(*list);
    list->UserPressesShortcut("F5");
    // It lets time pass, in which the window may be closed.
    list = List();
    if (list != nullptr && list->Refusal().empty())
        GoBack(*list, place);
}

DayListNews::Place DayListNews::PlaceIn(const FormModel& list)
{
    Place place;
    const auto& grid = In<GridModel>(list, "msfgGrade");
    const Long row = grid.Cursor().row;
    const bool isReached = In<toolkit::CommandButtonModel>(list, "kvcmdDetalhar").Visible();
    if (isReached && row >= grid.RowAxis().Fixed() && row < grid.RowAxis().Count())
        place.number = NumberIn(grid, row);
    place.firstOfPage = In<NavigationBarModel>(list, "kvnbBarraDeNavegacao").FirstRecord();
    return place;
}

void DayListNews::GoBack(const FormModel& list, const Place& place)
{
    auto& grid = In<GridModel>(list, "msfgGrade");
    const Long row = place.number.empty() ? 0 : TurnTo(grid, place.number);
    if (row == 0)
        return TurnToPage(grid, In<NavigationBarModel>(list, "kvnbBarraDeNavegacao"), place.firstOfPage);
    // Whose mouse rests on a row goes on with the row that is under it.
    if (grid.MouseRests())
        return;
    grid.UserKey(GridKey::Home);
    while (grid.Cursor().row < row)
        grid.UserKey(GridKey::Down);
}

} // namespace kova::host
