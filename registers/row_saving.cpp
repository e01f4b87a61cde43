#include "registers/row_saving.hpp"

#include "registers/doubles_question.hpp"
#include "registers/record_form.hpp"
#include "registers/trying.hpp"
#include "screens/question.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <algorithm>

namespace kova::registers {

using family::registers::LikelyDouble;
using family::registers::SaveAnswer;

RowSaving::RowSaving(const Register& of, const Desk& desk, RecordForm& form, QWidget& over)
    : register_(of), desk_(desk), form_(form), over_(over)
{
}

bool RowSaving::Save()
{
    bool isSaved = false;
    Try(over_, [&] {
        form_.SettleAll();
        if (!MayBeSaved() || !IsNoDouble())
            return;
        const SaveAnswer answer =
            register_.Save(*desk_.database, form_.Key(), form_.Before(), form_.Typed(), desk_.author());
        isSaved = answer.IsDone();
        ShowAnswer(answer);
    });
    return isSaved;
}

SaveAnswer RowSaving::Checked() const
{
    return register_.Check(*desk_.database, form_.Key(), form_.Before(), form_.Typed());
}

// What would be refused is not asked about.
bool RowSaving::MayBeSaved()
{
    const std::string concern = register_.ConcernAbout(*desk_.database, form_.Key(), form_.Typed());
    return concern.empty() || !Checked().IsDone()
        || screens::AskToSave(over_, QString::fromStdString(concern));
}

// Nor is asked about what would be refused for another reason.
bool RowSaving::IsNoDouble()
{
    const auto doubles = register_.LikelyDoubles(*desk_.database, form_.Key(), form_.Before(), form_.Typed());
    const SaveAnswer checked = Checked();
    if (doubles.empty() || (!checked.IsDone() && std::ranges::none_of(doubles, &LikelyDouble::bars)))
        return true;
    const DoublesAnswer answer = AskAboutDoubles(over_, doubles);
    if (answer.what == DoublesAnswer::What::Open)
        onOpen(answer.key);
    else if (answer.what == DoublesAnswer::What::Stay)
        Refuse(checked.refused);
    return answer.what == DoublesAnswer::What::Save;
}

void RowSaving::ShowAnswer(const SaveAnswer& answer)
{
    Refuse(answer.refused);
    switch (answer.outcome) {
    case SaveAnswer::Outcome::Done: return onSaved(answer);
    case SaveAnswer::Outcome::Refused:
        if (!answer.clash.empty())
            screens::ShowWarning(over_, qt::Lines(answer.clash));
        return;
    case SaveAnswer::Outcome::Gone:
        screens::ShowWarning(over_,
                             QString::fromStdString(register_.WhatBecameOf(*desk_.database, form_.Key()))
                                 + QStringLiteral(" O que foi digitado continua na tela."));
    }
}

void RowSaving::Refuse(std::span<const family::registers::RefusedField> refused)
{
    if (!refused.empty())
        onRefused();
    form_.Refuse(refused);
}

} // namespace kova::registers
