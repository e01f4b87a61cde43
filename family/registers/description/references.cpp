#include "family/registers/description/references.hpp"

#include "family/data/audit/audited_row.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/table_layouts.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace kova::family::registers {

namespace {

/// What rows of a table are called.
struct Words {
    std::string_view table, one, many;
};
constexpr Words AllWords[] = {
    {"servico", "serviço", "serviços"},
    {"raca", "raça", "raças"},
    {"animal", "animal", "animais"},
    {"canal_de_comunicacao", "canal de comunicação", "canais de comunicação"},
    {"pacote", "pacote", "pacotes"},
    {"horario_do_funcionario", "horário de trabalho", "horários de trabalho"},
    {"ausencia", "ausência", "ausências"},
    {"agendamento", "agendamento", "agendamentos"},
    {"lista_de_espera", "pedido da lista de espera", "pedidos da lista de espera"},
    {"espera_servico", "pedido da lista de espera", "pedidos da lista de espera"},
    {"espera_funcionario", "pedido da lista de espera", "pedidos da lista de espera"},
    {"cliente", "cliente", "clientes"},
    {"especie", "espécie", "espécies"},
    {"tipo_de_servico", "tipo de serviço", "tipos de serviço"},
    {"funcionario", "funcionário(a)", "funcionários"},
    {"usuario", "usuário", "usuários"},
    {"papel", "papel", "papéis"},
};

/// Runs what asks the engine directly.
template <class Use> void Guarded(Database& database, Use use)
{
    try {
        use(database.Session());
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

long long CountOf(Database& database, const std::string& rows, Key key)
{
    long long count = 0;
    Guarded(database, [&](soci::session& session) {
        session << "select count(*) from " + rows, soci::use(key, "chave"), soci::into(count);
    });
    return count;
}

std::string_view One(std::string_view table)
{
    const auto words = std::ranges::find(AllWords, table, &Words::table);
    return words == std::end(AllWords) ? table : words->one;
}

/// The row's key in that column, as the audit writes it; nothing where it has none.
std::optional<std::string> KeyIn(const AuditedColumns& columns, std::string_view column)
{
    const auto found = columns.find(column);
    return found == columns.end() ? std::nullopt : found->second;
}

std::string Counted(std::string_view table, long long count)
{
    const auto words = std::ranges::find(AllWords, table, &Words::table);
    const std::string_view many = words == std::end(AllWords) ? table : words->many;
    return std::to_string(count).append(" ").append(count == 1 ? One(table) : many);
}

/// "(1, 2, 3)"
std::string ListOf(std::span<const Key> keys)
{
    std::string list;
    for (const Key key : keys)
        list.append(list.empty() ? "(" : ", ").append(std::to_string(key));
    return list + ")";
}

} // namespace

std::string UsersOf(Database& database, const char* table, Key key, const char* own)
{
    std::string users;
    for (const Reference& reference : References()) {
        if (std::string_view(reference.target) != table || std::string_view(reference.table) == own)
            continue;
        const long long count =
            CountOf(database, std::string(reference.table) + " where " + reference.column + " = :chave", key);
        if (count > 0)
            users.append(users.empty() ? "" : ", ").append(Counted(reference.table, count));
    }
    return users;
}

std::set<Key> UsedAmong(Database& database, const char* table, std::span<const Key> keys, const char* own)
{
    std::set<Key> used;
    for (const Reference& reference : References()) {
        if (keys.empty() || std::string_view(reference.target) != table
            || std::string_view(reference.table) == own)
            continue;
        const std::string column = reference.column;
        Guarded(database, [&](soci::session& session) {
            Key key = 0;
            soci::statement statement =
                (session.prepare << "select distinct " + column + " from " + reference.table + " where "
                         + column + " in " + ListOf(keys),
                 soci::into(key));
            statement.execute();
            while (statement.fetch())
                used.insert(key);
        });
    }
    return used;
}

std::string MissingTarget(Database& database, const char* table, const AuditedColumns& former,
                          const AuditedColumns& now)
{
    for (const Reference& reference : References()) {
        const auto key = KeyIn(former, reference.column);
        Key target = 0;
        if (std::string_view(reference.table) != table || !TakeColumn(key, target)
            || key == KeyIn(now, reference.column))
            continue;
        const std::string rows = std::string(reference.target) + " where " + reference.key + " = :chave";
        if (CountOf(database, rows, target) == 0)
            return std::string("O que havia antes se refere a ").append(One(reference.target)).append(" ")
                + *key + ", que não existe mais.";
    }
    return {};
}

bool IsBooked(Database& database, const char* column, Key key)
{
    return CountOf(database,
                   std::string("(select 1 from agendamento where ") + column
                       + " = :chave limit 1) as primeiro",
                   key)
        > 0;
}

long long BookedSince(Database& database, const char* column, Key key, const std::string& moment)
{
    constexpr std::size_t Date = 10, Time = 5;
    const std::string day = moment.substr(0, Date), time = moment.substr(Date + 1, Time);
    long long count = 0;
    Guarded(database, [&](soci::session& session) {
        session << std::string("select count(*) from agendamento where ") + column
                + " = :chave and situacao = 1 and (data_inicial > :dia"
                  " or (data_inicial = :dia and hora_inicial >= :hora))",
            soci::use(key, "chave"), soci::use(day, "dia"), soci::use(time, "hora"), soci::into(count);
    });
    return count;
}

void DeleteWhere(Database& database, const char* table, const std::string& column, Key key)
{
    Guarded(database, [&](soci::session& session) {
        session << std::string("delete from ") + table + " where " + column + " = :chave",
            soci::use(key, "chave");
    });
}

void DeleteWhere(Database& database, const char* table, const std::string& column, std::span<const Key> keys)
{
    if (!keys.empty())
        Guarded(database, [&](soci::session& session) {
            session << std::string("delete from ") + table + " where " + column + " in " + ListOf(keys);
        });
}

} // namespace kova::family::registers
