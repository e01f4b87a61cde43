#include "family/demo/appointments.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/demo/day_book.hpp"
#include "family/demo/words.hpp"

#include <algorithm>
#include <optional>

namespace kova::family {

namespace {

constexpr int Opens = 8 * 60;
constexpr int Closes = 19 * 60;
constexpr const char* Users[] = {"Recepção", "Carla", "Marcos"};

/// Who gives a service, and from which minute of the day on.
struct Room {
    const ShopEmployee* employee;
    int start;
};

/// A later session of a package, already agreed.
struct Session {
    AppointmentRow row;
    Room room;
};

class AppointmentWriter {
public:
    AppointmentWriter(Database& database, const ShopRegisters& registers,
                      const std::vector<ShopCustomer>& customers, const AppointmentPlan& plan, Random& random)
        : database_(database), registers_(registers), customers_(customers), plan_(plan), random_(random)
    {
    }

    void WriteAll()
    {
        for (Long day = 0; plan_.days > 0 ? day < plan_.days : written_ < plan_.total; ++day)
            WriteDay(AddDays(plan_.firstDay, day));
    }

private:
    void WriteDay(Date date)
    {
        date_ = date;
        book_.Clear();
        const int usual = Weekday(date) == 1 ? plan_.perDay / 4 : plan_.perDay;
        int left = usual + random_.Between(-usual / 10, usual / 10);
        if (plan_.days == 0)
            left = static_cast<int>(std::min<long long>(left, plan_.total - written_));
        left -= WriteAgreedSessions(left);
        while (left-- > 0)
            WriteNew();
    }

    int WriteAgreedSessions(int most)
    {
        const auto agreed = sessions_.find(DayNumber(date_));
        if (agreed == sessions_.end())
            return 0;
        int count = 0;
        for (Session& session : agreed->second) {
            const int end = session.room.start + ServiceOf(session.row).duracaoEmMinutos;
            if (count == most || !book_.Book(session.room.employee->row, session.room.start, end))
                continue;
            Write(session.row, session.room.start, end);
            ++count;
        }
        sessions_.erase(agreed);
        return count;
    }

    /// A day on which nobody has room any more gets one appointment less.
    void WriteNew()
    {
        for (int attempt = 0; attempt < 50; ++attempt) {
            const ServiceRow& service = PickService();
            if (const std::optional<Room> room = FindRoom(service)) {
                WriteNew(service, *room);
                return;
            }
        }
    }

    void WriteNew(const ServiceRow& service, const Room& room)
    {
        AppointmentRow row;
        row.codigoDoServico = service.codigo;
        row.numeroDoTipoDeServico = service.numeroDoTipo;
        row.codigoDoFuncionario = room.employee->row.codigo;
        const bool isPackage = !service.quantidadeDeSessoes.IsNull();
        if (isPackage || random_.Chance(88))
            GiveCustomer(row);
        else
            GiveTypedTexts(row);
        if (service.numeroDoTipo >= 4 && row.tipoDoAgendamento == 0) {
            row.transporteBuscar = random_.Chance(25) ? 1 : 0;
            row.transporteLevar = random_.Chance(25) ? 1 : 0;
        }
        if (isPackage)
            AgreeSessions(row, room, service.quantidadeDeSessoes.value);
        Write(row, room.start, room.start + service.duracaoEmMinutos);
    }

    const ServiceRow& ServiceOf(const AppointmentRow& row) const
    {
        return registers_.services[static_cast<std::size_t>(row.codigoDoServico - 1)];
    }

    const ServiceRow& PickService()
    {
        for (;;) {
            const ServiceRow& service = random_.Pick(std::span<const ServiceRow>(registers_.services));
            // Packages are sold less often than single visits.
            const bool rare = !service.quantidadeDeSessoes.IsNull();
            if (service.situacao == 1 && (!rare || random_.Chance(20)))
                return service;
        }
    }

    /// Only active customers book ahead; the past keeps those that are no longer active.
    void GiveCustomer(AppointmentRow& row)
    {
        const ShopCustomer* customer = nullptr;
        do
            customer = &random_.Pick(std::span<const ShopCustomer>(customers_));
        while (!customer->HasAnimals() || (customer->situation != 1 && date_ >= plan_.today));
        row.codigoDoCliente = customer->code;
        const int animals = static_cast<int>(customer->lastAnimal - customer->firstAnimal);
        row.codigoDoAnimal = customer->firstAnimal + random_.Between(0, animals);
    }

    void GiveTypedTexts(AppointmentRow& row)
    {
        row.tipoDoAgendamento = 1;
        row.nomeDoCliente = PersonName(random_);
        row.canaisDoCliente = MobileNumber(random_);
        const bool female = random_.Chance(50);
        row.nomeDoAnimal = random_.Pick(female ? words::FemaleAnimals() : words::MaleAnimals());
        row.sexoDoAnimal = female ? "F" : "M";
        const BreedRow& breed = random_.Pick(std::span<const BreedRow>(registers_.breeds));
        row.racaDoAnimal = breed.nome;
        row.especieDoAnimal = registers_.species[static_cast<std::size_t>(breed.codigoDaEspecie - 1)].nome;
        row.corDoAnimal = random_.Pick(words::Colours());
    }

    /// Tries moments and employees at random.
    std::optional<Room> FindRoom(const ServiceRow& service)
    {
        const int quarters = (Closes - Opens - service.duracaoEmMinutos) / 15;
        for (int attempt = 0; attempt < 40; ++attempt) {
            const Room room{&PickEmployee(service.numeroDoTipo), Opens + 15 * random_.Between(0, quarters)};
            if (book_.Book(room.employee->row, room.start, room.start + service.duracaoEmMinutos))
                return room;
        }
        return std::nullopt;
    }

    const ShopEmployee& PickEmployee(Key serviceType)
    {
        for (;;) {
            const ShopEmployee& employee = random_.Pick(std::span<const ShopEmployee>(registers_.employees));
            if (employee.row.situacao == 1 && employee.trade == TradeOf(serviceType))
                return employee;
        }
    }

    void AgreeSessions(AppointmentRow& row, const Room& room, int sessions)
    {
        const PackageRow package{++lastPackage_, row.codigoDoServico, BookedAt(), PickUser()};
        Insert(database_, package);
        row.codigoDoPacote = package.codigo;
        for (int week = 1; week < sessions; ++week)
            sessions_[DayNumber(date_) + 7 * week].push_back({row, room});
    }

    void Write(AppointmentRow& row, int start, int end)
    {
        row.numero = ++written_;
        row.dataInicial = row.dataFinal = IsoDate(date_);
        row.horaInicial = ShownDuration(start);
        row.horaFinal = ShownDuration(end);
        row.situacao = PickStatus(row, start);
        row.observacao = {};
        if (random_.Chance(30))
            row.observacao = std::string(random_.Pick(words::AppointmentRemarks()));
        row.incluidoEm = BookedAt();
        row.incluidoPor = PickUser();
        if (row.situacao != 1 || random_.Chance(10)) {
            row.alteradoEm = IsoMoment({std::min(date_, plan_.today), {start / 60, 30, random_.Below(60)}});
            row.alteradoPor = PickUser();
        }
        row.Compose();
        Insert(database_, row);
        if (row.situacao == 4)
            WritePreSale(row);
        if (plan_.audited)
            WriteAudit(row);
    }

    /// What the desk has left that booked it, and the one that changed it.
    void WriteAudit(const AppointmentRow& row)
    {
        AppointmentRow booked = row;
        booked.situacao = 1;
        booked.alteradoEm = booked.alteradoPor = {};
        const Author author{"1", row.incluidoPor, row.incluidoEm, "BALCAO"};
        AuditInsertion(database_, author, AppointmentRow::Table, row.numero, ValuesOf(booked));
        if (row.alteradoEm.IsNull())
            return;
        const Author changer{"1", row.alteradoPor.value, row.alteradoEm.value, "BALCAO"};
        AuditValues before, after;
        before.Add("situacao", booked.situacao).Add("alterado_em", booked.alteradoEm);
        after.Add("situacao", row.situacao).Add("alterado_em", row.alteradoEm);
        AuditChange(database_, changer, AppointmentRow::Table, row.numero, before, after);
    }

    /// What lies before today is over, today is over until noon, the rest is to come.
    int PickStatus(const AppointmentRow& row, int start)
    {
        if (random_.Chance(8))
            return 3;
        const bool over = date_ < plan_.today || (date_ == plan_.today && start < 12 * 60);
        if (!over)
            return 1;
        const bool sells = row.numeroDoTipoDeServico >= 4 && row.tipoDoAgendamento == 0;
        return sells && random_.Chance(60) ? 4 : 2;
    }

    void WritePreSale(const AppointmentRow& row)
    {
        const bool billed = date_ < AddDays(plan_.today, -7);
        Insert(database_,
               PreSaleRow{++lastPreSale_, row.numero, ServiceOf(row).precoEmCentavos, billed ? 3 : 1,
                          row.alteradoEm.value});
    }

    std::string BookedAt()
    {
        const Date latest = std::min(date_, plan_.today);
        const Date day = AddDays(latest, -random_.Between(1, 20));
        return IsoMoment({day, {random_.Between(8, 18), random_.Below(60), random_.Below(60)}});
    }

    std::string PickUser() { return random_.Pick(std::span<const char* const>(Users)); }

    Database& database_;
    const ShopRegisters& registers_;
    const std::vector<ShopCustomer>& customers_;
    const AppointmentPlan& plan_;
    Random& random_;
    Date date_;
    DayBook book_;
    std::map<Long, std::vector<Session>> sessions_;
    long long written_ = 0;
    Key lastPackage_ = 0;
    Key lastPreSale_ = 0;
};

} // namespace

void WriteAppointments(Database& database, const ShopRegisters& registers,
                       const std::vector<ShopCustomer>& customers, const AppointmentPlan& plan,
                       Random& random)
{
    AppointmentWriter(database, registers, customers, plan, random).WriteAll();
}

} // namespace kova::family
