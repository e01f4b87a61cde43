#include "family/data/archive/audit_archive.hpp"

#include "family/data/archive/archive_file.hpp"
#include "family/data/audit/archived_part.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/engine/server_connection.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "system/path_text.hpp"

#include <filesystem>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

bool IsThere(const std::string& file)
{
    std::error_code unreadable;
    return fs::is_regular_file(system::PathOf(file), unreadable);
}

Key Number(Database& database, const std::string& selection)
{
    Key number = 0;
    database.Session() << selection, soci::into(number);
    return number;
}

void RequireOwner(Database& shop, const Author& author)
{
    if (!author.isOwner || !MayRewriteAudit(shop))
        throw DatabaseFailure("Só o dono do banco de dados pode arquivar a auditoria de \"" + shop.Path()
                              + "\". Em um servidor, use o endereço dele.");
}

std::string FileFor(Database& shop, const std::optional<std::string>& file)
{
    const std::optional<ArchivedPart> before = LastArchived(shop);
    const std::string wanted = file.value_or(before                      ? before->file
                                                 : IsServer(shop.Path()) ? std::string()
                                                                         : ArchiveBeside(shop.Path()));
    if (wanted.empty())
        throw DatabaseFailure("Informe o arquivo em que a auditoria deste servidor é guardada.");
    if (before && !IsThere(wanted))
        throw DatabaseFailure("O arquivo da auditoria \"" + wanted
                              + "\" não foi encontrado. Ele já tem linhas desta loja: informe onde está.");
    return system::TextOf(fs::absolute(system::PathOf(wanted)));
}

/// The place of the last link before the first line of a later year.
Key LastPlaceUntil(Database& shop, int until)
{
    const std::string begin = std::to_string(until + 1) + "-01-01 00:00:00";
    Key later = 0;
    shop.Session() << "select coalesce(min(e.ordem), 0) from elo_da_auditoria e"
                      " join auditoria a on a.codigo = e.codigo_da_linha where a.momento >= :momento",
        soci::use(begin, "momento"), soci::into(later);
    return later == 0 ? Number(shop, "select coalesce(max(ordem), 0) from elo_da_auditoria") : later - 1;
}

long long LinesUntil(Database& shop, int until)
{
    const std::string begin = std::to_string(until + 1) + "-01-01 00:00:00";
    long long lines = 0;
    shop.Session() << "select count(*) from auditoria where momento < :momento", soci::use(begin, "momento"),
        soci::into(lines);
    return lines;
}

/// One archiving, from the shop over the file back to the shop.
class Archiving {
public:
    Archiving(Database& shop, ArchiveFile& archive, int until)
        : shop_(shop), archive_(archive), until_(until), last_(LastPlaceUntil(shop, until))
    {
    }

    ArchivedYears Run(const Author& author, const LongWork& work)
    {
        ArchivedYears archived{0, archive_.Path(), 0};
        archive_.RequireGoesOnIn(shop_);
        if (last_ > Number(shop_, "select coalesce(min(ordem), 0) from elo_da_auditoria") || !IsBegun()) {
            archive_.TakeUntil(last_, shop_, work);
            archived.lines = last_ == 0 ? 0 : TakeFromShop(author);
        }
        archived.left = LinesUntil(shop_, until_);
        return archived;
    }

private:
    bool IsBegun() { return LastArchived(shop_).has_value(); }

    long long TakeFromShop(const Author& author)
    {
        WriteTransaction transaction(shop_);
        const auto link = FindByKey<LinkRow>(shop_, last_);
        if (!link || !archive_.Has(*link))
            throw DatabaseFailure("A auditoria foi mudada enquanto era arquivada. Nada saiu da loja.");
        const long long before = Number(shop_, "select count(*) from auditoria");
        shop_.Session() << "delete from auditoria where codigo in"
                           " (select codigo_da_linha from elo_da_auditoria where ordem <= :ordem)",
            soci::use(last_, "ordem");
        shop_.Session() << "delete from elo_da_auditoria where ordem < :ordem", soci::use(last_, "ordem");
        const long long gone = before - Number(shop_, "select count(*) from auditoria");
        AuditArchiving(
            shop_, author,
            {last_, link->elo, until_, archive_.Path(), archive_.LinesUntil(last_), archive_.LastImport()});
        transaction.Commit();
        return gone;
    }

    Database& shop_;
    ArchiveFile& archive_;
    const int until_;
    const Key last_;
};

} // namespace

std::string ArchiveBeside(const std::string& source) { return source + ".auditoria"; }

ArchivedYears ArchiveAudit(const std::string& source, int until, const std::optional<std::string>& file,
                           const Author& author, const LongWork& work)
{
    const std::shared_ptr<Database> shop = OpenForLongWork(source);
    RequireOwner(*shop, author);
    try {
        const std::string path = FileFor(*shop, file);
        if (LastPlaceUntil(*shop, until) == 0)
            return {0, path, 0};
        ArchiveFile archive(path);
        return Archiving(*shop, archive, until).Run(author, work);
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(source, cause);
    }
}

std::unique_ptr<Database> OpenArchive(Database& shop, const std::optional<std::string>& file)
{
    const std::optional<ArchivedPart> part = LastArchived(shop);
    if (file && !IsThere(*file))
        throw DatabaseFailure("O arquivo da auditoria \"" + *file + "\" não foi encontrado.");
    if (!part)
        return nullptr;
    for (const std::string& place : {file.value_or(part->file), ArchiveBeside(shop.Path())}) {
        if (!IsServer(place) && IsThere(place))
            return ConnectForReading(place);
    }
    return nullptr;
}

} // namespace kova::family
