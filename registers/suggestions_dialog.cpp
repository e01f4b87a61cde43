#include "registers/suggestions_dialog.hpp"

#include "family/data/engine/database_failure.hpp"
#include "screens/field_frame.hpp"
#include "screens/grows_with_contents.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kova::registers {

namespace {

constexpr int FirstYear = 1900, LastYear = 2999;
constexpr int UsualWidth = 460;

QString TitleOf(std::string_view button)
{
    QString title = QString::fromUtf8(button.data(), static_cast<qsizetype>(button.size()));
    return title.remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

/// The year of "yyyy-mm-dd hh:mm:ss".
int YearOf(const std::string& moment) { return QString::fromStdString(moment).left(4).toInt(); }

} // namespace

SuggestionsDialog::SuggestionsDialog(const Register& of, const Desk& desk, QWidget* parent)
    : QDialog(parent),
      register_(of),
      desk_(desk),
      year_(new QSpinBox),
      list_(new QListWidget),
      refusal_(new screens::RefusalLabel(this))
{
    setObjectName(QStringLiteral("sugestoes"));
    setWindowTitle(TitleOf(of.SuggestionsTitle()));
    setBackgroundRole(QPalette::Base);
    year_->setObjectName(QStringLiteral("ano"));
    year_->setRange(FirstYear, LastYear);
    year_->setMinimumHeight(screens::BoxHeight);
    year_->setValue(YearOf(desk_.author().moment));
    list_->setObjectName(QStringLiteral("dias"));
    auto* buttons = new QDialogButtonBox(this);
    add_ = buttons->addButton(QStringLiteral("&Incluir os marcados"), QDialogButtonBox::AcceptRole);
    add_->setObjectName(QStringLiteral("incluir"));
    add_->setDefault(true);
    buttons->addButton(QStringLiteral("&Cancelar"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Add(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(year_, &QSpinBox::valueChanged, this, [this] { Fill(); });
    connect(list_, &QListWidget::itemChanged, this, [this] { OfferAdding(); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new screens::FieldFrame(QStringLiteral("&Ano"), year_, this));
    layout->addWidget(new screens::FieldFrame(QStringLiteral("&Dias"), list_, this), 1);
    layout->addWidget(refusal_);
    layout->addWidget(buttons);
    Fill();
    screens::GrowWithContents(*this, {UsualWidth, 0});
    list_->setFocus();
}

void SuggestionsDialog::Fill()
{
    refusal_->Tell({});
    list_->clear();
    try {
        suggestions_ = register_.Suggestions(*desk_.database, year_->value());
    } catch (const family::DatabaseFailure& failure) {
        suggestions_.clear();
        refusal_->Tell(qt::Lines(failure.Description()));
    }
    for (const auto& one : suggestions_) {
        const QString shown = QString::fromStdString(one.shown);
        auto* item =
            new QListWidgetItem(one.isStored ? shown + QStringLiteral(" (já cadastrado)") : shown, list_);
        item->setFlags(one.isStored ? Qt::ItemIsSelectable : item->flags() | Qt::ItemIsUserCheckable);
        if (!one.isStored)
            item->setCheckState(Qt::Checked);
    }
    list_->setCurrentRow(0);
    OfferAdding();
}

std::vector<family::registers::Texts> SuggestionsDialog::Marked() const
{
    std::vector<family::registers::Texts> marked;
    for (int row = 0; row < list_->count(); ++row) {
        const auto& one = suggestions_[static_cast<std::size_t>(row)];
        if (!one.isStored && list_->item(row)->checkState() == Qt::Checked)
            marked.push_back(one.texts);
    }
    return marked;
}

void SuggestionsDialog::OfferAdding() { add_->setEnabled(!Marked().empty()); }

void SuggestionsDialog::Add()
{
    const auto rows = Marked();
    try {
        const auto answer = register_.AddAll(*desk_.database, rows, desk_.author());
        if (!answer.IsDone() && !answer.refused.empty())
            return refusal_->Tell(
                QString::fromStdString(family::registers::Sentence(answer.refused.front().why)));
    } catch (const family::DatabaseFailure& failure) {
        return refusal_->Tell(qt::Lines(failure.Description()));
    }
    added_ = static_cast<int>(rows.size());
    accept();
}

} // namespace kova::registers
