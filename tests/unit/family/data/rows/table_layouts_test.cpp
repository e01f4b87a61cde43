#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/data_source.hpp"

#include <set>

namespace kova::family::test {

namespace {

/// What the schema keeps about itself.
const std::set<std::string> OwnTables = {"versao_do_esquema",
                                         "contador_de_alteracoes",
                                         "sqlite_sequence",
                                         "sqlite_stat1",
                                         "sqlite_stat4",
                                         "palavras_da_auditoria",
                                         "palavras_da_auditoria_config",
                                         "palavras_da_auditoria_data",
                                         "palavras_da_auditoria_idx"};

/// Asks an engine about its schema, in its own words.
struct SchemaQuestions {
    const char *tables, *references;
    /// Behind them the condition on the table and its key, `t` and `k`.
    const char* numbered;
};

constexpr SchemaQuestions QuestionsForFile = {
    "select name from sqlite_master where type = 'table'",
    "select t.name || '.' || r.\"from\" || ' > ' || r.\"table\" || '.' || r.\"to\""
    " from sqlite_master t join pragma_foreign_key_list(t.name) r where t.type = 'table'",
    "select count(*) from sqlite_master"
    " where name = :t and sql like '%(' || :k || ' integer primary key autoincrement%'",
};

constexpr SchemaQuestions QuestionsForServer = {
    "select cast(table_name as text) from information_schema.tables where table_schema = current_schema()",
    "select c.conrelid::regclass::text || '.' || a.attname || ' > ' || c.confrelid::regclass::text || '.'"
    " || k.attname from pg_constraint c"
    " join pg_attribute a on a.attrelid = c.conrelid and a.attnum = c.conkey[1]"
    " join pg_attribute k on k.attrelid = c.confrelid and k.attnum = c.confkey[1] where c.contype = 'f'",
    "select count(*) from information_schema.columns"
    " where table_name = :t and column_name = :k and is_identity = 'YES'",
};

} // namespace

class TableLayouts : public ShopTest {
protected:
    const SchemaQuestions& Questions() const
    {
        return TestsRunOnServer() ? QuestionsForServer : QuestionsForFile;
    }

    std::set<std::string> Texts(const char* question)
    {
        const soci::rowset<std::string> found = (database_->Session().prepare << question);
        return {found.begin(), found.end()};
    }

    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(TableLayouts, AreThoseOfTheWholeSchema)
{
    std::set<std::string> listed = OwnTables;
    for (const StoredTable& table : StoredTables())
        EXPECT_TRUE(listed.insert(table.name).second) << table.name;
    std::set<std::string> found = Texts(Questions().tables);
    found.insert(OwnTables.begin(), OwnTables.end());
    EXPECT_EQ(listed, found);
}

TEST_F(TableLayouts, KnowWhatTheirRowsReferTo)
{
    std::set<std::string> listed;
    for (const Reference& reference : References())
        listed.insert(std::string(reference.table) + "." + reference.column + " > " + reference.target + "."
                      + reference.key);
    EXPECT_EQ(listed, Texts(Questions().references));
}

TEST_F(TableLayouts, ComeAfterThoseThatTheirRowsReferTo)
{
    std::set<std::string> before;
    for (const StoredTable& table : StoredTables()) {
        for (const Reference& reference : References()) {
            const bool refers = std::string(table.name) == reference.table;
            EXPECT_TRUE(!refers || before.count(reference.target) == 1) << table.name;
        }
        before.insert(table.name);
    }
}

TEST_F(TableLayouts, KnowWhichRowsTheEngineNumbers)
{
    for (const StoredTable& table : StoredTables()) {
        const std::string name = table.name, key = table.key;
        int numbered = 0;
        database_->Session() << Questions().numbered, soci::use(name, "t"), soci::use(key, "k"),
            soci::into(numbered);
        EXPECT_EQ(numbered == 1, table.numbered) << name;
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
