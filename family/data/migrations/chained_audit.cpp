#include "family/data/migrations/chained_audit.hpp"

#include "family/data/engine/audit_link.hpp"

namespace kova::family {

namespace {

/// A part of what a link is made of, as LinkOf writes it.
std::string Part(const std::string& value)
{
    return "coalesce(octet_length(" + value + ") || ':' || " + value + ", '-')";
}

/// All of the sum that a line's link is of, in a server's words; the line is called `line` there, and the
/// other two as they are given.
std::string SumExpression(const std::string& former, const std::string& salt, const std::string& line)
{
    std::string content = Part(former) + " || " + Part(salt);
    ChainedLine().Columns([&](const std::string& column, const auto&) {
        content += " || " + Part("cast(" + line + "." + column + " as text)");
    });
    return "rtrim(encode(sha256(convert_to(" + content + ", 'UTF8')), 'base64'), '=')";
}

std::string LinkExpression(const std::string& former, const std::string& salt, const std::string& line)
{
    return "left(" + SumExpression(former, salt, line) + ", " + std::to_string(LinkLetters) + ")";
}

constexpr const char* SaltExpression = "left(replace(cast(gen_random_uuid() as text), '-', ''), 16)";

/// Only who waits for the one before can see his link: with a snapshot of the transaction's beginning he
/// would put a second link behind an older one.
std::string LinkingFunction(const std::string& link)
{
    return std::string("create or replace function encadeia_auditoria() returns trigger language plpgsql "
                       "security definer"
                       " as $$ declare ultima bigint; anterior text; sal_novo text default ")
        + SaltExpression
        + "; begin"
          " if current_setting('transaction_isolation') <> 'read committed' then"
          " raise exception 'the audit is written in transactions of read committed only'; end if;"
          " perform pg_advisory_xact_lock(20081115);"
          " select ordem, elo into ultima, anterior from elo_da_auditoria order by ordem desc limit 1;"
          " anterior = coalesce(anterior, '');"
          " insert into elo_da_auditoria (ordem, codigo_da_linha, sal, elo) values"
          " (coalesce(ultima, 0) + 1, new.codigo, sal_novo, "
        + link + "); return null; end $$";
}

/// The function whatever the link is; what was set for it goes whenever it is made anew.
std::vector<std::string> LinkBy(const std::string& link)
{
    return {
        LinkingFunction(link),
        // Names stand for the agenda's own tables, and never for temporary ones of whoever writes.
        "do $$ begin execute format('alter function encadeia_auditoria() set search_path = %I, pg_temp',"
        " current_schema()); end $$",
        // The plan is kept for as long as a desk is connected, and made when there may be few links yet: it
        // must not be one that reads all of them.
        "alter function encadeia_auditoria() set enable_seqscan = off",
        // Whoever may run it can have it link rows of a table of his own.
        "revoke all on function encadeia_auditoria() from public",
    };
}

std::vector<std::string> LinkOnServer()
{
    std::vector<std::string> statements = LinkBy(SumExpression("anterior", "sal_novo", "new"));
    statements.emplace_back(
        "create constraint trigger auditoria_encadeada after insert or update on auditoria"
        " deferrable initially deferred for each row execute function encadeia_auditoria()");
    return statements;
}

std::string LinkAllOnServer()
{
    return std::string("do $$ declare linha record; ultima bigint default 0; anterior text default ''; "
                       "sal_novo text; begin"
                       " for linha in select * from auditoria order by codigo loop ultima = ultima + 1;"
                       " sal_novo = ")
        + SaltExpression + "; anterior = " + SumExpression("anterior", "sal_novo", "linha")
        + "; insert into elo_da_auditoria (ordem, codigo_da_linha, sal, elo)"
          " values (ultima, linha.codigo, sal_novo, anterior); end loop; end $$";
}

/// Reads the lines of a file one after another, and writes their links behind each.
class LinkingInFile {
public:
    explicit LinkingInFile(soci::session& session)
        : reading_(
            (session.prepare << "select codigo, momento, usuario, posto, tabela, chave, operacao, antes,"
                                " depois from auditoria order by codigo",
             soci::into(line_.codigo), soci::into(line_.momento), soci::into(line_.usuario),
             soci::into(line_.posto), soci::into(line_.tabela), soci::into(line_.chave),
             soci::into(line_.operacao), soci::into(line_.antes.value, line_.antes.state),
             soci::into(line_.depois.value, line_.depois.state))),
          writing_((session.prepare << "insert into elo_da_auditoria (ordem, codigo_da_linha, sal, elo)"
                                       " values (:ordem, :codigo, :sal, :elo)",
                    soci::use(order_, "ordem"), soci::use(line_.codigo, "codigo"), soci::use(salt_, "sal"),
                    soci::use(link_, "elo")))
    {
    }

    void Run()
    {
        reading_.execute();
        while (reading_.fetch()) {
            ++order_;
            salt_ = NewSalt();
            link_ = LinkOf(link_, salt_, line_);
            writing_.execute(true);
        }
    }

private:
    ChainedLine line_;
    Key order_ = 0;
    std::string salt_, link_;
    soci::statement reading_, writing_;
};

void Switch(soci::session& session, const Dialect& dialect, const char* how)
{
    if (dialect.IsServer())
        session << std::string("alter table auditoria ") + how + " trigger auditoria_encadeada";
}

} // namespace

std::vector<std::string> ChainAudit(const Dialect& dialect)
{
    const std::string number = " " + dialect.bigInteger + " not null";
    std::vector<std::string> statements = {
        // Numbered without gaps. A line that was changed rightly has several links, the last of which holds;
        // what the others were made with is gone then (sal). Nothing refers to the line: a link stays where
        // its line was taken out.
        "create table elo_da_auditoria (ordem" + number + " primary key, codigo_da_linha" + number
            + ", sal text not null, elo text not null)",
        "create index elo_por_linha on elo_da_auditoria (codigo_da_linha)",
    };
    if (dialect.IsServer()) {
        for (std::string& statement : LinkOnServer())
            statements.push_back(std::move(statement));
    }
    return statements;
}

std::vector<std::string> ShortenLinks(const Dialect& dialect)
{
    std::vector<std::string> statements = {
        "drop index elo_por_linha",
        "create index elo_por_linha on elo_da_auditoria (codigo_da_linha) where ordem <> codigo_da_linha",
    };
    if (dialect.IsServer()) {
        for (std::string& statement : LinkBy(LinkExpression("anterior", "sal_novo", "new")))
            statements.push_back(std::move(statement));
    }
    return statements;
}

void ChainLines(soci::session& session, const Dialect& dialect)
{
    if (dialect.IsServer())
        session << LinkAllOnServer();
    else
        LinkingInFile(session).Run();
}

void LiftChain(soci::session& session, const Dialect& dialect) { Switch(session, dialect, "disable"); }

void HoldChain(soci::session& session, const Dialect& dialect) { Switch(session, dialect, "enable"); }

} // namespace kova::family
