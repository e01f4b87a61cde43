#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/csv/registers/appointment_checks.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/pre_sales.hpp"

namespace kova::family::csv {

namespace {

using family::AppointmentRow;
using family::PackageRow;
using family::PreSaleRow;
namespace pre_sale_status = family::pre_sale_status;

/// What an appointment without a number is told apart from others by. A day's are read with one statement.
struct KnownAppointment : AppointmentRow {
    static constexpr const char* FoundBy = "data_inicial";
    static constexpr std::size_t ValuesAtOnce = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("numero", numero);
        visit("data_inicial", dataInicial);
        visit("hora_inicial", horaInicial);
        visit("codigo_do_cliente", codigoDoCliente);
        visit("codigo_do_animal", codigoDoAnimal);
        visit("nome_do_cliente", nomeDoCliente);
        visit("nome_do_animal", nomeDoAnimal);
        visit("codigo_do_servico", codigoDoServico);
        visit("codigo_do_funcionario", codigoDoFuncionario);
    }
};

class AppointmentImport : public ImportOf<AppointmentRecord> {
public:
    AppointmentImport(family::Database& database, DateTime now)
        : ImportOf(database, AppointmentColumns()), checks_(database, now)
    {
    }

    void LockRoom() override { checks_.LockRoom(); }

private:
    void LookUp(std::span<const AppointmentRecord> records) override
    {
        checks_.LookUp(records);
        std::set<std::string> days;
        for (const AppointmentRecord& record : records) {
            if (CodeIn(record) == 0 && !record.dataInicial.empty())
                days.insert(record.dataInicial);
        }
        family::SelectWhere<KnownAppointment>(GetDatabase(), days, [this](const KnownAppointment& known) {
            AddStored({known, 0, {}});
        });
    }

    /// When, by whom, what, and for which animal.
    std::vector<std::string> TraitsOf(const AppointmentRecord& record) const override
    {
        const auto text = [](Key code) { return std::to_string(code) + "\n"; };
        return {record.dataInicial + " " + record.horaInicial + "\n" + text(record.codigoDoFuncionario)
                + text(record.codigoDoServico) + text(record.codigoDoCliente.ValueOr(0))
                + text(record.codigoDoAnimal.ValueOr(0)) + family::FoldText(record.nomeDoCliente) + "\n"
                + family::FoldText(record.nomeDoAnimal)};
    }

    void CheckRecord(AppointmentRecord& record, Line& line) override { checks_.Check(record, line); }

    void TakeRoom(const AppointmentRecord& record, Line& line) override { checks_.TakeRoom(record, line); }

    void WriteRecord(AppointmentRecord& record, const family::Author& author) override
    {
        checks_.Complete(record);
        if (record.incluidoEm.empty())
            record.incluidoEm = family::StampOfRow(GetDatabase(), author);
        if (record.incluidoPor.empty())
            record.incluidoPor = author.name;
        if (!record.codigoDoPacote.IsNull())
            RequirePackage(record, author);
        record.Compose();
        record.numero = family::AddRow<AppointmentRow>(GetDatabase(), record, author);
        if (record.situacao == family::appointment_status::PreSaleGenerated)
            WritePreSale(record, author);
    }

    void RequirePackage(const AppointmentRecord& record, const family::Author& author)
    {
        const Key package = record.codigoDoPacote.value;
        if (packages_.insert(package).second && !family::FindByKey<PackageRow>(GetDatabase(), package))
            WritePackage(record, author);
    }

    void WritePackage(const AppointmentRecord& record, const family::Author& author)
    {
        family::AddRow(GetDatabase(),
                       PackageRow{record.codigoDoPacote.value, record.codigoDoServico, record.incluidoEm,
                                  record.incluidoPor},
                       author);
    }

    void WritePreSale(const AppointmentRecord& record, const family::Author& author)
    {
        PreSaleRow preSale;
        preSale.numeroDoAgendamento = record.numero;
        preSale.valorEmCentavos = record.preSaleValue.ValueOr(checks_.PriceOf(record));
        preSale.situacao = record.preSaleStatus == 0 ? pre_sale_status::Open : record.preSaleStatus;
        preSale.criadaEm = record.alteradoEm.ValueOr(record.incluidoEm);
        family::AddRow(GetDatabase(), preSale, author);
    }

    AppointmentChecks checks_;
    /// Those that are known to be there.
    std::unordered_set<Key> packages_;
};

struct PreSaleOfAppointment : PreSaleRow {
    static constexpr const char* FoundBy = "numero_do_agendamento";
};

/// The pre-sales of those that have one, by their numbers.
std::unordered_map<Key, PreSaleRow> PreSalesOf(family::Database& database,
                                               const std::vector<AppointmentRow>& appointments)
{
    std::set<Key> numbers;
    for (const AppointmentRow& row : appointments) {
        if (row.situacao == family::appointment_status::PreSaleGenerated)
            numbers.insert(row.numero);
    }
    std::unordered_map<Key, PreSaleRow> preSales;
    family::SelectWhere<PreSaleOfAppointment>(database, numbers, [&](const PreSaleOfAppointment& row) {
        if (row.situacao != pre_sale_status::Cancelled)
            preSales[row.numeroDoAgendamento] = row;
    });
    return preSales;
}

void ExportAppointments(family::Database& database, const FieldsSink& sink)
{
    ExportNames(AppointmentColumns(), sink);
    family::SelectPages<AppointmentRow>(database, [&](const std::vector<AppointmentRow>& page) {
        const std::unordered_map<Key, PreSaleRow> preSales = PreSalesOf(database, page);
        for (const AppointmentRow& row : page) {
            AppointmentRecord record{row, 0, {}};
            if (const auto preSale = preSales.find(row.numero); preSale != preSales.end()) {
                record.preSaleStatus = preSale->second.situacao;
                record.preSaleValue = preSale->second.valorEmCentavos;
            }
            ExportRecord(AppointmentColumns(), record, sink);
        }
    });
}

} // namespace

const Register AppointmentRegister{
    "agendamentos",
    StartImport<AppointmentImport>,
    ExportAppointments,
    AppointmentRow::Table,
};

} // namespace kova::family::csv
