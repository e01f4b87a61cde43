#pragma once

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/sources/shared_database.hpp"

#include <string>

namespace kova::family::test {

inline constexpr Key Everybody = 0, Zeca = 1, Bia = 2;
/// A Monday.
inline constexpr Date FirstDay{2031, 3, 3};

/// The shop with the hours, days off and appointments that a test gives it; it is never open at first.
class PlacesTest : public BookingTest {
protected:
    PlacesTest() { Run("delete from expediente"); }

    Database& Data() { return *SharedDatabase(host_.DataSource()); }

    void Open(int weekday, const std::string& from, const std::string& until)
    {
        Run("insert into expediente (dia_da_semana, hora_inicial, hora_final) values ("
            + std::to_string(weekday) + ", " + Quoted(from) + ", " + Quoted(until) + ")");
    }
    void OpenOnWorkdays(const std::string& from, const std::string& until)
    {
        for (int weekday = 2; weekday <= 6; ++weekday)
            Open(weekday, from, until);
    }
    void Works(Key employee, int weekday, const std::string& from, const std::string& until)
    {
        Run("insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial, "
            "hora_final)"
            " values ("
            + std::to_string(employee) + ", " + std::to_string(weekday) + ", " + Quoted(from) + ", "
            + Quoted(until) + ")");
    }
    void Away(Key employee, Date from, const std::string& fromTime, Date until, const std::string& untilTime)
    {
        Run("insert into ausencia (codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final,"
            " motivo) values ("
            + (employee == Everybody ? "null" : std::to_string(employee)) + ", " + Quoted(IsoDate(from))
            + ", " + Quoted(fromTime) + ", " + Quoted(IsoDate(until)) + ", " + Quoted(untilTime)
            + ", 'curso')");
    }
    void Rest(Date date)
    {
        Run("insert into feriado (nome, data) values ('Dia', " + Quoted(IsoDate(date)) + ")");
    }
    void Book(Key employee, Date from, const std::string& start, Date until, const std::string& end,
              int status = 1)
    {
        Run("insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, "
            "tipo_do_agendamento,"
            " nome_do_cliente, nome_do_animal, numero_do_tipo_de_servico, codigo_do_servico,"
            " codigo_do_funcionario, situacao, incluido_em, incluido_por) values ("
            + Quoted(IsoDate(from)) + ", " + Quoted(start) + ", " + Quoted(IsoDate(until)) + ", "
            + Quoted(end) + ", 1, 'C', 'A', 4, 2, " + std::to_string(employee) + ", " + std::to_string(status)
            + ", '2026-11-01 09:00:00', 'Carla')");
    }
    void Limit(Key employee, int limit)
    {
        Run("update funcionario set agendamentos_simultaneos = " + std::to_string(limit)
            + " where codigo = " + std::to_string(employee));
    }

private:
    static std::string Quoted(const std::string& text) { return "'" + text + "'"; }
};

} // namespace kova::family::test
