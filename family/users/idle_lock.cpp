#include "family/users/idle_lock.hpp"

#include "family/data/audit/add_row.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/rows/select_rows.hpp"
#include "family/data/rows/setting_row.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/users/denials.hpp"
#include "family/users/user_rights.hpp"

#include <charconv>
#include <optional>

namespace kova::family {

namespace {

bool IsPossible(int minutes) { return minutes >= 0 && minutes <= MostIdleMinutes; }

std::optional<SettingRow> Stored(Database& database)
{
    std::optional<SettingRow> stored;
    SelectRows<SettingRow>(database, [&](const SettingRow& row) {
        if (row.nome == setting::IdleMinutes)
            stored = row;
    });
    return stored;
}

/// What somebody has written there by hand and is no number of minutes counts for nothing.
int MinutesIn(const SettingRow& row)
{
    int minutes = 0;
    const char* const end = row.valor.data() + row.valor.size();
    const auto read = std::from_chars(row.valor.data(), end, minutes);
    return read.ec == std::errc() && read.ptr == end && IsPossible(minutes) ? minutes : UsualIdleMinutes;
}

void Write(Database& database, int minutes, const Author& author)
{
    const auto stored = Stored(database);
    SettingRow row = stored.value_or(SettingRow{0, setting::IdleMinutes, {}});
    row.valor = std::to_string(minutes);
    if (!stored) {
        AddRow(database, row, author);
        return;
    }
    if (row.valor == stored->valor)
        return;
    Update(database, row);
    AuditChange(database, author, SettingRow::Table, row.codigo, ValuesOf(*stored), ValuesOf(row));
}

} // namespace

int IdleMinutes(Database& database)
{
    const auto stored = Stored(database);
    return stored ? MinutesIn(*stored) : UsualIdleMinutes;
}

std::string SetIdleMinutes(Database& database, int minutes, const Author& author)
{
    if (!IsPossible(minutes))
        return "Os minutos sem uso podem ser de 0 a " + std::to_string(MostIdleMinutes) + ".";
    TellingDenials(database, author, [&] {
        WriteSafely(database, [&] {
            RequireRight(database, author, Right::AdministerUsers);
            LockImports(database);
            Write(database, minutes, author);
            return true;
        });
    });
    return {};
}

} // namespace kova::family
