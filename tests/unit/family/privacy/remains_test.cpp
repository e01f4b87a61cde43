#include "tests/unit/family/privacy/privacy_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/privacy/anonymise.hpp"
#include "system/path_text.hpp"
#include "tests/support/sqlite_file.hpp"

#include <filesystem>

namespace kova::family::test {

namespace fs = std::filesystem;

namespace {

/// The links of the audit have no blanks.
constexpr const char* Mark = "zq ";

const Author Later{"3", "Ana", "2026-12-01 10:00:00", "BALCAO-1"};

} // namespace

/// A shop in a file, whatever the others lie on: it is about the file's bytes.
class RemainsInTheFile : public testing::Test {
protected:
    RemainsInTheFile()
    {
        MakeShop(file_);
        // Keeps a log from then on.
        OpenDatabase(file_);
        kova::test::SqliteFile file(file_);
        // As files were made where the engine leaves what it frees as it is.
        file.Run("pragma secure_delete = off");
        file.Run(
            "update cliente set nome = 'zq former name ' || nome, documento = 'zq doc' where codigo = 10");
        file.Run("update canal_de_comunicacao set canal = 'zq channel' where codigo_do_cliente = 10");
        file.Run("update animal set nome = 'zq animal', observacao = 'zq ' || hex(zeroblob(6000)) where "
                 "codigo = 50");
        file.Run("update agendamento set observacao = 'zq remark' where numero = 2");
        file.Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes, depois) values"
                 " ('2026-11-20 09:00:00', '1 - Ana', 'cliente', 10, 'alteracao', '{\"nome\":\"zq before\"}',"
                 " '{\"nome\":\"zq after\"}')");
        // Other rows take the places of some of them.
        file.Run("update animal set observacao = null where codigo = 50");
        file.Run("update cliente set nome = 'zq name' where codigo = 10");
    }

    privacy::AnonymiseAnswer Forget() { return privacy::Anonymise(file_, {10, {}}, Later, {}); }

    /// The bytes of the database and of what the engine keeps beside it.
    std::string Bytes() const
    {
        std::string bytes;
        for (const char* companion : {"", "-wal", "-journal"}) {
            if (fs::exists(system::PathOf(file_ + companion)))
                bytes += ContentOf(file_ + companion);
        }
        return bytes;
    }

    TemporaryFolder folder_;
    const std::string file_ = folder_ / "loja.db";
};

TEST_F(RemainsInTheFile, AreNoneAfterwards)
{
    ASSERT_NE(Bytes().find(Mark), std::string::npos);
    const privacy::AnonymiseAnswer answer = Forget();
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(answer.remains, "");
    EXPECT_EQ(Bytes().find(Mark), std::string::npos);
    EXPECT_EQ(Bytes().find("ze@example.com"), std::string::npos);
    EXPECT_EQ(Bytes().find("12345678909"), std::string::npos);
    EXPECT_EQ(kova::test::SqliteFile(file_).Run("pragma integrity_check"), std::vector<std::string>{"ok"});
}

TEST_F(RemainsInTheFile, AreNoneWhileTheAgendaHasItOpen)
{
    const auto desk = OpenDatabase(file_);
    ASSERT_TRUE(Forget().IsDone());
    EXPECT_EQ(Bytes().find(Mark), std::string::npos);
    std::string name;
    desk->Session() << "select nome from cliente where codigo = 10", soci::into(name);
    EXPECT_EQ(name, "Pessoa anonimizada 10");
}

TEST_F(RemainsInTheFile, AreToldWhereAnotherProgramReads)
{
    kova::test::SqliteFile reader(file_);
    reader.Run("begin");
    reader.Run("select count(*) from cliente");
    const privacy::AnonymiseAnswer answer = Forget();
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_NE(answer.remains.find("só sai do arquivo quando todos os programas"), std::string::npos)
        << answer.remains;
    reader.Run("commit");
    EXPECT_EQ(reader.Run("select nome from cliente where codigo = 10"),
              std::vector<std::string>{"Pessoa anonimizada 10"});
}

TEST_F(RemainsInTheFile, AreToldOfInTheCopiesBesideIt)
{
    for (const char* name : {"loja.db.copia-2026-11-19.bak", "loja.db.antes-da-versao-8.bak", "loja.db.txt",
                             "outra.db.copia-2026-11-19.bak", "loja.dbx.bak"})
        WriteContent(folder_ / name, "cópia");
    EXPECT_EQ(Forget().copies,
              (std::vector<std::string>{folder_ / "loja.db.antes-da-versao-8.bak",
                                        folder_ / "loja.db.copia-2026-11-19.bak"}));
}

} // namespace kova::family::test
