#include "family/registers/contacts/channel_texts.hpp"
#include "family/registers/description/typed_values.hpp"

#include <gtest/gtest.h>

namespace kova::family::registers::test {

TEST(TypedValues, ReadMoneyAsPeopleWriteIt)
{
    const std::pair<const char*, long long> amounts[] = {
        {"0", 0},
        {"12", 1200},
        {"12,5", 1250},
        {"1234,56", 123456},
        {"1.234,56", 123456},
        {"1.234.567", 123456700},
        {"123.456,78", 12345678},
        {"89,90", 8990},
        {"R$ 1.234,56", 123456},
        {"R$12", 1200},
        {"0,05", 5},
    };
    for (const auto& [text, cents] : amounts)
        EXPECT_EQ(ReadMoney(text), cents) << text;
    for (const char* text : {"", "R$", "12.50", "1.23,00", "1234.567", ".123", "12,345", "12,", ",50", "-1",
                             "1,2,3", "doze", "1 234", "99999999999999999999"})
        EXPECT_EQ(ReadMoney(text), std::nullopt) << text;
}

TEST(TypedValues, ReadWholeNumbers)
{
    EXPECT_EQ(ReadWhole("0"), 0);
    EXPECT_EQ(ReadWhole("0042"), 42);
    for (const char* text : {"", "-1", "+1", "1.0", "1,0", "x", "1x", "99999999999999999999"})
        EXPECT_EQ(ReadWhole(text), std::nullopt) << text;
}

TEST(TypedValues, ReadYesAndNo)
{
    for (const char* text : {"Sim", "sim", "SIM", "s", "1"})
        EXPECT_EQ(ReadYesNo(text), true) << text;
    for (const char* text : {"Não", "nao", "NÃO", "n", "0"})
        EXPECT_EQ(ReadYesNo(text), false) << text;
    for (const char* text : {"", "talvez", "2", "yes"})
        EXPECT_EQ(ReadYesNo(text), std::nullopt) << text;
}

TEST(TypedValues, ReadDatesAndMoments)
{
    EXPECT_EQ(ReadDate("1/2/2026"), (Date{2026, 2, 1}));
    EXPECT_EQ(ReadDate("01/01/1900"), (Date{1900, 1, 1}));
    EXPECT_EQ(ReadDate("31/12/2999"), (Date{2999, 12, 31}));
    for (const char* text : {"", "31/02/2026", "2026-02-01", "01/02/26", "31/12/1899", "01/01/3000"})
        EXPECT_EQ(ReadDate(text), std::nullopt) << text;
    EXPECT_EQ(ReadMoment("01/02/2026 10:11:12"), (DateTime{{2026, 2, 1}, {10, 11, 12}}));
    EXPECT_EQ(ReadMoment("01/02/2026 10:11"), (DateTime{{2026, 2, 1}, {10, 11, 0}}));
    for (const char* text : {"", "01/02/2026", "10:11", "01/02/2026 24:00", "01/02/1800 10:00"})
        EXPECT_EQ(ReadMoment(text), std::nullopt) << text;
}

TEST(TypedValues, ReadDocumentsByTheirCheckDigits)
{
    EXPECT_EQ(ReadDocument("123.456.789-09"), "12345678909");
    EXPECT_EQ(ReadDocument("12345678909"), "12345678909");
    EXPECT_EQ(ReadDocument("11.222.333/0001-81"), "11222333000181");
    for (const char* text : {"", "123.456.789-08", "123.456.789-19", "1234567890", "111.111.111-11",
                             "00000000000000", "11.222.333/0001-82", "11.222.333/0001-91", "abc"})
        EXPECT_EQ(ReadDocument(text), std::nullopt) << text;
}

TEST(TypedValues, ReadTheDocumentsOfCompaniesThatHaveLetters)
{
    EXPECT_EQ(ReadDocument("12.ABC.345/01DE-35"), "12ABC34501DE35");
    EXPECT_EQ(ReadDocument("12abc34501de35"), "12ABC34501DE35");
    EXPECT_EQ(ReadDocument("12zbc34501de50"), "12ZBC34501DE50");
    for (const char* text : {"12.ABC.345/01DE-36", "12.ABC.345/01DF-35", "12ABC34501DEAB", "ABC.456.789-09"})
        EXPECT_EQ(ReadDocument(text), std::nullopt) << text;
}

TEST(TypedValues, ReadPostalCodes)
{
    EXPECT_EQ(ReadPostalCode("01234-567"), "01234567");
    EXPECT_EQ(ReadPostalCode("01234567"), "01234567");
    for (const char* text : {"", "1234567", "012345678", "0123a567"})
        EXPECT_EQ(ReadPostalCode(text), std::nullopt) << text;
}

TEST(TypedValues, ReadChannelsThatWereWritten)
{
    std::vector<ChannelRow> channels;
    EXPECT_EQ(ReadChannels("Celular: (11) 91234-5678; E-mail: ze@example.com;", channels), "");
    ASSERT_EQ(channels.size(), 2u);
    EXPECT_EQ(channels[0].tipo, "Celular");
    EXPECT_EQ(channels[0].canal, "(11) 91234-5678");
    EXPECT_EQ(channels[1].tipo, "E-mail");
    EXPECT_EQ(channels[1].canal, "ze@example.com");

    channels = {{0, 0, "Site: da; loja", "http://a;b\\c"}, {0, 0, "Recado", "1"}};
    std::vector<ChannelRow> read;
    EXPECT_EQ(ReadChannels(WriteChannels(channels), read), "");
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].tipo, channels[0].tipo);
    EXPECT_EQ(read[0].canal, channels[0].canal);
    EXPECT_EQ(read[1].canal, "1");
}

TEST(TypedValues, ReadChannelsWhateverStandsBetweenThem)
{
    std::vector<ChannelRow> channels;
    EXPECT_EQ(ReadChannels("Celular:11912345678;E-mail:ze@example.com", channels), "");
    EXPECT_EQ(WriteChannels(channels), "Celular: (11) 91234-5678; E-mail: ze@example.com");
    for (const char* last : {"a;", "a\\", "\\;"}) {
        const std::vector<ChannelRow> written = {{0, 0, "Recado", last}};
        std::vector<ChannelRow> read;
        EXPECT_EQ(ReadChannels(WriteChannels(written), read), "");
        ASSERT_EQ(read.size(), 1u) << last;
        EXPECT_EQ(read[0].canal, last);
    }
    channels.clear();
    EXPECT_EQ(ReadChannels("Recado: a\\", channels), "") << "nothing is behind it that it could stand for";
    EXPECT_EQ(channels.at(0).canal, "a\\");
}

TEST(TypedValues, RefuseChannelsWithoutAKind)
{
    std::vector<ChannelRow> channels;
    EXPECT_NE(ReadChannels("(11) 91234-5678", channels), "");
    EXPECT_NE(ReadChannels("Celular:", channels), "");
    EXPECT_NE(ReadChannels(": 1", channels), "");
}

} // namespace kova::family::registers::test
