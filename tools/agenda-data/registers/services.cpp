#include "tools/agenda-data/csv/import_of.hpp"

namespace kova::data {

namespace {

using family::ServiceRow;
using family::ServiceTypeRow;
using Cols = ColumnsOf<ServiceRow>;

constexpr const char* TypeColumn = "Número do tipo";
constexpr int MinutesOfADay = 24 * 60;

const Columns<ServiceRow>& ServiceColumns()
{
    static const Columns<ServiceRow> columns = {
        Cols::Code("Código", &ServiceRow::codigo),
        Required(Cols::Text("Nome", &ServiceRow::nome, 100)),
        Cols::Text("Descrição", &ServiceRow::descricao, 255),
        Required(Cols::Code(TypeColumn, &ServiceRow::numeroDoTipo)),
        Required(Cols::Number("Duração em minutos", &ServiceRow::duracaoEmMinutos, 1, MinutesOfADay)),
        Required(Cols::Money("Preço", &ServiceRow::precoEmCentavos)),
        Cols::Money("Custo", &ServiceRow::custoEmCentavos),
        Cols::Number("Sessões", &ServiceRow::quantidadeDeSessoes, 1, 999),
        Cols::OneOf("Situação", &ServiceRow::situacao, ActiveOrNot),
    };
    return columns;
}

class ServiceImport : public ImportOf<ServiceRow> {
public:
    ServiceImport(family::Database& database, DateTime) : ImportOf(database, ServiceColumns())
    {
        family::SelectRows<ServiceTypeRow>(database,
                                           [&](const ServiceTypeRow& row) { types_.insert(row.numero); });
    }

private:
    void Complete(ServiceRow& row) const override { row.nomeDeBusca = family::FoldText(row.nome); }

    void LookUp(std::span<const ServiceRow>) override
    {
        family::SelectRows<ServiceRow>(GetDatabase(), [this](const ServiceRow& row) { AddStored(row); });
    }

    std::vector<std::string> TraitsOf(const ServiceRow& row) const override
    {
        return {std::to_string(row.numeroDoTipo) + "\n" + row.nomeDeBusca};
    }

    void CheckRecord(ServiceRow& row, Line& line) override
    {
        if (row.numeroDoTipo != 0 && types_.count(row.numeroDoTipo) == 0)
            line.Refuse(TypeColumn, std::to_string(row.numeroDoTipo),
                        "não há tipo de serviço com este número.");
    }

    void WriteRecord(ServiceRow& row, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), row, author);
    }

    std::unordered_set<Key> types_;
};

} // namespace

const Register ServiceRegister{
    "servicos",
    StartImport<ServiceImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, ServiceColumns(), sink); },
    ServiceRow::Table,
};

} // namespace kova::data
