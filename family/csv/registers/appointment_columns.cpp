#include "family/csv/registers/appointment_columns.hpp"

#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/pre_sales.hpp"

namespace kova::family::csv {

namespace {

using family::AppointmentRow;
using family::registers::Choice;
using family::registers::Column;
using Cols = family::registers::ColumnsOf<AppointmentRecord>;
namespace status = family::appointment_status;
namespace name = appointment_columns;

constexpr Choice Statuses[] = {
    {status::Booked, "Agendado"},
    {status::Attended, "Atendido"},
    {status::Cancelled, "Cancelado"},
    {status::PreSaleGenerated, "Pré-venda gerada"},
};
constexpr Choice PreSaleStatuses[] = {
    {family::pre_sale_status::Open, "Aberta"},
    {family::pre_sale_status::Billed, "Faturada"},
};

Column<AppointmentRecord> PreSaleStatus()
{
    Column<AppointmentRecord> column =
        Cols::OneOf(name::PreSale, &AppointmentRecord::preSaleStatus, PreSaleStatuses);
    column.write = [](const AppointmentRecord& record) {
        return record.preSaleStatus == 0
            ? ""
            : family::registers::WriteChoice(record.preSaleStatus, PreSaleStatuses);
    };
    return column;
}

} // namespace

const family::registers::Columns<AppointmentRecord>& AppointmentColumns()
{
    static const family::registers::Columns<AppointmentRecord> columns = {
        Cols::Code(name::Number, &AppointmentRow::numero),
        Required(Cols::Date("Data inicial", &AppointmentRow::dataInicial)),
        Required(Cols::Time(name::StartTime, &AppointmentRow::horaInicial)),
        Cols::Date("Data final", &AppointmentRow::dataFinal),
        Required(Cols::Time(name::EndTime, &AppointmentRow::horaFinal)),
        Cols::Code(name::Customer, &AppointmentRow::codigoDoCliente),
        Cols::Code(name::Animal, &AppointmentRow::codigoDoAnimal),
        Cols::Text(name::CustomerName, &AppointmentRow::nomeDoCliente, 100),
        Cols::Text(name::Channels, &AppointmentRow::canaisDoCliente, 50),
        Cols::Text(name::AnimalName, &AppointmentRow::nomeDoAnimal, 100),
        Cols::Text(name::Sex, &AppointmentRow::sexoDoAnimal, 50),
        Cols::Text(name::Species, &AppointmentRow::especieDoAnimal, 50),
        Cols::Text(name::Breed, &AppointmentRow::racaDoAnimal, 50),
        Cols::Text(name::Colour, &AppointmentRow::corDoAnimal, 50),
        Required(Cols::Code(name::Service, &AppointmentRow::codigoDoServico)),
        Cols::Code(name::ServiceType, &AppointmentRow::numeroDoTipoDeServico),
        Required(Cols::Code(name::Employee, &AppointmentRow::codigoDoFuncionario)),
        Cols::Code("Código do pacote", &AppointmentRow::codigoDoPacote),
        Cols::Text("Observação", &AppointmentRow::observacao, 100),
        Cols::YesNo("Buscar", &AppointmentRow::transporteBuscar),
        Cols::YesNo("Levar", &AppointmentRow::transporteLevar),
        Cols::OneOf(name::Status, &AppointmentRow::situacao, Statuses),
        PreSaleStatus(),
        Cols::Money(name::PreSaleValue, &AppointmentRecord::preSaleValue),
        Cols::Moment("Incluído em", &AppointmentRow::incluidoEm),
        Cols::Text("Incluído por", &AppointmentRow::incluidoPor, 100),
        Cols::Moment("Alterado em", &AppointmentRow::alteradoEm),
        Cols::Text("Alterado por", &AppointmentRow::alteradoPor, 100),
    };
    return columns;
}

} // namespace kova::family::csv
