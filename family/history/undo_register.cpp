#include "family/history/undo_register.hpp"

#include "family/business/audit_words.hpp"
#include "family/data/audit/audit.hpp"
#include "family/history/changes.hpp"
#include "family/history/described_tables.hpp"
#include "family/users/user_rights.hpp"

#include <algorithm>

namespace kova::family::history {

namespace {

using registers::FieldInfo;
using registers::FieldKind;
using registers::Register;
using registers::RemoveAnswer;
using registers::SaveAnswer;
using registers::Texts;

/// What a user was allowed and knew is not told by the line of his removal.
constexpr const char* AccessIsMadeAnew =
    "A exclusão de um usuário ou de um papel não se desfaz: cadastre-o de novo.";

bool IsRemoval(const Line& line) { return line.audit.operation == audit_operation::Removal; }

bool Stores(const FieldInfo& field, const std::string& column)
{
    return std::ranges::find(field.stored, column) != field.stored.end();
}

/// Whether a form has all that the line has changed.
bool IsTypedInForm(const Register& of, const Line& line)
{
    const std::vector<std::string> columns = ChangedColumns(line.audit);
    return !columns.empty() && std::ranges::all_of(columns, [&](const std::string& column) {
        return std::ranges::any_of(of.Fields(), [&](const FieldInfo& one) { return Stores(one, column); });
    });
}

bool ChangesAmount(const Register& of, const Line& line)
{
    return std::ranges::any_of(of.Fields(), [&](const FieldInfo& field) {
        return field.kind == FieldKind::Money
            && std::ranges::any_of(ChangedColumns(line.audit),
                                   [&](const std::string& column) { return Stores(field, column); });
    });
}

std::string WhyNoRight(Database& database, const Author& author, const Register& of, const Line& line)
{
    std::string why = WhyDenied(database, author, of.RightToWrite());
    if (why.empty() && !IsRemoval(line) && ChangesAmount(of, line))
        why = WhyDenied(database, author, Right::SeePrices);
    return why;
}

/// What a form shows of the row now, and what it has to show then.
struct FormTexts {
    Texts now, wanted;
};

std::string ReadTexts(Database& database, const Register& of, const Line& line, FormTexts& texts)
{
    const auto now = of.Read(database, line.key);
    if (!now)
        return of.WhatBecameOf(database, line.key);
    const AuditedColumns before = ChangedPart(line.audit, line.audit.before);
    const auto left = of.Former(database, line.key, ChangedPart(line.audit, line.audit.after)),
               wanted = of.Former(database, line.key, before);
    if (!left || !wanted || before.empty())
        return "Esta linha não diz tudo que havia antes.";
    if (*left != *now)
        return "Não está mais como esta alteração deixou: outro programa o mudou. Mude-o à mão.";
    texts = {*now, *wanted};
    return {};
}

std::string WhyImpossible(Database& database, const Author& author, const Register* of, const Line& line)
{
    if (of == nullptr)
        return "O que foi gravado em " + WordsOfTable(line.table).title
            + " segue de outra gravação, e se desfaz com ela.";
    if (std::string why = WhyNoRight(database, author, *of, line); !why.empty())
        return why;
    if (IsRemoval(line))
        return of->RightToWrite() == Right::AdministerUsers ? AccessIsMadeAnew : "";
    if (!IsTypedInForm(*of, line))
        return "Esta alteração não se desfaz aqui.";
    FormTexts texts;
    return ReadTexts(database, *of, line, texts);
}

std::string ToldRefusals(const Register& of, const SaveAnswer& answer)
{
    std::string why;
    for (const registers::RefusedField& refused : answer.refused)
        why.append(why.empty() ? "O que havia antes não cabe mais. " : " ")
            .append(FormLabel(of.Fields()[refused.field]))
            .append(": ")
            .append(refused.why);
    return why;
}

std::string PutBack(Database& database, const Author& author, const Register& of, const Line& line)
{
    FormTexts texts;
    if (std::string why = ReadTexts(database, of, line, texts); !why.empty())
        return why;
    const SaveAnswer answer = of.Save(database, line.key, texts.now, texts.wanted, author);
    if (answer.IsDone())
        return {};
    return answer.outcome == SaveAnswer::Outcome::Gone ? of.WhatBecameOf(database, line.key)
                                                       : ToldRefusals(of, answer);
}

} // namespace

UndoPlan PlanUndoInRegister(Database& database, const Author& author, const Line& line)
{
    if (std::string why = WhyImpossible(database, author, DescribedTable(line.table), line); !why.empty())
        return {std::move(why)};
    if (!IsRemoval(line))
        return {{}, WhatComesBack(database, author, line)};
    std::string row = RowOf(line);
    row.front() = static_cast<char>(row.front() - 'a' + 'A');
    return {{}, row + " volta para os cadastros como estava."};
}

std::string UndoInRegister(Database& database, const Author& author, const Line& line)
{
    const Register& of = *DescribedTable(line.table);
    try {
        if (!IsRemoval(line))
            return PutBack(database, author, of, line);
        return of.Restore(database, line.key, line.audit.before, author).text;
    } catch (const RightDenied& denied) {
        return denied.Cause();
    }
}

} // namespace kova::family::history
