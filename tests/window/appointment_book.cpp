#include "tests/window/appointment_book.hpp"

namespace kova::window_test {

AppointmentBook::AppointmentBook()
{
    Execute("delete from pre_venda; delete from agendamento; delete from pacote; delete from auditoria");
    Execute("update cliente set apelido = 'Zuza', nome = 'Zulmar Quaresma', situacao = 1,"
            " nome_de_busca = 'zulmar quaresma', nomes_de_busca = 'zuza\nzulmar quaresma'"
            " where codigo = 17");
    Execute("update cliente set apelido = 'Zuzu', nome = 'Zulmira Quaresma', situacao = 1,"
            " nome_de_busca = 'zulmira quaresma', nomes_de_busca = 'zuzu\nzulmira quaresma'"
            " where codigo = 10");
    Execute("update animal set microchip = '900123000000001' where codigo = 1");
}

void AppointmentBook::OpensNewRecord()
{
    receptionist->WaitsFor(List)
        .Clicks(List, "kvcmdAdicionar")
        .PicksByMouse("Agendamento completo")
        .WaitsFor(Record);
}

void AppointmentBook::EntersCustomerAndAnimal()
{
    receptionist->Types("10").Presses("Return").WaitsFor(Record).Types("T");
}

void AppointmentBook::EntersService(const std::string& part)
{
    receptionist->Presses("Alt+M").Types(part).Presses("Return").WaitsFor(Record);
}

void AppointmentBook::EntersStart(const std::string& date, const std::string& time)
{
    receptionist->Presses("Alt+H").Types(date).Presses("Tab").Types(time).Presses("Tab");
}

void AppointmentBook::EntersEmployee(const std::string& letter)
{
    receptionist->Presses("Alt+U").Types(letter);
}

void AppointmentBook::AsksForRepetition()
{
    receptionist->Presses("Alt+B").Presses("Tab").Types("S").Presses("Tab");
}

void AppointmentBook::SavesAndLeaves(const char* form)
{
    receptionist->Clicks(form, "kvcmdSalvarFecharConfirmar").WaitsFor(List).Leaves();
}

std::vector<std::string> AppointmentBook::Appointments() const
{
    return Query(
        "select a.data_inicial || ' ' || a.hora_inicial, a.data_final || ' ' || a.hora_final,"
        " a.codigo_do_cliente, a.codigo_do_animal, s.nome, f.apelido from agendamento a"
        " join servico s on s.codigo = a.codigo_do_servico"
        " join funcionario f on f.codigo = a.codigo_do_funcionario order by a.data_inicial, a.hora_inicial");
}

} // namespace kova::window_test
