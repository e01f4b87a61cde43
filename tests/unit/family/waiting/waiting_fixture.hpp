#pragma once

#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/waiting_list.hpp"
#include "family/waiting/waiting_writes.hpp"

namespace kova::family::test {

/// The shop with two desks, open from Monday to Saturday, 08:00 to 18:00, where both employees work. Bia's
/// and Zeca's days are free from 02/12/2026 on. The bath, 2, takes 75 minutes, the consultation, 1, 30.
class WaitingTest : public TwoDesksTest {
protected:
    WaitingTest()
    {
        Run("delete from expediente");
        Run("insert into expediente (dia_da_semana, hora_inicial, hora_final) values (2, '08:00', '18:00'),"
            " (3, '08:00', '18:00'), (4, '08:00', '18:00'), (5, '08:00', '18:00'), (6, '08:00', '18:00'),"
            " (7, '08:00', '18:00')");
    }

    Database& Data() { return *SharedDatabase(host_.DataSource()); }
    Author LiaAt(const std::string& moment) const { return {"7", "Lia", moment, "BALCAO-1"}; }

    /// Paçoca waits for a bath by anybody, on any working day of December, from 08:00 to 18:00.
    static WaitingEntry Bath()
    {
        WaitingEntry entry;
        entry.row.codigoDoCliente = 10;
        entry.row.codigoDoAnimal = 50;
        entry.row.dataInicial = "2026-12-01";
        entry.row.dataFinal = "2026-12-31";
        entry.row.diasDaSemana = "23456";
        entry.row.horaInicial = "08:00";
        entry.row.horaFinal = "18:00";
        entry.services = {2};
        return entry;
    }
    /// Lia's desk adds it at 09:00; answers it as it is kept.
    WaitingRow Added(const WaitingEntry& entry = Bath(), const std::string& moment = "2026-11-20 09:00:00")
    {
        const waiting::WaitingAnswer answer = waiting::Add(Data(), entry, LiaAt(moment));
        EXPECT_TRUE(answer.IsDone()) << answer.text;
        return FindWaiting(Data(), answer.code).value_or(WaitingEntry()).row;
    }
    WaitingRow Kept(Key code) { return FindWaiting(Data(), code).value().row; }
};

} // namespace kova::family::test
