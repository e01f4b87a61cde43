#include "timetable/free_place_dialog.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "timetable/calendar_dates.hpp"
#include "timetable/employees.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QAccessible>
#include <QComboBox>
#include <QCompleter>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::timetable {

namespace {

constexpr int Active = 1, MinutesOfDay = 24 * 60;
constexpr int DaysAhead = 62, MostSuggestions = 30, MostSessions = 52;

struct PartOfTheDay {
    const char* name;
    family::PartOfDay part;
};
/// A shop may be open all day in its register, and nobody is to be told of a bath at midnight unasked.
constexpr PartOfTheDay Parts[] = {{"De dia, das 07:00 às 20:00", {7 * 60, 20 * 60}},
                                  {"O dia todo", {0, MinutesOfDay}},
                                  {"Manhã, até as 12:00", {0, 12 * 60}},
                                  {"Tarde, das 12:00 às 18:00", {12 * 60, 18 * 60}},
                                  {"Noite, depois das 18:00", {18 * 60, MinutesOfDay}}};

QString Of(const std::string& text) { return QString::fromStdString(text); }

} // namespace

FreePlaceDialog::FreePlaceDialog(Desk desk, const PlaceQuestion& question, QWidget* parent)
    : QDialog(parent),
      desk_(std::move(desk)),
      service_(new QComboBox(this)),
      employee_(new QComboBox(this)),
      part_(new QComboBox(this)),
      every_(new QComboBox(this)),
      minutes_(new QSpinBox(this)),
      sessions_(new QSpinBox(this)),
      count_(new QSpinBox(this)),
      from_(new QDateEdit(this)),
      found_(new QListWidget(this)),
      told_(screens::MakePlainLabel(QStringLiteral("recado"), this)),
      take_(new QPushButton(QStringLiteral("&Marcar neste horário"), this))
{
    setObjectName(QStringLiteral("ProximoHorarioLivre"));
    setWindowTitle(QStringLiteral("Próximo horário livre"));
    setBackgroundRole(QPalette::Base);
    FillServices(question.service);
    FillEmployees(question.employee);
    from_->setDate(ToQt(std::max(question.from.value_or(desk_.now().date), desk_.now().date)));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeQuestion());
    layout->addWidget(told_);
    layout->addWidget(found_, 1);
    layout->addWidget(MakeButtons());
    screens::GrowWithContents(*this, {640, 520});
    TakeService();
    for (QComboBox* box : {employee_, part_, every_})
        connect(box, &QComboBox::currentIndexChanged, this, [this] { Find(); });
    for (QSpinBox* box : {minutes_, sessions_, count_})
        connect(box, &QSpinBox::valueChanged, this, [this] { Find(); });
    connect(from_, &QDateEdit::dateChanged, this, [this] { Find(); });
    connect(service_, &QComboBox::currentIndexChanged, this, [this] { TakeService(); });
    if (question.service != 0)
        found_->setFocus();
    else
        service_->setFocus();
}

QWidget* FreePlaceDialog::MakeQuestion()
{
    minutes_->setRange(1, MinutesOfDay);
    minutes_->setSuffix(QStringLiteral(" min"));
    sessions_->setRange(1, MostSessions);
    count_->setRange(1, MostSuggestions);
    count_->setValue(6);
    for (const PartOfTheDay& part : Parts)
        part_->addItem(QString::fromUtf8(part.name));
    every_->addItem(QStringLiteral("cada semana"), 1);
    every_->addItem(QStringLiteral("cada quinzena"), 2);
    from_->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    from_->setDisplayFormat(QStringLiteral("ddd dd/MM/yyyy"));
    from_->setCalendarPopup(true);
    found_->setObjectName(QStringLiteral("horarios"));
    found_->setAccessibleName(QStringLiteral("Horários livres"));
    found_->setMinimumHeight(150);
    found_->setSpacing(2);
    connect(found_, &QListWidget::itemActivated, this, [this] { Take(); });

    auto* question = new QWidget(this);
    auto* grid = new QGridLayout(question);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* label, QWidget* editor, const char* name, int row, int column,
                         int span) {
        editor->setObjectName(QString::fromUtf8(name));
        grid->addWidget(new screens::FieldFrame(QString::fromUtf8(label), editor, question), row, column, 1,
                        span);
    };
    add("&Serviço", service_, "servico", 0, 0, 4);
    add("D&uração", minutes_, "duracao", 0, 4, 2);
    add("&Com quem", employee_, "funcionario", 1, 0, 3);
    add("&A partir de", from_, "dia", 1, 3, 3);
    add("&Parte do dia", part_, "parte", 2, 0, 2);
    add("&Vezes", sessions_, "vezes", 2, 2, 1);
    add("&Repetir", every_, "cada", 2, 3, 2);
    add("Su&gestões", count_, "quantas", 2, 5, 1);
    return question;
}

QWidget* FreePlaceDialog::MakeButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    take_->setObjectName(QStringLiteral("marcar"));
    take_->setDefault(true);
    buttons->addButton(take_, QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("&Fechar"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Take(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void FreePlaceDialog::FillServices(family::Key chosen)
{
    try {
        family::SelectRows<family::ServiceRow>(*desk_.database, [this](const family::ServiceRow& row) {
            if (row.situacao == Active && row.duracaoEmMinutos > 0)
                services_.push_back({row.codigo, Of(row.nome), row.duracaoEmMinutos,
                                     std::max(1, row.quantidadeDeSessoes.ValueOr(1))});
        });
    } catch (const Failure&) {
        // The search fails, too, and says why.
    }
    std::ranges::sort(services_, [](const Service& one, const Service& other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    for (const Service& service : services_)
        service_->addItem(service.name, static_cast<qlonglong>(service.code));
    service_->setEditable(true);
    service_->setInsertPolicy(QComboBox::NoInsert);
    service_->completer()->setFilterMode(Qt::MatchContains);
    service_->completer()->setCompletionMode(QCompleter::PopupCompletion);
    service_->setCurrentIndex(service_->findData(static_cast<qlonglong>(chosen)));
}

void FreePlaceDialog::FillEmployees(family::Key chosen)
{
    employee_->addItem(QStringLiteral("Quem tiver lugar"), 0);
    AddActiveEmployees(*employee_, *desk_.database);
    employee_->setCurrentIndex(std::max(0, employee_->findData(static_cast<qlonglong>(chosen))));
}

void FreePlaceDialog::TakeService()
{
    if (service_->currentIndex() >= 0) {
        const Service& service = services_[static_cast<std::size_t>(service_->currentIndex())];
        const QSignalBlocker quiet(minutes_), quietToo(sessions_);
        minutes_->setValue(service.minutes);
        sessions_->setValue(service.sessions);
    }
    Find();
}

int FreePlaceDialog::Weeks() const { return every_->currentData().toInt(); }

family::PlaceWish FreePlaceDialog::Wish() const
{
    constexpr Long DaysOfWeek = 7;
    family::PlaceWish wish;
    wish.employee = employee_->currentData().toLongLong();
    wish.minutes = minutes_->value();
    const DateTime now = desk_.now();
    const Date from = FromQt(from_->date());
    wish.from = from <= now.date ? now : DateTime{from, {}};
    wish.until = AddDays(wish.from.date, DaysAhead);
    wish.part = Parts[static_cast<std::size_t>(std::max(0, part_->currentIndex()))].part;
    wish.count = count_->value();
    for (int session = 1; session < sessions_->value(); ++session)
        wish.daysOfSeries.push_back(session * Weeks() * DaysOfWeek);
    return wish;
}

void FreePlaceDialog::Find()
{
    every_->setEnabled(sessions_->value() > 1);
    places_.clear();
    found_->clear();
    QString told;
    if (service_->currentIndex() < 0) {
        told = QStringLiteral("Escolha o serviço.");
    } else {
        try {
            places_ = family::NextFreePlaces(*desk_.database, Wish());
            if (places_.empty())
                told = QStringLiteral("Não há horário livre nos próximos dois meses. Mude a parte do dia, a "
                                      "pessoa ou a duração.");
        } catch (const Failure& failure) {
            told = qt::Lines(failure.Description());
        }
    }
    for (const family::FreePlace& place : places_)
        found_->addItem(Told(place));
    if (!places_.empty())
        found_->setCurrentRow(0);
    take_->setEnabled(!places_.empty());
    told_->setText(told);
    if (!told.isEmpty()) {
        QAccessibleEvent said(told_, QAccessible::Alert);
        QAccessible::updateAccessibility(&said);
    }
}

QString FreePlaceDialog::Told(const family::FreePlace& place) const
{
    const QDate day = ToQt(place.span.start.date);
    const QString one =
        QStringLiteral("%1, das %2 às %3, com %4")
            .arg(
                QLocale(QLocale::Portuguese, QLocale::Brazil).toString(day, QStringLiteral("ddd dd/MM/yyyy")),
                Of(FormatTime(place.span.start.time)), Of(FormatTime(place.span.end.time)),
                Of(place.nickname));
    if (sessions_->value() == 1)
        return one;
    const Date last = AddDays(place.span.start.date, (sessions_->value() - 1) * Weeks() * Long{7});
    return one + QStringLiteral(" (%1 vezes, até %2)").arg(sessions_->value()).arg(Of(FormatDate(last)));
}

void FreePlaceDialog::Take()
{
    const int row = found_->currentRow();
    if (row < 0 || service_->currentIndex() < 0)
        return;
    chosen_ = ChosenPlace{service_->currentData().toLongLong(), places_[static_cast<std::size_t>(row)],
                          sessions_->value(), Weeks()};
    accept();
}

} // namespace kova::timetable
