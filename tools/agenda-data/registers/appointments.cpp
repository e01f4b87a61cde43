#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/pre_sales.hpp"
#include "tools/agenda-data/csv/import_of.hpp"
#include "tools/agenda-data/registers/appointment_checks.hpp"

namespace kova::data {

namespace {

using family::AppointmentRow;
using family::PackageRow;
using family::PreSaleRow;
namespace pre_sale_status = family::pre_sale_status;

struct KnownAppointment {
    static constexpr const char* Table = AppointmentRow::Table;
    Key number = 0;

    template <class Visit> void Columns(Visit visit) { visit("numero", number); }
};

class AppointmentImport : public ImportOf<AppointmentRecord> {
public:
    AppointmentImport(family::Database& database, DateTime now)
        : ImportOf(database, AppointmentColumns()), checks_(database, now)
    {
        family::SelectRows<KnownAppointment>(
            database, [&](const KnownAppointment& known) { AddStoredCode(known.number); });
        family::SelectRows<PackageRow>(database,
                                       [&](const PackageRow& row) { packages_.insert(row.codigo); });
    }

private:
    void CheckRecord(AppointmentRecord& record, Line& line) override { checks_.Check(record, line); }

    void WriteRecord(AppointmentRecord& record, const family::Author& author) override
    {
        checks_.Complete(record);
        if (record.incluidoEm.empty())
            record.incluidoEm = author.moment;
        if (record.incluidoPor.empty())
            record.incluidoPor = author.name;
        if (!record.codigoDoPacote.IsNull() && packages_.insert(record.codigoDoPacote.value).second)
            WritePackage(record, author);
        record.Compose();
        record.numero = family::AddRow<AppointmentRow>(GetDatabase(), record, author);
        if (record.situacao == family::appointment_status::PreSaleGenerated)
            WritePreSale(record, author);
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
    std::unordered_set<Key> packages_;
};

void ExportAppointments(family::Database& database, const FieldsSink& sink)
{
    std::unordered_map<Key, PreSaleRow> preSales;
    family::SelectRows<PreSaleRow>(database, [&](const PreSaleRow& row) {
        if (row.situacao != pre_sale_status::Cancelled)
            preSales[row.numeroDoAgendamento] = row;
    });
    ExportNames(AppointmentColumns(), sink);
    family::SelectRows<AppointmentRow>(database, [&](const AppointmentRow& row) {
        AppointmentRecord record{row, 0, {}};
        const auto preSale = preSales.find(row.numero);
        if (preSale != preSales.end() && row.situacao == family::appointment_status::PreSaleGenerated) {
            record.preSaleStatus = preSale->second.situacao;
            record.preSaleValue = preSale->second.valorEmCentavos;
        }
        ExportRecord(AppointmentColumns(), record, sink);
    });
}

} // namespace

const Register AppointmentRegister{
    "agendamentos",
    StartImport<AppointmentImport>,
    ExportAppointments,
    AppointmentRow::Table,
};

} // namespace kova::data
