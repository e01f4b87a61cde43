#include "family/data/archive/audit_archive.hpp"
#include "tools/agenda-data/author.hpp"
#include "tools/agenda-data/commands.hpp"
#include "tools/agenda-data/shown_work.hpp"
#include "tools/agenda-data/told_migration.hpp"

namespace kova::data {

namespace {

constexpr long long LastYear = 9999;

std::string Megabytes(long long bytes)
{
    constexpr long long BytesOfTenth = 1024 * 1024 / 10;
    const long long tenths = bytes / BytesOfTenth;
    return std::to_string(tenths / 10) + "," + std::to_string(tenths % 10) + " MB";
}

void TellRoom(const family::ArchivedYears& archived, Surroundings& surroundings)
{
    if (archived.bytesBefore > 0)
        surroundings.output << "O arquivo da loja tinha " << Megabytes(archived.bytesBefore)
                            << " e ficou com " << Megabytes(archived.bytesAfter) << ".\n";
    if (!archived.whyNotSmaller.empty())
        surroundings.error << archived.whyNotSmaller << "\n";
}

int Run(const Call& call, Surroundings& surroundings)
{
    const int until = static_cast<int>(call.Count("--until", 0, LastYear));
    if (until == 0)
        call.Refuse("Informe com --until o último ano cujas linhas vão para o arquivo.");
    if (until >= surroundings.now.date.year)
        call.Refuse("O ano informado com --until ainda não acabou.");
    BringFileUpToDate(call.Operand(0), surroundings.error);
    const family::ArchivedYears archived =
        family::ArchiveAudit(call.Operand(0), until, call.Option("--to"), AuthorOf(call, surroundings),
                             ShownWork(surroundings.error, "Arquivamento"));
    const std::string years = " da auditoria até " + std::to_string(until);
    if (archived.lines == 0)
        surroundings.output << "Não há linhas" << years << " para arquivar.\n";
    else
        surroundings.output << archived.lines << (archived.lines == 1 ? " linha" : " linhas") << years
                            << (archived.lines == 1 ? " foi para \"" : " foram para \"") << archived.file
                            << "\".\n";
    TellRoom(archived, surroundings);
    if (archived.left > 0)
        surroundings.error << archived.left << (archived.left == 1 ? " linha" : " linhas") << years
                           << (archived.left == 1 ? " fica na loja: foi gravada"
                                                  : " ficam na loja: foram gravadas")
                           << " depois de uma com a data de um ano seguinte.\n";
    return 0;
}

} // namespace

const Command ArchiveAuditCommand{
    {"archive-audit",
     "Leva as linhas da auditoria até um ano para um arquivo à parte, que \"check\" confere junto\n"
     "com a loja e \"history\" continua lendo. Elas só saem da loja quando estão no arquivo; guarde-o\n"
     "com as cópias de segurança. Só o dono do banco pode.",
     {"BANCO"},
     {{"--until", "ANO", "O último ano que vai para o arquivo."},
      {"--to", "ARQUIVO",
       "O arquivo (padrão: o que já tem as linhas anteriores, ou ao lado do banco, com o nome dele\n"
       "e \".auditoria\"); para um servidor é preciso informá-lo na primeira vez."}}},
    Run,
};

} // namespace kova::data
