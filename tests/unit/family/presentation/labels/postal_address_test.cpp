#include "family/presentation/labels/postal_address.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kova::family {
namespace {

const PostalAddress Full{.nickname = "Zé",
                         .name = "José Antônio Peçanha",
                         .street = "Rua do Ipê",
                         .number = "110",
                         .complement = "Apto. 3",
                         .district = "Centro",
                         .town = "Vale Sereno",
                         .state = "SP",
                         .postalCode = "00456789"};

/// Bold lines begin with a star.
std::string Joined(const PostalAddress& address, bool withNickname = false)
{
    std::string text;
    for (const LabelLine& line : LinesOf(address, withNickname))
        text += (line.bold ? "*" : "") + line.text + "\n";
    return text;
}

PostalAddress With(Text PostalAddress::*part, const char* text)
{
    PostalAddress address = Full;
    address.*part = text;
    return address;
}

TEST(LabelText, IsNameStreetDistrictTownAndPostalCode)
{
    EXPECT_EQ(Joined(Full),
              "*José Antônio Peçanha\nRua do Ipê, 110 - Apto. 3\nCentro\nVale Sereno/SP\nCEP 00456-789\n");
}

TEST(LabelText, HasTheNicknameAboveTheNameWhereItIsWanted)
{
    EXPECT_TRUE(Joined(Full, true).starts_with("*Zé\n*José Antônio Peçanha\nRua"));
    EXPECT_TRUE(Joined(With(&PostalAddress::nickname, Full.name.c_str()), true)
                    .starts_with("*José Antônio Peçanha\nRua"));
    EXPECT_TRUE(Joined(With(&PostalAddress::name, "  ")).starts_with("*Zé\nRua"));
}

TEST(LabelText, LeavesOutWhatIsEmptyWithItsSeparator)
{
    EXPECT_NE(Joined(With(&PostalAddress::number, "")).find("\nRua do Ipê - Apto. 3\n"), std::string::npos);
    EXPECT_NE(Joined(With(&PostalAddress::complement, " ")).find("\nRua do Ipê, 110\n"), std::string::npos);
    EXPECT_NE(Joined(With(&PostalAddress::district, "")).find("Apto. 3\nVale Sereno"), std::string::npos);
    EXPECT_NE(Joined(With(&PostalAddress::state, "")).find("\nVale Sereno\n"), std::string::npos);
    EXPECT_TRUE(Joined(With(&PostalAddress::postalCode, "")).ends_with("Vale Sereno/SP\n"));
    EXPECT_EQ(Joined({}), "");
}

TEST(LabelText, ShowsAPostalCodeOfAnotherLengthAsItIs)
{
    EXPECT_TRUE(Joined(With(&PostalAddress::postalCode, "12345")).ends_with("\nCEP 12345\n"));
}

TEST(LabelText, NeedsAStreetAndATown)
{
    EXPECT_TRUE(Full.IsComplete());
    EXPECT_TRUE(With(&PostalAddress::number, "").IsComplete());
    EXPECT_FALSE(With(&PostalAddress::street, " ").IsComplete());
    EXPECT_FALSE(With(&PostalAddress::town, "").IsComplete());
}

} // namespace
} // namespace kova::family
