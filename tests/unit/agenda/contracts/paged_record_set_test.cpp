#include "agenda/contracts/support/memory_record_set.hpp"
#include "agenda/contracts/support/paged_record_set.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>

namespace kova {

using test::NumberOfFailure;

namespace {

/// A store of typed rows that counts how often a Value is made of one.
class NumberedRows : public PagedRecordSet {
public:
    explicit NumberedRows(Long rows) : PagedRecordSet({"Numero", "Texto"}), rows_(rows) { }

    mutable int reads = 0;

protected:
    Long RowCount() const override { return rows_; }
    Value CellAt(Long row, int field) const override
    {
        ++reads;
        return field == 0 ? Value(row + 1) : Value("linha " + std::to_string(row + 1));
    }

private:
    Long rows_;
};

Text Column(RecordSet& set, std::string_view field)
{
    Text all;
    if (set.RecordCount() > 0)
        set.MoveFirst();
    for (; !set.Eof(); set.MoveNext()) {
        const Value value = set.Field(field);
        all += (all.empty() ? "" : " ")
            + (value.IsNull()        ? "nulo"
                   : value.IsEmpty() ? "vazio"
                                     : value.ToText());
    }
    return all;
}

MemoryRecordSet People()
{
    return {{"Nome", "Idade"},
            {{"bia", Long(30)}, {"Ana", 4.5}, {"ávila", Null()}, {"Ana", Long(10)}, {"Davi", Integer(30)}}};
}

} // namespace

TEST(PagedRecordSet, StandsOnItsFirstRow)
{
    NumberedRows set(3);
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_FALSE(set.Bof());
    EXPECT_FALSE(set.Eof());
    EXPECT_EQ(set.Field("Numero"), Value(Long(1)));
    EXPECT_EQ(set.AbsolutePosition(), 1);
}

TEST(PagedRecordSet, FindsFieldsByNameWithoutRegardToCaseAndByNumber)
{
    NumberedRows set(1);
    EXPECT_EQ(set.FieldCount(), 2);
    EXPECT_EQ(set.FieldName(1), "Texto");
    EXPECT_EQ(set.Field("TEXTO").ToText(), "linha 1");
    EXPECT_EQ(set.Field("texto").ToText(), "linha 1");
    EXPECT_EQ(set.Field("Texto").ToText(), "linha 1");
    EXPECT_EQ(set.Field("Numero").ToLong(), 1);
    EXPECT_EQ(set.Field(0).ToLong(), 1);
}

TEST(PagedRecordSet, FailsOnAFieldThatIsNotThere)
{
    NumberedRows set(1);
    EXPECT_EQ(NumberOfFailure([&] { set.Field("Outro"); }), 3265);
    EXPECT_EQ(NumberOfFailure([&] { set.Field(2); }), 3265);
    EXPECT_EQ(NumberOfFailure([&] { set.Field(-1); }), 3265);
    EXPECT_EQ(NumberOfFailure([&] { set.FieldName(2); }), 3265);
}

TEST(PagedRecordSet, MakesAValueOnlyWhereOneIsRead)
{
    NumberedRows set(1000);
    set.MoveLast();
    set.AbsolutePage(7);
    EXPECT_EQ(set.reads, 0);
    set.Field("Numero");
    EXPECT_EQ(set.reads, 1);
}

TEST(PagedRecordSet, MovesOverItsEndsOnce)
{
    NumberedRows set(2);
    set.MoveLast();
    EXPECT_FALSE(set.Eof());
    set.MoveNext();
    EXPECT_TRUE(set.Eof());
    EXPECT_FALSE(set.Bof());
    EXPECT_EQ(set.AbsolutePosition(), -3);
    EXPECT_EQ(set.AbsolutePage(), -3);
    EXPECT_EQ(NumberOfFailure([&] { set.MoveNext(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.Field("Numero"); }), 3021);
    set.MovePrevious();
    EXPECT_EQ(set.Field("Numero").ToLong(), 2);
    set.MoveFirst();
    set.MovePrevious();
    EXPECT_TRUE(set.Bof());
    EXPECT_FALSE(set.Eof());
    EXPECT_EQ(set.AbsolutePosition(), -2);
    EXPECT_EQ(set.AbsolutePage(), -2);
    EXPECT_EQ(NumberOfFailure([&] { set.MovePrevious(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.Field(0); }), 3021);
    set.MoveNext();
    EXPECT_EQ(set.Field("Numero").ToLong(), 1);
}

TEST(PagedRecordSet, FailsOnEveryMoveWhereItIsEmpty)
{
    NumberedRows set(0);
    EXPECT_TRUE(set.Bof());
    EXPECT_TRUE(set.Eof());
    EXPECT_EQ(set.RecordCount(), 0);
    EXPECT_EQ(set.PageCount(), 0);
    EXPECT_EQ(set.AbsolutePage(), 0);
    EXPECT_EQ(set.AbsolutePosition(), -1);
    EXPECT_EQ(NumberOfFailure([&] { set.MoveFirst(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.MoveLast(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.MoveNext(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.MovePrevious(); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.Field(0); }), 3021);
    EXPECT_EQ(NumberOfFailure([&] { set.AbsolutePage(1); }), 3021);
}

TEST(PagedRecordSet, HasTenRowsInAPageUntilToldOtherwise)
{
    NumberedRows set(21);
    EXPECT_EQ(set.PageSize(), 10);
    EXPECT_EQ(set.PageCount(), 3);
    set.PageSize(7);
    EXPECT_EQ(set.PageCount(), 3);
    set.PageSize(2147483647);
    EXPECT_EQ(set.PageCount(), 1);
    EXPECT_EQ(NumberOfFailure([&] { set.PageSize(0); }), 3001);
    EXPECT_EQ(NumberOfFailure([&] { set.PageSize(-5); }), 3001);
    EXPECT_EQ(set.PageSize(), 2147483647);
}

TEST(PagedRecordSet, GoesToTheFirstRowOfAPage)
{
    NumberedRows set(21);
    set.AbsolutePage(2);
    EXPECT_EQ(set.Field("Numero").ToLong(), 11);
    EXPECT_EQ(set.AbsolutePage(), 2);
    set.AbsolutePage(3);
    EXPECT_EQ(set.AbsolutePosition(), 21);
    EXPECT_EQ(NumberOfFailure([&] { set.AbsolutePage(4); }), 3001);
    EXPECT_EQ(NumberOfFailure([&] { set.AbsolutePage(0); }), 3001);
    EXPECT_EQ(set.AbsolutePosition(), 21);
}

TEST(PagedRecordSet, TellsThePageOfEachRow)
{
    NumberedRows set(5);
    set.PageSize(2);
    Text pages;
    for (; !set.Eof(); set.MoveNext())
        pages += std::to_string(set.AbsolutePage());
    EXPECT_EQ(pages, "11223");
}

TEST(Sort, PutsTextsInTheOrderOfTheirCodePoints)
{
    auto set = People();
    set.Sort("Nome");
    EXPECT_EQ(Column(set, "Nome"), "Ana Ana Davi bia ávila");
    EXPECT_EQ(set.Sort(), "Nome");
}

TEST(Sort, PutsNumbersInTheirOrderAndNullFirst)
{
    auto set = People();
    set.Sort("IDADE asc");
    EXPECT_EQ(Column(set, "Idade"), "nulo 4,5 10 30 30");
    set.Sort("Idade DESC");
    EXPECT_EQ(Column(set, "Idade"), "30 30 10 4,5 nulo");
}

TEST(Sort, KeepsTheOrderOfEqualRows)
{
    auto set = People();
    set.Sort("Idade DESC");
    EXPECT_EQ(Column(set, "Nome"), "bia Davi Ana Ana ávila");
}

TEST(Sort, KeepsTheOrderOfManyEqualRows)
{
    MemoryRecordSet set({"Par", "Numero"}, {});
    for (Long number = 0; number < 500; ++number)
        set.AddRow({Long(number % 2), number});
    set.Sort("Par");
    for (Long place = 0; place < 500; ++place, set.MoveNext())
        ASSERT_EQ(set.Field("Numero").ToLong(), place < 250 ? 2 * place : 2 * (place - 250) + 1);
}

TEST(Sort, TakesTheNextFieldWhereTheFirstIsEqual)
{
    auto set = People();
    set.Sort("Nome desc,  Idade DESC");
    EXPECT_EQ(Column(set, "Idade"), "nulo 30 30 10 4,5");
    set.Sort("Nome, Idade ASC");
    EXPECT_EQ(Column(set, "Idade"), "4,5 10 30 30 nulo");
}

TEST(Sort, LandsOnTheFirstRowAndMovesThePages)
{
    auto set = People();
    set.PageSize(2);
    set.MoveLast();
    set.Sort("Nome");
    EXPECT_EQ(set.AbsolutePosition(), 1);
    set.AbsolutePage(2);
    EXPECT_EQ(set.Field("Nome").ToText(), "Davi");
}

TEST(Sort, ReturnsToTheOriginalOrderOnAnEmptyText)
{
    auto set = People();
    set.Sort("Nome");
    set.Sort("");
    EXPECT_EQ(Column(set, "Nome"), "bia Ana ávila Ana Davi");
    EXPECT_EQ(set.Sort(), "");
}

TEST(Sort, WorksOnAnEmptyRecordSet)
{
    NumberedRows set(0);
    set.Sort("Texto, Numero ASC");
    EXPECT_EQ(set.Sort(), "Texto, Numero ASC");
    EXPECT_TRUE(set.Eof());
    EXPECT_EQ(NumberOfFailure([&] { set.Sort("Outro"); }), 3265);
}

TEST(Sort, FailsOnAnOrderThatCannotBeReadAndKeepsTheFormerOne)
{
    auto set = People();
    set.Sort("Nome");
    EXPECT_EQ(NumberOfFailure([&] { set.Sort("Sobrenome"); }), 3265);
    EXPECT_EQ(NumberOfFailure([&] { set.Sort("Nome UP"); }), 3001);
    EXPECT_EQ(NumberOfFailure([&] { set.Sort("Nome,"); }), 3001);
    EXPECT_EQ(NumberOfFailure([&] { set.Sort("Nome,,Idade"); }), 3001);
    EXPECT_EQ(set.Sort(), "Nome");
    EXPECT_EQ(Column(set, "Nome"), "Ana Ana Davi bia ávila");
}

TEST(Sort, ReadsEachCellOfItsFieldsOnce)
{
    NumberedRows set(500);
    set.Sort("Texto DESC, Numero");
    EXPECT_EQ(set.reads, 1000);
}

TEST(CopyPage, CopiesThePageOnWhichTheSelectionStands)
{
    NumberedRows selection(25);
    selection.AbsolutePage(2);
    const auto page = CopyPage(selection, 10);
    EXPECT_EQ(page->RecordCount(), 10);
    EXPECT_EQ(page->FieldCount(), 2);
    EXPECT_EQ(page->FieldName(0), "Numero");
    EXPECT_EQ(page->Field("Numero").ToLong(), 11);
    EXPECT_EQ(page->AbsolutePosition(), 1);
    page->MoveLast();
    EXPECT_EQ(page->Field("TEXTO").ToText(), "linha 20");
}

TEST(CopyPage, ReadsEachCellOfThePageOnce)
{
    NumberedRows selection(25);
    CopyPage(selection, 10);
    EXPECT_EQ(selection.reads, 20);
}

TEST(CopyPage, LeavesTheSelectionsCursorWhereItWas)
{
    NumberedRows selection(25);
    for (const Long position : {1, 14, 25}) {
        selection.MoveFirst();
        while (selection.AbsolutePosition() < position)
            selection.MoveNext();
        const auto page = CopyPage(selection, 10);
        EXPECT_EQ(selection.AbsolutePosition(), position);
        EXPECT_EQ(page->Field("Numero").ToLong(), (position - 1) / 10 * 10 + 1);
    }
}

TEST(CopyPage, TakesTheShortLastPage)
{
    NumberedRows selection(25);
    selection.AbsolutePage(3);
    EXPECT_EQ(CopyPage(selection, 10)->RecordCount(), 5);
}

TEST(CopyPage, CountsAPageOfNoRowsAsOne)
{
    NumberedRows selection(3);
    EXPECT_EQ(CopyPage(selection, 0)->RecordCount(), 1);
    EXPECT_EQ(CopyPage(selection, -4)->RecordCount(), 1);
}

TEST(CopyPage, IsEmptyWithTheFieldsWhereThereIsNoCurrentRow)
{
    NumberedRows empty(0);
    EXPECT_EQ(CopyPage(empty, 10)->RecordCount(), 0);
    EXPECT_EQ(CopyPage(empty, 10)->FieldName(1), "Texto");
    NumberedRows selection(3);
    selection.MoveLast();
    selection.MoveNext();
    EXPECT_EQ(CopyPage(selection, 10)->RecordCount(), 0);
    EXPECT_TRUE(selection.Eof());
}

TEST(CopyPage, FollowsTheOrderOfTheSelection)
{
    auto selection = People();
    selection.PageSize(2);
    selection.Sort("Nome");
    selection.AbsolutePage(2);
    EXPECT_EQ(Column(*CopyPage(selection, 2), "Nome"), "Davi bia");
}

} // namespace kova
