#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/csv/csv_options.hpp"
#include "tools/agenda-data/csv/import_run.hpp"
#include "tools/agenda-data/csv/text_file.hpp"

namespace kova::data {

namespace {

std::string Counted(long long count, const char* one, const char* many)
{
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

int Refuse(const ImportRun& run, Surroundings& surroundings)
{
    surroundings.error << Counted(run.ProblemCount(), "erro", "erros") << " em "
                       << Counted(run.ProblemLines(), "linha", "linhas") << "; nada foi importado.\n";
    return 1;
}

int Rehearse(ImportRun& run, const std::string& path, Surroundings& surroundings)
{
    run.Check(*family::OpenNewestForReading(path));
    if (run.ProblemCount() > 0)
        return Refuse(run, surroundings);
    surroundings.output << Counted(run.Records(), "linha pode ser importada", "linhas podem ser importadas")
                        << "; nada foi gravado.\n";
    return 0;
}

int Import(ImportRun& run, const std::string& path, Surroundings& surroundings)
{
    const std::shared_ptr<family::Database> database = family::OpenForLongWork(path);
    family::WriteTransaction transaction(*database);
    run.Check(*database);
    if (run.ProblemCount() > 0)
        return Refuse(run, surroundings);
    run.Write(*database);
    transaction.Commit();
    surroundings.output << Counted(run.Records(), "linha importada", "linhas importadas") << ".\n";
    return 0;
}

int Run(const Call& call, Surroundings& surroundings)
{
    const Register& into = FindRegister(call, 1);
    const auto encoding = GivenEncoding(call);
    const auto separator = GivenSeparator(call);
    const FileText file = ReadTextFile(call.Operand(2), encoding);
    surroundings.output << "Arquivo lido em " << NameOf(file.encoding) << ".\n";
    ImportRun run(into, file.text, separator.value_or(RecogniseSeparator(file.text)), surroundings);
    return call.Has("--dry-run") ? Rehearse(run, call.Operand(0), surroundings)
                                 : Import(run, call.Operand(0), surroundings);
}

} // namespace

const Command ImportCommand{
    {"import",
     "Importa um arquivo CSV: todas as linhas ou, se alguma tem erro, nenhuma; os erros\n"
     "são mostrados por linha. Com --dry-run só confere. CADASTRO: clientes, animais,\n"
     "tipos, servicos, funcionarios, feriados ou agendamentos.",
     {"BANCO", "CADASTRO", "ARQUIVO"},
     {{"--dry-run", {}, "Só confere: nada é gravado."}, EncodingOption, SeparatorOption}},
    Run,
};

} // namespace kova::data
