#include "family/history/undo.hpp"

#include "family/business/audit_words.hpp"
#include "family/business/clash_text.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/history/changes.hpp"
#include "family/history/undo_appointment.hpp"
#include "family/history/undo_register.hpp"
#include "family/users/denials.hpp"

#include <algorithm>
#include <limits>

namespace kova::family::history {

namespace {

/// Kinds of acts that nothing can undo, or that are undone elsewhere.
struct NotUndone {
    std::string_view operation, why;
};
constexpr NotUndone Kinds[] = {
    {audit_operation::Insertion, "Uma inclusão não se desfaz aqui: exclua o registro onde ele está."},
    {audit_operation::Restoration, "Uma restauração não se desfaz aqui: exclua o registro onde ele está."},
    {audit_operation::Import, "Uma importação se desfaz por inteiro, em \"agenda-data undo-import\"."},
    {audit_operation::Merging, "Uma união de cadastros não pode ser desfeita."},
    {audit_operation::Anonymisation, "Uma anonimização não pode ser desfeita: os dados não existem mais."},
};

std::string WhyNever(const Line& line)
{
    if (line.isArchived)
        return "Esta linha está no arquivo da auditoria, e o que está nele não pode mais ser desfeito.";
    if (!line.isReadable)
        return "Esta linha do histórico não pode ser lida.";
    const auto kind = std::ranges::find(Kinds, line.audit.operation, &NotUndone::operation);
    if (kind != std::end(Kinds))
        return std::string(kind->why);
    if (line.audit.operation != audit_operation::Change && line.audit.operation != audit_operation::Removal)
        return "Isto não mudou nenhum registro: não há o que desfazer.";
    return {};
}

std::string ToldBy(const AuditLine& line) { return PersonOf(line) + " em " + MomentOf(line); }

bool Undoes(const AuditLine& later, Key code)
{
    const auto told = later.after.find(UndoneLineColumn);
    return told != later.after.end() && told->second == std::to_string(code);
}

bool TouchesOneOf(const AuditLine& later, const std::vector<std::string>& columns)
{
    return std::ranges::any_of(ChangedColumns(later), [&](const std::string& column) {
        return std::ranges::find(columns, column) != columns.end();
    });
}

/// Why a row that was removed cannot come back. Newest line first.
std::string WhyGoneForGood(const std::vector<AuditLine>& lines, const Line& line)
{
    if (lines.empty())
        return {};
    const AuditLine& newest = lines.front();
    if (Undoes(newest, line.audit.code))
        return "Já foi desfeito por " + ToldBy(newest) + ".";
    if (newest.code > line.audit.code)
        return "Depois disto houve outra gravação (" + WordsOfOperation(newest.operation).one + ") por "
            + ToldBy(newest) + ". Só a última exclusão pode ser desfeita.";
    const bool isMerged = std::ranges::any_of(lines, [](const AuditLine& one) {
        return one.operation == audit_operation::Merging && one.after.contains("unido_a");
    });
    return isMerged ? "Foi unido a outro cadastro, e uma união não pode ser desfeita." : "";
}

/// Why what stands there now is not what the line left.
std::string WhyChangedSince(Database& database, const Line& line)
{
    const std::vector<std::string> columns = ChangedColumns(line.audit);
    std::vector<AuditLine> lines =
        FindAuditLines(database, line.table.c_str(), line.key, std::numeric_limits<Key>::max());
    if (line.audit.operation == audit_operation::Removal)
        return WhyGoneForGood(lines, line);
    for (const AuditLine& one : lines) {
        if (one.code <= line.audit.code)
            break;
        if (Undoes(one, line.audit.code))
            return "Já foi desfeito por " + ToldBy(one) + ".";
        if (one.operation == audit_operation::Anonymisation)
            return "Os dados desta pessoa foram apagados depois, e não voltam.";
        if (one.operation == audit_operation::Change && TouchesOneOf(one, columns))
            return "O mesmo foi mudado depois por " + ToldBy(one) + ". Desfaça antes essa alteração.";
    }
    return {};
}

UndoPlan PlanAllowed(Database& database, const Author& author, const Line& line)
{
    for (std::string why : {WhyNever(line), line.isReadable ? WhyChangedSince(database, line) : ""}) {
        if (!why.empty())
            return {std::move(why)};
    }
    return line.table == AppointmentRow::Table ? PlanUndoOfAppointment(database, author, line)
                                               : PlanUndoInRegister(database, author, line);
}

} // namespace

UndoPlan PlanUndo(Database& database, const Author& author, const Line& line)
{
    return TellingDenials(database, author, [&] {
        RequireRight(database, author, Right::SeeHistory);
        return PlanAllowed(database, author, line);
    });
}

UndoAnswer Undo(Database& database, const Author& author, const Line& line)
{
    if (const UndoPlan plan = PlanUndo(database, author, line); !plan.IsPossible())
        return {plan.why};
    Author undoing = author;
    undoing.undoneLine = line.audit.code;
    return {line.table == AppointmentRow::Table ? UndoInAppointment(database, undoing, line)
                                                : UndoInRegister(database, undoing, line)};
}

} // namespace kova::family::history
