#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

class Records : public BusinessTest {
protected:
    RecordSetRef day_ = Selected({}, WholeDay());
    RecordSetRef nothing_ = Selected({.date = EmptyDay}, {});
};
KOVA_OVER_EVERY_ENGINE(Records);

TEST_P(Records, AreCountedAndBeginOnTheFirstRow)
{
    EXPECT_EQ(day_->RecordCount(), 7);
    EXPECT_EQ(day_->AbsolutePosition(), 1);
    EXPECT_FALSE(day_->Eof());
    EXPECT_FALSE(day_->Bof());
    EXPECT_EQ(day_->Field("NumeroDeLancamento"), Value(Double(5)));
}

TEST_P(Records, GiveAFieldByNameWithoutRegardToCaseAndByNumber)
{
    for (const char* name : {"HoraInicial", "HORAINICIAL", "horainicial"})
        EXPECT_EQ(day_->Field(name), Value("08:00")) << name;
    EXPECT_EQ(day_->Field(2), Value("08:00"));
    EXPECT_EQ(day_->FieldName(2), "HoraInicial");
}

TEST_P(Records, DoNotKnowOtherFields)
{
    for (RecordSet* records : {day_.get(), nothing_.get()}) {
        EXPECT_EQ(NumberOfFailure([&] { records->Field("Inexistente"); }), 3265);
        EXPECT_EQ(NumberOfFailure([&] { records->Field(" HoraInicial"); }), 3265);
        EXPECT_EQ(NumberOfFailure([&] { records->Field(37); }), 3265);
        EXPECT_EQ(NumberOfFailure([&] { records->Field(-1); }), 3265);
        EXPECT_EQ(NumberOfFailure([&] { records->FieldName(37); }), 3265);
        EXPECT_EQ(NumberOfFailure([&] { records->Sort("Inexistente"); }), 3265);
    }
}

TEST_P(Records, HaveNoFieldsToReadWithoutACurrentRow)
{
    day_->MoveLast();
    day_->MoveNext();
    EXPECT_EQ(NumberOfFailure([&] { day_->Field("HoraInicial"); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { day_->Field(2); }), 3021);
    day_->MoveFirst();
    day_->MovePrevious();
    EXPECT_TRUE(day_->Bof());
    EXPECT_EQ(NumberOfFailure([&] { day_->Field("HoraInicial"); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { nothing_->Field("HoraInicial"); }), 3021);
}

TEST_P(Records, AreWalkedToTheEndAndNotBeyond)
{
    int rows = 0;
    for (; !day_->Eof(); day_->MoveNext())
        ++rows;
    EXPECT_EQ(rows, 7);
    EXPECT_EQ(day_->AbsolutePosition(), -3);
    EXPECT_EQ(NumberOfFailure([&] { day_->MoveNext(); }), 3021);
    EXPECT_TRUE(day_->Eof());
    day_->MovePrevious();
    EXPECT_EQ(day_->AbsolutePosition(), 7);
}

TEST_P(Records, AreWalkedBackToTheBeginningAndNotBeyond)
{
    day_->MovePrevious();
    EXPECT_EQ(day_->AbsolutePosition(), -2);
    EXPECT_EQ(NumberOfFailure([&] { day_->MovePrevious(); }), 3021);
    day_->MoveNext();
    EXPECT_EQ(day_->AbsolutePosition(), 1);
}

TEST_P(Records, CanBeWalkedAgainFromTheFirst)
{
    EXPECT_EQ(NumbersOf(*day_), WholeDay());
    day_->MoveFirst();
    EXPECT_EQ(day_->AbsolutePosition(), 1);
    EXPECT_EQ(NumbersOf(*day_), WholeDay());
}

TEST_P(Records, ThatAreNoneRefuseEveryMove)
{
    EXPECT_EQ(NumberOfFailure([&] { nothing_->MoveFirst(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { nothing_->MoveLast(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { nothing_->MoveNext(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { nothing_->MovePrevious(); }), 3021);
    EXPECT_EQ(nothing_->AbsolutePosition(), -1);
}

TEST_P(Records, AreSortedAsThePrintedListWantsThem)
{
    day_->MoveLast();
    day_->Sort("DataInicial, HoraInicial ASC");
    EXPECT_EQ(day_->AbsolutePosition(), 1);
    EXPECT_EQ(day_->Sort(), "DataInicial, HoraInicial ASC");
    EXPECT_EQ(NumbersOf(*day_), WholeDay());
}

TEST_P(Records, AreSortedDownwardsAndStable)
{
    day_->Sort("HoraInicial DESC");
    EXPECT_EQ(NumbersOf(*day_), (std::vector<int>{7, 6, 3, 4, 2, 1, 5}));
    day_->Sort("Situacao DESC, NumeroDeLancamento");
    EXPECT_EQ(NumbersOf(*day_), (std::vector<int>{6, 5, 3, 1, 2, 4, 7}));
    day_->Sort("nomedoservico");
    EXPECT_EQ(NumbersOf(*day_), (std::vector<int>{5, 2, 4, 6, 1, 3, 7}));
}

TEST_P(Records, AreSortedWithNullBelowEveryText)
{
    day_->Sort("Observacao");
    EXPECT_EQ(NumbersOf(*day_), (std::vector<int>{5, 1, 3, 4, 6, 7, 2}));
}

TEST_P(Records, ReturnToTheirOriginalOrder)
{
    day_->Sort("NumeroDeLancamento");
    EXPECT_EQ(NumbersOf(*day_), (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
    day_->Sort("");
    EXPECT_EQ(day_->Sort(), "");
    EXPECT_EQ(day_->AbsolutePosition(), 1);
    EXPECT_EQ(NumbersOf(*day_), WholeDay());
}

TEST_P(Records, KeepTheirOrderWhereTheNewOneCannotBeRead)
{
    day_->Sort("NumeroDeLancamento DESC");
    EXPECT_EQ(NumberOfFailure([&] { day_->Sort("HoraInicial, Inexistente"); }), 3265);
    EXPECT_EQ(day_->Sort(), "NumeroDeLancamento DESC");
    EXPECT_EQ(NumbersOf(*day_), (std::vector<int>{7, 6, 5, 4, 3, 2, 1}));
}

TEST_P(Records, ThatAreNoneCanBeSorted)
{
    EXPECT_NO_THROW(nothing_->Sort("DataInicial, HoraInicial ASC"));
    EXPECT_TRUE(nothing_->Eof());
}

TEST_P(Records, OfACombolistWalkLikeAllOthers)
{
    const ComponentRef types = Create(TypesClass);
    Fill(TypesClass, *types, TypeRows());
    const RecordSetRef rows = ResultOf(*types);
    EXPECT_EQ(rows->Field("NOME"), Value("Banho e tosa"));
    rows->MoveNext();
    EXPECT_EQ(rows->Field("numero"), Value(Long(1)));
    rows->MoveNext();
    EXPECT_TRUE(rows->Eof());
    EXPECT_EQ(NumberOfFailure([&] { rows->Field("Nome"); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { rows->Field("Codigo"); }), 3265);
    rows->Sort("Numero");
    EXPECT_EQ(rows->Field("Nome"), Value("Consulta"));
}

} // namespace kova::conformance
