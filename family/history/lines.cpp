#include "family/history/lines.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/merged_rows.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/engine/database.hpp"
#include "family/users/denials.hpp"

#include <algorithm>

namespace kova::family::history {

namespace {

constexpr std::size_t WidthOfDay = 10;

/// Stands for statements that are never the same twice.
struct Unprepared : KeptStatement {
    explicit Unprepared(Database&) { }
};

/// Runs what asks the engine directly; once more on a new connection where the first was lost.
template <class What> void Ask(Database& database, What what)
{
    database.With<Unprepared>([&](Unprepared&) { what(database.Session()); });
}

/// A statement that is bound and fetched as it comes.
class Selection {
public:
    Selection(soci::session& session, const LineStatement& of) : texts_(of.parameters), statement_(session)
    {
        for (auto& [name, text] : texts_)
            statement_.exchange(soci::use(text, name));
        statement_.alloc();
        statement_.prepare(of.text);
    }

    template <class Visit, class... Fields> void Fetch(Visit visit, Fields... fields)
    {
        (statement_.exchange(fields), ...);
        statement_.define_and_bind();
        statement_.execute();
        while (statement_.fetch())
            visit();
    }

private:
    std::vector<std::pair<std::string, std::string>> texts_;
    soci::statement statement_;
};

/// A file can hold texts with bytes that are no characters; the line is told all the same.
void Tidy(Line& line, const Nullable<std::string>& before, const Nullable<std::string>& after)
{
    AuditLine& audit = line.audit;
    for (std::string* text : {&audit.moment, &audit.user, &audit.desk, &audit.operation, &line.table})
        *text = utf8::WellFormed(*text);
    try {
        audit.before = ReadAuditedColumns(before);
        audit.after = ReadAuditedColumns(after);
        line.isReadable = true;
    } catch (const Failure&) {
        audit.before.clear();
        audit.after.clear();
        line.isReadable = false;
    }
}

std::vector<Line> Fetch(Database& database, const LineStatement& of)
{
    std::vector<Line> lines;
    Ask(database, [&](soci::session& session) {
        Line line;
        AuditLine& audit = line.audit;
        Nullable<std::string> before, after;
        lines.clear();
        Selection(session, of)
            .Fetch(
                [&] {
                    Tidy(line, before, after);
                    lines.push_back(line);
                },
                soci::into(audit.code), soci::into(audit.moment), soci::into(audit.user),
                soci::into(audit.desk), soci::into(line.table), soci::into(line.key),
                soci::into(audit.operation), soci::into(before.value, before.state),
                soci::into(after.value, after.state));
    });
    return lines;
}

/// Rows that are gone and named one of those customers.
std::vector<std::pair<std::string, Key>> FindGone(Database& database, const std::vector<Key>& customers)
{
    std::string ofCustomers;
    for (const Key customer : customers) {
        for (const std::string& beginning : BeginningsOf("codigo_do_cliente"))
            for (const char* end : {",", "}"})
                ofCustomers.append(ofCustomers.empty() ? "" : " or ")
                    .append("antes like '%")
                    .append(beginning)
                    .append(std::to_string(customer))
                    .append(end)
                    .append("%'");
    }
    std::vector<std::pair<std::string, Key>> gone;
    Ask(database, [&](soci::session& session) {
        std::pair<std::string, Key> row;
        gone.clear();
        soci::statement statement =
            (session.prepare << "select distinct a.tabela, a.chave from auditoria a where "
                     + ConditionOf({"operacao", audit_operation::Removal}, database.GetDialect(),
                                   std::string("'") + audit_operation::Removal + "'")
                     + " and a.tabela in ('agendamento', 'animal') and (" + ofCustomers + ")",
             soci::into(row.first), soci::into(row.second));
        statement.execute();
        while (statement.fetch())
            gone.push_back(row);
    });
    return gone;
}

/// However many lines there are, each writer is looked for once.
std::vector<std::string> SelectWriters(Database& database)
{
    std::vector<std::string> writers;
    Ask(database, [&](soci::session& session) {
        std::string writer;
        writers.clear();
        soci::statement statement =
            (session.prepare
                 << "with recursive q (nome) as (select min(usuario) from auditoria union all"
                    " select (select min(usuario) from auditoria where usuario > q.nome) from q"
                    " where q.nome is not null) select nome from q where nome is not null order by nome",
             soci::into(writer));
        statement.execute();
        while (statement.fetch())
            writers.push_back(writer);
    });
    return writers;
}

constexpr int Few = 5000;

/// Whether few lines only have that value; no more are counted.
bool IsRare(Database& database, const ColumnValue& of)
{
    int count = 0;
    Ask(database, [&](soci::session& session) {
        session << "select count(*) from (select 1 from auditoria a where "
                + ConditionOf(of, database.GetDialect()) + " limit " + std::to_string(Few) + ") as primeiras",
            soci::use(of.value, of.column), soci::into(count);
    });
    return count < Few;
}

/// Whether more than a few lines of a file have the words; no more are counted. A server knows by itself.
bool HasManyOf(Database& database, const std::string& text)
{
    const std::string words = WordsSought(text, database.GetDialect());
    if (database.GetDialect().IsServer() || words.empty())
        return false;
    int count = 0;
    Ask(database, [&](soci::session& session) {
        session << "select count(*) from (select rowid from palavras_da_auditoria"
                   " where palavras_da_auditoria match :palavras limit "
                + std::to_string(Few) + ")",
            soci::use(words, "palavras"), soci::into(count);
    });
    return count == Few;
}

/// Where several columns are narrowed, an index of one that many lines fulfil would lead through all of them.
std::optional<ColumnValue> RareColumn(Database& database, const Filter& filter)
{
    const std::vector<ColumnValue> columns = ColumnsOf(filter);
    if (columns.size() < 2)
        return std::nullopt;
    const auto rare = std::ranges::find_if(
        columns, [&](const ColumnValue& one) { return !IsOfMost(one) && IsRare(database, one); });
    return rare == columns.end() ? std::nullopt : std::optional(*rare);
}

template <class Act> auto WhereAllowed(Database& database, const Author& author, Act act)
{
    return TellingDenials(database, author, [&] {
        RequireRight(database, author, Right::SeeHistory);
        return act();
    });
}

} // namespace

Findings FindingsFor(Database& database, const Filter& filter)
{
    Findings findings;
    const Subject& subject = filter.subject;
    if (subject.kind == Subject::Kind::Customer) {
        findings.customers = HaveGoneInto(database, "cliente", subject.key);
        findings.customers.push_back(subject.key);
        findings.gone = FindGone(database, findings.customers);
    }
    if (subject.kind == Subject::Kind::User) {
        const std::string begin = std::to_string(subject.key) + " - ";
        for (std::string& writer : SelectWriters(database)) {
            if (writer.starts_with(begin))
                findings.users.push_back(std::move(writer));
        }
    }
    findings.rare = RareColumn(database, filter);
    findings.hasManyOfText = HasManyOf(database, filter.text);
    return findings;
}

Lines FindLines(Database& database, const Author& author, const Filter& filter,
                const std::optional<Line>& behind, std::size_t most)
{
    return WhereAllowed(database, author, [&] {
        std::optional<Place> place;
        if (behind)
            place = Place{behind->audit.moment.substr(0, WidthOfDay), behind->audit.code};
        // One more than is asked for tells whether there are others.
        Lines found{Fetch(
            database,
            StatementOf(filter, FindingsFor(database, filter), place, most + 1, database.GetDialect()))};
        found.more = found.lines.size() > most;
        if (found.more)
            found.lines.pop_back();
        return found;
    });
}

std::optional<Line> ReadLine(Database& database, Key code)
{
    std::vector<Line> found =
        Fetch(database,
              {"select codigo, momento, usuario, posto, tabela, chave, operacao, antes, depois from auditoria"
               " where codigo = "
                   + std::to_string(code),
               {}});
    return found.empty() ? std::nullopt : std::optional(std::move(found.front()));
}

std::optional<Line> FindLine(Database& database, const Author& author, Key code)
{
    return WhereAllowed(database, author, [&] { return ReadLine(database, code); });
}

std::vector<std::string> FindWriters(Database& database, const Author& author)
{
    return WhereAllowed(database, author, [&] {
        std::vector<std::string> writers = SelectWriters(database);
        for (std::string& writer : writers)
            writer = utf8::WellFormed(writer);
        return writers;
    });
}

} // namespace kova::family::history
