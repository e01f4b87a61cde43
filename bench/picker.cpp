// The customers' picker: filling it with every customer against a bare table model with the same texts, and
// the way from the lookup to the dialog's first rows against the search alone. Usage: bench_picker DATABASE
// dd/mm/yyyy

#include "agenda/contracts/support/memory_record_set.hpp"
#include "agenda/search/frmPesquisaDeClientes.hpp"
#include "agenda/shared/module_platform.hpp"
#include "bench/list_program.hpp"
#include "bench/measure.hpp"
#include "bench/paint_watch.hpp"
#include "family/business/registers/customers.hpp"

#include <QAbstractTableModel>
#include <QTableView>

#include <array>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 15;
constexpr double Limit = 3;
constexpr std::array Fields{"CodigoDoCliente",
                            "ApelidoOuNomeFantasia",
                            "NomeOuRazaoSocial",
                            "Situacao",
                            "EnderecoCompleto",
                            "TiposECanaisDeComunicacao",
                            "VIP",
                            "CategoriaDaCurvaABC"};
/// Everybody, and a part of the names of several thousand customers.
constexpr const char* Everybody = "";
constexpr const char* FrequentText = "mar";

RecordSetRef Search(const char* text)
{
    const ComponentRef customers = agenda::CreateObject(family::Customers::ClassName);
    const Value status = customers->Call(
        "Selecionar", {Long{2}, Integer{0}, Long{0}, text, "", Double{0}, "", "", "", Double{0}, ""});
    if (status.ToInteger() != 0)
        throw std::runtime_error(customers->Get("DescricaoDoErro").ToText());
    return customers->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
}

/// What a plain program keeps of the customers found.
class BareModel : public QAbstractTableModel {
public:
    using Row = std::array<QString, Fields.size()>;

    void Fill(RecordSet& records)
    {
        beginResetModel();
        rows_.clear();
        rows_.reserve(static_cast<std::size_t>(records.RecordCount()));
        for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
            Row& row = rows_.emplace_back();
            for (std::size_t field = 0; field < Fields.size(); ++field)
                row[field] = QString::fromStdString(records.Field(Fields[field]).ToText());
        }
        endResetModel();
    }
    int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(rows_.size()); }
    int columnCount(const QModelIndex& = {}) const override { return static_cast<int>(Fields.size()); }
    QVariant data(const QModelIndex& index, int role) const override
    {
        return role == Qt::DisplayRole
            ? QVariant(rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())])
            : QVariant();
    }

private:
    std::vector<Row> rows_;
};

void MeasureFill()
{
    // Both read a copy in memory: what is compared is the filling.
    const RecordSetRef found = Search(Everybody);
    const auto customers = CopyPage(*found, found->RecordCount());
    auto picker = agenda::frmPesquisaDeClientes::Criar();
    picker->ConfigurarGrade();
    BareModel model;
    QTableView view;
    view.setModel(&model);
    const Comparison fill = Alternate(
        Rounds, [&] { picker->PreencherGrade(*customers); }, [&] { model.Fill(*customers); });
    PrintLine("(i) picker filled with everybody", fill, "ms", Limit);
    PrintNote("(i) " + std::to_string(model.rowCount()) + " customers");
    if (picker->msfgGrade.Rows() - 1 != model.rowCount())
        throw std::runtime_error("the two do not hold the same rows");
    picker->Formulario->Unload();
}

void MeasureLookup()
{
    long long rows = 0;
    const auto search = [&] {
        const RecordSetRef found = Search(FrequentText);
        for (; !found->Eof(); found->MoveNext())
            for (const char* field : Fields)
                rows += static_cast<long long>(found->Field(field).ToText().size());
    };
    const auto lookUp = [&] {
        const RecordSetRef found = Search(FrequentText);
        auto picker = agenda::frmPesquisaDeClientes::Criar();
        picker->ConfigurarGrade();
        picker->PreencherGrade(*found);
        picker->Formulario->Show(ShowMode::Modeless);
        Settle();
        rows += picker->msfgGrade.Rows();
        picker->Formulario->Unload();
    };
    PrintLine("(i) lookup to first rows / search", Alternate(Rounds, lookUp, search), "ms", Limit);
    PrintNote("(i) the lookup finds " + std::to_string(Search(FrequentText)->RecordCount())
              + " customers with \"" + FrequentText + "\"" + (rows == 0 ? " (none)" : ""));
}

void Measure(const std::string& database, Date day)
{
    // The list gives the module its platform.
    const ListProgram program(database, day, QSize(1366, 768));
    MeasureFill();
    MeasureLookup();
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    return kova::bench::MeasureOnDay(count, words, "bench_picker", kova::bench::Measure);
}
