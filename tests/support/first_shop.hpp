#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/dialect.hpp"
#include "family/data/engine/migration.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/sources/file_connection.hpp"

#include <string>

namespace kova::test {

/// A shop as the first version kept it, ready to be opened: "Patas", a bath, and Lia who gives it.
inline void MakeFirstShop(const std::string& file)
{
    family::Database shop(family::SqliteDialect(), family::FileConnection(file), file);
    family::Migrate(shop.Session(), family::SqliteDialect(), family::CurrentMigrations().first(1));
    for (const char* statement :
         {"insert into empresa values (1, 'Patas', 'Patas Ltda', '', '', '')",
          "insert into tipo_de_servico values (4, 'Banho', 'banho', 1)",
          "insert into servico values (1, 'Banho', 'banho', '', 4, 60, 5000, 1000, null, 1)",
          "insert into funcionario values (1, 'Lia', 'Lia', 'lia', 1, 1)"})
        shop.Session() << statement;
}

} // namespace kova::test
