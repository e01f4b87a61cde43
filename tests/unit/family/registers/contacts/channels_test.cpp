// Phone numbers, e-mail addresses and postal codes, as they are typed and as they are kept.

#include "family/registers/contacts/channel_kinds.hpp"
#include "family/registers/contacts/channel_texts.hpp"
#include "family/registers/contacts/compared_channels.hpp"
#include "family/registers/contacts/phone_numbers.hpp"
#include "family/registers/contacts/postal_codes.hpp"

#include <gtest/gtest.h>

namespace kova::family::registers::test {

namespace {

struct Case {
    const char *kind, *typed, *kept;
};

} // namespace

TEST(Channels, KeepPhoneNumbersInOneWay)
{
    const Case cases[] = {
        {"Celular", "11912345678", "(11) 91234-5678"},
        {"Celular", "(11) 91234-5678", "(11) 91234-5678"},
        {"Celular", "11 9.1234.5678", "(11) 91234-5678"},
        {"Celular", "+55 11 91234-5678", "(11) 91234-5678"},
        {"Celular", "5511912345678", "(11) 91234-5678"},
        {"Celular", "011 91234-5678", "(11) 91234-5678"},
        {"celular da filha", "+5599987654321", "(99) 98765-4321"},
        {"Celular", "55 99876-5432", "(55) 99876-5432"},
        {"Telefone", "1131234567", "(11) 3123-4567"},
        {"Telefone", "+55 (51) 5123 4567", "(51) 5123-4567"},
        {"Telefone", "(55) 2123-4567", "(55) 2123-4567"},
        {"Telefone", "55 55 2123-4567", "(55) 2123-4567"},
        {"Telefone", "0 11 4123-4567", "(11) 4123-4567"},
        {"Telefone", "11912345678", "(11) 91234-5678"},
        {"Telefone", "08001234567", "0800 123 4567"},
        {"Telefone fixo", "(11)31234567", "(11) 3123-4567"},
        {"WhatsApp", "11 31234567", "(11) 3123-4567"},
        {"WhatsApp", "11 912345678", "(11) 91234-5678"},
        {"Celular", "+351 912 345 678", "+351 912 345 678"},
        {"Telefone", "+1 (212) 555-0100", "+1 (212) 555-0100"},
        {"Telefone", "+683 12345", "+683 12345"},
        {"Telefone", "+351912345678901", "+351912345678901"},
        {"E-mail", "Ana.Luz+pet@exemplo.com.br", "Ana.Luz+pet@exemplo.com.br"},
        {"Recado", "depois das 18h", "depois das 18h"},
        {"Site", "www.exemplo.com", "www.exemplo.com"},
    };
    for (const Case& one : cases) {
        const KeptChannel read = ReadChannel(one.kind, one.typed);
        EXPECT_EQ(read.why, "") << one.kind << " " << one.typed;
        EXPECT_EQ(read.text, one.kept) << one.kind << " " << one.typed;
        EXPECT_EQ(ReadChannel(one.kind, one.kept).text, one.kept) << "what is kept is read as it is";
    }
}

TEST(Channels, SayWhyATextIsNone)
{
    const auto mobile = [](const std::string& typed) {
        return "o celular " + typed + " não tem DDD e nove dígitos a partir do 9, como (11) 91234-5678.";
    };
    const auto fixed = [](const std::string& typed) {
        return "o telefone fixo " + typed + " não tem DDD e oito dígitos, como (11) 3123-4567.";
    };
    const auto phone = [](const std::string& typed) {
        return "o telefone " + typed + " não tem DDD e oito ou nove dígitos, como (11) 3123-4567.";
    };
    const auto mail = [](const std::string& typed) {
        return "o e-mail " + typed + " não é um endereço, como ana@exemplo.com.";
    };
    struct Wrong {
        const char *kind, *typed;
        std::string why;
    };
    const Wrong cases[] = {
        {"Celular", "1", mobile("1")},
        {"Celular", "91234-5678", mobile("91234-5678")},
        {"Celular", "11 9123-4567", mobile("11 9123-4567")},
        {"Celular", "11 81234-5678", mobile("11 81234-5678")},
        {"Celular", "(11) 3123-4567", mobile("(11) 3123-4567")},
        {"Celular", "11 91234-56789", mobile("11 91234-56789")},
        {"Celular", "11 91234-567x", mobile("11 91234-567x")},
        {"Celular", "+55 1 2", mobile("+55 1 2")},
        {"Celular", "+", mobile("+")},
        {"Celular", "0800 123 4567", mobile("0800 123 4567")},
        {"Celular", "20 91234-5678", "o DDD 20, de 20 91234-5678, não existe."},
        {"Celular", "00 91234-5678", "o DDD 00, de 00 91234-5678, não existe."},
        {"Telefone", "3123-4567", phone("3123-4567")},
        {"Telefone", "(11) 6123-4567", phone("(11) 6123-4567")},
        {"Telefone", "(11) 1123-4567", phone("(11) 1123-4567")},
        {"Telefone", "(11) 3123-4567 ramal 2", phone("(11) 3123-4567 ramal 2")},
        {"Telefone", "(10) 3123-4567", "o DDD 10, de (10) 3123-4567, não existe."},
        {"Fixo", "11 91234-5678", fixed("11 91234-5678")},
        {"Telefone", "(01) 3123-4567", "o DDD 01, de (01) 3123-4567, não existe."},
        {"Telefone", "+683 1234", "o número internacional +683 1234 não tem de 8 a 15 dígitos."},
        {"Telefone", "+3519123456789012",
         "o número internacional +3519123456789012 não tem de 8 a 15 dígitos."},
        {"E-mail", "ana", mail("ana")},
        {"E-mail", "@exemplo.com", mail("@exemplo.com")},
        {"E-mail", "ana@", mail("ana@")},
        {"E-mail", "ana@exemplo", mail("ana@exemplo")},
        {"E-mail", "ana@exemplo.", mail("ana@exemplo.")},
        {"E-mail", "ana@.com", mail("ana@.com")},
        {"E-mail", "ana@ex..com", mail("ana@ex..com")},
        {"email", "ana@bia@exemplo.com", mail("ana@bia@exemplo.com")},
        {"E-mail", "ana@@exemplo.com", mail("ana@@exemplo.com")},
        {"E-mail", "ana luz@exemplo.com", mail("ana luz@exemplo.com")},
    };
    for (const Wrong& one : cases)
        EXPECT_EQ(ReadChannel(one.kind, one.typed).why, one.why) << one.kind << " " << one.typed;
}

TEST(Channels, KnowTheSixtySevenAreaCodes)
{
    int count = 0;
    for (int code = -1; code <= 120; ++code)
        count += IsAreaCode(code) ? 1 : 0;
    EXPECT_EQ(count, 67);
    for (const int code : {11, 19, 21, 24, 28, 38, 49, 55, 61, 69, 71, 79, 81, 89, 91, 99})
        EXPECT_TRUE(IsAreaCode(code)) << code;
    for (const int code :
         {0, 10, 20, 23, 25, 26, 29, 30, 36, 39, 40, 50, 52, 56, 60, 70, 72, 76, 78, 80, 90, 100})
        EXPECT_FALSE(IsAreaCode(code)) << code;
}

TEST(Channels, LeaveAloneWhatStoodThereBefore)
{
    const std::vector<ChannelRow> former = {{0, 0, "Celular", "9123-4567"}};
    std::vector<ChannelRow> channels;
    EXPECT_EQ(ReadChannels("Celular: 9123-4567; Telefone: 1131234567", channels, former), "");
    EXPECT_EQ(WriteChannels(channels), "Celular: 9123-4567; Telefone: (11) 3123-4567");
    channels.clear();
    EXPECT_NE(ReadChannels("Telefone: 9123-4567", channels, former), "") << "it was of another kind";
}

TEST(Channels, AreTheSameHoweverTheyAreWritten)
{
    const auto compared = [](const char* text) { return ComparableChannel({0, 0, "Contato", text}); };
    EXPECT_EQ(compared("(11) 91234-5678"), compared("11 912345678"));
    EXPECT_EQ(compared("José@Example.com"), compared("jose@example.COM"));
    EXPECT_NE(compared("a123456@example.com"), compared("b123456@example.com")) << "it is an address";
    EXPECT_NE(compared("ramal 12345"), compared("sala 12345")) << "too few digits for a number";
    EXPECT_EQ(compared("tel 123456"), compared("123-456"));
}

TEST(Channels, AreJoinedOnceEach)
{
    const std::vector<ChannelRow> kept = {{1, 7, "Celular", "(11) 91234-5678"}};
    const std::vector<ChannelRow> other = {{2, 8, "WhatsApp", "11912345678"},
                                           {3, 8, "E-mail", "ze@example.com"},
                                           {4, 8, "E-mail", "ZE@example.com"}};
    EXPECT_EQ(WriteChannels(JoinChannels(kept, other)), "Celular: (11) 91234-5678; E-mail: ze@example.com");
}

TEST(PostalCodes, LieInTheirState)
{
    const std::pair<const char*, const char*> cases[] = {
        {"00000000", ""},   {"00999999", ""},   {"01000000", "SP"}, {"19999999", "SP"}, {"20000000", "RJ"},
        {"28999999", "RJ"}, {"29000000", "ES"}, {"30000000", "MG"}, {"39999999", "MG"}, {"40010000", "BA"},
        {"49000000", "SE"}, {"50000000", "PE"}, {"57000000", "AL"}, {"58000000", "PB"}, {"59000000", "RN"},
        {"60000000", "CE"}, {"64000000", "PI"}, {"65000000", "MA"}, {"66000000", "PA"}, {"68899999", "PA"},
        {"68900000", "AP"}, {"69000000", "AM"}, {"69300000", "RR"}, {"69399999", "RR"}, {"69400000", "AM"},
        {"69900000", "AC"}, {"70000000", "DF"}, {"72799999", "DF"}, {"72800000", "GO"}, {"73000000", "DF"},
        {"73700000", "GO"}, {"76799999", "GO"}, {"76800000", "RO"}, {"77000000", "TO"}, {"78000000", "MT"},
        {"79000000", "MS"}, {"80000000", "PR"}, {"87999999", "PR"}, {"88000000", "SC"}, {"90000000", "RS"},
        {"99999999", "RS"}, {"", ""},
    };
    for (const auto& [digits, state] : cases)
        EXPECT_EQ(StateOfPostalCode(digits), state) << digits;
}

} // namespace kova::family::registers::test
