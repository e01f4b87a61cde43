#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

namespace {

class User : public Object { };

} // namespace

class Arguments : public BusinessTest {
protected:
    void WillFind(const std::vector<int>& numbers)
    {
        TheEngine().NextCallFinds(std::string(AgendaClass) + ".Selecionar", AppointmentRows(numbers));
    }

    ComponentRef agenda_ = Create(AgendaClass);
};
KOVA_OVER_EVERY_ENGINE(Arguments);

TEST_P(Arguments, OfAPagedSelectionAreTakenAsTheListHandsThemOver)
{
    WillFind(WholeDay());
    Integer pageRows = 3;
    const Value status = agenda_->Call(
        "Selecionar", {Long(1), ByRef(pageRows), Long(0), "", BusyDay, Long(0), Long(0), Double(0)});
    EXPECT_EQ(status.ToLong(), 0);
    EXPECT_EQ(pageRows, 3);
    EXPECT_EQ(ResultOf(*agenda_)->PageSize(), 3);
}

TEST_P(Arguments, OfAWholeSelectionAreTakenAsPrintingHandsThemOver)
{
    WillFind(WholeDay());
    Text date = BusyDay;
    const Value status = agenda_->Call(
        "Selecionar", {Long(2), Integer(0), Long(0), "", ByRef(date), Long(0), Long(0), Long(0)});
    EXPECT_EQ(status.ToLong(), 0);
    EXPECT_EQ(date, BusyDay);
    EXPECT_EQ(NumbersOf(*ResultOf(*agenda_)), WholeDay());
}

TEST_P(Arguments, ByValueAreTakenWhereAReferenceIsUsual)
{
    Select(*agenda_, {.mode = 1, .pageRows = 3}, WholeDay());
    EXPECT_EQ(ResultOf(*agenda_)->PageSize(), 3);
    EXPECT_NO_THROW(agenda_->Call("PaginarResultadoDaSelecaoEmRecordset", {Integer(3), Value(ObjectRef())}));
    for (const char* name : {TypesClass, EmployeesClass}) {
        const Rows rows = name == TypesClass ? TypeRows() : EmployeeRows();
        TheEngine().NextCallFinds(std::string(name) + ".SelecionarParaComboBox", rows);
        const ComponentRef object = Create(name);
        EXPECT_EQ(object->Call("SelecionarParaComboBox", {Double(0)}).ToLong(), 0) << name;
        EXPECT_EQ(ResultOf(*object)->RecordCount(), 2) << name;
    }
}

TEST_P(Arguments, ByReferenceAreTakenWhereAValueIsUsual)
{
    WillFind({3});
    Long mode = 2, status = 2, type = 1, employee = 1;
    Integer pageRows = 0;
    Text text, date = BusyDay;
    Double transport = 0;
    EXPECT_EQ(agenda_
                  ->Call("Selecionar",
                         {ByRef(mode), ByRef(pageRows), ByRef(status), ByRef(text), ByRef(date), ByRef(type),
                          ByRef(employee), ByRef(transport)})
                  .ToLong(),
              0);
    EXPECT_EQ(NumbersOf(*ResultOf(*agenda_)), (std::vector<int>{3}));
}

TEST_P(Arguments, OfTheComboFillsKeepTheCallersFilter)
{
    for (const char* name : {TypesClass, EmployeesClass}) {
        Double filter = 0;
        TheEngine().NextCallFinds(std::string(name) + ".SelecionarParaComboBox",
                                  name == TypesClass ? TypeRows() : EmployeeRows());
        const ComponentRef object = Create(name);
        EXPECT_EQ(object->Call("SelecionarParaComboBox", {ByRef(filter)}).ToLong(), 0) << name;
        EXPECT_EQ(filter, 0) << name;
    }
}

TEST_P(Arguments, OfPagingReceiveThePageInAnObjectVariable)
{
    PagedDay(*agenda_, 3);
    Integer pageRows = 3;
    ObjectRef page;
    const Value answer =
        agenda_->Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(pageRows), ByRef(page)});
    EXPECT_TRUE(answer.IsEmpty());
    EXPECT_EQ(pageRows, 3);
    ASSERT_NE(std::dynamic_pointer_cast<RecordSet>(page), nullptr);
    EXPECT_NE(page, ResultOf(*agenda_));
}

TEST_P(Arguments, OfPagingReceiveThePageInAVariableOfAnyType)
{
    PagedDay(*agenda_, 3);
    Integer pageRows = 3;
    Value page = "nada";
    agenda_->Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(pageRows), ByRef(page)});
    EXPECT_EQ(page.ToObject<RecordSet>()->RecordCount(), 3);
}

TEST_P(Arguments, OfPagingReplaceThePageThatTheVariableHeld)
{
    const RecordSetRef day = PagedDay(*agenda_, 3);
    Integer pageRows = 3;
    ObjectRef page;
    agenda_->Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(pageRows), ByRef(page)});
    const ObjectRef former = page;
    day->AbsolutePage(2);
    agenda_->Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(pageRows), ByRef(page)});
    EXPECT_NE(page, former);
    EXPECT_EQ(NumbersOf(*Value(former).ToObject<RecordSet>()), (std::vector<int>{5, 1, 2}));
    EXPECT_EQ(NumbersOf(*Value(page).ToObject<RecordSet>()), (std::vector<int>{3, 4, 6}));
}

TEST_P(Arguments, OfTransportMeanTheSameAsADoubleAndAsALong)
{
    const std::vector<std::vector<int>> found = {WholeDay(), {2}, {5, 2}, {2, 6}};
    for (Long filter = 0; filter < 4; ++filter) {
        const std::vector<int>& numbers = found[static_cast<std::size_t>(filter)];
        for (const Value& transport : {Value(filter), Value(Double(filter)), Value(Integer(filter))})
            EXPECT_EQ(NumbersOf(*Selected({.transport = transport}, numbers)), numbers)
                << filter << " as " << NameOf(transport.GetType());
    }
}

TEST_P(Arguments, OfAWriteTakeTheUsersObject)
{
    EXPECT_NO_THROW(agenda_->Set("DadosDoUsuario", std::make_shared<User>()));
}

} // namespace kova::conformance
