#include "system/whole_file.hpp"
#include "tests/unit/system/folder_fixture.hpp"

namespace kova::system {

namespace {

class WholeFileTest : public FolderTest {
protected:
    std::error_code error_;
    /// More than one block, with every byte there is.
    const std::string long_ = [] {
        std::string content;
        for (int count = 0; count < 100'000; ++count)
            content += static_cast<char>(count % 256);
        return content;
    }();
};

} // namespace

TEST_F(WholeFileTest, IsReadByteByByte)
{
    Write(In("ração.bin"), long_);
    EXPECT_EQ(ReadWholeFile(In("ração.bin"), error_), long_);
    EXPECT_FALSE(error_);
    Write(In("vazio"), "");
    EXPECT_EQ(ReadWholeFile(In("vazio"), error_), "");
}

TEST_F(WholeFileTest, SaysWhyItCannotBeRead)
{
    EXPECT_EQ(ReadWholeFile(In("nenhum"), error_), std::nullopt);
    EXPECT_EQ(error_, std::errc::no_such_file_or_directory);
    error_.clear();
    EXPECT_EQ(ReadWholeFile(In(""), error_), std::nullopt);
    EXPECT_TRUE(error_);
    EXPECT_NE(error_, std::errc::no_such_file_or_directory);
}

TEST_F(WholeFileTest, IsMadeWhereItIsMissing)
{
    EXPECT_TRUE(ReplaceWholeFile(In("ração.bin"), long_, error_));
    EXPECT_EQ(ContentOf(In("ração.bin")), long_);
    EXPECT_FALSE(error_);
}

TEST_F(WholeFileTest, IsReplacedWithNothingLeftBesideIt)
{
    Write(In("ração.bin"), long_);
    EXPECT_TRUE(ReplaceWholeFile(In("ração.bin"), "a\r\nb\n", error_));
    EXPECT_EQ(ContentOf(In("ração.bin")), "a\r\nb\n");
    EXPECT_EQ(Names(), std::vector<std::string>{"ração.bin"});
}

TEST_F(WholeFileTest, SaysWhyItCannotBeReplacedAndLeavesNothingBehind)
{
    EXPECT_FALSE(ReplaceWholeFile(In("nenhuma/ração.bin"), "x", error_));
    EXPECT_EQ(error_, std::errc::no_such_file_or_directory);
    std::filesystem::create_directory(PathOf(In("pasta")));
    error_.clear();
    EXPECT_FALSE(ReplaceWholeFile(In("pasta"), "x", error_));
    EXPECT_TRUE(error_);
    EXPECT_EQ(Names(), std::vector<std::string>{"pasta"});
}

TEST_F(WholeFileTest, IsCopiedOverAnotherThatIsThere)
{
    Write(In("ração"), long_);
    Write(In("cópia"), long_ + long_);
    CopyWholeFile(In("ração"), In("cópia"));
    EXPECT_EQ(ContentOf(In("cópia")), long_);
    EXPECT_EQ(ContentOf(In("ração")), long_);
}

TEST_F(WholeFileTest, ThatIsMissingIsNotCopied)
{
    Write(In("cópia"), "x");
    EXPECT_THROW(CopyWholeFile(In("nenhum"), In("cópia")), std::filesystem::filesystem_error);
    EXPECT_EQ(ContentOf(In("cópia")), "x");
}

} // namespace kova::system
