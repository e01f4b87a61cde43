#include "host/computer_user.hpp"

#include <gtest/gtest.h>

#include <pwd.h>

namespace kova::host {

namespace {

std::string NameOf(const char* shortName, const char* details)
{
    passwd account{};
    account.pw_name = const_cast<char*>(shortName);
    account.pw_gecos = const_cast<char*>(details);
    return NameOfAccount(&account);
}

} // namespace

TEST(ComputerUser, IsCalledByTheFullNameBeforeTheFirstComma)
{
    EXPECT_EQ(NameOf("maria", "Maria da Silva,sala 2,1234"), "Maria da Silva");
    EXPECT_EQ(NameOf("maria", "Maria da Silva"), "Maria da Silva");
}

TEST(ComputerUser, IsCalledByTheShortNameWithoutAFullOne)
{
    EXPECT_EQ(NameOf("maria", nullptr), "maria");
    EXPECT_EQ(NameOf("maria", ""), "maria");
    EXPECT_EQ(NameOf("maria", ",sala 2"), "maria");
}

TEST(ComputerUser, IsTheDeskWithoutAName)
{
    EXPECT_EQ(NameOfAccount(nullptr), "Recepção");
    EXPECT_EQ(NameOf(nullptr, "Maria"), "Recepção");
    EXPECT_EQ(NameOf("", "Maria"), "Recepção");
}

} // namespace kova::host
