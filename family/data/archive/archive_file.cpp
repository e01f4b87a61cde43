#include "family/data/archive/archive_file.hpp"

#include "family/data/audit/code_ranges.hpp"
#include "family/data/checks/stored_links.hpp"
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

ArchiveFile::ArchiveFile(std::string path)
    : path_(std::move(path)), database_(SqliteDialect(), FileConnection(path_), path_)
{
    const Key tables = Number(database_, "select count(*) from sqlite_master where type = 'table'");
    const Key own = Number(database_,
                           "select count(*) from sqlite_master where type = 'table'"
                           " and name in ('auditoria', 'elo_da_auditoria')");
    if (tables != own || (own != 0 && own != 2))
        throw DatabaseFailure("\"" + path_ + "\" não é um arquivo de auditoria. Informe outro.");
    system::KeepFromOthers(path_);
    // One file, that can be carried away: no log stays beside it.
    database_.Session() << "pragma journal_mode = delete";
    database_.Session() << "pragma synchronous = extra";
    if (tables == 0)
        MakeTables();
}

void ArchiveFile::MakeTables()
{
    soci::transaction transaction(database_.Session());
    for (const char* statement : Tables)
        database_.Session() << statement;
    transaction.commit();
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
