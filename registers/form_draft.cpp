#include "registers/form_draft.hpp"

#include "registers/record_form.hpp"

#include <algorithm>

namespace kova::registers {

namespace {

using family::registers::FieldInfo;
using family::registers::Texts;

constexpr int RestOfTyping = 1000;

QString Shown(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A field that the draft does not have stays as it is.
void PutInto(const screens::Draft& draft, const std::vector<FieldInfo>& fields, Texts& before, Texts& typed)
{
    for (std::size_t field = 0; field < fields.size(); ++field) {
        const auto kept =
            std::ranges::find(draft.fields, Shown(fields[field].label), &screens::Draft::Field::label);
        if (kept == draft.fields.end())
            continue;
        before[field] = kept->before.toStdString();
        typed[field] = kept->typed.toStdString();
    }
}

} // namespace

FormDraft::FormDraft(const Register& of, const Desk& desk, RecordForm& form)
    : QObject(&form), register_(of), desk_(desk), form_(form), name_(Shown(of.Name().name))
{
    rest_.setSingleShot(true);
    rest_.setInterval(RestOfTyping);
    connect(&rest_, &QTimer::timeout, this, [this] { Write(); });
    if (IsKept())
        left_ = desk_.drafts->Read(name_);
}

void FormDraft::Continue()
{
    const family::Key key = left_->key;
    const auto stored = key == 0 ? std::nullopt : register_.Read(*desk_.database, key);
    Texts before = stored.value_or(register_.New());
    Texts typed = before;
    PutInto(*left_, register_.Fields(), before, typed);
    form_.ShowChanged(key, before, typed);
    left_.reset();
}

void FormDraft::Forget()
{
    rest_.stop();
    left_.reset();
    if (IsKept())
        desk_.drafts->Remove(name_);
}

void FormDraft::Follow()
{
    if (!IsKept() || left_)
        return;
    if (form_.IsChanged())
        rest_.start();
    else
        Forget();
}

void FormDraft::WriteNow()
{
    if (!rest_.isActive())
        return;
    rest_.stop();
    Write();
}

void FormDraft::Write() const
{
    screens::Draft draft;
    draft.key = form_.Key();
    const Texts typed = form_.Typed();
    for (std::size_t field = 0; field < typed.size(); ++field)
        draft.fields.append({Shown(register_.Fields()[field].label),
                             QString::fromStdString(form_.Before()[field]),
                             QString::fromStdString(typed[field])});
    desk_.drafts->Write(name_, draft);
}

} // namespace kova::registers
