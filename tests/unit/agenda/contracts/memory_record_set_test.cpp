#include "agenda/contracts/support/memory_record_set.hpp"
#include "tests/unit/agenda/contracts/failure_matcher.hpp"

#include <gtest/gtest.h>

namespace kova {

using test::NumberOfFailure;

namespace {

/// A record set as the cards use it: a whole number, a short text, a long one.
std::unique_ptr<MemoryRecordSet> OpenCard()
{
    auto set = std::make_unique<MemoryRecordSet>();
    set->Append("Codigo", FieldType::Integer32);
    set->Append("Nome", FieldType::FixedText, 5);
    set->Append("Observacao", FieldType::LongText);
    set->Append("Livre", FieldType::Any);
    set->Open();
    return set;
}

} // namespace

TEST(MemoryRecordSet, IsClosedUntilItIsOpened)
{
    MemoryRecordSet set;
    EXPECT_EQ(set.State(), 0);
    EXPECT_EQ(set.PageSize(), 10);
    EXPECT_EQ(NumberOfFailure([&] { set.Open(); }), 3709);
    set.Append("Codigo", FieldType::Integer32);
    EXPECT_EQ(NumberOfFailure([&] { set.RecordCount(); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.Eof(); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.MoveFirst(); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.Field("Codigo"); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.AddNew(); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.SetField("Codigo", Long(1)); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.Update(); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.Sort("Codigo"); }), 3704);
    EXPECT_EQ(NumberOfFailure([&] { set.Close(); }), 3704);
    set.Open();
    EXPECT_EQ(set.State(), 1);
    EXPECT_EQ(NumberOfFailure([&] { set.Open(); }), 3705);
    EXPECT_EQ(NumberOfFailure([&] { set.Append("Outro", FieldType::Any); }), 3705);
}

TEST(MemoryRecordSet, RefusesFieldsThatCannotBe)
{
    MemoryRecordSet set;
    set.Append("Nome", FieldType::LongText);
    EXPECT_EQ(NumberOfFailure([&] { set.Append("NOME", FieldType::LongText); }), 3001);
    EXPECT_EQ(NumberOfFailure([&] { set.Append("Curto", FieldType::FixedText, 0); }), 3001);
    EXPECT_EQ(set.FieldCount(), 1);
}

TEST(MemoryRecordSet, CannotBeMadeOfTwoFieldsWithOneName)
{
    for (const char* second : {"Nome", "NOME", "nomE"}) {
        const std::vector<Text> names = {"Nome", "Idade", second};
        EXPECT_EQ(NumberOfFailure([&] { MemoryRecordSet(names, {}); }), 3001) << second;
    }
    EXPECT_EQ(MemoryRecordSet({"Nome", "Nomes", " Nome"}, {}).FieldCount(), 3);
}

TEST(MemoryRecordSet, SaysWhichFieldItWouldHaveTwice)
{
    try {
        MemoryRecordSet({"Nome", "NOME"}, {});
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Description(), "O campo 'NOME' existe duas vezes no conjunto de registros");
    }
}

TEST(MemoryRecordSet, OpensEmpty)
{
    const auto set = OpenCard();
    EXPECT_TRUE(set->Bof());
    EXPECT_TRUE(set->Eof());
    EXPECT_EQ(set->RecordCount(), 0);
    EXPECT_EQ(NumberOfFailure([&] { set->SetField("Codigo", Long(1)); }), 3021);
}

TEST(MemoryRecordSet, CountsANewRowAtOnceAndStandsOnIt)
{
    const auto set = OpenCard();
    set->AddNew();
    EXPECT_EQ(set->RecordCount(), 1);
    EXPECT_FALSE(set->Eof());
    EXPECT_TRUE(set->Field("Codigo").IsEmpty());
    EXPECT_TRUE(set->Field("Nome").IsEmpty());
    set->Update();
    EXPECT_EQ(set->AbsolutePosition(), 1);
    set->MoveNext();
    EXPECT_TRUE(set->Eof());
}

TEST(MemoryRecordSet, ConvertsWhatAFieldIsGiven)
{
    const auto set = OpenCard();
    set->AddNew();
    set->SetField("Codigo", "5");
    set->SetField("nome", Long(1234567));
    set->SetField("Observacao", 1.5);
    set->SetField("Livre", 1.5);
    EXPECT_EQ(set->Field("Codigo"), Value(Long(5)));
    EXPECT_EQ(set->Field("Nome"), Value("12345"));
    EXPECT_EQ(set->Field("Observacao"), Value("1,5"));
    EXPECT_EQ(set->Field("Livre"), Value(1.5));
}

TEST(MemoryRecordSet, CutsAFixedTextByCharacters)
{
    const auto set = OpenCard();
    set->AddNew();
    set->SetField("Nome", "Conceição");
    EXPECT_EQ(set->Field("Nome").ToText(), "Conce");
    set->SetField("Nome", "ÁÉÍÓÚÇ");
    EXPECT_EQ(set->Field("Nome").ToText(), "ÁÉÍÓÚ");
    set->SetField("Nome", "Zé");
    EXPECT_EQ(set->Field("Nome").ToText(), "Zé");
}

TEST(MemoryRecordSet, KeepsTheOldValueWhereTheNewOneCannotBeUsed)
{
    const auto set = OpenCard();
    set->AddNew();
    set->SetField("Codigo", Long(7));
    for (const Value& value : {Value(""), Value("  "), Value("sete"), Value(3e9), Value(ObjectRef())})
        EXPECT_EQ(NumberOfFailure([&] { set->SetField("Codigo", value); }), -2147217887);
    EXPECT_EQ(set->Field("Codigo"), Value(Long(7)));
    EXPECT_EQ(NumberOfFailure([&] { set->SetField("Nome", ObjectRef()); }), -2147217887);
}

TEST(MemoryRecordSet, KeepsNullInEveryField)
{
    const auto set = OpenCard();
    set->AddNew();
    for (int field = 0; field < set->FieldCount(); ++field) {
        set->SetField(field, Null());
        EXPECT_TRUE(set->Field(field).IsNull());
    }
}

TEST(MemoryRecordSet, FailsOnAFieldThatIsNotThere)
{
    const auto set = OpenCard();
    set->AddNew();
    EXPECT_EQ(NumberOfFailure([&] { set->SetField("Outro", Long(1)); }), 3265);
    EXPECT_EQ(NumberOfFailure([&] { set->SetField(4, Long(1)); }), 3265);
}

TEST(MemoryRecordSet, SavesTheRowByAddingTheNextOneOrMoving)
{
    const auto set = OpenCard();
    set->AddNew();
    set->SetField("Codigo", Long(1));
    set->AddNew();
    set->SetField("Codigo", Long(2));
    set->MoveFirst();
    set->CancelUpdate();
    EXPECT_EQ(set->RecordCount(), 2);
    EXPECT_EQ(set->Field("Codigo").ToLong(), 1);
}

TEST(MemoryRecordSet, TakesBackAnAddedRowAndReturnsToTheFormerOne)
{
    MemoryRecordSet set({"Codigo"}, {{Long(1)}, {Long(2)}, {Long(3)}});
    set.MoveNext();
    set.AddNew();
    set.SetField("Codigo", Long(4));
    set.CancelUpdate();
    EXPECT_EQ(set.RecordCount(), 3);
    EXPECT_EQ(set.Field("Codigo").ToLong(), 2);
}

TEST(MemoryRecordSet, TakesBackTheOnlyRow)
{
    const auto set = OpenCard();
    set->AddNew();
    set->CancelUpdate();
    EXPECT_EQ(set->RecordCount(), 0);
    EXPECT_TRUE(set->Eof());
    EXPECT_TRUE(set->Bof());
}

TEST(MemoryRecordSet, HasNothingToSaveOrTakeBackWithoutACurrentRow)
{
    const auto refuses = [](MemoryRecordSet& set) {
        return NumberOfFailure([&] { set.Update(); }) == 3021
            && NumberOfFailure([&] { set.CancelUpdate(); }) == 3021;
    };
    const auto empty = OpenCard();
    EXPECT_TRUE(refuses(*empty));
    empty->AddNew();
    empty->CancelUpdate();
    EXPECT_TRUE(refuses(*empty));
    MemoryRecordSet set({"Codigo"}, {{Long(1)}, {Long(2)}});
    set.MovePrevious();
    EXPECT_TRUE(refuses(set));
    set.MoveLast();
    set.MoveNext();
    EXPECT_TRUE(refuses(set));
    set.MoveFirst();
    set.Update();
    set.CancelUpdate();
    EXPECT_EQ(set.Field("Codigo").ToLong(), 1);
}

TEST(MemoryRecordSet, TakesBackTheChangesOfARow)
{
    const auto set = OpenCard();
    set->AddNew();
    set->SetField("Codigo", Long(1));
    set->SetField("Nome", "Ana");
    set->Update();
    set->SetField("Codigo", Long(2));
    set->SetField("Nome", "Bia");
    set->CancelUpdate();
    EXPECT_EQ(set->Field("Codigo").ToLong(), 1);
    EXPECT_EQ(set->Field("Nome").ToText(), "Ana");
}

TEST(MemoryRecordSet, PutsANewRowAtTheEndOfASortedOne)
{
    MemoryRecordSet set({"N"}, {{Long(3)}, {Long(1)}});
    set.Sort("N");
    set.AddNew();
    set.SetField("N", Long(2));
    EXPECT_EQ(set.AbsolutePosition(), 3);
    set.CancelUpdate();
    EXPECT_EQ(set.Field("N").ToLong(), 1);
    set.AddRow({Long(0)});
    set.MoveLast();
    EXPECT_EQ(set.Field("N").ToLong(), 0);
}

TEST(MemoryRecordSet, FillsInBulkWithoutMoving)
{
    MemoryRecordSet set({"N"}, {{Long(1)}});
    set.MoveNext();
    set.AddRow({Long(2)});
    EXPECT_TRUE(set.Eof());
    set.MoveLast();
    EXPECT_EQ(set.Field("N").ToLong(), 2);
    EXPECT_EQ(NumberOfFailure([&] { set.AddRow({Long(1), Long(2)}); }), 5);
}

TEST(MemoryRecordSet, ConvertsInBulkAsItDoesOneByOne)
{
    const auto set = OpenCard();
    set->AddRow({"12", "Conceição"});
    EXPECT_EQ(set->Field("Codigo"), Value(Long(12)));
    EXPECT_EQ(set->Field("Nome").ToText(), "Conce");
    EXPECT_TRUE(set->Field("Livre").IsEmpty());
    EXPECT_EQ(NumberOfFailure([&] { set->AddRow({"doze"}); }), -2147217887);
    EXPECT_EQ(set->RecordCount(), 1);
}

TEST(MemoryRecordSet, IsOpenWhereItIsMadeOfRows)
{
    MemoryRecordSet set({"A", "B"}, {{"1", "2"}, {"3"}});
    EXPECT_EQ(set.State(), 1);
    EXPECT_EQ(set.RecordCount(), 2);
    EXPECT_EQ(set.Field("b").ToText(), "2");
    set.MoveNext();
    EXPECT_TRUE(set.Field("B").IsEmpty());
    EXPECT_EQ(NumberOfFailure([] { MemoryRecordSet({"A"}, {{"1", "2"}}); }), 5);
}

TEST(MemoryRecordSet, LosesRowsAndFieldsWhenClosed)
{
    const auto set = OpenCard();
    set->AddNew();
    set->Sort("Codigo");
    set->Close();
    EXPECT_EQ(set->State(), 0);
    EXPECT_EQ(set->FieldCount(), 0);
    EXPECT_EQ(NumberOfFailure([&] { set->Close(); }), 3704);
    set->Append("Nova", FieldType::Any);
    set->Open();
    EXPECT_EQ(set->RecordCount(), 0);
    EXPECT_EQ(set->Sort(), "");
}

} // namespace kova
