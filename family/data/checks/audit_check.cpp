#include "family/data/checks/audit_check.hpp"

#include "family/data/checks/chain_walk.hpp"
#include "family/data/checks/walk_pages.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>

namespace kova::family {

namespace {

/// The lines of links behind a place of the chain, in pages. A page is cut before its lines are looked for,
/// so that each is found by its key.
std::string PageOfLinks()
{
    std::string columns;
    ChainedLine().Columns([&](const std::string& column, const auto&) { columns += ", a." + column; });
    return "select e.ordem, e.codigo_da_linha, e.sal, e.elo" + columns
        + " from (select ordem, codigo_da_linha, sal, elo from elo_da_auditoria where ordem > :apos"
          " order by ordem limit "
        + std::to_string(PageSize)
        + ") e left join auditoria a on a.codigo = e.codigo_da_linha order by e.ordem";
}

/// What a row of such a page is fetched into.
class LinkCells {
public:
    void FetchBy(soci::statement& statement)
    {
        link_.Columns([&](const char*, auto& field) { statement.exchange(soci::into(field)); });
        statement.exchange(soci::into(code_.value, code_.state));
        for (Nullable<std::string>* text : {&moment_, &user_, &desk_, &table_})
            statement.exchange(soci::into(text->value, text->state));
        statement.exchange(soci::into(key_.value, key_.state));
        for (Nullable<std::string>* text : {&operation_, &before_, &after_})
            statement.exchange(soci::into(text->value, text->state));
    }

    StoredLink Stored() const
    {
        StoredLink stored{link_, std::nullopt};
        if (!code_.IsNull())
            stored.line = ChainedLine{code_.value,
                                      moment_.ValueOr(""),
                                      user_.ValueOr(""),
                                      desk_.ValueOr(""),
                                      table_.ValueOr(""),
                                      key_.ValueOr(0),
                                      operation_.ValueOr(""),
                                      before_,
                                      after_};
        return stored;
    }

private:
    LinkRow link_;
    Nullable<Key> code_, key_;
    Nullable<std::string> moment_, user_, desk_, table_, operation_, before_, after_;
};

Key Number(Database& database, const std::string& selection)
{
    Key number = 0;
    database.Session() << selection, soci::into(number);
    return number;
}

void VisitLinks(Database& database, const LongWork& work, const std::function<void(const StoredLink&)>& visit)
{
    const Key last = Number(database, "select coalesce(max(ordem), 0) from elo_da_auditoria");
    Key behind = std::numeric_limits<Key>::min(), at = behind;
    LinkCells cells;
    soci::statement statement(database.Session());
    statement.alloc();
    cells.FetchBy(statement);
    statement.exchange(soci::use(behind, "apos"));
    statement.prepare(PageOfLinks());
    statement.define_and_bind();
    WalkPages(
        statement,
        [&] {
            const StoredLink stored = cells.Stored();
            at = stored.link.ordem;
            visit(stored);
        },
        [&] {
            behind = at;
            work.RequireGoingOn();
            work.Reach(std::max<Key>(at, 0), last);
        });
}

std::string Opening(Key line) { return "auditoria " + std::to_string(line) + ": "; }

/// The line of a link that does not go with the one before it may only stand in another place.
class PlaceSearch {
public:
    PlaceSearch(Database& database, const ChainFault& fault) : database_(database), fault_(fault) { }

    /// The code of the line behind which it was written; nothing where it was written otherwise than it is.
    std::optional<Key> Run()
    {
        VisitLinks(database_, {}, [&](const StoredLink& stored) {
            if (stored.link.ordem == fault_.order)
                wanted_ = stored;
        });
        std::optional<Key> found;
        if (!wanted_.line)
            return found;
        VisitLinks(database_, {}, [&](const StoredLink& stored) {
            if (LinkOf(stored.link.elo, wanted_.link.sal, *wanted_.line) == wanted_.link.elo)
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
constexpr const char* LinesWithoutLink = " from auditoria a where not exists (select 1 from elo_da_auditoria "
                                         "e where e.codigo_da_linha = a.codigo)";

} // namespace

std::vector<std::string> FindBrokenChain(Database& database, const LongWork& work)
{
    std::vector<std::string> problems;
    if (!Has(StoredTables(database), LinkRow::Table))
        return problems;
    ChainWalk walk;
    VisitLinks(database, work, [&](const StoredLink& stored) { walk.Take(stored); });
    if (const auto first = walk.First())
        problems.push_back(TextOf(database, *first));
    const std::string without = LinesWithoutLink;
    const Key added = Number(database, "select count(*)" + without);
    if (added > 0)
        problems.push_back(Opening(Number(database, "select min(a.codigo)" + without))
                           + "a linha não foi gravada pela agenda.");
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
