#include "family/privacy/identity.hpp"

#include <gtest/gtest.h>

namespace kova::family::privacy {

namespace {

using Lines = std::vector<std::string>;

Identity Jose()
{
    Identity identity;
    identity.AddName("José Antônio Peçanha");
    identity.AddName("Zé");
    identity.AddContacts("Celular: (11) 91234-5678; E-mail: ze@example.com");
    identity.AddAnimal("Paçoca");
    return identity;
}

} // namespace

TEST(ContactsInATextOfContacts, AreItsPhoneNumbersAndAddresses)
{
    EXPECT_EQ(ContactsIn("Celular: (11) 91234-5678; E-mail: Ze.Silva@Example.com").phones,
              Lines{"11912345678"});
    EXPECT_EQ(ContactsIn("Celular: (11) 91234-5678; E-mail: Ze.Silva@Example.com").mails,
              Lines{"ze.silva@example.com"});
    EXPECT_EQ(ContactsIn("91234 5678 / 3333.4444, recado").phones, (Lines{"912345678", "33334444"}));
    EXPECT_EQ(ContactsIn("(11) 91234-5678 (11) 3333-4444").phones, (Lines{"11912345678", "1133334444"}));
    EXPECT_EQ(ContactsIn("+55 11 91234-5678").phones, Lines{"5511912345678"});
    EXPECT_EQ(ContactsIn("email:<ze@example.com>.").mails, Lines{"ze@example.com"});
    EXPECT_EQ(ContactsIn("ze12345678@example.com").phones, Lines{});
    EXPECT_EQ(ContactsIn("ramal 1234, apto 56").phones, Lines{});
    EXPECT_EQ(ContactsIn("").phones, Lines{});
    EXPECT_EQ(ContactsIn("@ , <>").mails.size(), 1U);
}

TEST(PhoneNumbers, AreTheSameWhateverStandsBeforeThem)
{
    for (const char* same : {"11912345678", "5511912345678", "011912345678", "912345678", "12345678",
                             "1112345678", "005511912345678"})
        EXPECT_TRUE(IsSamePhone("11912345678", same)) << same;
    for (const char* other :
         {"21912345678", "11912345679", "1234567", "", "552112345678", "55912345678", "351912345678"})
        EXPECT_FALSE(IsSamePhone("11912345678", other)) << other;
    EXPECT_FALSE(IsSamePhone("", ""));
    EXPECT_FALSE(IsSamePhone("1234567", "1234567"));
}

TEST(AnAppointmentWithoutACustomer, IsTakenForSomebodysByAContactInCommon)
{
    EXPECT_EQ(Jose().LikenessTo("Maria", "11 91234 5678", "Rex"), Likeness::Contact);
    EXPECT_EQ(Jose().LikenessTo("Maria", "fala com ZE@EXAMPLE.COM", "Rex"), Likeness::Contact);
    EXPECT_EQ(Jose().LikenessTo("Maria", "11 91234 5679", "Rex"), Likeness::None);
}

TEST(AnAppointmentWithoutACustomer, IsTakenForSomebodysByNameAndAnimal)
{
    EXPECT_EQ(Jose().LikenessTo("ZÉ", "", "pacoca"), Likeness::NameAndAnimal);
    EXPECT_EQ(Jose().LikenessTo("jose  antonio pecanha", "", "Paçoca"), Likeness::NameAndAnimal);
    EXPECT_EQ(Jose().LikenessTo("Zé", "", "Rex"), Likeness::None);
    EXPECT_EQ(Jose().LikenessTo("Maria", "", "Paçoca"), Likeness::None);
}

TEST(AnAppointmentWithoutACustomer, MayBeSomebodysByAFullNameAlone)
{
    const Likeness found = Jose().LikenessTo("José Antonio Pecanha ", "(21) 3333-4444", "Rex");
    EXPECT_EQ(found, Likeness::Name);
    EXPECT_FALSE(IsHis(found));
    EXPECT_EQ(Jose().LikenessTo("José Antônio", "", "Rex"), Likeness::None);
    EXPECT_EQ(Jose().LikenessTo("", "", ""), Likeness::None);
    EXPECT_EQ(Identity().LikenessTo("", "", ""), Likeness::None);
}

} // namespace kova::family::privacy
