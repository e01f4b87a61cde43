#include "family/data/audit/import_audit.hpp"

#include "family/data/audit/archived_part.hpp"
#include "family/data/engine/database.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// Runs what asks the engine directly.
template <class Use> void Guarded(Database& database, Use use)
{
    try {
        use(database.Session());
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

Key NextNumber(Database& database)
{
    const std::string table = ImportsTable;
    Key number = 0;
    Guarded(database, [&](soci::session& session) {
        session << "select coalesce(max(chave), 0) + 1 from auditoria where tabela = :tabela",
            soci::use(table, "tabela"), soci::into(number);
    });
    // A number is not given again because its lines were archived.
    const std::optional<ArchivedPart> archived = LastArchived(database);
    return archived ? std::max(number, archived->lastImport + 1) : number;
}

} // namespace

void LockImports(Database& database)
{
    const std::string& statement = database.GetDialect().lockImport;
    if (!statement.empty())
        Guarded(database, [&](soci::session& session) { session << statement; });
}

void BeginImport(Database& database, Author& author, const ImportedFile& file)
{
    author.importNumber = NextNumber(database);
    AuditImport(database, author,
                AuditValues()
                    .Add("cadastro", file.registerName)
                    .Add("arquivo", file.path)
                    .Add("codificacao", file.encoding)
                    .Add("linhas", file.records)
                    .Add("novos", file.added)
                    .Add("alterados", file.changed));
}

} // namespace kova::family
