#include "tests/unit/tools/agenda-data/import_fixture.hpp"

namespace kova::data::test {

namespace {

constexpr const char* Registers[] = {"clientes", "especies",     "racas",    "animais", "tipos",
                                     "servicos", "funcionarios", "feriados", "empresa", "agendamentos"};

class RoundTrip : public ImportTest {
protected:
    RoundTrip() { EXPECT_EQ(Run({"demo", Demo(), "--date", "20/11/2026"}), 0); }

    std::string Demo() { return Place("demonstracao"); }

    void CarryOver(const std::vector<std::string>& options)
    {
        for (const std::string name : Registers) {
            const std::string path = File(name + ".csv");
            std::vector<std::string> words = {"export", Demo(), name, path};
            words.insert(words.end(), options.begin(), options.end());
            ASSERT_EQ(Run(words), 0) << Error();
            ASSERT_EQ(Run({"import", Database(), name, path, "--user", "Carla"}), 0) << name << "\n"
                                                                                     << Error();
        }
    }
};

} // namespace

TEST_F(RoundTrip, GivesEveryRegisterAsItWas)
{
    CarryOver({});
    for (const std::string name : Registers) {
        const std::string before = Exported(name, Demo());
        EXPECT_GT(before.size(), 100u);
        EXPECT_TRUE(before == Exported(name)) << name;
    }
}

TEST_F(RoundTrip, GivesEveryRegisterAsItWasInLatin1WithCommas)
{
    CarryOver({"--encoding", "latin-1", "--separator", ","});
    for (const std::string name : Registers)
        EXPECT_TRUE(Exported(name, Demo()) == Exported(name)) << name;
}

TEST_F(RoundTrip, LeavesASoundDatabaseWithAnAuditLineForEachRow)
{
    CarryOver({});
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
    for (const std::string table : {"cliente", "animal", "especie", "raca", "tipo_de_servico", "servico",
                                    "funcionario", "feriado", "agendamento", "pacote", "pre_venda"}) {
        EXPECT_EQ(Ask("select count(*) from auditoria where tabela = '" + table + "'"),
                  Ask("select count(*) from " + table));
        EXPECT_NE(Ask("select count(*) from " + table), "0") << table;
    }
    EXPECT_EQ(Ask("select distinct usuario || ' ' || operacao || ' ' || momento from auditoria"
                  " where tabela <> 'importacao'"),
              "0 - Carla inclusao 2026-11-20 09:00:00");
}

TEST_F(RoundTrip, KeepsTextsThatASpreadsheetWouldCalculate)
{
    ASSERT_EQ(Import("tipos", "Número;Nome\n1;'=1+1\n2;'Aspas\n3;\"a;\"\"b\"\"\"\n"), 0) << Error();
    EXPECT_EQ(Ask("select nome from tipo_de_servico where numero = 1"), "=1+1");
    EXPECT_EQ(Ask("select nome from tipo_de_servico where numero = 2"), "'Aspas");
    EXPECT_EQ(Exported("tipos"),
              "Número;Nome;Situação\r\n1;'=1+1;Ativo\r\n2;'Aspas;Ativo\r\n3;\"a;\"\"b\"\"\";Ativo\r\n");
}

} // namespace kova::data::test
