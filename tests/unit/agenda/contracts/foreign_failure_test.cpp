#include "agenda/contracts/failure_detail.hpp"
#include "agenda/contracts/foreign_failure.hpp"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace kova {

TEST(ForeignFailure, OfThisSystemStaysAsItIs)
{
    const Failure failure = AsFailure(Failure(-7, "O cliente não existe."));
    EXPECT_EQ(failure.Number(), -7);
    EXPECT_EQ(failure.Description(), "O cliente não existe.");
}

TEST(ForeignFailure, OfTheLanguageHasANumbersTextAndKeepsItsOwnWordsAsTheDetail)
{
    const Failure failure = AsFailure(std::out_of_range("vector::_M_range_check"));
    EXPECT_EQ(failure.Number(), 5);
    EXPECT_EQ(WithoutDetail(failure.Description()), "Argumento ou chamada de procedimento inválida");
    EXPECT_NE(failure.Description().find("vector::_M_range_check"), std::string::npos);
}

TEST(ForeignFailure, ForWantOfMemoryHasItsNumber)
{
    EXPECT_EQ(AsFailure(std::bad_alloc()).Number(), 7);
    EXPECT_EQ(AsFailure(std::bad_alloc()).Description(), "Memória insuficiente");
    EXPECT_EQ(AsFailure(std::length_error("vector::reserve")).Number(), 7) << "no memory would be enough";
}

} // namespace kova
