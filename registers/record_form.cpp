#include "registers/record_form.hpp"

#include "registers/register_words.hpp"
#include "screens/field_frame.hpp"
#include "screens/mnemonics.hpp"
#include "screens/scrolled_body.hpp"

#include <QFocusEvent>
#include <QGridLayout>

namespace kova::registers {

namespace {

using family::registers::FieldInfo;
using family::registers::FieldKind;

/// Letters that lead to the buttons beside the form.
const QString LettersOfButtons = QStringLiteral("nsdemix");

/// Takes a row of the form alone.
bool IsWide(const FieldInfo& field) { return field.kind == FieldKind::Channels || field.longest > 100; }

QStringList LabelsOf(const std::vector<FieldInfo>& fields)
{
    QStringList labels;
    for (const FieldInfo& field : fields)
        labels += Shown(family::registers::FormLabel(field));
    return screens::WithMnemonics(labels, LettersOfButtons);
}

} // namespace

RecordForm::RecordForm(const Register& of, const Desk& desk, QWidget* parent)
    : QWidget(parent), register_(of), desk_(desk), touched_(of.Fields().size())
{
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    const QStringList labels = LabelsOf(of.Fields());
    int row = 0, column = 0;
    for (std::size_t field = 0; field < of.Fields().size(); ++field) {
        AddField(field, labels[static_cast<qsizetype>(field)]);
        const bool isWide = IsWide(of.Fields()[field]);
        if (isWide && column == 1) {
            ++row;
            column = 0;
        }
        grid->addWidget(frames_[field], row, column, 1, isWide ? 2 : 1);
        column = isWide ? 2 : column + 1;
        if (column >= 2) {
            ++row;
            column = 0;
        }
    }
    grid->setRowStretch(row + 1, 1);
}

void RecordForm::AddField(std::size_t field, const QString& label)
{
    const FieldInfo& info = register_.Fields()[field];
    editors_.push_back(MakeEditor(
        info, [this, field] { return register_.Offers(*desk_.database, field, Typed()); }, desk_));
    FieldEditor& editor = *editors_.back();
    editor.Widget().setObjectName(Shown(info.label));
    editor.Widget().setToolTip(Shown(info.help));
    editor.Widget().setEnabled(info.kind != FieldKind::Code);
    frames_.push_back(new screens::FieldFrame(label, &editor.Widget(), this, info.required));
    editor.Widget().installEventFilter(this);
    editor.onEdited = [this, field] {
        touched_[field] = true;
        FrameOf(field).Refuse({});
        onEdited();
    };
}

void RecordForm::Show(family::Key key, const Texts& texts)
{
    key_ = key;
    before_ = texts;
    touched_.assign(texts.size(), false);
    for (std::size_t field = 0; field < texts.size(); ++field) {
        editors_[field]->Show(texts[field]);
        FrameOf(field).Refuse({});
    }
}

void RecordForm::ShowChanged(family::Key key, const Texts& before, const Texts& typed)
{
    Show(key, before);
    for (std::size_t field = 0; field < typed.size(); ++field) {
        if (typed[field] == before[field])
            continue;
        editors_[field]->Show(typed[field]);
        touched_[field] = true;
    }
}

RecordForm::Texts RecordForm::Typed() const
{
    Texts typed = before_;
    for (std::size_t field = 0; field < typed.size(); ++field) {
        if (touched_[field])
            typed[field] = editors_[field]->Text();
    }
    return typed;
}

void RecordForm::Settle(std::size_t field)
{
    const std::string why = editors_[field]->Settle();
    if (!why.empty())
        FrameOf(field).Refuse(QString::fromStdString(family::registers::Sentence(why)));
}

void RecordForm::SettleAll()
{
    for (std::size_t field = 0; field < editors_.size(); ++field) {
        if (touched_[field])
            editors_[field]->Settle();
    }
}

void RecordForm::Tidy(std::size_t field)
{
    if (!touched_[field])
        return;
    if (register_.Fields()[field].kind == FieldKind::Reference)
        return Settle(field);
    const std::string typed = editors_[field]->Text();
    const auto tidy = register_.Tidy(field, before_[field], typed);
    if (tidy.text != typed)
        editors_[field]->Show(tidy.text);
    if (!tidy.why.empty())
        FrameOf(field).Refuse(QString::fromStdString(family::registers::Sentence(tidy.why)));
}

// A list or a menu that opens, and another window, leave the user where he types.
bool RecordForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::FocusOut)
        return QWidget::eventFilter(watched, event);
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
        return QWidget::eventFilter(watched, event);
    for (std::size_t field = 0; field < editors_.size(); ++field) {
        if (&editors_[field]->Widget() == watched)
            Tidy(field);
    }
    return QWidget::eventFilter(watched, event);
}

void RecordForm::Refuse(std::span<const family::registers::RefusedField> refused)
{
    for (screens::FieldFrame* frame : frames_)
        frame->Refuse({});
    for (const auto& one : refused)
        FrameOf(one.field).Refuse(QString::fromStdString(family::registers::Sentence(one.why)));
    if (refused.empty())
        return;
    screens::FieldFrame& first = FrameOf(refused.front().field);
    first.setFocus();
    screens::RevealInBody(first);
}

void RecordForm::LookAtRights(const family::DeniedRights& denied)
{
    const std::string why = family::WhyOf(denied, register_.RightToWrite());
    const bool seesPrices = family::WhyOf(denied, family::Right::SeePrices).empty();
    for (std::size_t field = 0; field < editors_.size(); ++field) {
        const FieldInfo& info = register_.Fields()[field];
        if (info.kind == FieldKind::Code)
            continue;
        editors_[field]->SetReadOnly(!why.empty());
        editors_[field]->Widget().setToolTip(why.empty() ? Shown(info.help) : QString::fromStdString(why));
        FrameOf(field).setVisible(info.kind != FieldKind::Money || seesPrices);
    }
}

void RecordForm::FocusFirst()
{
    for (screens::FieldFrame* frame : frames_) {
        if (frame->Editor().isEnabled() && !frame->isHidden())
            return frame->setFocus(Qt::TabFocusReason);
    }
}

} // namespace kova::registers
