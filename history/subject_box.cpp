#include "history/subject_box.hpp"

#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/history/described_tables.hpp"
#include "family/registers/description/typed_values.hpp"
#include "screens/field_frame.hpp"

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStringListModel>

#include <span>

namespace kova::history {

namespace {

using family::Key;
using family::history::Subject;
using Register = family::registers::Register;

constexpr int MostProposals = 12;
constexpr int LongestText = 200;
constexpr const char* Separator = " - ";
constexpr const char* AppointmentTable = "agendamento";

/// The entries of the first box, in their order; a row of another table stands behind them.
enum Entry { Everything, Appointment, Customer, User, BookedDay, OtherRow };

struct EntryWords {
    QString entry, hint;
};

const EntryWords& WordsOf(int entry)
{
    static const EntryWords words[] = {
        {QStringLiteral("Tudo"), {}},
        {QStringLiteral("Um agendamento"), QStringLiteral("Número do agendamento")},
        {QStringLiteral("Um cliente"), QStringLiteral("Código ou parte do nome")},
        {QStringLiteral("Um usuário"), QStringLiteral("Código ou parte do nome")},
        {QStringLiteral("Um dia da agenda"), QStringLiteral("dd/mm/aaaa")},
        {QString(), QString()},
    };
    return words[entry];
}

/// The register in which a subject of that entry is looked for; null where there is none.
const Register* RegisterOf(int entry)
{
    return entry == Customer ? family::history::DescribedName("clientes")
        : entry == User      ? family::history::DescribedName("usuarios")
                             : nullptr;
}

std::string Called(const family::registers::ListRow& row)
{
    return std::to_string(row.key) + Separator + (row.cells.empty() ? std::string() : row.cells.front());
}

} // namespace

SubjectBox::SubjectBox(const Desk& desk, QWidget* parent)
    : QWidget(parent),
      desk_(desk),
      kind_(new QComboBox(this)),
      which_(new QLineEdit(this)),
      proposals_(new QStringListModel(this)),
      frame_(new screens::FieldFrame(QStringLiteral("Q&ual"), which_, this))
{
    kind_->setObjectName(QStringLiteral("deQue"));
    kind_->setMinimumHeight(screens::BoxHeight);
    for (int entry = Everything; entry < OtherRow; ++entry)
        kind_->addItem(WordsOf(entry).entry);
    which_->setObjectName(QStringLiteral("qual"));
    which_->setMaxLength(LongestText);
    auto* completer = new QCompleter(proposals_, which_);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(MostProposals);
    which_->setCompleter(completer);
    connect(kind_, &QComboBox::activated, this, [this] {
        TakeKind();
        onChanged(true);
    });
    connect(which_, &QLineEdit::textEdited, this, [this](const QString& text) {
        Propose(text);
        onChanged(false);
    });
    connect(which_, &QLineEdit::returnPressed, this, [this] { onChanged(true); });
    connect(
        completer, qOverload<const QString&>(&QCompleter::activated), this, [this] { onChanged(true); },
        Qt::QueuedConnection);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new screens::FieldFrame(QStringLiteral("De &quê"), kind_, this), 1);
    layout->addWidget(frame_, 1);
    TakeKind();
}

void SubjectBox::TakeKind()
{
    const int entry = kind_->currentIndex();
    which_->clear();
    frame_->Refuse({});
    which_->setPlaceholderText(WordsOf(entry).hint);
    which_->setEnabled(entry != Everything && entry != OtherRow);
    proposals_->setStringList({});
}

// What cannot be read now is told when it is looked for.
void SubjectBox::Propose(const QString& text)
{
    QStringList proposals;
    const Register* of = RegisterOf(kind_->currentIndex());
    try {
        if (of != nullptr && !text.trimmed().isEmpty()) {
            for (const auto& row : of->Search(*desk_.database, text.toStdString(), 0, MostProposals).rows)
                proposals << QString::fromStdString(Called(row));
        }
    } catch (const family::DatabaseFailure&) {
        proposals.clear();
    }
    proposals_->setStringList(proposals);
}

std::optional<Subject> SubjectBox::Current()
{
    std::string why;
    const std::optional<Subject> subject = Read(which_->text().trimmed().toStdString(), why);
    frame_->Refuse(QString::fromStdString(why));
    return subject;
}

std::optional<Subject> SubjectBox::Read(const std::string& typed, std::string& why)
{
    const int entry = kind_->currentIndex();
    if (entry == OtherRow)
        return row_;
    if (entry == Everything || typed.empty())
        return Subject();
    if (entry != BookedDay)
        return ReadRow(typed, why);
    const auto day = family::registers::ReadDate(typed);
    if (!day) {
        why = "Escreva a data como dd/mm/aaaa.";
        return std::nullopt;
    }
    return Subject{Subject::Kind::BookedDay, "", 0, family::IsoDate(*day)};
}

std::optional<Subject> SubjectBox::ReadRow(const std::string& typed, std::string& why)
{
    const int entry = kind_->currentIndex();
    const auto kind = entry == Customer ? Subject::Kind::Customer
        : entry == User                 ? Subject::Kind::User
                                        : Subject::Kind::Row;
    const std::string table = entry == Appointment ? AppointmentTable : "";
    // A code alone may be that of somebody who is gone.
    const auto code = family::registers::ReadWhole(typed.substr(0, typed.find(Separator)));
    if (code)
        return Subject{kind, table, *code, ""};
    const Register* of = RegisterOf(entry);
    const std::vector<Key> found = of == nullptr ? std::vector<Key>() : of->Find(*desk_.database, typed);
    if (found.size() == 1)
        return Subject{kind, table, found.front(), ""};
    why = of == nullptr ? "Escreva o número do agendamento."
        : found.empty() ? "Não há ninguém com este nome."
                        : "Há mais de um com este nome: escolha na lista.";
    return std::nullopt;
}

void SubjectBox::Show(const Subject& subject, const QString& called)
{
    const bool isAppointment = subject.kind == Subject::Kind::Row && subject.table == AppointmentTable;
    while (kind_->count() > OtherRow)
        kind_->removeItem(OtherRow);
    if (subject.kind == Subject::Kind::Row && !isAppointment) {
        row_ = subject;
        kind_->addItem(called);
        kind_->setCurrentIndex(OtherRow);
        return TakeKind();
    }
    kind_->setCurrentIndex(subject.kind == Subject::Kind::Customer   ? Customer
                               : subject.kind == Subject::Kind::User ? User
                               : isAppointment                       ? Appointment
                                                                     : Everything);
    TakeKind();
    which_->setText(called);
}

void SubjectBox::Clear() { Show({}, {}); }

} // namespace kova::history
