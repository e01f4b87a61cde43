#include "family/history/findings.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/merged_rows.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/history/asking.hpp"

#include <algorithm>

namespace kova::family::history {

namespace {

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

} // namespace

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

namespace {

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

/// What the lines themselves tell, wherever they lie.
void AddWaysToLines(Database& database, const Filter& filter, Findings& findings)
{
    if (filter.subject.kind == Subject::Kind::User) {
        const std::string begin = std::to_string(filter.subject.key) + " - ";
        for (std::string& writer : SelectWriters(database)) {
            if (writer.starts_with(begin))
                findings.users.push_back(std::move(writer));
        }
    }
    findings.rare = RareColumn(database, filter);
    findings.hasManyOfText = HasManyOf(database, filter.text);
}

std::vector<Key> KeysOf(Database& database, const std::string& selection)
{
    std::vector<Key> keys;
    Ask(database, [&](soci::session& session) {
        Key key = 0;
        keys.clear();
        soci::statement statement = (session.prepare << selection, soci::into(key));
        statement.execute();
        while (statement.fetch())
            keys.push_back(key);
    });
    return keys;
}

/// Appointments that a line tells to have been booked for that day once.
void AddMovedFrom(Database& database, const std::string& day, std::vector<Key>& appointments)
{
    const LineStatement of = StatementOfMoved(day, database.GetDialect());
    Ask(database, [&](soci::session& session) {
        std::vector<std::pair<std::string, std::string>> texts = of.parameters;
        Key key = 0;
        soci::statement statement(session);
        for (auto& [name, text] : texts)
            statement.exchange(soci::use(text, name));
        statement.exchange(soci::into(key));
        statement.alloc();
        statement.prepare(of.text);
        statement.define_and_bind();
        statement.execute();
        while (statement.fetch())
            appointments.push_back(key);
    });
}

std::vector<RowsOfTable> RowsOfCustomer(Database& shop, Database& archive, Key customer)
{
    std::vector<Key> customers = {customer};
    for (Database* audit : {&shop, &archive})
        for (const Key gone : HaveGoneInto(*audit, "cliente", customer))
            customers.push_back(gone);
    std::string list;
    for (const Key one : customers)
        list += (list.empty() ? "" : ", ") + std::to_string(one);
    const std::string of = " where codigo_do_cliente in (" + list + ")";
    std::vector<RowsOfTable> rows = {
        {"cliente", customers},
        {"animal", KeysOf(shop, "select codigo from animal" + of)},
        {AppointmentRow::Table, KeysOf(shop, "select numero from agendamento" + of)}};
    for (Database* audit : {&shop, &archive})
        for (const auto& [table, key] : FindGone(*audit, customers))
            rows.push_back({table, {key}});
    return rows;
}

std::vector<RowsOfTable> RowsOf(Database& shop, Database& archive, const Subject& subject)
{
    if (subject.kind == Subject::Kind::Customer)
        return RowsOfCustomer(shop, archive, subject.key);
    if (subject.kind == Subject::Kind::BookedDay) {
        RowsOfTable booked{AppointmentRow::Table, {}};
        AddMovedFrom(shop, subject.day, booked.keys);
        AddMovedFrom(archive, subject.day, booked.keys);
        Ask(shop, [&](soci::session& session) {
            const soci::rowset<long long> found =
                (session.prepare << "select numero from agendamento where data_inicial = :dia",
                 soci::use(subject.day, "dia"));
            booked.keys.insert(booked.keys.end(), found.begin(), found.end());
        });
        return {booked};
    }
    std::vector<RowsOfTable> rows = {{subject.table, {subject.key}}};
    if (subject.table == AppointmentRow::Table)
        rows.push_back({PreSaleRow::Table,
                        KeysOf(shop,
                               "select codigo from pre_venda where numero_do_agendamento = "
                                   + std::to_string(subject.key))});
    return rows;
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
    AddWaysToLines(database, filter, findings);
    return findings;
}

Findings FindingsInArchive(Database& shop, Database& archive, const Filter& filter)
{
    Findings findings;
    const Subject::Kind kind = filter.subject.kind;
    if (kind != Subject::Kind::Everything && kind != Subject::Kind::User)
        findings.rows = RowsOf(shop, archive, filter.subject);
    AddWaysToLines(archive, filter, findings);
    return findings;
}

} // namespace kova::family::history
