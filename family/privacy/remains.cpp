#include "family/privacy/remains.hpp"

#include "family/data/engine/server_connection.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/privacy/personal_columns.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <set>

namespace kova::family::privacy {

namespace {

namespace fs = std::filesystem;

/// Tables with values of persons, or with what was made of such.
std::set<std::string> TablesWithPersons()
{
    std::set<std::string> tables;
    for (const ColumnsThatHold& one : AllColumns()) {
        const bool ofPerson = one.holds == Holds::Name || one.holds == Holds::Text
            || one.holds == Holds::OptionalText || one.holds == Holds::ValuesOfRows
            || one.holds == Holds::Composed;
        if (ofPerson)
            tables.emplace(one.table);
    }
    return tables;
}

/// The engine then counts the tables anew, too: what it has counted before names values. An index of words
/// keeps a word that no row has any more until it is made anew.
void CleanServer(Database& database)
{
    database.Session() << "reindex index concurrently auditoria_por_palavra";
    for (const std::string& table : TablesWithPersons())
        database.Session() << "vacuum (analyze) " + table;
}

/// Answers whether the log could be emptied.
bool CleanFile(Database& database)
{
    int busy = 0, inLog = 0, written = 0;
    // Words that no line has any more go with it.
    database.Session() << "insert into palavras_da_auditoria (palavras_da_auditoria) values ('optimize')";
    database.Session() << "vacuum";
    // Those who read do so for a moment only, unless they have forgotten to end.
    database.Session() << "pragma busy_timeout = 1000";
    database.Session() << "pragma wal_checkpoint(truncate)", soci::into(busy), soci::into(inLog),
        soci::into(written);
    return busy == 0;
}

constexpr const char* LogInUse = "Outro programa estava lendo o banco de dados: o que havia antes só sai do "
                                 "arquivo quando todos os programas "
                                 "que usam esta loja forem fechados.";

} // namespace

std::string DropRemains(const std::string& source)
{
    try {
        const std::shared_ptr<Database> database = OpenForLongWork(source);
        try {
            if (!IsServer(source))
                return CleanFile(*database) ? "" : LogInUse;
            CleanServer(*database);
            return {};
        } catch (const soci::soci_error& cause) {
            throw TranslatedFailure(source, cause);
        }
    } catch (const DatabaseFailure& failure) {
        return "O espaço em que os dados estavam não pôde ser limpo por completo. " + failure.Description();
    }
}

std::vector<std::string> CopiesBeside(const std::string& source)
{
    std::vector<std::string> copies;
    if (IsServer(source))
        return copies;
    const fs::path database = system::PathOf(source);
    const fs::path folder = database.has_parent_path() ? database.parent_path() : fs::path(".");
    const std::string begin = system::TextOf(database.filename()) + ".";
    std::error_code unreadable;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, unreadable)) {
        const std::string name = system::TextOf(entry.path().filename());
        if (name.starts_with(begin) && (name.ends_with(".bak") || name == begin + "auditoria"))
            copies.push_back(system::TextOf(folder / entry.path().filename()));
    }
    std::ranges::sort(copies);
    return copies;
}

} // namespace kova::family::privacy
