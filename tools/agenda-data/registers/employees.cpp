#include "tools/agenda-data/csv/import_of.hpp"

namespace kova::data {

namespace {

using family::EmployeeRow;
using Cols = ColumnsOf<EmployeeRow>;

const Columns<EmployeeRow>& EmployeeColumns()
{
    static const Columns<EmployeeRow> columns = {
        Cols::Code("Código", &EmployeeRow::codigo),
        Required(Cols::Text("Apelido", &EmployeeRow::apelido, 50)),
        Required(Cols::Text("Nome", &EmployeeRow::nome, 100)),
        Cols::Number("Agendamentos simultâneos", &EmployeeRow::agendamentosSimultaneos, 0, 999),
        Cols::OneOf("Situação", &EmployeeRow::situacao, ActiveOrNot),
    };
    return columns;
}

class EmployeeImport : public ImportOf<EmployeeRow> {
public:
    EmployeeImport(family::Database& database, DateTime) : ImportOf(database, EmployeeColumns()) { }

private:
    void Complete(EmployeeRow& row) const override { row.nomeDeBusca = family::FoldText(row.nome); }

    void LookUp(std::span<const EmployeeRow>) override
    {
        family::SelectRows<EmployeeRow>(GetDatabase(), [this](const EmployeeRow& row) { AddStored(row); });
    }

    std::vector<std::string> TraitsOf(const EmployeeRow& row) const override
    {
        return {family::FoldText(row.apelido) + "\n" + row.nomeDeBusca};
    }

    void WriteRecord(EmployeeRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }
};

} // namespace

const Register EmployeeRegister{
    "funcionarios",
    StartImport<EmployeeImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, EmployeeColumns(), sink); },
    EmployeeRow::Table,
};

} // namespace kova::data
