// Bookings a second from eight desks on one server through the business component, called by name, against
// processes that insert the same rows through the server's client library. Usage: bench_bookings ADDRESS

#include "bench/bare_desk.hpp"
#include "bench/booking_host.hpp"
#include "bench/desks.hpp"
#include "bench/measure.hpp"
#include "family/data/sources/shared_database.hpp"

#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Desks = 8, BookingsOfDesk = 100, Rounds = 9;
constexpr double Limit = 2;

/// Sets what the record form sets for a new appointment, and has it added.
void BookByName(BookingHost& host, const Order& order)
{
    family::Agenda agenda(host);
    const std::pair<const char*, Value> properties[] = {
        {"Situacao", Integer(1)},
        {"CodigoDoFuncionario", static_cast<Long>(order.employee)},
        {"DataInicial", FormatDate(order.date)},
        {"HoraInicial", order.start},
        {"DataFinal", FormatDate(order.date)},
        {"HoraFinal", order.end},
        {"CodigoDoServico", Double(8)},
        {"CodigoDoCliente", static_cast<Double>(order.customer)},
        {"CodigoDoAnimal", static_cast<Long>(order.animal)},
        {"NumeroDoTipoDeServico", Long(4)},
        {"Observacao", "Laço azul."},
        {"TransporteBuscar", Long(-1)},
        {"TransporteLevar", Long(0)},
        {"CriadaListaDasDatasEHorasSelecionadas", false},
        {"QuantidadeDeReagendamentos", Long(0)},
        {"FrequenciaDeReagendamento", Integer(-1)},
        {"TipoDoAgendamento", Long(0)},
        {"DadosValidados", false},
        {"DomingoOuFeriado", false},
        {"DadosDoUsuario", host.User()},
    };
    for (const auto& [name, value] : properties)
        agenda.Set(name, value);
    if (agenda.Call("Adicionar").ToInteger() != 0)
        throw std::runtime_error(agenda.Get("NomeDoCampoValidado").ToText() + ": "
                                 + agenda.Get("DescricaoDaFalha").ToText()
                                 + agenda.Get("DescricaoDoErro").ToText());
}

/// The desks' next orders; each desk books one of them before the time begins, which prepares its statements.
class Race {
public:
    Race(const std::string& address, OrderBook& orders) : address_(address), orders_(orders) { }

    /// Bookings a second.
    double ByName()
    {
        TakeOrders();
        return Rate([this](int desk) -> DeskWork {
            const auto host = std::make_shared<BookingHost>(address_);
            return BookAll(desk, [host](const Order& order) { BookByName(*host, order); });
        });
    }
    double Bare(const BareBooking& model)
    {
        TakeOrders();
        return Rate([this, &model](int desk) -> DeskWork {
            const auto bare = std::make_shared<BareDesk>(address_, model);
            return BookAll(desk, [bare](const Order& order) { bare->Book(order); });
        });
    }

private:
    void TakeOrders()
    {
        taken_.clear();
        for (int desk = 0; desk < Desks; ++desk)
            taken_.push_back(orders_.Take(desk, 1 + BookingsOfDesk));
    }

    DeskWork BookAll(int desk, const std::function<void(const Order&)>& book) const
    {
        const std::vector<Order>& orders = taken_[static_cast<std::size_t>(desk)];
        book(orders.front());
        return [&orders, book] {
            for (auto order = orders.begin() + 1; order != orders.end(); ++order)
                book(*order);
        };
    }

    static double Rate(const PrepareDesk& prepare)
    {
        return Desks * BookingsOfDesk / SecondsOfDesks(Desks, prepare);
    }

    const std::string address_;
    OrderBook& orders_;
    std::vector<std::vector<Order>> taken_;
};

/// One booking by the component, to which that of the floor has to be equal.
BareBooking BookModel(const std::string& address, const RawServer& server, const Order& order)
{
    BookingHost host(address);
    BookByName(host, order);
    family::CloseSharedDatabases();
    BareBooking model = BareBooking::Newest(server);
    BareDesk(address, model).Book(order);
    if (BareBooking::Newest(server).WithoutKeys() != model.WithoutKeys())
        throw std::runtime_error("the two do not write the same rows");
    return model;
}

void Measure(const std::string& address)
{
    const RawServer server(address);
    OrderBook orders(server, Desks);
    const BareBooking model = BookModel(address, server, orders.Take(0, 1).front());
    Race race(address, orders);
    std::vector<double> byName, bare;
    for (int round = 0; round < Rounds; ++round) {
        byName.push_back(race.ByName());
        bare.push_back(race.Bare(model));
    }
    PrintRates("(k) bookings from 8 desks", {Median(byName), Median(bare)}, "/s", Limit);
    PrintNote("(k) " + std::to_string(Desks) + " desks, " + std::to_string(BookingsOfDesk)
              + " bookings each, " + std::to_string(Rounds) + " rounds; fsync is "
              + std::string(server.Run("show fsync").TextAt(0, 0)) + ", synchronous_commit "
              + std::string(server.Run("show synchronous_commit").TextAt(0, 0)));
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: bench_bookings ADDRESS" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_bookings: " << failure.what() << std::endl;
        return 1;
    }
}
