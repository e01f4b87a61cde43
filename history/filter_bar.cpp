#include "history/filter_bar.hpp"

#include "family/business/audit_words.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/registers/description/typed_values.hpp"
#include "history/subject_box.hpp"
#include "screens/field_frame.hpp"
#include "screens/plain_label.hpp"
#include "screens/search_box.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace kova::history {

namespace {

using family::history::Filter;

/// How long nobody types before it is looked for.
constexpr int PauseMilliseconds = 300;
constexpr int WidthOfDay = 108;
constexpr int LeastLettersOfChoice = 5;

constexpr const char* Operations[] = {
    family::audit_operation::Insertion,     family::audit_operation::Change,
    family::history::Cancellation,          family::audit_operation::Removal,
    family::audit_operation::Restoration,   family::audit_operation::Merging,
    family::audit_operation::Anonymisation, family::audit_operation::Import,
    family::audit_operation::ImportUndone,  family::audit_operation::Export,
    family::audit_operation::Print,         family::audit_operation::CopyRestored,
    family::audit_operation::Archiving,     family::audit_operation::Migration,
    family::audit_operation::SigningIn,     family::audit_operation::SigningInRefused,
    family::audit_operation::Denial,
};

constexpr const char* Tables[] = {
    "agendamento",    "lista_de_espera",
    "espera_servico", "espera_funcionario",
    "cliente",        "animal",
    "servico",        "tipo_de_servico",
    "funcionario",    "horario_do_funcionario",
    "ausencia",       "especie",
    "raca",           "feriado",
    "expediente",     "empresa",
    "usuario",        "papel",
    "papel_direito",  "ajuste",
    "pacote",         "pre_venda",
    "importacao",
};

QString WordsOf(const char* operation)
{
    return operation == family::history::Cancellation
        ? QStringLiteral("Cancelamentos")
        : QString::fromStdString(family::WordsOfOperation(operation).many);
}

std::string Chosen(const QComboBox& box) { return box.currentData().toString().toStdString(); }

} // namespace

FilterBar::FilterBar(const Desk& desk, QWidget* parent)
    : QWidget(parent),
      subject_(new SubjectBox(desk, this)),
      text_(new screens::SearchBox(QStringLiteral("procurar"), QStringLiteral("Palavras ou número (F3)"),
                                   this)),
      user_(AddChoice("quemFez")),
      operation_(AddChoice("oQueFez")),
      table_(AddChoice("registro")),
      from_(AddDay("desde")),
      to_(AddDay("ate")),
      fromFrame_(new screens::FieldFrame(QStringLiteral("D&esde"), from_, this)),
      toFrame_(new screens::FieldFrame(QStringLiteral("&Até"), to_, this)),
      clear_(new QPushButton(QStringLiteral("&Limpar"), this)),
      archive_(new QCheckBox(QStringLiteral("&Incluir arquivo"), this)),
      second_(new QHBoxLayout),
      third_(new QHBoxLayout),
      pause_(new QTimer(this))
{
    for (const char* operation : Operations)
        operation_->addItem(WordsOf(operation), QString::fromLatin1(operation));
    for (const char* table : Tables)
        table_->addItem(QString::fromStdString(family::WordsOfTable(table).title),
                        QString::fromLatin1(table));
    clear_->setObjectName(QStringLiteral("limpar"));
    clear_->setToolTip(QStringLiteral("Mostra tudo de novo (Ctrl+L)"));
    connect(clear_, &QPushButton::clicked, this, [this] {
        Clear();
        onChanged();
    });
    archive_->setObjectName(QStringLiteral("incluirArquivo"));
    archive_->hide();
    connect(archive_, &QCheckBox::clicked, this, [this](bool isWanted) { onArchive(isWanted); });
    connect(text_, &QLineEdit::textEdited, this, [this] { Changed(false); });
    // The button in the box clears it without an edit.
    connect(text_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            Changed(false);
    });
    text_->onEnter = [this] { Changed(true); };
    subject_->onChanged = [this](bool isDone) { Changed(isDone); };
    pause_->setSingleShot(true);
    pause_->setInterval(PauseMilliseconds);
    connect(pause_, &QTimer::timeout, this, [this] { onChanged(); });
    LayOut();
    setFocusProxy(text_);
}

QComboBox* FilterBar::AddChoice(const char* name)
{
    auto* box = new QComboBox(this);
    box->setObjectName(QString::fromLatin1(name));
    box->setMinimumHeight(screens::BoxHeight);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(LeastLettersOfChoice);
    box->addItem(QStringLiteral("Todos"), QString());
    connect(box, &QComboBox::activated, this, [this] { Changed(true); });
    return box;
}

QLineEdit* FilterBar::AddDay(const char* name)
{
    constexpr int Letters = 10;
    auto* box = new QLineEdit(this);
    box->setObjectName(QString::fromLatin1(name));
    box->setPlaceholderText(QStringLiteral("dd/mm/aaaa"));
    box->setMaxLength(Letters);
    connect(box, &QLineEdit::textEdited, this, [this, box] {
        // Half a date is no wrong one.
        if (box->text().isEmpty() || box->text().size() == Letters)
            Changed(false);
    });
    connect(box, &QLineEdit::returnPressed, this, [this] { Changed(true); });
    return box;
}

void FilterBar::LayOut()
{
    auto* first = new QHBoxLayout;
    first->addWidget(subject_, 2);
    first->addWidget(new screens::FieldFrame(QStringLiteral("&Procurar"), text_, this), 1);
    first->addWidget(archive_, 0, Qt::AlignBottom);
    second_->addWidget(new screens::FieldFrame(QStringLiteral("Que&m"), user_, this), 1);
    second_->addWidget(new screens::FieldFrame(QStringLiteral("O que &fez"), operation_, this), 1);
    second_->addWidget(new screens::FieldFrame(QStringLiteral("Re&gistro"), table_, this), 1);
    third_->addStretch();
    fromFrame_->setFixedWidth(WidthOfDay);
    toFrame_->setFixedWidth(WidthOfDay);
    SetNarrow(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(first);
    layout->addLayout(second_);
    layout->addLayout(third_);
    // What is made before its neighbours would come before them with the tab key.
    QWidget* const inOrder[] = {subject_, text_, archive_, user_, operation_, table_, from_, to_, clear_};
    for (std::size_t at = 1; at < std::size(inOrder); ++at)
        setTabOrder(inOrder[at - 1], inOrder[at]);
}

void FilterBar::SetNarrow(bool isNarrow)
{
    // Behind what stands there always.
    QHBoxLayout& row = isNarrow ? *third_ : *second_;
    int place = isNarrow ? 0 : 3;
    for (QWidget* one : std::initializer_list<QWidget*>{fromFrame_, toFrame_, clear_}) {
        second_->removeWidget(one);
        third_->removeWidget(one);
        row.insertWidget(place++, one, 0, one == clear_ ? Qt::AlignBottom : Qt::Alignment());
    }
}

void FilterBar::Changed(bool isDone)
{
    if (!isDone)
        return pause_->start();
    pause_->stop();
    onChanged();
}

std::optional<std::string> FilterBar::DayIn(const QLineEdit& box, screens::FieldFrame& frame)
{
    const std::string typed = box.text().trimmed().toStdString();
    const auto day = family::registers::ReadDate(typed);
    const bool isWrong = !typed.empty() && !day;
    frame.Refuse(isWrong ? QStringLiteral("Escreva dd/mm/aaaa.") : QString());
    if (isWrong)
        return std::nullopt;
    return day ? family::IsoDate(*day) : std::string();
}

std::optional<Filter> FilterBar::Current()
{
    const auto subject = subject_->Current();
    const auto from = DayIn(*from_, *fromFrame_), to = DayIn(*to_, *toFrame_);
    if (!subject || !from || !to)
        return std::nullopt;
    Filter filter;
    filter.subject = *subject;
    filter.user = Chosen(*user_);
    filter.operation = Chosen(*operation_);
    filter.table = Chosen(*table_);
    filter.from = *from;
    filter.to = *to;
    filter.text = text_->text().toStdString();
    return filter;
}

bool FilterBar::IsNarrowed() { return Current() != Filter(); }

void FilterBar::ClearFields()
{
    const QSignalBlocker quiet(text_);
    text_->clear();
    for (QComboBox* box : {user_, operation_, table_})
        box->setCurrentIndex(0);
    for (QLineEdit* box : {from_, to_})
        box->clear();
    pause_->stop();
}

void FilterBar::Show(const family::history::Subject& subject, const QString& called)
{
    ClearFields();
    subject_->Show(subject, called);
}

void FilterBar::Clear()
{
    ClearFields();
    subject_->Clear();
}

void FilterBar::OfferWriters(const std::vector<std::string>& writers)
{
    const QVariant chosen = user_->currentData();
    while (user_->count() > 1)
        user_->removeItem(1);
    for (const std::string& writer : writers)
        user_->addItem(QString::fromStdString(writer), QString::fromStdString(writer));
    user_->setCurrentIndex(std::max(user_->findData(chosen), 0));
}

void FilterBar::OfferArchive(const QString& told)
{
    archive_->setToolTip(screens::PlainTip(told));
    archive_->setVisible(!told.isEmpty());
}

void FilterBar::MarkArchive(bool isIncluded) { archive_->setChecked(isIncluded); }

void FilterBar::FocusSearch()
{
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
}

void FilterBar::WalkThrough(QAbstractItemView& list) { text_->WalkThrough(list); }

} // namespace kova::history
