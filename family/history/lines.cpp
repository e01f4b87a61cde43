#include "family/history/lines.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/database.hpp"
#include "family/history/asking.hpp"
#include "family/history/findings.hpp"
#include "family/users/denials.hpp"

#include <algorithm>
#include <tuple>

namespace kova::family::history {

namespace {

constexpr std::size_t WidthOfDay = 10;

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

Place PlaceOf(const Line& line) { return {line.audit.moment.substr(0, WidthOfDay), line.audit.code}; }

bool ComesBefore(const Line& one, const Line& other)
{
    const Place first = PlaceOf(one), second = PlaceOf(other);
    return std::tie(first.day, first.code) > std::tie(second.day, second.code);
}

/// An archiving that was cut off has left lines in both.
void AddArchived(std::vector<Line>& lines, std::vector<Line> archived)
{
    std::erase_if(archived, [&](const Line& line) {
        return std::ranges::any_of(lines, [&](const Line& own) { return own.audit.code == line.audit.code; });
    });
    for (Line& line : archived) {
        line.isArchived = true;
        lines.push_back(std::move(line));
    }
    std::ranges::sort(lines, ComesBefore);
}

template <class Act> auto WhereAllowed(Database& database, const Author& author, Act act)
{
    return TellingDenials(database, author, [&] {
        RequireRight(database, author, Right::SeeHistory);
        return act();
    });
}

} // namespace

Lines FindLines(const Audit& audit, const Author& author, const Filter& filter,
                const std::optional<Line>& behind, std::size_t most)
{
    Database& shop = audit.shop;
    return WhereAllowed(shop, author, [&] {
        const std::optional<Place> place = behind ? std::optional(PlaceOf(*behind)) : std::nullopt;
        // One more than is asked for tells whether there are others.
        Lines found{
            Fetch(shop, StatementOf(filter, FindingsFor(shop, filter), place, most + 1, shop.GetDialect()))};
        if (audit.archive)
            AddArchived(found.lines,
                        Fetch(*audit.archive,
                              StatementOf(filter, FindingsInArchive(shop, *audit.archive, filter), place,
                                          most + 1, audit.archive->GetDialect())));
        found.more = found.lines.size() > most;
        if (found.more)
            found.lines.resize(most);
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

std::vector<std::string> FindWriters(const Audit& audit, const Author& author)
{
    return WhereAllowed(audit.shop, author, [&] {
        std::vector<std::string> writers = SelectWriters(audit.shop);
        if (audit.archive)
            for (std::string& writer : SelectWriters(*audit.archive))
                writers.push_back(std::move(writer));
        std::ranges::sort(writers);
        writers.erase(std::ranges::unique(writers).begin(), writers.end());
        for (std::string& writer : writers)
            writer = utf8::WellFormed(writer);
        return writers;
    });
}

} // namespace kova::family::history
