#include "host/session/remembered_shops.hpp"
#include "host/sign_in/kept_entries.hpp"
#include "tests/unit/host/program_run.hpp"

#include <gtest/gtest.h>

namespace kova::host::test {

TEST(KeptEntries, AreKeptShopByShopBesideTheShopsThatWereOpened)
{
    const TemporaryFolder home;
    const fs::path file = home / "kovaris.ini";
    RememberedShops shops(file);
    ASSERT_TRUE(shops.Remember({"/casa/loja.db", "Céu"}));
    const KeptEntries entries(file);
    EXPECT_EQ(entries.LastName("/casa/loja.db"), "");
    EXPECT_EQ(entries.Token("/casa/loja.db"), "");
    entries.SetLastName("/casa/loja.db", "D'Ávila \"Lia\"; Peçanha");
    entries.SetToken("/casa/loja.db", "0123abcd");
    EXPECT_EQ(entries.LastName("/casa/loja.db"), "D'Ávila \"Lia\"; Peçanha");
    EXPECT_EQ(entries.Token("/casa/loja.db"), "0123abcd");
    EXPECT_EQ(entries.Token("postgresql:///loja"), "");
    ASSERT_TRUE(shops.Remember({"/casa/outra.db", ""}));
    EXPECT_EQ(entries.Token("/casa/loja.db"), "0123abcd");
    EXPECT_EQ(shops.All().size(), 2U);
    entries.SetToken("/casa/loja.db", "");
    EXPECT_EQ(entries.Token("/casa/loja.db"), "");
    EXPECT_EQ(entries.LastName("/casa/loja.db"), "D'Ávila \"Lia\"; Peçanha");
}

TEST(KeptEntries, AreForTheirOwnerAloneAndReadAsNoneWhereTheyAreNone)
{
    const TemporaryFolder home;
    const KeptEntries entries(home / "kovaris.ini");
    entries.SetToken("loja", "0123abcd");
    const fs::perms others = fs::perms::group_all | fs::perms::others_all;
    EXPECT_EQ(fs::status(home / "kovaris.ini").permissions() & others, fs::perms::none);
}

} // namespace kova::host::test
