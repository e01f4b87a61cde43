#include "family/data/archive/archive_file.hpp"

#include "family/data/audit/code_ranges.hpp"
#include "family/data/checks/stored_links.hpp"
#include "family/data/migrations/audit_indexes.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/file_connection.hpp"
#include "system/access.hpp"

#include <vector>

namespace kova::family {

namespace {

/// A line that is written as it stands, beside its link as it stands.
struct ArchivedRow : ChainedLine {
    static constexpr const char* Table = AuditRow::Table;

    ArchivedRow() = default;
    explicit ArchivedRow(const ChainedLine& line) : ChainedLine(line) { }
};

constexpr const char* Tables[] = {
    "create table auditoria (codigo integer primary key, momento text not null, usuario text not null,"
    " posto text not null, tabela text not null, chave integer not null, operacao text not null, antes text,"
    " depois text)",
    "create index auditoria_por_chave on auditoria (tabela, chave)",
    "create table elo_da_auditoria (ordem integer primary key, codigo_da_linha integer not null,"
    " sal text not null, elo text not null)",
    "create index elo_por_linha on elo_da_auditoria (codigo_da_linha) where ordem <> codigo_da_linha",
};

Key Number(Database& database, const std::string& selection)
{
    Key number = 0;
    database.Session() << selection, soci::into(number);
    return number;
}

} // namespace

bool IsArchive(Database& file)
{
    const std::string tables = "select count(*) from sqlite_master where type = 'table'"
                               " and name not like 'palavras_da_auditoria%'";
    return Number(file, tables) == 2
        && Number(file, tables + " and name in ('auditoria', 'elo_da_auditoria')") == 2;
}

bool IsSearchable(Database& archive)
{
    return Number(archive, "select count(*) from sqlite_master where name = 'palavras_da_auditoria'") == 1;
}

std::string NoArchive(const std::string& path)
{
    return "\"" + path + "\" não é um arquivo de auditoria. Informe outro.";
}

ArchiveFile::ArchiveFile(std::string path)
    : path_(std::move(path)), database_(SqliteDialect(), FileConnection(path_), path_)
{
    const bool isEmpty = Number(database_, "select count(*) from sqlite_master") == 0;
    if (!isEmpty && !IsArchive(database_))
        throw DatabaseFailure(NoArchive(path_));
    system::KeepFromOthers(path_);
    // One file, that can be carried away: no log stays beside it.
    database_.Session() << "pragma journal_mode = delete";
    database_.Session() << "pragma synchronous = extra";
    database_.Session() << "pragma secure_delete = on";
    Complete(isEmpty);
}

void ArchiveFile::Complete(bool isEmpty)
{
    soci::transaction transaction(database_.Session());
    if (isEmpty)
        for (const char* statement : Tables)
            database_.Session() << statement;
    if (!IsSearchable(database_)) {
        for (const std::string& statement : IndexDaysOfAudit(database_.GetDialect()))
            database_.Session() << statement;
        for (const std::string& statement : IndexWordsOfAudit(database_.GetDialect()))
            database_.Session() << statement;
    }
    transaction.commit();
}

void ArchiveFile::RequireWritable()
{
    database_.Session() << "begin immediate";
    database_.Session() << "rollback";
}

void ArchiveFile::DropRemains()
{
    database_.Session() << "insert into palavras_da_auditoria (palavras_da_auditoria) values ('optimize')";
    database_.Session() << "vacuum";
}

Key ArchiveFile::LastPlace()
{
    return Number(database_, "select coalesce(max(ordem), 0) from elo_da_auditoria");
}

bool ArchiveFile::Has(const LinkRow& link)
{
    const auto archived = FindByKey<LinkRow>(database_, link.ordem);
    return archived && archived->elo == link.elo;
}

void ArchiveFile::RequireGoesOnIn(Database& shop)
{
    const Key last = LastPlace();
    const auto link = FindByKey<LinkRow>(shop, last);
    const bool isFirst = Number(shop, "select coalesce(min(ordem), 1) from elo_da_auditoria") == 1;
    if (last == 0 ? !isFirst : !(link && Has(*link)))
        throw DatabaseFailure("A auditoria da loja não é a continuação do arquivo \"" + path_
                              + "\". Informe o arquivo que já tem as linhas anteriores dela.");
}

void ArchiveFile::TakeUntil(Key place, Database& shop, const LongWork& work)
{
    soci::transaction transaction(database_.Session());
    VisitLinks(shop, LastPlace(), work, [&](const StoredLink& stored) {
        if (stored.link.ordem > place)
            return;
        Insert(database_, stored.link);
        if (stored.line && !FindByKey<ArchivedRow>(database_, stored.line->codigo))
            Insert(database_, ArchivedRow(*stored.line));
    });
    transaction.commit();
}

std::string ArchiveFile::LinesUntil(Key place)
{
    std::vector<Key> codes;
    Key code = 0;
    soci::statement statement =
        (database_.Session().prepare << "select distinct codigo_da_linha from elo_da_auditoria"
                                        " where ordem <= :ordem order by 1",
         soci::use(place, "ordem"), soci::into(code));
    statement.execute();
    while (statement.fetch())
        codes.push_back(code);
    return RangesOf(codes);
}

Key ArchiveFile::LastImport()
{
    return Number(database_, "select coalesce(max(chave), 0) from auditoria where tabela = 'importacao'");
}

} // namespace kova::family
