#include "family/data/checks/stored_links.hpp"

#include "family/data/checks/walk_pages.hpp"

#include <algorithm>

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

} // namespace

void VisitLinks(Database& database, Key behind, const LongWork& work,
                const std::function<void(const StoredLink&)>& visit)
{
    Key last = 0, at = behind;
    database.Session() << "select coalesce(max(ordem), 0) from elo_da_auditoria", soci::into(last);
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

} // namespace kova::family
