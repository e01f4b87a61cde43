#include "tests/conformance/business/suite.hpp"

namespace kova::conformance {

Value BusinessTest::Select(Component& agenda, const DayRequest& request, const std::vector<int>& finds)
{
    TheEngine().NextCallFinds(std::string(AgendaClass) + ".Selecionar", AppointmentRows(finds));
    return agenda.Call("Selecionar",
                       {request.mode, request.pageRows, request.status, request.text, request.date,
                        request.type, request.employee, request.transport});
}

RecordSetRef BusinessTest::Selected(const DayRequest& request, const std::vector<int>& finds)
{
    const ComponentRef agenda = Create(AgendaClass);
    EXPECT_EQ(Select(*agenda, request, finds).ToLong(), 0);
    return ResultOf(*agenda);
}

RecordSetRef BusinessTest::PagedDay(Component& agenda, Integer pageRows)
{
    EXPECT_EQ(Select(agenda, {.mode = 1, .pageRows = pageRows}, WholeDay()).ToLong(), 0);
    return ResultOf(agenda);
}

RecordSetRef BusinessTest::Page(Component& agenda, Integer pageRows)
{
    ObjectRef page;
    agenda.Call("PaginarResultadoDaSelecaoEmRecordset", {ByRef(pageRows), ByRef(page)});
    return Value(page).ToObject<RecordSet>();
}

Value BusinessTest::Ask(const std::string& className, const std::string& member, Component& component,
                        const Rows& finds, std::vector<Argument> arguments)
{
    TheEngine().NextCallFinds(className + "." + member, finds);
    return component.Call(member, std::move(arguments));
}

Value BusinessTest::Fill(const std::string& className, Component& component, const Rows& finds)
{
    Double all = 0, species = 1;
    const auto ask = [&](const char* member, std::vector<Argument> arguments) {
        return Ask(className, member, component, finds, std::move(arguments));
    };
    if (className == CompanyClass)
        return ask("SelecionarNova", {Long(2), Integer(0), Long(1), ""});
    if (className == ServicesClass)
        return ask("Selecionar", {Long(2), Integer(0), Long(1), "", Long(0)});
    if (className == CustomersClass)
        return ask("Selecionar",
                   {Long(2), Integer(0), Long(0), "", "", Double(0), "", "", "", Double(0), ""});
    if (className == AnimalsClass)
        return ask("Selecionar", {Long(2), Integer(0), Long(1), "", Integer(1), Double(0)});
    if (className == HolidaysClass)
        return ask("Selecionar", {Long(2), Integer(0), Long(0), YearlyHoliday::Day});
    if (className == BreedsClass)
        return ask("SelecionarParaComboBox", {ByRef(species), ByRef(all)});
    return ask("SelecionarParaComboBox", {ByRef(all)});
}

const std::vector<int>& WholeDay()
{
    static const std::vector<int> numbers = {5, 1, 2, 3, 4, 6, 7};
    return numbers;
}

const std::vector<Register>& AllRegisters()
{
    static const std::vector<Register> registers = {
        {TypesClass, TypeRows()},
        {EmployeesClass, EmployeeRows()},
        {CompanyClass, CompanyRows()},
        {SpeciesClass, SpeciesRows()},
        {BreedsClass, BreedRows()},
        {ServicesClass, ServiceRows({2, 1})},
        {CustomersClass, CustomerRows({11, 10})},
        {AnimalsClass, AnimalRows({51, 50})},
        {HolidaysClass, HolidayRows()},
    };
    return registers;
}

RecordSetRef ResultOf(Component& component)
{
    return component.Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
}

std::vector<int> NumbersOf(RecordSet& records)
{
    std::vector<int> numbers;
    if (records.RecordCount() > 0)
        records.MoveFirst();
    for (; !records.Eof(); records.MoveNext())
        numbers.push_back(records.Field("NumeroDeLancamento").ToLong());
    return numbers;
}

Rows ContentOf(RecordSet& records)
{
    Rows content;
    for (int field = 0; field < records.FieldCount(); ++field)
        content.fields.push_back(records.FieldName(field));
    if (records.RecordCount() > 0)
        records.MoveFirst();
    for (; !records.Eof(); records.MoveNext()) {
        auto& row = content.rows.emplace_back();
        for (const Text& field : content.fields)
            row.push_back(records.Field(field));
    }
    return content;
}

void ExpectSame(const Rows& actual, const Rows& expected)
{
    ASSERT_EQ(actual.fields, expected.fields);
    ASSERT_EQ(actual.rows.size(), expected.rows.size());
    for (std::size_t row = 0; row < actual.rows.size(); ++row)
        for (std::size_t field = 0; field < actual.fields.size(); ++field) {
            const Value& value = actual.rows[row][field];
            EXPECT_EQ(value, expected.rows[row][field])
                << actual.fields[field] << " of row " << row << " is " << NameOf(value.GetType()) << " "
                << (value.IsNull() ? Text() : value.ToText());
        }
}

} // namespace kova::conformance
