// How often a desk asks a server, which may lie far away: each question costs a way there and back.

#include "tests/support/postgres_relay.hpp"
#include "tests/unit/family/business/appointments/desk_fixture.hpp"
#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/appointments/status_change.hpp"
#include "family/business/registers/animals.hpp"
#include "family/business/registers/customers.hpp"
#include "family/data/sources/shared_database.hpp"

namespace kova::family::test {

class RoundTripsPostgresql : public PostgresqlShop {
protected:
    ~RoundTripsPostgresql() override { CloseSharedDatabases(); }

    /// Ways there and back that an action costs.
    template <class Action> int Count(Action action)
    {
        const int before = relay_.RoundTrips();
        action();
        return relay_.RoundTrips() - before;
    }

    Database& Data() { return *SharedDatabase(host_.DataSource()); }
    void Book(const AppointmentInput& input)
    {
        const WriteAnswer answer = AddAppointments(Data(), input, Somebody);
        EXPECT_TRUE(answer.IsDone()) << answer.field << " " << answer.text;
    }
    static AppointmentInput FullBath(const Text& date)
    {
        AppointmentInput input = Bath(date);
        input.kind = 0;
        input.customer = 10;
        input.animal = 50;
        return input;
    }

    /// Reads every field of every row.
    static void ReadAll(Component& component)
    {
        for (const RecordSetRef rows = ResultOf(component); !rows->Eof(); rows->MoveNext())
            for (int field = 0; field < rows->FieldCount(); ++field)
                rows->Field(field);
    }
    void PickCustomers()
    {
        Customers customers(host_);
        ASSERT_EQ(customers.Call(
                      "Selecionar",
                      {Long(2), Integer(0), Long(0), "repetido", "", Double(0), "", "", "", Double(0), ""}),
                  Value(Integer(0)));
        ASSERT_EQ(ResultOf(customers)->RecordCount(), Hits);
        ReadAll(customers);
    }
    void PickAnimals()
    {
        Animals animals(host_);
        ASSERT_EQ(
            animals.Call("Selecionar", {Long(2), Integer(0), Long(1), "repetido", Integer(1), Double(0)}),
            Value(Integer(0)));
        ASSERT_EQ(ResultOf(animals)->RecordCount(), Hits);
        ReadAll(animals);
    }

    static constexpr int Hits = 3000;

    kova::test::PostgresRelay relay_{Server()};
    DeskHost host_{relay_.AddressOf(shop_.Name())};
};

/// The transaction's beginning, with the mark by which a repeated write is known, and its end, what the
/// booking refers to, the employee's hours, the appointment and its line in the audit.
TEST_F(RoundTripsPostgresql, OfABookingAreSix)
{
    // Statements are prepared and the holidays read at the first time.
    Book(FullBath("01/12/2026"));
    EXPECT_EQ(Count([&] { Book(FullBath("02/12/2026")); }), 6);
    EXPECT_EQ(Count([&] { Book(Bath("03/12/2026")); }), 6);
}

TEST_F(RoundTripsPostgresql, OfABookingAreNotPlannedAnewByTheServer)
{
    constexpr int Bookings = 12;
    // Without the Sunday.
    for (const int day : {1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13})
        Book(FullBath(FormatDate(Date{2027, 3, day})));
    long long forValues = 0, once = 0;
    Data().Session() << "select sum(custom_plans), sum(generic_plans) from pg_prepared_statements"
                        " where statement like '%agendamento where codigo_do_funcionario%'"
                        " or statement like 'prepare gravacao%'",
        soci::into(forValues), soci::into(once);
    EXPECT_EQ(forValues, 0);
    EXPECT_EQ(once, 2 * Bookings);
}

TEST_F(RoundTripsPostgresql, OfABookingAreOneMoreAfterAChangeOfTheHolidays)
{
    Book(FullBath("01/12/2026"));
    shop_.Run("insert into feriado (nome, dia, mes) values ('Feira', 3, 12)");
    EXPECT_EQ(Count([&] { Book(FullBath("02/12/2026")); }), 7);
    EXPECT_EQ(AddAppointments(Data(), FullBath("03/12/2026"), Somebody).field, "DomingoOuFeriado");
}

TEST_F(RoundTripsPostgresql, OfABookingAreOneMoreAfterAChangeOfHoursOrAbsences)
{
    Book(FullBath("01/12/2026"));
    shop_.Run("update expediente set hora_inicial = '08:00'");
    shop_.Run("insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial,"
              " hora_final) values (2, 4, '08:00', '18:00')");
    shop_.Run("insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
              " values ('2026-12-09', '08:00', '2026-12-09', '18:00', 'Reforma')");
    EXPECT_EQ(Count([&] { Book(FullBath("02/12/2026")); }), 7);
    EXPECT_EQ(Count([&] { Book(FullBath("16/12/2026")); }), 6);
    EXPECT_EQ(AddAppointments(Data(), FullBath("09/12/2026"), Somebody).text,
              "Bia está ausente em 09/12/2026 (Reforma).");
}

/// How often it was changed who may do what comes along with the transaction's beginning.
TEST_F(RoundTripsPostgresql, OfABookingAreNoMoreInAShopWithUsers)
{
    shop_.Run("insert into usuario (codigo, nome, codigo_do_papel) values (7, 'Lia', 3), (8, 'Ana', 1)");
    Book(FullBath("01/12/2026"));
    EXPECT_EQ(Count([&] { Book(FullBath("02/12/2026")); }), 6);
    shop_.Run("delete from papel_direito where codigo_do_papel = 3 and direito = 'agendamento.cancelar'");
    EXPECT_EQ(Count([&] { Book(FullBath("03/12/2026")); }), 7);
    shop_.Run("delete from papel_direito where codigo_do_papel = 3");
    EXPECT_EQ(AddAppointments(Data(), FullBath("04/12/2026"), Somebody).text,
              "Recepção não pode incluir agendamentos. Peça a quem administra os usuários.");
}

/// The transaction's beginning with its mark, and its end, the appointment, its employee with the counters of
/// changes, the employee's booked times, the row and the audit's line.
TEST_F(RoundTripsPostgresql, OfAReturnFromCancelledAreSeven)
{
    AppointmentInput cancelled = FullBath("01/12/2026");
    cancelled.status = 3;
    Book(cancelled);
    const auto change = [&](int status) {
        return Count([&] { EXPECT_TRUE(ChangeStatus(Data(), 10, status, Somebody).IsDone()); });
    };
    // Statements are prepared at the first time.
    change(1);
    change(3);
    EXPECT_EQ(change(1), 7);
}

TEST_F(RoundTripsPostgresql, OfAPickerAreOneForEachHundredFoundAndOneForTheSearch)
{
    shop_.Run("insert into cliente (codigo, tipo_de_pessoa, apelido, nome, documento, categoria_da_curva_abc,"
              " logradouro, numero, complemento, bairro, cidade, uf, cep, endereco_completo,"
              " endereco_completo_com_cep, tipos_e_canais, nome_de_busca, nomes_de_busca)"
              " select 1000 + i, 'PF', 'Repetido', 'Nome', '', 'A', '', '', '', '', '', '', '', '', '', '',"
              " 'nome', 'repetido' from generate_series(1, 3000) as i");
    shop_.Run("insert into animal (codigo, codigo_do_cliente, nome, sexo, codigo_da_raca, porte, cor,"
              " nome_de_busca) select 1000 + i, 1000 + i, 'Repetido', 'M', 1, 2, '', 'repetido'"
              " from generate_series(1, 3000) as i");
    // Names are read and statements prepared at the first time.
    PickCustomers();
    PickAnimals();
    EXPECT_EQ(Count([&] { PickCustomers(); }), 1 + Hits / 100);
    EXPECT_EQ(Count([&] { PickAnimals(); }), 1 + Hits / 100);
}

} // namespace kova::family::test
