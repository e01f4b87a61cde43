#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/failure_detail.hpp"
#include "family/data/engine/failure_words.hpp"

#include <gtest/gtest.h>
#include <soci/soci.h>

#include <filesystem>
#include <initializer_list>
#include <new>
#include <stdexcept>
#include <system_error>

namespace kova::family {

namespace {

/// What the user reads without the details.
std::string Told(const std::exception& failure) { return WithoutDetail(WordsFor(failure)); }

std::filesystem::filesystem_error Refused(std::errc why)
{
    return {"cannot copy file", "/loja/posto.db", std::make_error_code(why)};
}

} // namespace

TEST(FailureWords, OfThisSystemStandAsTheyAre)
{
    EXPECT_EQ(WordsFor(Failure(FailureNumber::Overflow, "Não cabe.")), "Não cabe.");
    EXPECT_EQ(WordsFor(std::runtime_error("O arquivo não existe.")), "O arquivo não existe.");
}

TEST(FailureWords, OfTheFileSystemNameThePathAndWhatToDo)
{
    EXPECT_EQ(Told(Refused(std::errc::permission_denied)),
              "\"/loja/posto.db\" não pode ser usado. Verifique as permissões da pasta ou escolha outra.");
    EXPECT_EQ(Told(Refused(std::errc::no_space_on_device)),
              "\"/loja/posto.db\" não pode ser usado. O disco está cheio. Libere espaço e tente novamente.");
    EXPECT_EQ(Told(Refused(std::errc::no_such_file_or_directory)),
              "\"/loja/posto.db\" não pode ser usado. A pasta não existe. Verifique o caminho.");
}

TEST(FailureWords, KeepThoseOfALibraryAsTheDetail)
{
    const std::system_error noThread(std::make_error_code(std::errc::resource_unavailable_try_again),
                                     "words of a library");
    EXPECT_NE(WordsFor(noThread).find(noThread.code().message()), std::string::npos);
    EXPECT_EQ(Told(noThread).find(noThread.code().message()), std::string::npos);

    const soci::soci_error ofDatabase("words of a library");
    const std::out_of_range ofLanguage("words of a library");
    for (const std::exception* failure :
         std::initializer_list<const std::exception*>{&ofDatabase, &ofLanguage}) {
        EXPECT_EQ(WordsFor(*failure), WithDetail(Told(*failure), "words of a library"));
        EXPECT_TRUE(Told(*failure).ends_with("Tente novamente.")) << Told(*failure);
    }
}

TEST(FailureWords, ForWantOfMemoryAskForMore)
{
    EXPECT_EQ(WordsFor(std::bad_alloc()),
              "A memória do computador acabou. Feche outros programas e tente novamente.");
}

} // namespace kova::family
