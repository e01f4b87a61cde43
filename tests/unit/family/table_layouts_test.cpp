#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/data_source.hpp"
#include "family/data/table_layouts.hpp"

#include <algorithm>
#include <set>

namespace kova::family::test {

namespace {

/// What the schema keeps about itself.
const std::set<std::string> OwnTables = {"versao_do_esquema", "contador_de_alteracoes", "sqlite_sequence",
                                         "sqlite_stat1", "sqlite_stat4"};

std::set<std::string> TablesOf(Database& database)
{
    const soci::rowset<std::string> found =
        (database.Session().prepare << "select name from sqlite_master where type = 'table'");
    std::set<std::string> tables;
    for (const std::string& name : found) {
        if (OwnTables.count(name) == 0)
            tables.insert(name);
    }
    return tables;
}

} // namespace

class TableLayouts : public ShopTest {
protected:
    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(TableLayouts, AreThoseOfTheWholeSchema)
{
    std::set<std::string> listed;
    for (const StoredTable& table : StoredTables())
        listed.insert(table.name);
    EXPECT_EQ(listed, TablesOf(*database_));
    EXPECT_EQ(listed.size(), StoredTables().size());
}

TEST_F(TableLayouts, ComeAfterThoseThatTheirRowsReferTo)
{
    std::set<std::string> before;
    for (const StoredTable& table : StoredTables()) {
        const soci::rowset<std::string> parents =
            (database_->Session().prepare
             << "select \"table\" from pragma_foreign_key_list('" + std::string(table.name) + "')");
        for (const std::string& parent : parents)
            EXPECT_EQ(before.count(parent), 1U) << table.name << " stands before " << parent;
        before.insert(table.name);
    }
}

TEST_F(TableLayouts, KnowWhichRowsTheEngineNumbers)
{
    for (const StoredTable& table : StoredTables()) {
        std::string made;
        const std::string name = table.name;
        database_->Session() << "select sql from sqlite_master where name = :nome", soci::use(name),
            soci::into(made);
        const std::string numbered = std::string("(") + table.key + " integer primary key autoincrement";
        EXPECT_EQ(made.find(numbered) != std::string::npos, table.numbered) << made;
    }
}

TEST_F(TableLayouts, HaveTheColumnsOfTheirTables)
{
    const std::vector<Column> columns = ColumnsOf(*database_, "animal");
    std::string names;
    for (const Column& column : columns)
        names += (column.text ? "'" : "") + column.name + " ";
    EXPECT_EQ(names,
              "codigo codigo_do_cliente 'nome 'sexo codigo_da_raca porte 'cor 'microchip 'observacao "
              "situacao 'nome_de_busca ");
}

TEST_F(TableLayouts, OfAnOlderSchemaAreFewer)
{
    database_->Session() << "delete from versao_do_esquema where versao > 1";
    for (const StoredTable& table : StoredTables(*database_))
        EXPECT_EQ(table.since, 1);
}

} // namespace kova::family::test
