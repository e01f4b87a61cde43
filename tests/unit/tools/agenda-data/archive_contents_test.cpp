// What an archive of the audit holds: as it was written, until somebody in it becomes anonymous.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"
#include "tests/unit/tools/agenda-data/without_progress.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_connection.hpp"
#include "system/path_text.hpp"
#include "tests/support/full_temporary_folder.hpp"
#include "tests/support/small_files.hpp"
#include "tests/support/sqlite_file.hpp"
#include "tests/support/statement_watch.hpp"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <regex>

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
            AuditChange(database, Lia, "cliente", 10, AuditValues().Add("nome", text("zqzq Maria")),
                        AuditValues().Add("nome", text("zqzq Ana")));
            AuditChange(database, Lia, "cliente", 11, AuditValues().Add("nome", text("Canil")),
                        AuditValues().Add("nome", text("Canil Feliz")));
            AuditInsertion(database, Lia, "animal", 50,
                           AuditValues().Add("codigo_do_cliente", 10).Add("nome", text("zqzq Rex")));
            AuditRemoval(database, Lia, "agendamento", 900,
                         AuditValues()
                             .Add("tipo_do_agendamento", 0)
                             .Add("codigo_do_cliente", 10)
                             .Add("observacao", text("zqzq à mão")));
            AuditRemoval(database, Lia, "agendamento", 901,
                         AuditValues()
                             .Add("tipo_do_agendamento", 1)
                             .Add("nome_do_cliente", text("zqzq Maria"))
                             .Add("nome_do_animal", text("zqzq Rex")));
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
    const auto before = fs::file_size(system::PathOf(Database()));
    Archive();
    const std::regex told("O arquivo da loja tinha ([0-9]+),[0-9] MB e ficou com ([0-9]+),[0-9] MB\\.\n");
    std::smatch sizes;
    const std::string output = Output();
    ASSERT_TRUE(std::regex_search(output, sizes, told)) << output;
    EXPECT_EQ(std::stoul(sizes[1]), before >> 20U);
    EXPECT_EQ(std::stoul(sizes[2]), fs::file_size(system::PathOf(Database())) >> 20U);
    EXPECT_LT(fs::file_size(system::PathOf(Database())) + 2'000'000, before);
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
        EXPECT_EQ(
            WithoutProgress(Error()),
            "Outro programa estava lendo o arquivo da loja: ele fica menor quando todos os programas que "
            "usam esta loja forem fechados.\n");
        EXPECT_EQ(lines, 1);
    }
    EXPECT_EQ(Check(), 0) << Error();
}

/// Where the shop's file stays as large as it was, the lines have gone all the same.
class RoomOfTheShop : public ArchiveContents {
protected:
    RoomOfTheShop()
    {
        InShop([](family::Database& database) {
            AuditRemoval(database, Lia, "cliente", 10, AuditValues().Add("nome", std::string("Ana")));
            const family::Author later{"7", "Lia", "2026-03-01 09:00:00", "BALCAO-1"};
            for (int line = 0; line < 3000; ++line)
                AuditRemoval(database, later, "cliente", line,
                             AuditValues().Add("nome", std::string(1000, 'x')));
        });
    }
    void ExpectArchivedAndWhole()
    {
        EXPECT_EQ(Output(), "1 linha da auditoria até 2025 foi para \"" + Archived() + "\".\n");
        EXPECT_EQ(AskArchive("select count(*) from auditoria"), "1");
        EXPECT_EQ(Check(), 0) << Error();
    }
};

TEST_F(RoomOfTheShop, IsNotGivenBackWhereThereIsTooLittleForTheWork)
{
    if (kova::test::TestsRunOnServer())
        return;
    const auto size = fs::file_size(system::PathOf(Database()));
    std::string place;
    {
        const kova::test::FullTemporaryFolder temporary;
        place = kova::test::FullTemporaryFolder::Place();
        Archive();
    }
    const std::regex told(
        "O arquivo da loja ficou do mesmo tamanho: para ficar menor faltam ([0-9]+) MB livres em "
        "\"(.+)\"\\. O espaço será usado pelo que for gravado\\.\n");
    std::smatch parts;
    const std::string error = WithoutProgress(Error());
    ASSERT_TRUE(std::regex_match(error, parts, told)) << error;
    EXPECT_EQ(parts[2], place);
    EXPECT_GE(std::stoul(parts[1]) << 20U, size / 2) << "as much as stays has to lie there";
    EXPECT_LE(std::stoul(parts[1]) << 20U, size + (2U << 20U));
    EXPECT_GE(fs::file_size(system::PathOf(Database())), size);
    ExpectArchivedAndWhole();
}

TEST_F(RoomOfTheShop, IsNotGivenBackWhereTheDiskIsFullInTheMidstOfIt)
{
    if (kova::test::TestsRunOnServer())
        return;
    {
        const kova::test::SmallFiles files(std::uint64_t{2} << 20U);
        Archive();
    }
    EXPECT_EQ(
        WithoutProgress(Error()),
        "O arquivo da loja ficou do mesmo tamanho, porque o disco ficou cheio ou não respondeu. O espaço "
        "será usado pelo que for gravado.\n");
    ExpectArchivedAndWhole();
}

TEST_F(RoomOfTheShop, IsNotGivenBackWhereAnotherDeskWrites)
{
    if (kova::test::TestsRunOnServer())
        return;
    {
        std::optional<kova::test::SqliteFile> desk;
        const kova::test::StatementWatch watch("vacuum", [&](int) {
            desk.emplace(Database());
            desk->Run("begin immediate");
        });
        Archive();
        ASSERT_TRUE(desk);
        desk->Run("rollback");
    }
    EXPECT_EQ(
        WithoutProgress(Error()),
        "O arquivo da loja ficou do mesmo tamanho, porque outro programa o estava usando. O espaço será "
        "usado pelo que for gravado.\n");
    ExpectArchivedAndWhole();
}

TEST_F(ArchiveContents, StayInTheShopWhereItsAuditIsChangedMeanwhile)
{
    if (kova::test::TestsRunOnServer())
        return;
    InShop([](family::Database& database) {
        AuditRemoval(database, Lia, "cliente", 10, AuditValues().Add("nome", std::string("Ana")));
    });
    const std::string before = Ask("select codigo || antes from auditoria");
    {
        const kova::test::StatementWatch watch("begin immediate", [&](int) {
            if (AskArchive("select count(*) from elo_da_auditoria") == "1")
                kova::test::SqliteFile(Database())
                    .Run("update elo_da_auditoria set elo = 'x' where ordem = 1");
        });
        EXPECT_EQ(Run({"archive-audit", Database(), "--until", "2025", "--to", Archived()}), 1);
    }
    EXPECT_TRUE(Complained("A auditoria foi mudada enquanto era arquivada. Nada saiu da loja.")) << Error();
    EXPECT_EQ(Ask("select codigo || antes from auditoria"), before);
    EXPECT_EQ(Run({"check", Database()}), 1) << "and it is found changed";
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
          {"quebrado",
           "quebrado\" não pode ser lido: está danificado ou não é um arquivo de auditoria. Use uma cópia "
           "dele."},
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
    EXPECT_EQ(kova::test::ContentOf(Archived()).find("zqzq"), std::string::npos);
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
    fs::remove(system::PathOf(Archived()));
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
}

TEST_F(ArchiveContents, ThatWereNotThereAreToldAndCleanedLater)
{
    ArchivePeople();
    fs::rename(system::PathOf(Archived()), system::PathOf(File("fora")));
    ASSERT_EQ(Forget(), 0) << Error();
    EXPECT_NE(Output().find("agenda-data forget --archive"), std::string::npos) << Output();
    EXPECT_NE(kova::test::ContentOf(File("fora")).find("zqzq Maria"), std::string::npos);
    ASSERT_EQ(Forget({"--archive", File("fora")}), 0) << Error();
    EXPECT_EQ(Output().find("agenda-data forget --archive"), std::string::npos) << Output();
    EXPECT_EQ(kova::test::ContentOf(File("fora")).find("zqzq"), std::string::npos);
    fs::rename(system::PathOf(File("fora")), system::PathOf(Archived()));
    EXPECT_EQ(Check(), 0) << Error();
}

} // namespace kova::data::test
