// What an archive of the audit holds: as it was written, until somebody in it becomes anonymous.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "tests/support/small_files.hpp"

#include <filesystem>

namespace kova::data::test {

namespace {

namespace fs = std::filesystem;
using family::AuditValues;

const family::Author Lia{"7", "D'Ávila \"Zé\"", "2025-03-01 09:00:00", "BALCAO-1"};

class ArchiveContents : public ImportTest {
protected:
    template <class Act> void InShop(Act act)
    {
        const auto database = family::OpenDatabase(Database());
        soci::transaction transaction(database->Session());
        act(*database);
        transaction.commit();
    }
    void Archive()
    {
        ASSERT_EQ(Run({"archive-audit", Database(), "--until", "2025", "--to", Archived()}), 0) << Error();
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
    bool Complained(const std::string& words) const { return Error().find(words) != std::string::npos; }

    /// Customer 10 stands in lines of 2025 that have gone into the archive, and so does customer 11.
    void ArchivePeople()
    {
        InShop([](family::Database& database) {
            const auto text = [](const char* value) { return std::string(value); };
            AuditChange(database, Lia, "cliente", 10, AuditValues().Add("nome", text("zq Maria")),
                        AuditValues().Add("nome", text("zq Ana")));
            AuditChange(database, Lia, "cliente", 11, AuditValues().Add("nome", text("Canil")),
                        AuditValues().Add("nome", text("Canil Feliz")));
            AuditInsertion(database, Lia, "animal", 50,
                           AuditValues().Add("codigo_do_cliente", 10).Add("nome", text("zq Rex")));
            AuditRemoval(database, Lia, "agendamento", 900,
                         AuditValues()
                             .Add("tipo_do_agendamento", 0)
                             .Add("codigo_do_cliente", 10)
                             .Add("observacao", text("zq à mão")));
            AuditRemoval(database, Lia, "agendamento", 901,
                         AuditValues()
                             .Add("tipo_do_agendamento", 1)
                             .Add("nome_do_cliente", text("zq Maria"))
                             .Add("nome_do_animal", text("zq Rex")));
        });
        Archive();
        ImportShop();
    }
    int Forget(const std::vector<std::string>& more = {})
    {
        std::vector<std::string> words = {"forget", Database(), "--customer", "10", "--confirm"};
        words.insert(words.end(), more.begin(), more.end());
        return Run(words);
    }
};

} // namespace

TEST_F(ArchiveContents, LeaveNoRoomBehindInTheShop)
{
    InShop([](family::Database& database) {
        for (int line = 0; line < 2000; ++line)
            AuditRemoval(database, Lia, "cliente", line, AuditValues().Add("nome", std::string(1000, 'x')));
    });
    if (kova::test::TestsRunOnServer()) {
        Archive();
        EXPECT_EQ(Output().find("O arquivo da loja"), std::string::npos) << Output();
        return;
    }
    // Nothing stays in the log that is beside it.
    InShop([](family::Database& database) { database.Session() << "update empresa set codigo = codigo"; });
    const auto before = fs::file_size(Database());
    Archive();
    EXPECT_NE(Output().find("O arquivo da loja tinha "), std::string::npos) << Output();
    EXPECT_LT(fs::file_size(Database()) + 2'000'000, before);
    EXPECT_EQ(Check(), 0) << Error();
}

TEST_F(ArchiveContents, LeaveTheRoomUntilOthersHaveReadToTheEnd)
{
    InShop([](family::Database& database) {
        AuditRemoval(database, Lia, "cliente", 10, AuditValues().Add("nome", std::string("Ana")));
    });
    if (kova::test::TestsRunOnServer())
        return;
    {
        const auto reader = family::OpenForReading(Database());
        const family::Snapshot snapshot(*reader);
        int lines = 0;
        reader->Session() << "select count(*) from auditoria", soci::into(lines);
        Archive();
        EXPECT_TRUE(Complained("fica menor quando todos os programas que usam esta loja forem fechados"))
            << Error();
        EXPECT_EQ(lines, 1);
    }
    EXPECT_EQ(Check(), 0) << Error();
}

TEST_F(ArchiveContents, AreTheTextsThatWereWrittenWhateverStandsInThem)
{
    const std::string texts[] = {std::string(1000, '\''), "D'Ávila \"Zé\" \\ 🐶\r\n'; drop table auditoria",
                                 "Jos\xE9 \xC3"};
    InShop([&](family::Database& database) {
        for (const std::string& text : texts)
            AuditRemoval(database, {"7", text, "2025-03-01 09:00:00", "BALC'\xFFO"}, "agendamento", 5,
                         AuditValues().Add("observacao", text).Add("nome_do_cliente", text));
        if (kova::test::TestsRunOnServer())
            return;
        // No program of today writes such bytes.
        database.Session()
            << "insert into auditoria (momento, usuario, posto, tabela, chave, operacao, antes)"
               " values ('2025-03-02 09:00:00', cast(x'37202d20e9' as text), '', 'agendamento',"
               " 5, 'exclusao', cast(x'7b226f62223a22e9227d' as text))";
        family::LinkAnew(database, 4);
    });
    std::vector<std::string> before;
    for (const std::string code : {"1", "2", "3", "4"})
        before.push_back(Ask("select usuario || posto || antes from auditoria where codigo = " + code));
    EXPECT_EQ(before.back().empty(), kova::test::TestsRunOnServer());
    ASSERT_EQ(Run({"check", Database()}), 0) << Error();
    Archive();
    EXPECT_EQ(Check(), 0) << Error();
    for (std::size_t at = 0; at < before.size(); ++at)
        EXPECT_EQ(AskArchive("select coalesce(max(usuario || posto || antes), '') from auditoria"
                             " where codigo = "
                             + std::to_string(at + 1)),
                  before[at]);
    ASSERT_EQ(Run({"history", Database(), "5"}), 0) << Error();
    EXPECT_NE(Output().find(texts[0]), std::string::npos);
    EXPECT_NE(Output().find("D'Ávila \"Zé\" \\ 🐶"), std::string::npos);
}

TEST_F(ArchiveContents, OfAnotherShopOrOfNoneAreRefusedInASentence)
{
    ArchivePeople();
    const std::string whole = kova::test::ContentOf(Archived());
    kova::test::WriteFile(File("texto"), "nota");
    kova::test::WriteFile(File("vazio"), "");
    ASSERT_EQ(Run({"backup", Database(), File("copia.bak")}), 0) << Error();
    const std::string other = Place("outra");
    MakeEmptyDatabase(other);
    AuditRemoval(*family::OpenDatabase(other), Lia, "agendamento", 5, {});
    ASSERT_EQ(Run({"archive-audit", other, "--until", "2025", "--to", File("outra.auditoria")}), 0)
        << Error();
    std::string broken = whole;
    std::fill(broken.begin() + 4096, broken.end(), 'x');
    kova::test::WriteFile(File("quebrado"), broken);
    kova::test::WriteFile(File("cortado"), whole.substr(0, whole.size() / 2));
    const std::vector<std::vector<std::string>> commands = {
        {"history", Database(), "5"},
        {"check", Database()},
        {"forget", Database(), "--customer", "10", "--confirm"}};
    for (const auto& [file, told] :
         {std::pair("texto", "texto\""),
          {"vazio", "não é um arquivo de auditoria"},
          {"copia.bak", "não é um arquivo de auditoria"},
          {"outra.auditoria", "não é o desta loja, ou não tem tudo que foi arquivado."},
          {"quebrado", "quebrado\""},
          {"cortado", "cortado\""},
          {"nenhum", "não foi encontrado."}}) {
        for (std::vector<std::string> words : commands) {
            words.insert(words.end(), {"--archive", File(file)});
            EXPECT_EQ(Run(words), 1) << words.front() << " " << file;
            EXPECT_TRUE(Complained(told)) << words.front() << " " << file << "\n" << Error();
        }
    }
    EXPECT_EQ(Ask("select situacao from cliente where codigo = 10"), "1") << "nothing was forgotten";
    EXPECT_EQ(kova::test::ContentOf(Archived()), whole);
}

TEST_F(ArchiveContents, TellNothingOfWhoeverBecameAnonymousAndStayProved)
{
    ArchivePeople();
    ASSERT_EQ(Check(), 0) << Error();
    ASSERT_EQ(Forget(), 0) << Error();
    EXPECT_EQ(Output().find(Archived()), std::string::npos) << "it holds nothing of what was\n" << Output();
    EXPECT_EQ(kova::test::ContentOf(Archived()).find("zq"), std::string::npos);
    EXPECT_EQ(
        AskArchive("select group_concat(codigo || ' ' || coalesce(antes, '') || coalesce(depois, ''), ';')"
                   " from auditoria where codigo in (1, 2)"),
        "1 {\"nome\":\"Pessoa anonimizada 10\"}{\"nome\":\"Pessoa anonimizada 10\"};"
        "2 {\"nome\":\"Canil\"}{\"nome\":\"Canil Feliz\"}");
    // By a salt could be found out what a line told.
    EXPECT_EQ(AskArchive("select group_concat(codigo_da_linha) from elo_da_auditoria where sal = ''"),
              "1,3,4,5");
    EXPECT_EQ(
        Ask("select count(*) from elo_da_auditoria where codigo_da_linha in (1, 3, 4, 5) and ordem > 5"),
        "4");
    EXPECT_EQ(Check(), 0) << Error();
    ASSERT_EQ(Run({"archive-audit", Database(), "--until", "2025"}), 0) << Error();
    EXPECT_EQ(Check(), 0) << Error();
    // A further change is found as before.
    for (const char* line : {"1", "2"}) {
        const std::string whole = kova::test::ContentOf(Archived());
        family::Database(family::SqliteDialect(), family::FileConnection(Archived()), Archived()).Session()
            << std::string("update auditoria set depois = '{\"nome\":\"Bia\"}' where codigo = ") + line;
        EXPECT_EQ(Check(), 1);
        EXPECT_TRUE(
            Complained(std::string("auditoria ") + line + ": a linha foi alterada depois de gravada."))
            << Error();
        kova::test::WriteFile(Archived(), whole);
    }
    fs::remove(Archived());
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
}

TEST_F(ArchiveContents, ThatWereNotThereAreToldAndCleanedLater)
{
    ArchivePeople();
    fs::rename(Archived(), File("fora"));
    ASSERT_EQ(Forget(), 0) << Error();
    EXPECT_NE(Output().find("agenda-data forget --archive"), std::string::npos) << Output();
    EXPECT_NE(kova::test::ContentOf(File("fora")).find("zq Maria"), std::string::npos);
    ASSERT_EQ(Forget({"--archive", File("fora")}), 0) << Error();
    EXPECT_EQ(Output().find("agenda-data forget --archive"), std::string::npos) << Output();
    EXPECT_EQ(kova::test::ContentOf(File("fora")).find("zq"), std::string::npos);
    fs::rename(File("fora"), Archived());
    EXPECT_EQ(Check(), 0) << Error();
}

} // namespace kova::data::test
