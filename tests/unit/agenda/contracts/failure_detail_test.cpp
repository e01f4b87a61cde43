#include "agenda/contracts/failure_detail.hpp"

#include <gtest/gtest.h>

namespace kova {

TEST(FailureDetail, StandsInALineOfItsOwnBehindTheText)
{
    EXPECT_EQ(WithDetail("O disco está cheio.", "disk is full"),
              "O disco está cheio.\r\nDetalhe técnico: disk is full");
    EXPECT_EQ(WithDetail("O disco está cheio.", ""), "O disco está cheio.");
}

TEST(FailureDetail, IsBroughtIntoOneLine)
{
    EXPECT_EQ(WithDetail("Falha.", "ERROR:  no\r\n\r\nDETAIL: x\n"),
              "Falha.\r\nDetalhe técnico: ERROR:  no DETAIL: x");
    EXPECT_EQ(WithDetail("Falha.", "\r\n"), "Falha.");
}

TEST(FailureDetail, IsTakenOutWhereverItStands)
{
    EXPECT_EQ(WithoutDetail("Uma linha.\r\nOutra."), "Uma linha.\r\nOutra.");
    EXPECT_EQ(WithoutDetail(WithDetail("Uma linha.\r\nOutra.", "x\ny")), "Uma linha.\r\nOutra.");
    EXPECT_EQ(WithoutDetail(WithDetail("Uma.", "x") + "\r\n" + WithDetail("Duas.", "y")), "Uma.\r\nDuas.");
    EXPECT_EQ(WithoutDetail(""), "");
}

} // namespace kova
