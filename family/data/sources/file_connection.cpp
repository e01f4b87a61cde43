#include "family/data/sources/file_connection.hpp"

#include "family/data/engine/file_checks.hpp"
#include "system/path_text.hpp"

#include <chrono>
#include <thread>

namespace kova::family {

namespace {

Dialect SqliteWith(std::vector<std::string> settings)
{
    Dialect dialect = SqliteDialect();
    dialect.settings = std::move(settings);
    return dialect;
}

const Dialect& ReadingDialect()
{
    static const Dialect dialect = SqliteWith({"pragma busy_timeout = 5000", "pragma query_only = on"});
    return dialect;
}

/// Another program may be copying all of a large file before it changes it.
const Dialect& SchemaDialect()
{
    static const Dialect dialect = [] {
        Dialect patient = SqliteDialect();
        patient.settings.front() = "pragma busy_timeout = 600000";
        return patient;
    }();
    return dialect;
}

const Dialect& BuildingDialect()
{
    static const Dialect dialect = SqliteWith({"pragma journal_mode = off", "pragma synchronous = off",
                                               "pragma foreign_keys = off", "pragma cache_size = -64000"});
    return dialect;
}

bool HasLog(const std::string& path)
{
    std::error_code unreadable;
    return std::filesystem::exists(system::PathOf(path + "-wal"), unreadable);
}

/// The address of a file that nobody can write: the engine then wants neither locks nor files beside it.
std::string AddressOfUnwritable(const std::string& path)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string address = "file://";
    for (const char letter : system::TextOf(std::filesystem::absolute(system::PathOf(path)))) {
        const auto byte = static_cast<unsigned char>(letter);
        const bool plain = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')
            || (letter >= '0' && letter <= '9') || letter == '/' || letter == '.' || letter == '-';
        if (plain)
            address += letter;
        else
            address.append("%").append(1, Digits[byte / 16]).append(1, Digits[byte % 16]);
    }
    return address + "?immutable=1";
}

/// A connection without leave to write could not take away the log files that it makes, so it is only used
/// where they are there already: there one with leave to write would, as the last to close, carry a dead
/// program's log into the database.
std::string ConnectionForReading(const std::string& path)
{
    constexpr const char* Unwritable = "readonly=true ";
    if (HasLog(path))
        return FileConnection(path, Unwritable);
    return MayWriteDatabase(path) ? FileConnection(path)
                                  : FileConnection(AddressOfUnwritable(path), Unwritable);
}

/// The mode that the file has then.
std::string SwitchToLog(Database& database)
{
    std::string mode;
    try {
        database.Session() << "pragma journal_mode = wal", soci::into(mode);
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
    return mode;
}

/// A file that nobody has opened yet is switched by its first program. Where two come at once, the engine
/// refuses one of them without waiting, since each has read what the other is going to write.
std::string ModeWithLog(Database& database)
{
    constexpr int MostRefusals = 250;
    constexpr std::chrono::milliseconds Wait(20);
    for (int refusals = 0;; ++refusals) {
        try {
            return SwitchToLog(database);
        } catch (const DatabaseFailure& failure) {
            if (failure.GetFault() != Fault::Locked || refusals == MostRefusals)
                throw;
        }
        std::this_thread::sleep_for(Wait);
    }
}

/// Several programs work with one file only where it has a write-ahead log.
void RequireLog(Database& database)
{
    if (ModeWithLog(database) != "wal")
        throw DatabaseFailure(
            "O arquivo \"" + database.Path()
            + "\" está em um disco que não deixa vários programas gravar com segurança, como um da "
              "rede. Use um arquivo em um disco deste computador ou um servidor PostgreSQL.");
}

} // namespace

/// The back end reads its parameters separated by blanks: the path goes in quotes, last.
std::string FileConnection(const std::string& path, const std::string& options)
{
    return options + "dbname=\"" + path + "\"";
}

std::unique_ptr<Database> ConnectForWork(const std::string& path)
{
    auto database = std::make_unique<Database>(SqliteDialect(), FileConnection(path), path);
    RequireLog(*database);
    return database;
}

std::unique_ptr<Database> ConnectForReading(const std::string& path)
{
    return std::make_unique<Database>(ReadingDialect(), ConnectionForReading(path), path);
}

std::unique_ptr<Database> ConnectForSchemaChange(const std::string& path)
{
    auto database = std::make_unique<Database>(SchemaDialect(), FileConnection(path), path);
    RequireLog(*database);
    return database;
}

std::unique_ptr<Database> ConnectForBuilding(const std::string& path)
{
    return std::make_unique<Database>(BuildingDialect(), FileConnection(path), path);
}

} // namespace kova::family
