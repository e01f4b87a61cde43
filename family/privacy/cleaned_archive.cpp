#include "family/privacy/cleaned_archive.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/update_row.hpp"

namespace kova::family::privacy {

namespace {

void Write(ArchiveFile& archive, const std::vector<AuditTexts>& lines)
{
    soci::transaction transaction(archive.Lines().Session());
    for (const AuditTexts& line : lines) {
        Update(archive.Lines(), line);
        RemoveSalts(archive.Lines(), line.codigo);
    }
    transaction.commit();
    archive.DropRemains();
}

} // namespace

void LinkCleaned(Database& shop, Database& archive, const std::vector<AuditTexts>& lines)
{
    for (const AuditTexts& texts : lines) {
        auto line = FindByKey<AuditRow>(archive, texts.codigo);
        if (!line)
            continue;
        line->antes = texts.antes;
        line->depois = texts.depois;
        LinkArchivedAnew(shop, *line);
    }
}

std::string CleanArchive(ArchiveFile& archive, const std::vector<AuditTexts>& lines)
{
    if (lines.empty())
        return {};
    const std::string why = "O arquivo da auditoria \"" + archive.Path()
        + "\" não pôde ser limpo por completo; torne o cliente anônimo mais uma vez. ";
    try {
        Write(archive, lines);
        return {};
    } catch (const soci::soci_error& cause) {
        return why + TranslatedFailure(archive.Path(), cause).Cause();
    } catch (const DatabaseFailure& failure) {
        return why + failure.Cause();
    }
}

} // namespace kova::family::privacy
