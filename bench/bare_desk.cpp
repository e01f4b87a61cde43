#include "bench/bare_desk.hpp"

#include "family/data/audit/short_names.hpp"
#include "family/data/engine/iso_text.hpp"

#include <stdexcept>

namespace kova::bench {

namespace {

/// What the server numbers.
constexpr const char *AppointmentKey = "numero", *AuditKey = "codigo";

BareRow OnlyRow(const ServerAnswer& answer)
{
    if (answer.RowCount() != 1)
        throw std::runtime_error("nothing is booked");
    BareRow row;
    for (int column = 0; column < answer.ColumnCount(); ++column) {
        std::optional<std::string>& value = row[answer.NameOf(column)];
        if (!answer.IsNull(0, column))
            value = answer.TextAt(0, column);
    }
    return row;
}

std::string Insertion(const std::string& table, const BareRow& row)
{
    std::string columns, marks;
    int number = 0;
    for (const auto& [column, value] : row) {
        columns += (columns.empty() ? "" : ", ") + column;
        marks += (marks.empty() ? "$" : ", $") + std::to_string(++number);
    }
    return "insert into " + table + " (" + columns + ") values (" + marks + ")";
}

std::vector<std::optional<std::string>> ValuesOf(const BareRow& row)
{
    std::vector<std::optional<std::string>> values;
    for (const auto& [column, value] : row)
        values.push_back(value);
    return values;
}

/// Replaces what a line of the audit keeps of a column of the appointment.
void Replace(std::string& line, const std::string& column, const std::string& value)
{
    const std::string beginning = family::BeginningsOf(column).front();
    const std::size_t start = line.find(beginning) + beginning.size();
    line.replace(start, line.find_first_of(",}", start) - start, value);
}

} // namespace

BareBooking BareBooking::Newest(const RawServer& server)
{
    return {OnlyRow(server.Run("select * from agendamento order by numero desc limit 1")),
            OnlyRow(server.Run("select * from auditoria order by codigo desc limit 1"))};
}

BareBooking BareBooking::WithoutKeys() const
{
    BareBooking without = *this;
    without.appointment.erase(AppointmentKey);
    without.audit.erase(AuditKey);
    without.audit.erase("chave");
    Replace(*without.audit.at("depois"), AppointmentKey, "0");
    return without;
}

BareDesk::BareDesk(const std::string& address, BareBooking model)
    : server_(address), booking_(std::move(model))
{
    booking_.appointment.erase(AppointmentKey);
    booking_.audit.erase(AuditKey);
    server_.Prepare("appointment", Insertion("agendamento", booking_.appointment) + " returning numero");
    server_.Prepare("audit", Insertion("auditoria", booking_.audit));
}

void BareDesk::Book(const Order& order)
{
    FillIn(order);
    server_.Run("begin");
    const ServerAnswer given = server_.RunPrepared("appointment", ValuesOf(booking_.appointment));
    const std::string number(given.TextAt(0, 0));
    booking_.audit["chave"] = number;
    Replace(*booking_.audit["depois"], AppointmentKey, number);
    server_.RunPrepared("audit", ValuesOf(booking_.audit));
    server_.Run("commit");
}

void BareDesk::FillIn(const Order& order)
{
    const auto set = [this](const char* column, const std::string& value, const char* quote) {
        booking_.appointment[column] = value;
        Replace(*booking_.audit["depois"], column, quote + value + quote);
    };
    for (const char* column : {"data_inicial", "data_final"})
        set(column, family::IsoDate(order.date), "\"");
    set("hora_inicial", order.start, "\"");
    set("hora_final", order.end, "\"");
    set("codigo_do_cliente", std::to_string(order.customer), "");
    set("codigo_do_animal", std::to_string(order.animal), "");
    set("codigo_do_funcionario", std::to_string(order.employee), "");
}

} // namespace kova::bench
