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

#include <cstdint>
#include <filesystem>

namespace kova::family {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t BytesOfMegabyte = 1024 * 1024;

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

/// Fails with a sentence where it is not what the shop has archived.
void RequireArchiveOf(Database& shop, Database& archive)
{
    const std::string of = "O arquivo da auditoria \"" + archive.Path() + "\" ";
    try {
        if (!IsArchive(archive))
            throw DatabaseFailure(NoArchive(archive.Path()));
        const std::optional<ArchivedPart> part = LastArchived(shop);
        const auto last = part ? FindByKey<LinkRow>(archive, part->order) : std::nullopt;
        if (!last || last->elo != part->link)
            throw DatabaseFailure(of + "não é o desta loja, ou não tem tudo que foi arquivado.");
    } catch (const soci::soci_error&) {
        throw DatabaseFailure(of
                              + "não pode ser lido: está danificado ou não é um arquivo de auditoria. Use uma"
                                " cópia dele.");
    }
}

long long BytesOf(Database& shop)
{
    return Number(shop, "select page_count * page_size from pragma_page_count, pragma_page_size");
}

/// The engine writes what stays twice, once beside the file and once where it keeps what is temporary.
std::string WhyTooLittleRoom(Database& shop)
{
    const auto needed = static_cast<std::uintmax_t>(
        Number(shop,
               "select (page_count - freelist_count) * page_size"
               " from pragma_page_count, pragma_freelist_count, pragma_page_size"));
    std::error_code unknown;
    const fs::path folder = fs::absolute(system::PathOf(shop.Path())).parent_path();
    for (const fs::path& place : {folder, fs::temp_directory_path(unknown)}) {
        const fs::space_info space = fs::space(place, unknown);
        const std::uintmax_t needed_here = needed * (place == folder ? 2 : 1);
        if (!unknown && space.available < needed_here)
            return "O arquivo da loja ficou do mesmo tamanho: para ficar menor faltam "
                + std::to_string((needed_here - space.available) / BytesOfMegabyte + 1) + " MB livres em \""
                + system::TextOf(place) + "\". O espaço será usado pelo que for gravado.";
    }
    return {};
}

/// What cannot be done now is left as it is: the room is used by what comes.
void GiveRoomBack(Database& shop, ArchivedYears& archived)
{
    archived.whyNotSmaller = WhyTooLittleRoom(shop);
    if (!archived.whyNotSmaller.empty())
        return;
    try {
        const long long before = BytesOf(shop);
        shop.Session() << "vacuum";
        // Those who read do so for a moment only, unless they have forgotten to end.
        shop.Session() << "pragma busy_timeout = 1000";
        int busy = 0, inLog = 0, written = 0;
        shop.Session() << "pragma wal_checkpoint(truncate)", soci::into(busy), soci::into(inLog),
            soci::into(written);
        archived.bytesBefore = before;
        archived.bytesAfter = BytesOf(shop);
        if (busy != 0)
            archived.whyNotSmaller =
                "Outro programa estava lendo o arquivo da loja: ele fica menor quando todos "
                "os programas que usam esta loja forem fechados.";
    } catch (const soci::soci_error& cause) {
        const bool isInUse = TranslatedFailure(shop.Path(), cause).GetFault() == Fault::Locked;
        archived.whyNotSmaller = std::string("O arquivo da loja ficou do mesmo tamanho, porque ")
            + (isInUse ? "outro programa o estava usando" : "o disco ficou cheio ou não respondeu")
            + ". O espaço será usado pelo que for gravado.";
    }
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
        ArchivedYears archived;
        archived.file = archive_.Path();
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
        ArchivedYears archived;
        archived.file = path;
        if (LastPlaceUntil(*shop, until) == 0)
            return archived;
        ArchiveFile archive(path);
        archived = Archiving(*shop, archive, until).Run(author, work);
        if (archived.lines > 0 && !IsServer(source))
            GiveRoomBack(*OpenForLongWork(source), archived);
        return archived;
    } catch (const std::runtime_error& cause) {
        throw TranslatedFailure(source, cause);
    }
}

std::string PlaceOfArchive(Database& shop, const std::optional<std::string>& file)
{
    const std::optional<ArchivedPart> part = LastArchived(shop);
    if (file && !IsThere(*file))
        throw DatabaseFailure("O arquivo da auditoria \"" + *file + "\" não foi encontrado.");
    if (!part)
        return {};
    for (const std::string& place : {file.value_or(part->file), ArchiveBeside(shop.Path())}) {
        if (!IsServer(place) && IsThere(place))
            return place;
    }
    return {};
}

std::unique_ptr<Database> OpenArchive(Database& shop, const std::optional<std::string>& file)
{
    const std::string place = PlaceOfArchive(shop, file);
    if (place.empty())
        return nullptr;
    std::unique_ptr<Database> archive = ConnectForReading(place);
    RequireArchiveOf(shop, *archive);
    return archive;
}

std::unique_ptr<Database> OpenSearchableArchive(Database& shop, const std::optional<std::string>& file)
{
    std::unique_ptr<Database> archive = OpenArchive(shop, file);
    if (!archive || IsSearchable(*archive))
        return archive;
    const std::string place = archive->Path();
    archive.reset();
    OpenArchiveForWriting(shop, place);
    return OpenArchive(shop, place);
}

std::unique_ptr<ArchiveFile> OpenArchiveForWriting(Database& shop, const std::optional<std::string>& file)
{
    const std::unique_ptr<Database> readable = OpenArchive(shop, file);
    if (!readable)
        return nullptr;
    try {
        auto archive = std::make_unique<ArchiveFile>(readable->Path());
        archive->RequireWritable();
        return archive;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(readable->Path(), cause);
    }
}

} // namespace kova::family
