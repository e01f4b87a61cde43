#include "tests/unit/family/privacy/privacy_fixture.hpp"

#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/privacy/personal_columns.hpp"
#include "family/registers/registers.hpp"

namespace kova::family::test {

using privacy::Holds;

PrivacyTest::PrivacyTest()
{
    Mark("cliente", "codigo = 10");
    Mark("canal_de_comunicacao", "codigo_do_cliente = 10");
    Mark("animal", "codigo = 50");
    Mark("agendamento", "numero = 4");
    Run("insert into lista_de_espera (codigo, codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
        " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por) values (1, 10, 50,"
        " '2026-12-01', '2026-12-31', '246', '08:00', '24:00', '2026-11-20 09:00:00', 'Carla')");
    Run("insert into espera_servico (codigo_da_espera, codigo_do_servico) values (1, 2)");
    Mark("lista_de_espera", "codigo = 1");
    // What speaks for it that it is the customer's.
    Run("update agendamento set canais_do_cliente = canais_do_cliente || ' (11) 91234-5678' where numero = "
        "4");
    Run("update cliente set tipos_e_canais = tipos_e_canais || ' (11) 91234-5678' where codigo = 10");
    Run("update canal_de_comunicacao set canal = canal || ' (11) 91234-5678' where codigo = 1");
    Run("update agendamento set observacao = 'zq remark of 2' where numero = 2");
    marks_.emplace_back("zq remark of 2");
    // The shop is sound.
    Run("update agendamento set situacao = 2 where numero = 7");
}

void PrivacyTest::Mark(const std::string& table, const std::string& condition)
{
    for (const Column& column : ColumnsOf(*SharedDatabase(host_.DataSource()), table.c_str())) {
        const Holds holds = privacy::HoldsOf(table, column.name).value_or(Holds::NoPerson);
        if (holds != Holds::Name && holds != Holds::Text && holds != Holds::OptionalText)
            continue;
        const std::string mark = "zq " + table + " " + column.name;
        Run("update " + table + " set " + column.name + " = '" + mark + "' where " + condition);
        marks_.push_back(mark);
    }
}

void PrivacyTest::Write()
{
    const registers::Register& customers = registers::CustomerRegister();
    Database& database = *SharedDatabase(host_.DataSource());
    const registers::Texts before = customers.Read(database, 10).value();
    registers::Texts typed = before;
    typed[registers::FieldNamed(customers.Fields(), "Apelido")] = "zq another nickname";
    typed[registers::FieldNamed(customers.Fields(), "Logradouro")] = "zq another street";
    EXPECT_TRUE(customers.Save(database, 10, before, typed, ana_).IsDone());
    marks_.emplace_back("zq another nickname");
    marks_.emplace_back("zq another street");
    Change(2, 2);
}

std::string PrivacyTest::WholeDatabase()
{
    std::string all;
    for (const StoredTable& table : StoredTables(*SharedDatabase(host_.DataSource()))) {
        // Among digests any few letters may stand side by side.
        if (std::string_view(table.name) == "elo_da_auditoria")
            continue;
        for (const std::string& row : RowsOf(table.name, "1 = 1"))
            all += std::string(table.name) + "|" + row + "\n";
    }
    return all;
}

} // namespace kova::family::test
