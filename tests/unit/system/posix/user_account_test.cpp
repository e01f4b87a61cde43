#include "system/posix/passwd_entry.hpp"

#include <gtest/gtest.h>

#include <pwd.h>

namespace kova::system {

namespace {

UserAccount AccountWith(const char* name, const char* details)
{
    passwd entry{};
    entry.pw_name = const_cast<char*>(name);
    entry.pw_gecos = const_cast<char*>(details);
    return AccountOf(&entry);
}

} // namespace

TEST(AnAccount, HasThePersonsNameBeforeTheFirstComma)
{
    EXPECT_EQ(AccountWith("joao", "João da Conceição,sala 2,1234").fullName, "João da Conceição");
    EXPECT_EQ(AccountWith("joao", "João da Conceição").fullName, "João da Conceição");
    EXPECT_EQ(AccountWith("joao", "João da Conceição").name, "joao");
}

TEST(AnAccount, MayHaveNoPersonsName)
{
    for (const char* details : {static_cast<const char*>(nullptr), "", ",sala 2"})
        EXPECT_EQ(AccountWith("joao", details).fullName, "");
}

TEST(AnAccount, MayBeMissing)
{
    EXPECT_EQ(AccountOf(nullptr).name, "");
    EXPECT_EQ(AccountWith(nullptr, "Maria").name, "");
}

} // namespace kova::system
