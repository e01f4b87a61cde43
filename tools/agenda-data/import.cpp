#include "family/csv/csv_reader.hpp"
#include "family/csv/importing.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/csv_options.hpp"
#include "tools/agenda-data/progress.hpp"
#include "tools/agenda-data/told_migration.hpp"

#include <algorithm>

namespace kova::data {

namespace {

using csv::ImportOrder;
using csv::ImportReport;
using csv::ImportStep;
using csv::Known;

/// What a step is called, and what is done before anybody asks how far it is: in lines, or in pages of a
/// copy.
struct ShownStep {
    ImportStep step;
    const char* name;
    long long withoutProgress;
};
constexpr ShownStep Steps[] = {
    {ImportStep::Checking, "Conferência", 5000},
    {ImportStep::CheckingAgain, "Nova conferência", 5000},
    {ImportStep::Copying, "Cópia", 10'000},
    {ImportStep::Writing, "Gravação", 5000},
    {ImportStep::WritingNew, "Gravação com novos códigos", 5000},
};

std::string Counted(long long count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

/// Tells on a stream what is wrong with the file and how far the import is.
csv::ImportWatch WatchOn(std::ostream& output)
{
    csv::ImportWatch watch;
    watch.problem = [&output](const csv::Problem& problem) {
        output << "linha " << problem.line << ": " << problem.Told() << "\n";
    };
    watch.progress = [&output, at = std::optional<ImportStep>(), told = std::shared_ptr<Progress>()](
                         ImportStep step, long long done, long long total) mutable {
        const auto& shown = *std::ranges::find(Steps, step, &ShownStep::step);
        if (total <= shown.withoutProgress)
            return;
        if (at != step)
            told = std::make_shared<Progress>(output, shown.name, total);
        at = step;
        told->Reach(done);
    };
    return watch;
}

int Refuse(const ImportReport& report, Surroundings& surroundings)
{
    surroundings.error << Counted(report.problems, "erro", "erros") << " em "
                       << Counted(report.problemLines, "linha", "linhas") << "; nada foi importado.\n";
    return 1;
}

/// What becomes of the other lines: "; 2 registros alterados", or nothing.
std::string Others(const ImportReport& report)
{
    std::string text;
    if (report.changed + report.same > 0)
        text += "; " + Counted(report.changed, "registro alterado", "registros alterados");
    if (report.leftOut > 0)
        text += "; " + Counted(report.leftOut, "linha já estava no banco", "linhas já estavam no banco");
    return text;
}

/// What the options say of lines that are there already.
Known KnownBy(const Call& call, const csv::Register& into)
{
    const bool updates = call.Has("--update"), skips = call.Has("--skip-existing");
    if (updates && skips)
        call.Refuse("--update e --skip-existing não valem juntos.");
    if (updates && !csv::TakesUpdates(into))
        call.Refuse("--update não vale para " + std::string(into.name) + ".");
    return updates ? Known::Updated : skips ? Known::LeftOut : Known::Refused;
}

ImportOrder OrderOf(const Call& call)
{
    const csv::Register& into = FindRegister(call, 1);
    const std::string& path = call.Operand(2);
    const auto encoding = GivenEncoding(call);
    const auto separator = GivenSeparator(call);
    const Known known = KnownBy(call, into);
    csv::FileText file = csv::ReadTextFile(path, encoding);
    const char between = separator.value_or(csv::RecogniseSeparator(file.text));
    return {&into, path, std::move(file), between, known, !call.Has("--no-copy")};
}

int Rehearse(const Call& call, const ImportOrder& order, Surroundings& surroundings)
{
    const ImportReport report = csv::RehearseImport(call.Operand(0), order, AuthorOf(call, surroundings),
                                                    surroundings.now, WatchOn(surroundings.error));
    if (!report.IsGood())
        return Refuse(report, surroundings);
    surroundings.output << report.changes
                        << Counted(report.added, "linha pode ser importada", "linhas podem ser importadas")
                        << Others(report) << "; nada foi gravado.\n";
    return 0;
}

void TellWayBack(const std::string& path, const ImportReport& report, std::ostream& output)
{
    if (report.number == 0)
        return;
    if (!report.copy.empty())
        output << "Cópia de antes da importação: " << report.copy << "\n";
    output << "Para desfazer esta importação: agenda-data undo-import \"" << path << "\" --import "
           << report.number << "\n";
}

int Run(const Call& call, Surroundings& surroundings)
{
    const ImportOrder order = OrderOf(call);
    surroundings.output << "Arquivo lido em " << csv::NameOf(order.file.encoding) << ".\n";
    if (call.Has("--dry-run"))
        return Rehearse(call, order, surroundings);
    BringFileUpToDate(call.Operand(0), surroundings.error);
    const ImportReport report = csv::BringIn(call.Operand(0), order, AuthorOf(call, surroundings),
                                             surroundings.now, WatchOn(surroundings.error));
    if (!report.IsGood())
        return Refuse(report, surroundings);
    surroundings.output << report.changes << Counted(report.added, "linha importada", "linhas importadas")
                        << Others(report) << ".\n";
    TellWayBack(call.Operand(0), report, surroundings.output);
    return 0;
}

} // namespace

const Command ImportCommand{
    {"import",
     "Importa um arquivo CSV: todas as linhas ou, se alguma tem erro, nenhuma; os erros\n"
     "são mostrados por linha. O que já está no banco é um erro: importar de novo não\n"
     "duplica nada. Com --dry-run só confere. CADASTRO: clientes, animais, especies,\n"
     "racas, tipos, servicos, funcionarios, feriados, empresa, expediente, horarios, ausencias\n"
     "ou agendamentos. NOME fica na auditoria. Com --update uma linha que traz o código de um registro do "
     "banco muda o que nele é\n"
     "diferente; cada mudança é mostrada, com o que havia antes. Antes de gravar, o arquivo\n"
     "do banco é copiado para o lado dele; as últimas cinco destas cópias ficam. undo-import\n"
     "desfaz uma importação.",
     {"BANCO", "CADASTRO", "ARQUIVO"},
     {{"--dry-run", {}, "Só confere: nada é gravado."},
      {"--update", {}, "Muda os registros que já estão no banco, pelo código."},
      {"--skip-existing", {}, "Deixa de fora as linhas que já estão no banco."},
      {"--no-copy", {}, "Não copia o arquivo do banco antes, como quando falta espaço no disco."},
      EncodingOption,
      SeparatorOption,
      {"--user", "NOME", "Quem importa (padrão: o usuário do computador)."}}},
    Run,
};

} // namespace kova::data
