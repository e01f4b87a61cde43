#include "family/data/audit/import_audit.hpp"
#include "family/data/copies/import_copy.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/csv/csv_options.hpp"
#include "tools/agenda-data/csv/import_run.hpp"
#include "tools/agenda-data/csv/text_file.hpp"
#include "tools/agenda-data/shown_work.hpp"

namespace kova::data {

namespace {

constexpr const char* Checking = "Conferência";

/// A smaller file is copied before anybody asks how far it is.
constexpr long long PagesWithoutProgress = 10'000;

family::LongWork WorkOfCopy(std::ostream& output)
{
    family::LongWork work = ShownWork(output, "Cópia");
    work.progress = [tell = work.progress](long long done, long long total) {
        if (total > PagesWithoutProgress)
            tell(done, total);
    };
    return work;
}

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

/// What others have changed so far, as a number; nothing where the engine does not tell.
std::optional<long long> ChangesOfOthers(family::Database& database)
{
    const std::string& question = database.GetDialect().changesOfOthers;
    if (question.empty())
        return std::nullopt;
    try {
        long long changes = 0;
        database.Session() << question, soci::into(changes);
        return changes;
    } catch (const soci::soci_error& cause) {
        throw family::TranslatedFailure(database.Path(), cause);
    }
}

/// Lines that bring a record that was not there.
long long NewRecords(const ImportRun& run) { return run.Records() - run.Updated() - run.LeftOut(); }

/// Whether anything would stand otherwise in the database than before.
bool Writes(const ImportRun& run) { return NewRecords(run) + run.Changing() > 0; }

/// What becomes of the other lines: "; 2 registros alterados", or nothing.
std::string Others(const ImportRun& run)
{
    std::string text;
    if (run.Updated() > 0)
        text += "; " + Counted(run.Changing(), "registro alterado", "registros alterados");
    if (run.LeftOut() > 0)
        text += "; " + Counted(run.LeftOut(), "linha já estava no banco", "linhas já estavam no banco");
    return text;
}

/// What the options say of lines that are there already.
Known KnownBy(const Call& call, const Register& into)
{
    const bool updates = call.Has("--update"), skips = call.Has("--skip-existing");
    if (updates && skips)
        call.Refuse("--update e --skip-existing não valem juntos.");
    if (updates && !family::registers::RegisterNamed(into.name))
        call.Refuse("--update não vale para " + std::string(into.name) + ".");
    return updates ? Known::Updated : skips ? Known::LeftOut : Known::Refused;
}

int Rehearse(ImportRun& run, const std::string& path, Surroundings& surroundings)
{
    const auto database = family::OpenNewestForReading(path);
    const family::Snapshot snapshot(*database);
    run.Check(*database, Checking);
    if (run.ProblemCount() > 0)
        return Refuse(run, surroundings);
    surroundings.output << run.Changes()
                        << Counted(NewRecords(run), "linha pode ser importada", "linhas podem ser importadas")
                        << Others(run) << "; nada foi gravado.\n";
    return 0;
}

/// A whole file on its way into a database.
class Importing {
public:
    Importing(ImportRun& run, const std::string& path, const family::Author& author)
        : run_(run), database_(family::OpenForLongWork(path)), author_(author)
    {
    }

    /// Whether there is anything wrong with the file. Nobody waits for it meanwhile.
    bool IsGood()
    {
        const family::Snapshot snapshot(*database_);
        changes_ = ChangesOfOthers(*database_);
        run_.Check(*database_, Checking);
        return run_.ProblemCount() == 0;
    }

    /// Writes what was good; whether it still was, as others may have written since then. What changes
    /// nothing leaves no trace.
    bool Write(family::ImportedFile file)
    {
        family::WriteTransaction transaction(*database_);
        family::LockImports(*database_);
        run_.LockRoom();
        if (!changes_ || changes_ != ChangesOfOthers(*database_))
            run_.Check(*database_, "Nova conferência");
        if (run_.ProblemCount() > 0 || !Writes(run_))
            return run_.ProblemCount() == 0;
        file.records = run_.Records();
        file.added = NewRecords(run_);
        file.changed = run_.Changing();
        family::BeginImport(*database_, author_, file);
        run_.Write(*database_, author_);
        if (run_.ProblemCount() > 0)
            return false;
        transaction.Commit();
        return true;
    }

    /// In the audit; 0 where nothing was written.
    family::Key Number() const { return author_.importNumber; }

private:
    ImportRun& run_;
    std::shared_ptr<family::Database> database_;
    family::Author author_;
    std::optional<long long> changes_;
};

std::string CopyFor(const Call& call, Surroundings& surroundings)
{
    return call.Has("--no-copy")
        ? std::string()
        : family::CopyBeforeImport(call.Operand(0), surroundings.now, WorkOfCopy(surroundings.error));
}

void TellWayBack(const std::string& path, const std::string& copy, family::Key number, std::ostream& output)
{
    if (!copy.empty())
        output << "Cópia de antes da importação: " << copy << "\n";
    output << "Para desfazer esta importação: agenda-data undo-import \"" << path << "\" --import " << number
           << "\n";
}

int Bring(ImportRun& run, const Call& call, family::ImportedFile file, Surroundings& surroundings)
{
    Importing importing(run, call.Operand(0), AuthorOf(call, surroundings.now));
    if (!importing.IsGood())
        return Refuse(run, surroundings);
    const std::string copy = Writes(run) ? CopyFor(call, surroundings) : std::string();
    if (Writes(run) && !importing.Write(std::move(file)))
        return Refuse(run, surroundings);
    surroundings.output << run.Changes() << Counted(NewRecords(run), "linha importada", "linhas importadas")
                        << Others(run) << ".\n";
    if (importing.Number() != 0)
        TellWayBack(call.Operand(0), copy, importing.Number(), surroundings.output);
    return 0;
}

int Run(const Call& call, Surroundings& surroundings)
{
    const Register& into = FindRegister(call, 1);
    const std::string& path = call.Operand(2);
    const auto encoding = GivenEncoding(call);
    const auto separator = GivenSeparator(call);
    const Known known = KnownBy(call, into);
    const FileText file = ReadTextFile(path, encoding);
    surroundings.output << "Arquivo lido em " << NameOf(file.encoding) << ".\n";
    ImportRun run(into, file.text, separator.value_or(RecogniseSeparator(file.text)), known, surroundings);
    if (call.Has("--dry-run"))
        return Rehearse(run, call.Operand(0), surroundings);
    return Bring(run, call, {path, NameOf(file.encoding), std::string(into.name)}, surroundings);
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
