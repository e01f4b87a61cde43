#include "host/transport/transport_dialog.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/failure.hpp"
#include "family/data/engine/iso_text.hpp"
#include "host/transport/run_sheet.hpp"
#include "host/transport/stop_model.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/plain_label.hpp"
#include "screens/refusal_label.hpp"
#include "screens/row_table.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace kova::host {

namespace {

constexpr int UsualWidth = 1080, TableHeight = 380, DayWidth = 170;
constexpr int RoomBesideText = 18, WidestColumn = 260, LongestName = 60;

} // namespace

TransportDialog::TransportDialog(const Surroundings& surroundings, Date day, QWidget* parent)
    : QDialog(parent),
      surroundings_(surroundings),
      stops_(new StopModel(this)),
      day_(new QDateEdit(QDate(day.year, day.month, day.day))),
      driver_(new QLineEdit),
      count_(screens::MakePlainLabel(QStringLiteral("contagem"), this)),
      table_(screens::MakeRowTable(*stops_, QStringLiteral("Paradas do dia"), this)),
      failure_(new screens::RefusalLabel(this))
{
    setObjectName(QStringLiteral("Transporte"));
    setWindowTitle(QStringLiteral("Transporte do dia"));
    setBackgroundRole(QPalette::Base);
    day_->setObjectName(QStringLiteral("dia"));
    day_->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    day_->setCalendarPopup(true);
    day_->setMinimumHeight(screens::BoxHeight);
    day_->setFixedWidth(DayWidth);
    driver_->setObjectName(QStringLiteral("motorista"));
    driver_->setMaxLength(LongestName);
    driver_->setMinimumHeight(screens::BoxHeight);
    table_->setObjectName(QStringLiteral("paradas"));
    table_->setMinimumHeight(TableHeight);
    table_->horizontalHeader()->setStretchLastSection(true);
    failure_->setObjectName(QStringLiteral("falha"));

    auto* row = new QHBoxLayout;
    row->addWidget(new screens::FieldFrame(QStringLiteral("&Dia"), day_, this));
    row->addWidget(new screens::FieldFrame(QStringLiteral("&Motorista, para a folha"), driver_, this), 1);
    auto* buttons = new QDialogButtonBox(this);
    print_ = buttons->addButton(QStringLiteral("&Imprimir... (Ctrl+P)"), QDialogButtonBox::ActionRole);
    print_->setObjectName(QStringLiteral("imprimir"));
    print_->setDefault(true);
    buttons->addButton(QStringLiteral("&Fechar"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("fechar"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(12);
    layout->addLayout(row);
    layout->addWidget(count_);
    layout->addWidget(table_, 1);
    layout->addWidget(failure_);
    layout->addWidget(buttons);

    connect(day_, &QDateEdit::dateChanged, this, [this] { ReadTelling(); });
    connect(print_, &QPushButton::clicked, this, [this] { Print(); });
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_P), this), &QShortcut::activated, this,
            [this] { Print(); });
    connect(new QShortcut(QKeySequence(Qt::Key_F5), this), &QShortcut::activated, this,
            [this] { ReadTelling(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Read();
    screens::GrowWithContents(*this, {UsualWidth, 0});
    table_->setFocus();
}

Date TransportDialog::Day() const
{
    const QDate day = day_->date();
    return {day.year(), day.month(), day.day()};
}

void TransportDialog::Read()
{
    stops_->Show(FindTransportStops(*surroundings_.database, family::IsoDate(Day())));
    count_->setText(QString::fromStdString(CountOf(stops_->Stops())));
    print_->setEnabled(!stops_->Stops().empty());
    for (int column = 0; column < StopModel::ColumnCount; ++column)
        screens::FitColumn(*table_, column, RoomBesideText, WidestColumn);
    if (!table_->currentIndex().isValid())
        table_->selectRow(0);
}

void TransportDialog::ReadTelling()
{
    try {
        Read();
        failure_->Tell({});
    } catch (const Failure& failure) {
        // Stops of another day would be taken for this one's.
        stops_->Show({});
        count_->clear();
        print_->setEnabled(false);
        failure_->Tell(qt::Lines(failure.Description()));
    }
}

// What was booked meanwhile stands on the sheet, too.
void TransportDialog::Print()
{
    ReadTelling();
    if (!stops_->Stops().empty())
        host::Show(
            surroundings_.toolkit,
            {surroundings_.company, Day(), driver_->text().simplified().toStdString(), stops_->Stops()});
}

} // namespace kova::host
