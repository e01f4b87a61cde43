#include "family/business/shown_values.hpp"
#include "family/data/audit/archived_part.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/import_undo.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/shown_work.hpp"
#include "tools/agenda-data/told_migration.hpp"

#include <limits>
#include <ranges>

namespace kova::data {

namespace {

using family::ImportLine;
using family::registers::ChangedRows;
using family::registers::KeptRow;
using family::registers::UndoneImport;

/// Fewer rows are taken back before anybody asks how far it is.
constexpr long long RowsWithoutProgress = 5000;

constexpr const char* Number = "--import";
constexpr const char* KeepChanged = "--keep-changed";
constexpr const char* List = "--list";

std::string Counted(long long count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string Who(const family::AuditLine& line)
{
    return line.user + (line.desk.empty() ? "" : " no posto " + line.desk);
}

std::string CountsOf(const ImportLine& of)
{
    if (!of.added || !of.changed)
        return Counted(of.records, "linha", "linhas");
    return Counted(*of.added, "novo", "novos") + ", " + Counted(*of.changed, "alterado", "alterados");
}

int ListImports(const std::string& path, std::ostream& output)
{
    const std::unique_ptr<family::Database> database = family::OpenNewestForReading(path);
    const std::vector<ImportLine> imports = family::FindImports(*database);
    if (imports.empty())
        output << "Nada foi importado neste banco.\n";
    for (const ImportLine& of : imports | std::views::reverse) {
        output << of.number << "  " << family::ShownMoment(of.line.moment) << "  " << Who(of.line) << "\n"
               << "    " << of.registerName << ", \"" << of.path << "\": " << CountsOf(of) << "\n";
        if (of.undone)
            output << "    desfeita em " << family::ShownMoment(of.undone->moment) << " por "
                   << Who(*of.undone) << "\n";
    }
    return 0;
}

void WriteKept(const std::vector<KeptRow>& rows, std::ostream& output)
{
    for (const KeptRow& row : rows)
        output << row.what << ": " << row.why << "\n";
}

int Refuse(const UndoneImport& undone, const std::string& archive, std::ostream& error)
{
    const ImportLine& of = undone.import;
    switch (undone.outcome) {
    case UndoneImport::Outcome::Unknown:
        error << "Não há essa importação. Veja as que há com --list.\n";
        if (!archive.empty())
            error << archive << " O que está nele não pode mais ser desfeito.\n";
        break;
    case UndoneImport::Outcome::UndoneBefore:
        error << "A importação " << of.number << " já foi desfeita em "
              << family::ShownMoment(of.undone->moment) << " por " << Who(*of.undone)
              << ". Para desfazer outra, use --import NÚMERO; --list mostra todas.\n";
        break;
    case UndoneImport::Outcome::Refused:
        WriteKept(undone.kept, error);
        error << "Nada da importação " << of.number << " foi desfeito. Com --keep-changed "
              << (undone.kept.size() == 1 ? "esse registro fica como está"
                                          : "esses registros ficam como estão")
              << " e o resto é desfeito.\n";
        break;
    case UndoneImport::Outcome::Done: break;
    }
    return 1;
}

std::optional<family::Key> GivenNumber(const Call& call)
{
    if (!call.Has(Number))
        return std::nullopt;
    return call.Count(Number, 1, std::numeric_limits<int>::max());
}

int Undo(const Call& call, Surroundings& surroundings)
{
    const std::optional<family::Key> number = GivenNumber(call);
    const ChangedRows changed = call.Has(KeepChanged) ? ChangedRows::Keep : ChangedRows::Refuse;
    BringFileUpToDate(call.Operand(0), surroundings.error);
    const auto database = family::OpenForLongWork(call.Operand(0));
    const UndoneImport undone =
        family::registers::UndoImport(*database, number, changed, AuthorOf(call, surroundings),
                                      LongWorkOf(surroundings.error, "Desfazendo", RowsWithoutProgress));
    if (!undone.IsDone())
        return Refuse(undone, family::ToldArchive(*database), surroundings.error);
    const ImportLine& of = undone.import;
    surroundings.output << "Importação " << of.number << " desfeita: " << of.registerName << ", \"" << of.path
                        << "\", de " << family::ShownMoment(of.line.moment) << " por " << Who(of.line)
                        << ".\n"
                        << Counted(undone.removed, "registro excluído", "registros excluídos") << "; "
                        << Counted(undone.restored, "registro como era antes", "registros como eram antes")
                        << ".\n";
    if (!undone.kept.empty())
        surroundings.output << "Ficaram como estão:\n";
    WriteKept(undone.kept, surroundings.output);
    return 0;
}

int Run(const Call& call, Surroundings& surroundings)
{
    if (!call.Has(List))
        return Undo(call, surroundings);
    if (call.Has(Number) || call.Has(KeepChanged))
        call.Refuse("--list só mostra as importações e não vale com --import nem --keep-changed.");
    return ListImports(call.Operand(0), surroundings.output);
}

} // namespace

const Command UndoImportCommand{
    {"undo-import",
     "Desfaz uma importação inteira: o que ela trouxe sai, o que ela mudou volta a ser como\n"
     "era. Se alguém mudou ou usou um desses registros depois, nada é desfeito e cada um é\n"
     "mostrado. NOME fica na auditoria.",
     {"BANCO"},
     {{"--import", "NÚMERO", "Qual delas (padrão: a última)."},
      {"--keep-changed", {}, "Deixa como estão os registros mudados ou usados depois, e desfaz o resto."},
      {"--list", {}, "Só mostra as importações: quando, quem, o quê, quantos."},
      {"--user", "NOME", "Quem desfaz (padrão: o usuário do computador)."}}},
    Run,
};

} // namespace kova::data
