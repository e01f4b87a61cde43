#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/long_work.hpp"
#include "system/user_folders.hpp"

#include <gtest/gtest.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <filesystem>

namespace kova::family {

namespace {

/// What the user reads of it, without the first line, which names the database.
std::string CauseOf(const DatabaseFailure& failure)
{
    const std::string text = WithoutDetail(failure.Description());
    return text.substr(text.find("\r\n") + 2);
}

DatabaseFailure Reported(int code, const std::string& words = "words of the engine")
{
    return TranslatedFailure("loja.db", soci::sqlite3_soci_error(words, code));
}

bool Tells(const DatabaseFailure& failure, const char* words)
{
    return failure.Description().find(words) != std::string::npos;
}

} // namespace

TEST(DatabaseFailure, KeepsTheWordsOfTheEngineApartFromThoseForTheUser)
{
    for (const int code : {SQLITE_FULL, SQLITE_BUSY, SQLITE_IOERR, SQLITE_READONLY, SQLITE_ERROR}) {
        const DatabaseFailure failure = Reported(code);
        EXPECT_EQ(failure.Description(),
                  WithDetail(WithoutDetail(failure.Description()), "words of the engine"));
        EXPECT_EQ(CauseOf(failure).find("words"), std::string::npos) << failure.Description();
        EXPECT_TRUE(CauseOf(failure).ends_with('.')) << failure.Description();
    }
}

TEST(DatabaseFailure, IsToldByTheCodeOfTheFileEngine)
{
    EXPECT_TRUE(Tells(Reported(SQLITE_FULL), "O disco está cheio."));
    EXPECT_TRUE(Tells(Reported(SQLITE_BUSY), "em uso por outro programa"));
    EXPECT_TRUE(Tells(Reported(SQLITE_LOCKED), "em uso por outro programa"));
    EXPECT_TRUE(Tells(Reported(SQLITE_READONLY), "não aceita gravação"));
    EXPECT_TRUE(Tells(Reported(SQLITE_NOTADB), "não é um banco de dados"));
    EXPECT_TRUE(Tells(Reported(SQLITE_CORRUPT), "está danificado"));
    EXPECT_TRUE(Tells(Reported(SQLITE_CANTOPEN), "não pode ser aberto"));
    EXPECT_TRUE(Tells(Reported(SQLITE_IOERR), "O disco não respondeu"));
    EXPECT_TRUE(Tells(Reported(SQLITE_IOERR | (3 << 8)), "O disco não respondeu"));
    EXPECT_TRUE(Tells(Reported(SQLITE_CONSTRAINT), "não segue as regras"));
    EXPECT_TRUE(Tells(Reported(SQLITE_INTERRUPT), "foi interrompido"));
    EXPECT_EQ(Reported(SQLITE_FULL).GetFault(), Fault::Shortage);
    EXPECT_EQ(Reported(SQLITE_BUSY).GetFault(), Fault::Locked);
    EXPECT_EQ(Reported(SQLITE_CORRUPT).GetFault(), Fault::Lasting);
}

TEST(DatabaseFailure, IsNotToldByWordsThatTheEngineRepeats)
{
    EXPECT_TRUE(Tells(Reported(SQLITE_ERROR, "no such table: disk is full"), "recusou o pedido"));
    EXPECT_TRUE(
        Tells(TranslatedFailure("loja.db", std::runtime_error("database is locked")), "recusou o pedido"));
}

TEST(DatabaseFailure, TellsWhatTheFileSystemRefuses)
{
    const auto told = [](std::errc cause) {
        return TranslatedFailure("loja.db",
                                 std::filesystem::filesystem_error("copy", std::make_error_code(cause)));
    };
    EXPECT_TRUE(Tells(told(std::errc::no_space_on_device), "\"loja.db\" não pode ser gravado. O disco está"));
    EXPECT_EQ(told(std::errc::no_space_on_device).GetFault(), Fault::Shortage);
    EXPECT_TRUE(Tells(told(std::errc::no_such_file_or_directory), "A pasta não existe."));
    EXPECT_TRUE(Tells(told(std::errc::permission_denied), "Verifique as permissões"));
    EXPECT_TRUE(Tells(told(std::errc::file_exists), "já existe"));
    EXPECT_EQ(told(std::errc::io_error).GetFault(), Fault::Lasting);
}

TEST(DatabaseFailure, TellsThatWorkWasAskedToEnd)
{
    EXPECT_TRUE(Tells(TranslatedFailure("loja.db", Interrupted()), "foi interrompido"));
}

TEST(DatabaseFailure, KeepsTheWordsOfAServerApartToo)
{
    for (const char* state : {"53100", "08006", "28P01", "23514", "XX000"}) {
        const DatabaseFailure failure =
            ServerFailure("postgresql://maria@servidor/loja", state, "ERROR:  no space\nDETAIL:  none\n");
        EXPECT_EQ(CauseOf(failure).find("ERROR"), std::string::npos) << failure.Description();
        EXPECT_TRUE(failure.Description().ends_with("\r\nDetalhe técnico: ERROR:  no space DETAIL:  none"));
        EXPECT_TRUE(CauseOf(failure).ends_with('.')) << failure.Description();
    }
}

TEST(DatabaseFailure, NamesTheFileOfPasswordsAsThisSystemCallsIt)
{
    const std::string cause = ServerFailure("postgresql://maria@servidor/loja", "28P01", "").Cause();
    const std::string named = " senhas (" + std::string(system::ShownPasswordsFile()) + ").";
    EXPECT_TRUE(cause.ends_with(named)) << cause;
}

} // namespace kova::family
