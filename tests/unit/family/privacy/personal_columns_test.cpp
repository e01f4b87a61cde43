#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/sources/shared_database.hpp"
#include "family/privacy/personal_columns.hpp"

#include <set>
#include <sstream>

namespace kova::family::test {

using privacy::ColumnsThatHold;

namespace {

/// "TABLE.COLUMN" of everything that a new shop's database has, but for what a file's engine keeps of the
/// words of the audit: they follow the lines, and go with them.
std::multiset<std::string> ColumnsOfSchema(Database& database)
{
    const std::string selection = TestsRunOnServer()
        ? "select cast(table_name || '.' || column_name as text) from information_schema.columns"
          " where table_schema = current_schema()"
        : "select t.name || '.' || c.name from sqlite_master t, pragma_table_info(t.name) c"
          " where t.type = 'table' and t.name not like 'sqlite_%' and t.name not like "
          "'palavras_da_auditoria%'";
    std::multiset<std::string> columns;
    std::string column;
    soci::statement statement = (database.Session().prepare << selection, soci::into(column));
    statement.execute();
    while (statement.fetch())
        columns.insert(column);
    return columns;
}

std::multiset<std::string> ListedColumns()
{
    std::multiset<std::string> columns;
    for (const ColumnsThatHold& one : privacy::AllColumns()) {
        std::istringstream names{std::string(one.columns)};
        for (std::string name; names >> name;)
            columns.insert(std::string(one.table) + "." + name);
    }
    return columns;
}

using PersonalColumns = ShopTest;

} // namespace

TEST_F(PersonalColumns, SayOfEveryColumnOfTheSchemaWhetherItHoldsSomethingAboutAPerson)
{
    const std::multiset<std::string> listed = ListedColumns();
    const std::multiset<std::string> there = ColumnsOfSchema(*SharedDatabase(host_.DataSource()));
    EXPECT_GT(there.size(), 100U);
    for (const std::string& column : there)
        EXPECT_EQ(listed.count(column), 1U)
            << column << " is not told apart: does it hold something about a customer? Say so in"
            << " personal_columns.cpp, so that it is exported and made anonymous";
    for (const std::string& column : listed)
        EXPECT_EQ(there.count(column), 1U) << column << " is not there any more";
}

TEST_F(PersonalColumns, AreFoundByTableAndName)
{
    using privacy::Holds;
    EXPECT_EQ(privacy::HoldsOf("cliente", "documento"), Holds::Text);
    EXPECT_EQ(privacy::HoldsOf("animal", "nome"), Holds::Name);
    EXPECT_EQ(privacy::HoldsOf("especie", "nome"), Holds::NoPerson);
    EXPECT_EQ(privacy::HoldsOf("cliente", "doc"), std::nullopt);
    EXPECT_EQ(privacy::HoldsOf("cliente", "apelido documento"), std::nullopt);
    EXPECT_TRUE(privacy::IsExported("cliente", "documento"));
    EXPECT_TRUE(privacy::IsExported("cliente", "coluna_nova"));
    EXPECT_FALSE(privacy::IsExported("cliente", "nome_de_busca"));
}

} // namespace kova::family::test
