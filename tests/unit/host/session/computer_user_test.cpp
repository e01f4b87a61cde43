#include "host/session/computer_user.hpp"

#include <gtest/gtest.h>

namespace kova::host {

TEST(ComputerUser, IsCalledByTheFullName)
{
    EXPECT_EQ(NameOfAccount({"joao", "João Antônio da Conceição"}), "João Antônio da Conceição");
}

TEST(ComputerUser, IsCalledByTheShortNameWithoutAFullOne)
{
    EXPECT_EQ(NameOfAccount({"maria", ""}), "maria");
}

TEST(ComputerUser, IsTheDeskWithoutAName)
{
    EXPECT_EQ(NameOfAccount({}), "Recepção");
    EXPECT_EQ(NameOfAccount({"", "Maria"}), "Recepção");
}

} // namespace kova::host
