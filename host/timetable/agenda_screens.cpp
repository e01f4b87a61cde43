#include "host/timetable/agenda_screens.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "host/timetable/when_on_show.hpp"
#include "toolkits/common/boxes/combo_box.hpp"
#include "toolkits/common/boxes/date_box.hpp"
#include "toolkits/common/boxes/find_box.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/common/toolkit.hpp"

namespace kova::host {

namespace {

using toolkit::NavigationBarModel;

constexpr const char *List = "frmLista", *Record = "frmFichaCompleta";
constexpr const char *Grid = "msfgGrade", *Bar = "kvnbBarraDeNavegacao", *Day = "kvdtpDataDeAgendamento",
                     *Search = "kvfndPesquisar", *NewEntry = "mnuAdicionarAgendamentoCompleto";
constexpr const char *RecordDay = "kvdtpDataInicial", *Employee = "kvcmbFuncionarios",
                     *Service = "kvfCodigoDoServico", *Customer = "kvfCodigoDoCliente";
constexpr const char* Filters[] = {"kvcmbTiposDeServicos", "kvcmbFuncionarios", "kvcmbSituacao"};
const std::string Busy = "A agenda está ocupada. Termine o que está aberto nela e tente de novo.";
const std::string Gone = "O agendamento não está mais nesse dia: outro posto pode tê-lo mudado.";

/// Null where it is not there.
template <class Kind>
Kind* Find(const toolkit::ToolkitModel& toolkit, std::string_view form, std::string_view control)
{
    const toolkit::FormModel* there = toolkit.FindForm(form);
    return there != nullptr ? dynamic_cast<Kind*>(there->Find(control)) : nullptr;
}

std::string DigitsOf(TimeOfDay time)
{
    std::string digits = FormatTime(time);
    std::erase(digits, ':');
    return digits;
}

} // namespace

/// What the list shows: its day, its filters and what it searches. Where another command has changed one of
/// them it comes back in the end.
class AgendaScreens::ListAsItWas {
public:
    explicit ListAsItWas(AgendaScreens& screens) : screens_(screens), day_(DayNow()), search_(SearchNow())
    {
        for (const char* filter : Filters)
            rows_.push_back(RowNow(filter));
    }
    ~ListAsItWas()
    {
        for (std::size_t at = 0; at < rows_.size(); ++at)
            Choose(Filters[at], rows_[at]);
        if (search_ != SearchNow())
            SearchFor(search_);
        if (day_)
            TurnTo(*day_);
    }
    ListAsItWas(const ListAsItWas&) = delete;
    ListAsItWas& operator=(const ListAsItWas&) = delete;

    bool IsOf(Date day) const { return DayNow() == day; }
    /// What it shows may be old.
    bool ReadAnew() { return screens_.user_.PressShortcut(List, "F5").empty(); }
    /// All appointments of that day.
    void ShowAllOf(Date day)
    {
        for (const char* filter : Filters)
            Choose(filter, 0);
        if (!SearchNow().empty())
            screens_.user_.Press(List, Search);
        TurnTo(day);
    }

private:
    std::optional<Date> DayNow() const
    {
        const auto* box = Find<toolkit::DateBoxModel>(screens_.toolkit_, List, Day);
        return box != nullptr ? box->ShownDate() : std::nullopt;
    }
    Text SearchNow() const
    {
        const auto* box = Find<toolkit::FindBoxModel>(screens_.toolkit_, List, Search);
        return box != nullptr && !box->WouldSearch() ? box->ShownText() : Text();
    }
    int RowNow(const char* filter) const
    {
        const auto* combo = Find<toolkit::ComboBoxModel>(screens_.toolkit_, List, filter);
        return combo != nullptr ? combo->ShownRow() : -1;
    }
    void Choose(const char* filter, int row)
    {
        if (row >= 0 && RowNow(filter) != row)
            screens_.user_.Choose(List, filter, row);
    }
    void SearchFor(const Text& text)
    {
        screens_.user_.Type(List, Search, text);
        screens_.user_.Press(List, Search);
    }
    void TurnTo(Date day)
    {
        if (DayNow() != day)
            screens_.user_.Pick(List, Day, day);
    }

    AgendaScreens& screens_;
    std::optional<Date> day_;
    Text search_;
    std::vector<int> rows_;
};

std::string AgendaScreens::Run(const RowCommand& command, family::Key number, Date date)
{
    if (std::string why = WhyDenied(command); !why.empty())
        return why;
    const toolkit::FormModel* list = toolkit_.FindForm(List);
    if (list == nullptr || !list->Refusal().empty())
        return Busy;
    ListAsItWas asItWas(*this);
    if (!(asItWas.IsOf(date) && asItWas.ReadAnew() && FindRow(number))) {
        asItWas.ShowAllOf(date);
        if (!FindRow(number))
            return Gone;
    }
    const std::string refusal =
        command.key.empty() ? user_.PickEntry(List, command.control) : user_.PressShortcut(List, command.key);
    user_.Leave(List, Grid);
    return refusal.empty() ? refusal : Busy;
}

bool AgendaScreens::FindRow(family::Key number)
{
    const auto* grid = Find<toolkit::GridModel>(toolkit_, List, Grid);
    if (grid == nullptr || !grid->IsOnShow())
        return false;
    if (RowOnPage(number) == 0)
        user_.Bar(List, Bar, NavigationBarModel::FirstPage);
    Long row = RowOnPage(number);
    while (row == 0 && user_.Bar(List, Bar, NavigationBarModel::NextPage).empty())
        row = RowOnPage(number);
    if (row == 0)
        return false;
    user_.Leave(List, Grid);
    return user_.Rest(List, Grid, row).empty();
}

Long AgendaScreens::RowOnPage(family::Key number) const
{
    const auto* grid = Find<toolkit::GridModel>(toolkit_, List, Grid);
    const Text wanted = std::to_string(number);
    for (Long row = 1; grid != nullptr && row < grid->RowAxis().Count(); ++row) {
        if (grid->CellText(row, agenda::colunas::NumeroDeLancamento) == wanted)
            return row;
    }
    return 0;
}

std::string AgendaScreens::Book(const Booking& booking)
{
    if (std::string why = WhyNotBooked(); !why.empty())
        return why;
    const WhenOnShow fill(toolkit_, Record, [&] { Fill(booking); });
    return user_.PickEntry(List, NewEntry).empty() ? std::string() : Busy;
}

bool AgendaScreens::IsRecordOpen() const
{
    const auto* date = Find<toolkit::WidgetCore>(toolkit_, Record, RecordDay);
    return date != nullptr && date->TakesInput();
}

bool AgendaScreens::IsRecord(const toolkit::FormModel& form) { return form.Name() == Record; }

std::optional<Booking> AgendaScreens::OpenBooking() const
{
    if (!IsRecordOpen())
        return std::nullopt;
    Booking booking;
    const auto* day = Find<toolkit::DateBoxModel>(toolkit_, Record, RecordDay);
    booking.date = day->ShownDate().value_or(Date());
    const auto* employee = Find<toolkit::ComboBoxModel>(toolkit_, Record, Employee);
    if (employee != nullptr && employee->ShownRow() >= 0)
        booking.employee = employee->ShownRows()[static_cast<std::size_t>(employee->ShownRow())].data;
    if (const auto* service = Find<toolkit::FindBoxModel>(toolkit_, Record, Service))
        booking.service = static_cast<family::Key>(Val(service->ShownText()));
    return booking;
}

std::optional<Date> AgendaScreens::DayOfList() const
{
    const auto* day = Find<toolkit::DateBoxModel>(toolkit_, List, Day);
    return day != nullptr ? day->ShownDate() : std::nullopt;
}

void AgendaScreens::Fill(const Booking& booking)
{
    // What a step opens, such as a question about the customer, has been answered when it returns; where the
    // user has closed the form there, the others do nothing.
    if (booking.customer != 0) {
        user_.Type(Record, Customer, std::to_string(booking.customer));
        user_.Press(Record, Customer);
        if (booking.animal != 0)
            user_.ChooseData(Record, "kvcmbAnimal", static_cast<Long>(booking.animal));
    }
    FillOpen(booking);
    if (booking.customer == 0)
        user_.Focus(Record, "kvfApelidoOuNomeFantasiaDoCliente");
}

void AgendaScreens::FillOpen(const Booking& booking)
{
    if (!IsRecordOpen())
        return;
    const auto before = OpenBooking();
    if (booking.service != 0 && booking.service != before->service) {
        user_.Type(Record, Service, std::to_string(booking.service));
        user_.Press(Record, Service);
    }
    user_.Pick(Record, RecordDay, booking.date);
    if (booking.employee != 0)
        user_.ChooseData(Record, Employee, static_cast<Long>(booking.employee));
    if (booking.sessions > 1)
        FillRepetition(booking);
    if (booking.time)
        user_.Type(Record, "kvtimHoraInicial", DigitsOf(*booking.time));
    // Leaving the time says when the service ends, where one is chosen.
    user_.Focus(Record, "kvtxtObservacaoDoServico");
}

void AgendaScreens::FillRepetition(const Booking& booking)
{
    constexpr int Yes = 0;
    user_.Choose(Record, "kvcmbReagendar", Yes);
    user_.Choose(Record, "kvcmbReagendarPor", booking.weeks - 1);
    user_.Type(Record, "kvnumNumeroDeSemanas", std::to_string(booking.sessions - 1));
}

std::string AgendaScreens::WhyDenied(const RowCommand& command) const
{
    // Cards are everybody's.
    return command.key.empty() ? std::string() : WhyDenied(command.control);
}

std::string AgendaScreens::WhyNotBooked() const { return WhyDenied(NewEntry); }

std::string AgendaScreens::WhyDenied(std::string_view control) const
{
    const auto* there = Find<toolkit::WidgetCore>(toolkit_, List, control);
    return there != nullptr ? there->Denial() : Busy;
}

} // namespace kova::host
