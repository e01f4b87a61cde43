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
    EmployeeImport(family::Database& database, DateTime) : ImportOf(database, EmployeeColumns())
    {
        family::SelectRows<EmployeeRow>(database, [&](const EmployeeRow& row) { AddStoredCode(row.codigo); });
    }

private:
    void CheckRecord(EmployeeRow&, Line&) override { }

    void WriteRecord(EmployeeRow& row, const family::Author& author) override
    {
        row.nomeDeBusca = family::FoldText(row.nome);
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
