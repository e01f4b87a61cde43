// What the audit tells of an import.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "host/session/computer_user.hpp"
#include "system/computer_name.hpp"

#include <nlohmann/json.hpp>

namespace kova::data::test {

class ImportAudit : public ImportTest {
protected:
    nlohmann::json Told(int number)
    {
        return nlohmann::json::parse(
            Ask("select depois from auditoria where tabela = 'importacao' and chave = "
                + std::to_string(number)));
    }
};

TEST_F(ImportAudit, TellsWhoBroughtWhichFileInWhenAndWhere)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\nCreche\n"), 0) << Error();
    EXPECT_EQ(Ask("select momento || '|' || usuario || '|' || posto || '|' || operacao from auditoria"
                  " where tabela = 'importacao' and chave = 1 and antes is null"),
              "2026-11-20 09:00:00|0 - Carla|" + system::ComputerName() + "|importacao");
    EXPECT_EQ(Told(1),
              (nlohmann::json{{"cadastro", "tipos"},
                              {"arquivo", File("entrada.csv")},
                              {"codificacao", "UTF-8"},
                              {"linhas", 2},
                              {"novos", 2},
                              {"alterados", 0}}));
}

TEST_F(ImportAudit, NumbersImportsAndNamesTheirsInTheLineOfEachRow)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\nCreche\n"), 0) << Error();
    ASSERT_EQ(Import("clientes", "Nome\nAnt\xF4nio\n"), 0) << Error();
    EXPECT_EQ(Told(2)["codificacao"], "Latin-1");
    EXPECT_EQ(Told(2)["linhas"], 1);
    EXPECT_EQ(Ask("select chave from auditoria where tabela = 'tipo_de_servico' and usuario = '0 - Carla'"
                  " and depois like '%\"importacao\":1}' order by chave"),
              "1,2");
    EXPECT_EQ(
        Ask("select chave from auditoria where tabela = 'cliente' and depois like '%\"importacao\":2}'"),
        "1");
}

TEST_F(ImportAudit, IsSilentAboutWhatWasNotBroughtIn)
{
    ASSERT_EQ(Import("tipos", "Nome\nHotel\n", {"--dry-run"}), 0) << Error();
    ASSERT_EQ(Import("tipos", "Nome;Situação\nHotel;x\n"), 1);
    EXPECT_EQ(Ask("select count(*) from auditoria"), "0");
}

TEST_F(ImportAudit, NamesTheUserOfTheComputerWhereNobodyElseIsNamed)
{
    ImportShop();
    kova::test::WriteFile(File("agenda.csv"),
                          "Data inicial;Hora inicial;Hora final;Nome do cliente;Nome do animal;"
                          "Código do serviço;Código do funcionário\n25/11/2026;10:00;11:00;Íris;Bidu;2;1\n");
    ASSERT_EQ(Run({"import", Database(), "agendamentos", File("agenda.csv")}), 0) << Error();
    EXPECT_EQ(Ask("select usuario from auditoria where tabela = 'importacao' and chave = 6"),
              "0 - " + host::NameOfThisUser());
    EXPECT_EQ(Ask("select incluido_por from agendamento"), host::NameOfThisUser());
}

TEST_F(ImportAudit, ShowsTheImportInTheHistoryOfAnAppointment)
{
    ImportShop();
    ASSERT_EQ(Import("agendamentos",
                     "Data inicial;Hora inicial;Hora final;Nome do cliente;Nome do animal;Código do serviço;"
                     "Código do funcionário\n25/11/2026;10:00;11:00;Íris;Bidu;2;1\n"),
              0)
        << Error();
    ASSERT_EQ(Run({"history", Database(), "1"}), 0) << Error();
    EXPECT_NE(Output().find("Inclusão por 0 - Carla"), std::string::npos) << Output();
    EXPECT_NE(Output().find("    Importação: (vazio) -> 6\n"), std::string::npos) << Output();
}

} // namespace kova::data::test
