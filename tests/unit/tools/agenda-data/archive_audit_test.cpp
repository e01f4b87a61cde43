// Old years of the audit go into a file of their own, and are still told and proved.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"
#include "tests/unit/tools/agenda-data/without_progress.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "system/path_text.hpp"

#include <filesystem>

namespace kova::data::test {

namespace {

namespace fs = std::filesystem;
using family::AuditValues;

/// A shop with lines of 2024, 2025 and 2026, two of each year.
class ArchivedAudit : public ImportTest {
protected:
    ArchivedAudit()
    {
        for (const char* year : {"2024", "2025", "2026"}) {
            Write(std::string(year) + "-03-01 09:00:00", 5);
            Write(std::string(year) + "-10-01 09:00:00", 6);
        }
    }

    void Write(const std::string& moment, family::Key appointment)
    {
        const auto database = family::OpenDatabase(Database());
        family::AuditChange(*database, {"7", "D'Ávila \"Zé\"", moment, "BALCAO-1"}, "agendamento",
                            appointment, AuditValues().Add("situacao", 1), AuditValues().Add("situacao", 2));
    }
    int Archive(const std::string& until)
    {
        return Run({"archive-audit", Database(), "--until", until, "--to", Archived()});
    }
    int Check() { return Run({"check", Database(), "--archive", Archived()}); }
    std::string Archived() const { return File("velha.auditoria"); }
    std::string AskArchive(const std::string& query)
    {
        family::Database archive(family::SqliteDialect(), family::FileConnection(Archived()), Archived());
        std::string answer;
        archive.Session() << query, soci::into(answer);
        return answer;
    }
    void RunOnArchive(const std::string& statement)
    {
        family::Database archive(family::SqliteDialect(), family::FileConnection(Archived()), Archived());
        archive.Session() << statement;
    }
    bool Complained(const std::string& words) const { return Error().find(words) != std::string::npos; }
};

} // namespace

TEST_F(ArchivedAudit, LeavesTheShopAndIsProvedWithIt)
{
    ASSERT_EQ(Archive("2024"), 0) << Error();
    EXPECT_EQ(Output().find("2 linhas da auditoria até 2024 foram para \"" + Archived() + "\".\n"), 0U);
    EXPECT_EQ(Ask("select count(*) from auditoria where operacao = 'alteracao'"), "4");
    EXPECT_EQ(
        Ask("select usuario || ' ' || tabela || ' ' || chave from auditoria where operacao = 'arquivamento'")
            .find("0 - "),
        0U);
    EXPECT_EQ(AskArchive("select count(*) || ' ' || max(codigo) from auditoria"), "2 2");
    EXPECT_EQ(Check(), 0) << Error();
    EXPECT_NE(Output().find("\narquivo da auditoria: " + Archived() + "\n"), std::string::npos) << Output();
    EXPECT_NE(
        Output().find("\nversão do esquema: " + Ask("select max(versao) from versao_do_esquema") + "\n"),
        std::string::npos)
        << Output();
    EXPECT_EQ(Archive("2025"), 0) << Error();
    EXPECT_EQ(AskArchive("select count(*) || ' ' || max(codigo) from auditoria"), "4 4");
    EXPECT_EQ(AskArchive("select count(*) || ' ' || max(ordem) from elo_da_auditoria"), "4 4");
    EXPECT_EQ(Check(), 0) << Error();
    EXPECT_EQ(Archive("2025"), 0) << Error();
    EXPECT_EQ(Output(), "Não há linhas da auditoria até 2025 para arquivar.\n");
}

TEST_F(ArchivedAudit, IsReadByTheHistory)
{
    ASSERT_EQ(Archive("2025"), 0) << Error();
    ASSERT_EQ(Run({"history", Database(), "5"}), 0) << Error();
    for (const char* moment : {"01/03/2024 09:00:00", "01/03/2025 09:00:00", "01/03/2026 09:00:00"})
        EXPECT_NE(Output().find(std::string(moment) + "  Alteração por 7 - D'Ávila \"Zé\" no posto BALCAO-1"),
                  std::string::npos)
            << Output();
    fs::rename(system::PathOf(Archived()), system::PathOf(File("outro")));
    ASSERT_EQ(Run({"history", Database(), "5", "--archive", File("outro")}), 0) << Error();
    EXPECT_NE(Output().find("01/03/2024"), std::string::npos);
    ASSERT_EQ(Run({"history", Database(), "5"}), 0) << Error();
    EXPECT_EQ(Output().find("01/03/2024"), std::string::npos);
    const std::string apart = "A auditoria até 2025 está em um arquivo à parte (\"" + Archived() + "\").";
    EXPECT_EQ(Run({"history", Database(), "99"}), 1);
    EXPECT_EQ(Error(),
              "A auditoria não conhece o agendamento 99.\n" + apart
                  + " Ele não foi encontrado; informe-o com --archive.\n");
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
    EXPECT_TRUE(Complained("aviso: " + apart
                           + " Ele não foi encontrado, e o que está nele não foi conferido; informe-o com "
                             "--archive.\n"))
        << Error();
}

TEST_F(ArchivedAudit, IsFoundTamperedWith)
{
    ASSERT_EQ(Archive("2025"), 0) << Error();
    const std::string whole = kova::test::ContentOf(Archived());
    for (const auto& [statement, told] :
         {std::pair("update auditoria set usuario = '8 - Ana' where codigo = 2",
                    "auditoria 2: a linha foi alterada depois de gravada."),
          {"delete from auditoria where codigo = 3", "auditoria 3: a linha foi retirada."},
          {"insert into auditoria select 90, momento, usuario, posto, tabela, chave, operacao, antes, depois"
           " from auditoria where codigo = 1",
           "auditoria 90: a linha não foi gravada pela agenda."},
          {"delete from elo_da_auditoria where ordem = 4",
           "não é o desta loja, ou não tem tudo que foi arquivado."},
          {"delete from elo_da_auditoria where ordem = 2",
           "auditoria 3: uma linha que estava antes dela foi retirada."}}) {
        RunOnArchive(statement);
        EXPECT_EQ(Check(), 1) << statement;
        EXPECT_TRUE(Complained(told)) << statement << "\n" << Error();
        kova::test::WriteFile(Archived(), whole);
    }
    EXPECT_EQ(Check(), 0) << Error();
    family::OpenDatabase(Database())->Session() << "delete from elo_da_auditoria where ordem = 4";
    fs::remove(system::PathOf(Archived()));
    EXPECT_EQ(Run({"check", Database()}), 1);
    EXPECT_TRUE(Complained("estavam antes dela foram retiradas")) << Error();
}

TEST_F(ArchivedAudit, StaysProvableWhereALineWasCleanedBeforeAndAfter)
{
    {
        const auto database = family::OpenDatabase(Database());
        soci::transaction transaction(database->Session());
        database->Session() << "update auditoria set antes = '{}' where codigo = 1";
        family::LinkAnew(*database, 1);
        family::AuditAnonymisation(*database, {"7", "Lia", "2026-11-01 09:00:00"}, "cliente", 10,
                                   AuditValues().Add(family::CleanedLinesColumn, std::string("1")));
        transaction.commit();
    }
    ASSERT_EQ(Run({"check", Database()}), 0) << Error();
    ASSERT_EQ(Archive("2024"), 0) << Error();
    EXPECT_EQ(AskArchive("select antes from auditoria where codigo = 1"), "{}");
    EXPECT_EQ(Check(), 0) << Error();
    fs::rename(system::PathOf(Archived()), system::PathOf(File("fora")));
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
    fs::rename(system::PathOf(File("fora")), system::PathOf(Archived()));
    RunOnArchive("update auditoria set depois = '{}' where codigo = 1");
    EXPECT_EQ(Check(), 1);
}

TEST_F(ArchivedAudit, GoesOnWhereItWasCutOff)
{
    ASSERT_EQ(Archive("2024"), 0) << Error();
    const std::string first = kova::test::ContentOf(Archived());
    // What a program leaves that was killed when the lines were in the file and still in the shop.
    ASSERT_EQ(Run({"backup", Database(), File("antes.bak")}), 0) << Error();
    ASSERT_EQ(Archive("2025"), 0) << Error();
    const std::string shop = Place("de-novo");
    ASSERT_EQ(Run({"restore", File("antes.bak"), shop}), 0) << Error();
    EXPECT_EQ(Run({"check", shop, "--archive", Archived()}), 0) << Error();
    ASSERT_EQ(Run({"history", shop, "5", "--archive", Archived()}), 0) << Error();
    EXPECT_EQ(Output().find("01/03/2025"), Output().rfind("01/03/2025"));
    ASSERT_EQ(Run({"archive-audit", shop, "--until", "2025", "--to", Archived()}), 0) << Error();
    EXPECT_EQ(Run({"check", shop, "--archive", Archived()}), 0) << Error();
    // An archive that lacks lines is not gone on with.
    kova::test::WriteFile(Archived(), first);
    EXPECT_EQ(Run({"archive-audit", shop, "--until", "2025", "--to", Archived()}), 1);
    EXPECT_TRUE(Complained("A auditoria da loja não é a continuação do arquivo \"" + Archived()
                           + "\". Informe o arquivo que já tem as linhas anteriores dela."))
        << Error();
}

TEST_F(ArchivedAudit, IsRefusedWhereTheFileIsAnotherOne)
{
    kova::test::WriteFile(File("texto"), "nota");
    EXPECT_EQ(Run({"archive-audit", Database(), "--until", "2024", "--to", File("texto")}), 1);
    EXPECT_EQ(kova::test::ContentOf(File("texto")), "nota");
    ASSERT_EQ(Run({"backup", Database(), File("copia.bak")}), 0) << Error();
    EXPECT_EQ(Run({"archive-audit", Database(), "--until", "2024", "--to", File("copia.bak")}), 1);
    EXPECT_TRUE(Complained("não é um arquivo de auditoria")) << Error();
    EXPECT_EQ(Run({"archive-audit", Database(), "--until", "2024", "--to", File("nenhuma/pasta")}), 1);
    EXPECT_EQ(Run({"archive-audit", Database(), "--until", "2026", "--to", Archived()}), 2);
    EXPECT_TRUE(Complained("O ano informado com --until ainda não acabou.")) << Error();
    EXPECT_EQ(Run({"archive-audit", Database()}), 2);
    EXPECT_TRUE(Complained("Informe com --until o último ano cujas linhas vão para o arquivo.")) << Error();
    EXPECT_EQ(Ask("select count(*) from auditoria"), "6");
    ASSERT_EQ(Archive("2024"), 0) << Error();
    fs::remove(system::PathOf(Archived()));
    EXPECT_EQ(Archive("2025"), 1);
    EXPECT_TRUE(Complained("O arquivo da auditoria \"" + Archived()
                           + "\" não foi encontrado. Ele já tem linhas desta loja: informe onde está."))
        << Error();
}

TEST_F(ArchivedAudit, KeepsWhatWasWrittenBehindALineOfALaterYear)
{
    // A desk whose clock was an hour slow at midnight.
    Write("2025-12-31 23:30:00", 7);
    ASSERT_EQ(Archive("2025"), 0) << Error();
    EXPECT_EQ(WithoutProgress(Error()),
              "1 linha da auditoria até 2025 fica na loja: foi gravada depois de uma com a data de um ano "
              "seguinte.\n");
    EXPECT_EQ(Check(), 0) << Error();
    Write("2025-12-31 23:40:00", 7);
    ASSERT_EQ(Archive("2025"), 0) << Error();
    EXPECT_EQ(
        Error(),
        "2 linhas da auditoria até 2025 ficam na loja: foram gravadas depois de uma com a data de um ano "
        "seguinte.\n");
}

TEST_F(ArchivedAudit, IsNamedToWhoeverLooksForWhatIsInIt)
{
    ImportShop();
    ASSERT_EQ(Archive("2025"), 0) << Error();
    EXPECT_EQ(Run({"undo-import", Database(), "--import", "99"}), 1);
    EXPECT_TRUE(Complained("A auditoria até 2025 está em um arquivo à parte")) << Error();
    EXPECT_EQ(Run({"undelete", Database(), "5"}), 1);
    EXPECT_TRUE(Complained("O que está nele não pode mais ser restaurado.")) << Error();
}

} // namespace kova::data::test
