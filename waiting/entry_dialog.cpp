#include "waiting/entry_dialog.hpp"

#include "family/business/combo_selection.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/rows.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/registers/registers.hpp"
#include "family/waiting/waiting_writes.hpp"
#include "registers/row_list.hpp"
#include "registers/row_model.hpp"
#include "registers/trying.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/refusal_label.hpp"
#include "screens/search_box.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "waiting/waiting_words.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::waiting {

namespace {

constexpr int Active = 1, DaysOfMonth = 30;
constexpr QSize UsualSize(760, 640);
const QTime UsualBegin(8, 0), UsualEnd(18, 0);

QString Of(const std::string& text) { return QString::fromStdString(text); }

QDate ToQt(const std::string& iso) { return QDate::fromString(Of(iso), Qt::ISODate); }

/// Midnight is the end of the day.
QTime ToQtEnd(const std::string& text) { return text == "24:00" ? QTime(0, 0) : QTime::fromString(Of(text)); }

std::string EndOf(const QTime& time)
{
    return time == QTime(0, 0) ? "24:00" : time.toString(QStringLiteral("HH:mm")).toStdString();
}

void AddChoice(QListWidget& list, const std::string& name, family::Key code, bool isChosen)
{
    auto* item = new QListWidgetItem(Of(name), &list);
    item->setData(Qt::UserRole, static_cast<qlonglong>(code));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
}

std::set<family::Key> ChosenOf(const QListWidget& list)
{
    std::set<family::Key> chosen;
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->checkState() == Qt::Checked)
            chosen.insert(list.item(row)->data(Qt::UserRole).toLongLong());
    }
    return chosen;
}

} // namespace

EntryDialog::EntryDialog(const Desk& desk, std::optional<family::WaitingEntry> entry, QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      entry_(entry.value_or(family::WaitingEntry())),
      customers_(new registers::RowModel(family::registers::CustomerRegister(), desk_.data, this)),
      search_(new screens::SearchBox(QStringLiteral("cliente"), QStringLiteral("Nome, apelido ou telefone"),
                                     this)),
      found_(registers::MakeRowList(*customers_, QStringLiteral("Clientes"), this)),
      animal_(new QComboBox(this)),
      services_(new QListWidget(this)),
      employees_(new QListWidget(this)),
      from_(new QDateEdit(this)),
      until_(new QDateEdit(this)),
      begin_(new QTimeEdit(UsualBegin, this)),
      end_(new QTimeEdit(UsualEnd, this)),
      remark_(new QLineEdit(this)),
      refusal_(new screens::RefusalLabel(this))
{
    setObjectName(QStringLiteral("QuemEspera"));
    setWindowTitle(entry ? QStringLiteral("Alterar quem espera") : QStringLiteral("Adicionar quem espera"));
    setBackgroundRole(QPalette::Base);
    LayOut();
    Fill();
    connect(search_, &screens::SearchBox::textChanged, this, [this] { FindCustomers(); });
    connect(found_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { TakeCustomer(); });
    search_->setFocus();
}

void EntryDialog::LayOut()
{
    auto* buttons = new QDialogButtonBox(this);
    auto* save = buttons->addButton(QStringLiteral("&Salvar"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("salvar"));
    save->setDefault(true);
    buttons->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    refusal_->setObjectName(QStringLiteral("recusa"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(MakeWho(), 1);
    layout->addWidget(MakeWhat(), 1);
    layout->addWidget(MakeWhen());
    layout->addWidget(refusal_);
    layout->addWidget(buttons);
    screens::GrowWithContents(*this, UsualSize);
}

QWidget* EntryDialog::MakeWho()
{
    constexpr int HeightOfCustomers = 130;
    auto* who = new QWidget(this);
    auto* layout = new QVBoxLayout(who);
    layout->setContentsMargins(0, 0, 0, 0);
    found_->setObjectName(QStringLiteral("clientes"));
    found_->setMinimumHeight(HeightOfCustomers);
    animal_->setObjectName(QStringLiteral("animal"));
    layout->addWidget(new screens::FieldFrame(QStringLiteral("C&liente"), search_, who));
    layout->addWidget(found_, 1);
    layout->addWidget(new screens::FieldFrame(QStringLiteral("&Animal"), animal_, who));
    search_->WalkThrough(*found_);
    return who;
}

QWidget* EntryDialog::MakeWhat()
{
    constexpr int HeightOfChoices = 110;
    auto* what = new QWidget(this);
    auto* layout = new QHBoxLayout(what);
    layout->setContentsMargins(0, 0, 0, 0);
    services_->setObjectName(QStringLiteral("servicos"));
    employees_->setObjectName(QStringLiteral("funcionarios"));
    for (QListWidget* list : {services_, employees_})
        list->setMinimumHeight(HeightOfChoices);
    layout->addWidget(new screens::FieldFrame(QStringLiteral("S&erviços que servem"), services_, what), 1);
    layout->addWidget(
        new screens::FieldFrame(QStringLiteral("Com &quem (nenhum marcado: qualquer um)"), employees_, what),
        1);
    return what;
}

QWidget* EntryDialog::MakeWhen()
{
    static const char* const Days[] = {"&dom", "se&g", "&ter", "&qua", "qui", "se&x", "sá&b"};
    auto* when = new QWidget(this);
    auto* grid = new QGridLayout(when);
    grid->setContentsMargins(0, 0, 0, 0);
    int column = 0;
    const auto add = [&](const char* label, QWidget* editor, const char* name) {
        editor->setObjectName(QString::fromUtf8(name));
        grid->addWidget(new screens::FieldFrame(QString::fromUtf8(label), editor, when), 0, column++);
    };
    for (QDateEdit* date : {from_, until_}) {
        date->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
        date->setCalendarPopup(true);
    }
    for (QTimeEdit* time : {begin_, end_})
        time->setDisplayFormat(QStringLiteral("HH:mm"));
    add("De", from_, "de");
    add("Até", until_, "ate");
    add("Das", begin_, "das");
    add("Às", end_, "as");
    add("&Observação", remark_, "observacao");
    auto* days = new QHBoxLayout;
    for (std::size_t day = 0; day < weekdays_.size(); ++day) {
        weekdays_[day] = new QCheckBox(QString::fromUtf8(Days[day]), when);
        weekdays_[day]->setObjectName(QStringLiteral("dia%1").arg(day + 1));
        days->addWidget(weekdays_[day]);
    }
    days->addStretch(1);
    grid->addLayout(days, 1, 0, 1, column);
    return when;
}

void EntryDialog::FillChoices()
{
    family::Database& database = *desk_.data.database;
    family::SelectRows<family::ServiceRow>(database, [this](const family::ServiceRow& row) {
        const bool isChosen = entry_.services.contains(row.codigo);
        if ((row.situacao == Active && row.duracaoEmMinutos > 0) || isChosen)
            AddChoice(*services_, row.nome, row.codigo, isChosen);
    });
    family::SelectRows<family::EmployeeRow>(database, [this](const family::EmployeeRow& row) {
        const bool isChosen = entry_.employees.contains(row.codigo);
        if (row.situacao == Active || isChosen)
            AddChoice(*employees_, row.apelido.empty() ? row.nome : row.apelido, row.codigo, isChosen);
    });
    for (QListWidget* list : {services_, employees_}) {
        list->sortItems();
        list->setCurrentRow(0);
    }
}

void EntryDialog::Fill()
{
    const bool isNew = entry_.row.codigo == 0;
    if (isNew) {
        const Date today = desk_.now().date;
        entry_.row.dataInicial = family::IsoDate(today);
        entry_.row.dataFinal = family::IsoDate(AddDays(today, DaysOfMonth));
        entry_.row.diasDaSemana = "234567";
    } else {
        begin_->setTime(QTime::fromString(Of(entry_.row.horaInicial)));
        end_->setTime(ToQtEnd(entry_.row.horaFinal));
    }
    from_->setDate(ToQt(entry_.row.dataInicial));
    until_->setDate(ToQt(entry_.row.dataFinal));
    for (std::size_t day = 0; day < weekdays_.size(); ++day)
        weekdays_[day]->setChecked(entry_.row.diasDaSemana.find(static_cast<char>('1' + day))
                                   != std::string::npos);
    remark_->setText(Of(entry_.row.observacao.ValueOr("")));
    registers::Try(*this, [this] { FillChoices(); });
    FindCustomers();
}

/// Of one who waits already his own, until another one is looked for.
void EntryDialog::FindCustomers()
{
    registers::Try(*this, [this] {
        const bool isKept = search_->text().isEmpty() && entry_.row.codigoDoCliente != 0;
        customers_->Show(isKept ? std::vector{entry_.row.codigoDoCliente}
                                : family::registers::CustomerRegister().Find(*desk_.data.database,
                                                                             search_->text().toStdString()));
        registers::FitColumns(*found_);
        if (customers_->rowCount() == 1)
            found_->setCurrentIndex(customers_->index(0, 0));
        TakeCustomer();
    });
}

void EntryDialog::TakeCustomer()
{
    const int row = found_->currentIndex().row();
    animal_->clear();
    if (row < 0)
        return;
    registers::Try(*this, [&] {
        for (const auto& animal :
             family::SelectAnimalsOfCustomer(*desk_.data.database, customers_->KeyAt(row), Active))
            animal_->addItem(Of(animal.text), static_cast<qlonglong>(animal.key));
    });
    // His own, or the one that was looked for by its name.
    int chosen = animal_->findData(static_cast<qlonglong>(entry_.row.codigoDoAnimal));
    if (chosen < 0 && !search_->text().isEmpty())
        chosen = animal_->findText(search_->text(), Qt::MatchStartsWith);
    animal_->setCurrentIndex(std::max(0, chosen));
}

family::WaitingEntry EntryDialog::Typed() const
{
    family::WaitingEntry typed = entry_;
    const int row = found_->currentIndex().row();
    typed.row.codigoDoCliente = row < 0 ? 0 : customers_->KeyAt(row);
    typed.row.codigoDoAnimal = animal_->currentData().toLongLong();
    typed.services = ChosenOf(*services_);
    typed.employees = ChosenOf(*employees_);
    typed.row.dataInicial = from_->date().toString(Qt::ISODate).toStdString();
    typed.row.dataFinal = until_->date().toString(Qt::ISODate).toStdString();
    typed.row.diasDaSemana.clear();
    for (std::size_t day = 0; day < weekdays_.size(); ++day) {
        if (weekdays_[day]->isChecked())
            typed.row.diasDaSemana += static_cast<char>('1' + day);
    }
    typed.row.horaInicial = begin_->time().toString(QStringLiteral("HH:mm")).toStdString();
    typed.row.horaFinal = EndOf(end_->time());
    const std::string remark = remark_->text().trimmed().toStdString();
    typed.row.observacao =
        remark.empty() ? family::Nullable<std::string>() : family::Nullable<std::string>(remark);
    return typed;
}

void EntryDialog::Save()
{
    refusal_->Tell({});
    registers::Try(*this, [this] {
        const family::WaitingEntry typed = Typed();
        family::Database& database = *desk_.data.database;
        const auto answer = typed.row.codigo == 0
            ? family::waiting::Add(database, typed, desk_.data.author())
            : family::waiting::Change(database, typed, desk_.data.author());
        if (!answer.IsDone())
            return Refuse(answer.field, qt::Lines(answer.text));
        saved_ = WhoWaits(database, typed);
        accept();
    });
}

void EntryDialog::Refuse(const std::string& field, const QString& text)
{
    refusal_->Tell(text);
    const std::pair<const char*, QWidget*> places[] = {
        {"codigo_do_cliente", search_},   {"codigo_do_animal", animal_}, {"servicos", services_},
        {"funcionarios", employees_},     {"data_inicial", from_},       {"data_final", until_},
        {"dias_da_semana", weekdays_[1]}, {"hora_inicial", begin_},      {"hora_final", end_}};
    for (const auto& [name, widget] : places) {
        if (field == name)
            widget->setFocus();
    }
}

} // namespace kova::waiting
