#include "family/data/checks/audit_check.hpp"

#include "family/data/audit/archived_part.hpp"
#include "family/data/checks/stored_links.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <algorithm>
#include <optional>

namespace kova::family {

namespace {

Key Number(Database& database, const std::string& selection)
{
    Key number = 0;
    database.Session() << selection, soci::into(number);
    return number;
}

std::string Opening(Key line) { return "auditoria " + std::to_string(line) + ": "; }

/// The line of a link that does not go with the one before it may only stand in another place.
class PlaceSearch {
public:
    PlaceSearch(Database& database, const ChainFault& fault) : database_(database), fault_(fault) { }

    /// The code of the line behind which it was written; nothing where it was written otherwise than it is.
    std::optional<Key> Run()
    {
        VisitLinks(database_, FirstPlace, {}, [&](const StoredLink& stored) {
            if (stored.link.ordem == fault_.order)
                wanted_ = stored;
        });
        std::optional<Key> found;
        if (!wanted_.line)
            return found;
        VisitLinks(database_, FirstPlace, {}, [&](const StoredLink& stored) {
            if (IsLinkOf(wanted_.link.elo, stored.link.elo, wanted_.link.sal, *wanted_.line))
                found = stored.link.codigoDaLinha;
        });
        return found;
    }

private:
    Database& database_;
    const ChainFault& fault_;
    StoredLink wanted_;
};

std::string TextOf(Database& database, const ChainFault& fault)
{
    switch (fault.what) {
    case ChainFault::What::LineGone: return Opening(fault.line) + "a linha foi retirada.";
    case ChainFault::What::LinksGone:
        return Opening(fault.line)
            + (fault.links == 1
                   ? "uma linha que estava antes dela foi retirada."
                   : std::to_string(fault.links) + " linhas que estavam antes dela foram retiradas.");
    case ChainFault::What::Changed: break;
    }
    if (const auto former = PlaceSearch(database, fault).Run())
        return Opening(fault.line) + "a linha está fora da ordem: foi gravada logo depois da linha "
            + std::to_string(*former) + ".";
    return Opening(fault.line) + "a linha foi alterada depois de gravada.";
}

/// Lines that no program of this shop's has written.
constexpr const char* LinesWithoutLink =
    " from auditoria a where not exists (select 1 from elo_da_auditoria e where e.ordem = a.codigo"
    " and e.codigo_da_linha = a.codigo) and not exists (select 1 from elo_da_auditoria e"
    " where e.codigo_da_linha = a.codigo and e.ordem <> e.codigo_da_linha)";

/// Goes through a shop's chain, and through the archive's before it where there is one.
class WholeWalk {
public:
    WholeWalk(Database& shop, Database* archive) : shop_(shop), archive_(archive), part_(LastArchived(shop))
    {
        if (part_)
            archived_ = ReadRanges(part_->lines);
    }

    ChainWalk Run(const LongWork& work)
    {
        if (archive_)
            VisitLinks(*archive_, FirstPlace, work, [&](const StoredLink& stored) {
                walk_.Take(stored);
                lastArchived_ = stored.link.ordem;
            });
        VisitLinks(shop_, FirstPlace, work, [&](const StoredLink& stored) { Take(stored); });
        return std::move(walk_);
    }

    /// The place of the archive's last link; 0 without one.
    Key LastArchivedPlace() const { return lastArchived_; }

private:
    void Take(StoredLink stored)
    {
        if (archive_ && stored.link.ordem <= lastArchived_)
            Compare(stored.link);
        else if (!archive_ && IsBeginning(stored))
            walk_.BeginBehind(stored.link);
        else if (!stored.line && IsArchived(stored.link.codigoDaLinha))
            TakeArchived(stored);
        else
            walk_.Take(stored);
    }

    /// The last archived link stays in the shop; more of them do after an archiving that was cut off.
    void Compare(const LinkRow& link)
    {
        const auto archived = FindByKey<LinkRow>(*archive_, link.ordem);
        if (!archived || archived->elo != link.elo || archived->codigoDaLinha != link.codigoDaLinha)
            walk_.TakeOther(link);
    }

    bool IsBeginning(const StoredLink& stored) const
    {
        return part_ && !stored.line && stored.link.ordem == part_->order && stored.link.elo == part_->link;
    }

    bool IsArchived(Key code) const
    {
        return std::ranges::any_of(
            archived_, [&](const CodeRange& range) { return range.first <= code && code <= range.last; });
    }

    /// A line that was cleaned before it was archived has a further link behind it.
    void TakeArchived(StoredLink& stored)
    {
        if (!archive_) {
            walk_.TakeWithoutLine(stored.link);
            return;
        }
        if (const auto line = FindByKey<AuditRow>(*archive_, stored.link.codigoDaLinha))
            stored.line = *line;
        walk_.Take(stored);
    }

    Database& shop_;
    Database* archive_;
    const std::optional<ArchivedPart> part_;
    std::vector<CodeRange> archived_;
    ChainWalk walk_;
    Key lastArchived_ = 0;
};

/// What is wrong with an archive as a whole; empty where it is the shop's.
std::string WrongArchive(Database& shop, Database& archive)
{
    const std::optional<ArchivedPart> part = LastArchived(shop);
    const auto last = part ? FindByKey<LinkRow>(archive, part->order) : std::nullopt;
    const bool isOfShop = part ? last && last->elo == part->link
                               : Number(archive, "select count(*) from elo_da_auditoria") == 0;
    return isOfShop ? ""
                    : "O arquivo da auditoria \"" + archive.Path()
            + "\" não é o desta loja, ou não tem tudo que foi arquivado.";
}

/// Lines that no program of this shop's has written, of the shop and of the archive.
Key TellAdded(Database& database, std::vector<std::string>& problems)
{
    const std::string without = LinesWithoutLink;
    const Key added = Number(database, "select count(*)" + without);
    if (added > 0)
        problems.push_back(Opening(Number(database, "select min(a.codigo)" + without))
                           + "a linha não foi gravada pela agenda.");
    return added;
}

} // namespace

std::vector<std::string> FindBrokenChain(Database& database, const LongWork& work, Database* archive)
{
    std::vector<std::string> problems;
    if (!Has(StoredTables(database), LinkRow::Table))
        return problems;
    if (archive) {
        if (std::string wrong = WrongArchive(database, *archive); !wrong.empty())
            return {std::move(wrong)};
    }
    WholeWalk whole(database, archive);
    const ChainWalk walk = whole.Run(work);
    if (const auto first = walk.First())
        problems.push_back(
            TextOf(archive && first->order <= whole.LastArchivedPlace() ? *archive : database, *first));
    const Key added = TellAdded(database, problems) + (archive ? TellAdded(*archive, problems) : 0);
    const long long more = walk.Faults() + added - static_cast<long long>(problems.size());
    if (more > 0)
        problems.push_back("auditoria: mais " + std::to_string(more)
                           + (more == 1 ? " linha não confere." : " linhas não conferem."));
    if (!problems.empty())
        problems.emplace_back("A auditoria não está como a agenda a gravou. Compare-a com a de uma cópia de "
                              "segurança de antes.");
    return problems;
}

} // namespace kova::family
