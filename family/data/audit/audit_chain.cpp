#include "family/data/audit/audit_chain.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/own_lines.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/insert_rows.hpp"

#include <span>
#include <utility>

namespace kova::family {

namespace {

/// Taken by a server's own trigger as well, whenever it links.
constexpr const char* LockOfChain = "select pg_advisory_xact_lock(20081115)";

/// The place of the chain's last link and the link itself; 0 and "" where there is none.
class LastLink : public KeptStatement {
public:
    explicit LastLink(Database& database)
        : statement_((database.Session().prepare << "select ordem, elo from elo_da_auditoria where ordem ="
                                                    " (select max(ordem) from elo_da_auditoria)",
                      soci::into(found_.ordem), soci::into(found_.elo)))
    {
    }

    LinkRow Run()
    {
        LinkRow last;
        statement_.execute();
        while (statement_.fetch())
            last = found_;
        return last;
    }

private:
    LinkRow found_;
    soci::statement statement_;
};

/// Most lines have the place of their code: an index leads to the others alone.
class SaltRemoval : public KeptStatement {
public:
    explicit SaltRemoval(Database& database)
        : atItsPlace_(
            (database.Session().prepare << RemoveSalt + " and ordem = codigo_da_linha and ordem = :ordem",
             soci::use(code_, "codigo"), soci::use(code_, "ordem"))),
          elsewhere_((database.Session().prepare << RemoveSalt + " and ordem <> codigo_da_linha",
                      soci::use(code_, "codigo")))
    {
    }

    void Run(Key code)
    {
        code_ = code;
        atItsPlace_.execute(true);
        elsewhere_.execute(true);
    }

private:
    static inline const std::string RemoveSalt =
        "update elo_da_auditoria set sal = '' where codigo_da_linha = :codigo";

    Key code_ = 0;
    soci::statement atItsPlace_, elsewhere_;
};

/// Nobody else writes to a file meanwhile.
void AddLinks(Database& database, std::span<const AuditRow> lines)
{
    LinkRow last = database.With<LastLink>([](LastLink& statement) { return statement.Run(); });
    std::vector<LinkRow> links;
    links.reserve(lines.size());
    for (const AuditRow& line : lines) {
        const std::string salt = NewSalt();
        last = {last.ordem + 1, line.codigo, salt, LinkOf(last.elo, salt, line)};
        links.push_back(last);
    }
    InsertAll<LinkRow>(database, links);
}

} // namespace

AuditRow EventOf(const Database& database, const Author& author, const char* table, Key key,
                 const char* operation, const AuditValues& what)
{
    AuditRow row;
    row.momento = StampOfLine(database, author);
    row.usuario = utf8::WellFormed(author.code + " - " + author.name);
    row.posto = utf8::WellFormed(author.desk);
    row.tabela = table;
    row.chave = key;
    row.operacao = operation;
    row.depois = what.Line();
    return row;
}

void AddLine(Database& database, const AuditRow& row) { AddLines(database, {row}); }

void AddLines(Database& database, std::vector<AuditRow> rows)
{
    using One = InsertNewRow<AuditRow>;
    using Together = InsertNewTogether<AuditRow>;
    std::span<AuditRow> left(rows);
    for (; left.size() >= RowsWrittenTogether; left = left.subspan(RowsWrittenTogether)) {
        const std::span<AuditRow> some = left.first(RowsWrittenTogether);
        const std::vector<Key> codes =
            database.With<Together>([&](Together& insertion) { return insertion.Run(some); });
        for (std::size_t at = 0; at < some.size(); ++at)
            some[at].codigo = codes.at(at);
    }
    for (AuditRow& row : left)
        row.codigo = database.With<One>([&](One& insertion) { return insertion.Run(row); });
    for (const AuditRow& row : rows)
        NoteOwnLine(database.Path(), {row.codigo, row.tabela, row.chave});
    if (!database.GetDialect().IsServer() && !rows.empty())
        AddLinks(database, rows);
}

void LinkAnew(Database& database, Key code)
{
    RemoveSalts(database, code);
    if (database.GetDialect().IsServer())
        return;
    if (const auto line = FindByKey<AuditRow>(database, code))
        AddLinks(database, std::span(&*line, 1));
}

void LinkArchivedAnew(Database& shop, const AuditRow& line)
{
    RemoveSalts(shop, line.codigo);
    if (shop.GetDialect().IsServer())
        shop.Session() << LockOfChain;
    AddLinks(shop, std::span(&line, 1));
}

void RemoveSalts(Database& database, Key code)
{
    database.With<SaltRemoval>([&](SaltRemoval& removal) { removal.Run(code); });
}

bool MayRewriteAudit(Database& database)
{
    if (!database.GetDialect().IsServer())
        return true;
    try {
        int tables = 0;
        database.Session() << "select count(*) from (values ('auditoria'), ('elo_da_auditoria')) as t (nome)"
                              " where has_table_privilege(nome, 'update')",
            soci::into(tables);
        return tables == 2;
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

} // namespace kova::family
