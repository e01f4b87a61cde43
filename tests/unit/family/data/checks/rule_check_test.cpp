#include "tests/unit/family/shop_fixture.hpp"

#include "family/data/checks/rule_check.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"

namespace kova::family::test {

namespace {

/// Before the shop's first appointment.
constexpr DateTime Morning{{2026, 11, 20}, {7, 0, 0}};

/// What breaks a rule, and the lines that tell it.
struct Breach {
    const char* change;
    std::vector<std::string> told;
};

const Breach Breaches[] = {
    {"update agendamento set hora_final = hora_inicial where numero = 1",
     {"agendamento 1: o término não é posterior ao início."}},
    {"update agendamento set data_final = '2026-11-19' where numero = 2",
     {"agendamento 2: o término não é posterior ao início."}},
    {"update agendamento set situacao = 5 where numero = 1", {"agendamento 1: a situação não existe."}},
    {"update agendamento set tipo_do_agendamento = 2 where numero = 1",
     {"agendamento 1: o tipo do agendamento não existe."}},
    {"update agendamento set codigo_do_animal = null where numero = 1",
     {"agendamento 1: falta o cliente ou o animal."}},
    {"update agendamento set codigo_do_cliente = 11 where numero = 4",
     {"agendamento 4: é simplificado e tem cliente ou animal cadastrado."}},
    {"update agendamento set nome_do_cliente = ' ' where numero = 4",
     {"agendamento 4: é simplificado e falta o nome do cliente."}},
    {"update agendamento set nome_do_animal = '' where numero = 4",
     {"agendamento 4: é simplificado e falta o nome do animal."}},
    {"update agendamento set codigo_do_animal = 51 where numero = 1",
     {"agendamento 1: o animal não é do cliente."}},
    {"update agendamento set codigo_do_servico = 2 where numero = 1",
     {"agendamento 1: o serviço não é do tipo do agendamento."}},
    {"update agendamento set transporte_levar = 3 where numero = 1",
     {"agendamento 1: o transporte não é sim nem não."}},
    {"update agendamento set situacao = 4 where numero = 5",
     {"agendamento 5: está com pré-venda gerada, mas não há pré-venda."}},
    {"update agendamento set situacao = 2 where numero = 7",
     {"pre_venda 1: não foi cancelada, mas não há agendamento com pré-venda gerada."}},
    {"update pre_venda set situacao = 2 where codigo = 1",
     {"agendamento 7: está com pré-venda gerada, mas não há pré-venda."}},
    {"delete from agendamento where numero = 7",
     {"pre_venda 1: não foi cancelada, mas não há agendamento com pré-venda gerada."}},
    {"update agendamento set numero_do_tipo_de_servico = 1, codigo_do_servico = 1 where numero = 7",
     {"agendamento 7: está com pré-venda gerada, mas o serviço é do tipo clínico."}},
    {"update agendamento set tipo_do_agendamento = 1, codigo_do_cliente = null, codigo_do_animal = null,"
     " nome_do_cliente = 'Íris', nome_do_animal = 'Bidu' where numero = 7",
     {"agendamento 7: está com pré-venda gerada, mas não tem cliente cadastrado."}},
    {"insert into pre_venda (codigo, numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
     " values (2, 7, 6000, 3, '2026-11-20 09:00:00')",
     {"agendamento 7: tem mais de uma pré-venda."}},
    {"update pre_venda set situacao = 9 where codigo = 1", {"pre_venda 1: a situação não existe."}},
    {"update funcionario set agendamentos_simultaneos = 1 where codigo = 1",
     {"agendamento 3: Zeca já tem, nesse horário, o máximo de agendamentos ao mesmo tempo."}},
    {"update funcionario set agendamentos_simultaneos = 4 where codigo = 2",
     {"agendamento 7: Bia já tem, nesse horário, o máximo de agendamentos ao mesmo tempo."}},
    {"update funcionario set agendamentos_simultaneos = -1 where codigo = 1",
     {"funcionario 1: a quantidade de agendamentos simultâneos é negativa."}},
    {"update funcionario set situacao = 0 where codigo = 1", {"funcionario 1: a situação não existe."}},
    {"update servico set duracao_em_minutos = -1 where codigo = 1", {"servico 1: a duração é negativa."}},
    {"update servico set custo_em_centavos = -1 where codigo = 1",
     {"servico 1: o preço ou o custo é negativo."}},
    {"update servico set quantidade_de_sessoes = 0 where codigo = 1",
     {"servico 1: a quantidade de sessões não é possível."}},
    {"update servico set situacao = 3 where codigo = 1", {"servico 1: a situação não existe."}},
    {"update cliente set tipo_de_pessoa = 'X' where codigo = 10",
     {"cliente 10: o tipo de pessoa não é PF nem PJ."}},
    {"update cliente set situacao = 5 where codigo = 10", {"cliente 10: a situação não existe."}},
    {"update cliente set nome = '', nome_de_busca = '' where codigo = 10", {"cliente 10: falta o nome."}},
    {"update animal set sexo = 'Macho' where codigo = 50", {"animal 50: o sexo não é M nem F."}},
    {"update animal set porte = 0 where codigo = 50", {"animal 50: o porte não existe."}},
    {"update animal set situacao = 3 where codigo = 50", {"animal 50: a situação não existe."}},
    {"update animal set nome = '', nome_de_busca = '' where codigo = 50", {"animal 50: falta o nome."}},
    {"insert into feriado (codigo, nome, dia) values (1, 'Natal', 25)",
     {"feriado 1: não tem ou um dia e um mês, ou uma data."}},
    {"insert into feriado (codigo, nome, dia, mes) values (1, 'Natal', 31, 4)",
     {"feriado 1: o dia do ano não existe."}},
    {"insert into feriado (codigo, nome, data) values (1, 'Natal', '2026-02-30')",
     {"feriado 1: \"2026-02-30\" em data não é uma data ou hora."}},
    {"insert into expediente (codigo, dia_da_semana, hora_inicial, hora_final)"
     " values (70, 8, '08:00', '12:00')",
     {"expediente 70: o dia da semana não existe."}},
    {"insert into expediente (codigo, dia_da_semana, hora_inicial, hora_final)"
     " values (70, 2, '12:00', '12:00')",
     {"expediente 70: o fim não é posterior ao início."}},
    {"insert into expediente (codigo, dia_da_semana, hora_inicial, hora_final)"
     " values (70, 2, '24:00', '25:00')",
     {"expediente 70: \"24:00\" em hora_inicial não é uma data ou hora.",
      "expediente 70: \"25:00\" em hora_final não é uma data ou hora."}},
    {"insert into horario_do_funcionario (codigo, codigo_do_funcionario, dia_da_semana, hora_inicial,"
     " hora_final) values (70, 1, 0, '12:00', '08:00')",
     {"horario_do_funcionario 70: o dia da semana não existe.",
      "horario_do_funcionario 70: o fim não é posterior ao início."}},
    {"insert into horario_do_funcionario (codigo, codigo_do_funcionario, dia_da_semana, hora_inicial,"
     " hora_final) values (70, 1, 2, '08:60', '9:00')",
     {"horario_do_funcionario 70: \"08:60\" em hora_inicial não é uma data ou hora.",
      "horario_do_funcionario 70: \"9:00\" em hora_final não é uma data ou hora."}},
    {"insert into ausencia (codigo, data_inicial, hora_inicial, data_final, hora_final, motivo)"
     " values (70, '2026-12-02', '00:00', '2026-12-01', '24:00', 'Reforma')",
     {"ausencia 70: o fim não é posterior ao início."}},
    {"insert into ausencia (codigo, data_inicial, hora_inicial, data_final, hora_final, motivo)"
     " values (70, '2026-12-01', '24:00', '2026-12-02', '24:00', ' ')",
     {"ausencia 70: falta o motivo.", "ausencia 70: \"24:00\" em hora_inicial não é uma data ou hora."}},
    {"insert into ausencia (codigo, data_inicial, hora_inicial, data_final, hora_final, motivo)"
     " values (70, '2026-02-30', '08:00', '2026-13-01', '25:00', 'Reforma')",
     {"ausencia 70: \"2026-02-30\" em data_inicial não é uma data ou hora.",
      "ausencia 70: \"2026-13-01\" em data_final não é uma data ou hora.",
      "ausencia 70: \"25:00\" em hora_final não é uma data ou hora."}},
    {"update papel set nome = ' ' where codigo = 2", {"papel 2: falta o nome."}},
    {"insert into ajuste (codigo, nome, valor) values (70, ' ', '5')", {"ajuste 70: falta o nome."}},
    {"insert into lista_de_espera (codigo, codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
     " dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento, incluido_em, incluido_por)"
     " values (70, 10, 50, '2026-12-02', '2026-12-01', '', '08:00', '08:00', 5, null, 'ontem', 'Ana')",
     {"lista_de_espera 70: o último dia é anterior ao primeiro.",
      "lista_de_espera 70: os dias da semana não existem.",
      "lista_de_espera 70: o fim não é posterior ao início.", "lista_de_espera 70: a situação não existe.",
      "lista_de_espera 70: falta o serviço.",
      "lista_de_espera 70: \"ontem\" em incluido_em não é uma data ou hora."}},
    {"insert into lista_de_espera (codigo, codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
     " dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento, incluido_em, incluido_por)"
     " values (70, 10, 51, '2026-12-01', '2026-12-32', '28', '8:00', '24:00', 3, null, '2026-11-20 "
     "09:00:00', 'Ana')",
     {"lista_de_espera 70: os dias da semana não existem.",
      "lista_de_espera 70: o fim não é posterior ao início.",
      "lista_de_espera 70: falta o agendamento, ou não foi marcado e tem um.",
      "lista_de_espera 70: o animal não é do cliente.", "lista_de_espera 70: falta o serviço.",
      "lista_de_espera 70: \"8:00\" em hora_inicial não é uma data ou hora.",
      "lista_de_espera 70: \"2026-12-32\" em data_final não é uma data ou hora."}},
    {"update papel_direito set direito = 'tudo' where codigo = 1",
     {"papel_direito 1: o direito não é um nome com um ponto."}},
    {"update agendamento set data_inicial = '20/11/2026', data_final = '20/11/2026' where numero = 1",
     {"agendamento 1: \"20/11/2026\" em data_inicial não é uma data ou hora.",
      "agendamento 1: \"20/11/2026\" em data_final não é uma data ou hora."}},
    {"update agendamento set hora_inicial = '9:00', hora_final = '9:30' where numero = 1",
     {"agendamento 1: \"9:00\" em hora_inicial não é uma data ou hora.",
      "agendamento 1: \"9:30\" em hora_final não é uma data ou hora."}},
    {"update agendamento set alterado_em = 'ontem' where numero = 2",
     {"agendamento 2: \"ontem\" em alterado_em não é uma data ou hora."}},
    {"update animal set nome = 'Pé de Feijão' where codigo = 50",
     {"animal 50: o nome \"Pé de Feijão\" não é encontrado na pesquisa."}},
};

} // namespace

/// The shop without what its fixture leaves open on purpose.
class RuleCheck : public ShopTest {
protected:
    RuleCheck()
    {
        LiftRulesOf(host_.DataSource());
        database_->Session() << "update funcionario set agendamentos_simultaneos = 0";
        Insert(*database_, PreSaleRow{1, 7, 6000, 1, "2026-11-20 09:00:00"});
    }

    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(RuleCheck, FindsNothingInASoundShop)
{
    EXPECT_EQ(FindBrokenRules(*database_, Morning), std::vector<std::string>());
}

TEST_F(RuleCheck, FindsNothingInTheHoursAndAbsencesOfASoundShop)
{
    for (const char* change :
         {"insert into expediente (dia_da_semana, hora_inicial, hora_final) values (1, '08:00', '12:00')",
          "insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial,"
          " hora_final) values (1, 2, '18:00', '24:00')",
          "insert into ausencia (codigo_do_funcionario, data_inicial, hora_inicial, data_final, hora_final,"
          " motivo) values (1, '2026-11-20', '00:00', '2026-11-20', '24:00', 'Férias')",
          "insert into lista_de_espera (codigo, codigo_do_cliente, codigo_do_animal, data_inicial, "
          "data_final,"
          " dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento, incluido_em,"
          " incluido_por) values (70, 10, 50, '2026-12-01', '2026-12-01', '3', '08:00', '24:00', 3, 99,"
          " '2026-11-20 09:00:00', 'Ana')",
          "insert into espera_servico (codigo_da_espera, codigo_do_servico) values (70, 2)"})
        database_->Session() << change;
    EXPECT_EQ(FindBrokenRules(*database_, Morning), std::vector<std::string>())
        << "what was booked before an absence stays booked";
}

TEST_F(RuleCheck, LooksOnlyAtTheTablesThatAnOlderSchemaHas)
{
    for (const char* table : {"ausencia", "horario_do_funcionario", "expediente"})
        database_->Session() << std::string("drop table ") + table;
    database_->Session() << "delete from versao_do_esquema where versao > 7";
    EXPECT_EQ(FindBrokenRules(*database_, Morning), std::vector<std::string>());
}

TEST_F(RuleCheck, TellsEachBrokenRuleWithItsRow)
{
    for (const Breach& breach : Breaches) {
        soci::transaction transaction(database_->Session());
        database_->Session() << breach.change;
        EXPECT_EQ(FindBrokenRules(*database_, Morning), breach.told) << breach.change;
        transaction.rollback();
    }
}

TEST_F(RuleCheck, LeavesCancelledAppointmentsAndThoseThatFollowOneAnotherAlone)
{
    database_->Session() << "update funcionario set agendamentos_simultaneos = 1 where codigo = 1";
    database_->Session() << "update agendamento set hora_final = '10:00' where numero = 1";
    EXPECT_EQ(FindBrokenRules(*database_, Morning), std::vector<std::string>());
    database_->Session() << "update agendamento set hora_final = '10:01' where numero = 1";
    EXPECT_EQ(FindBrokenRules(*database_, Morning).size(), 1U);
    database_->Session() << "update agendamento set situacao = 3 where numero = 1";
    EXPECT_EQ(FindBrokenRules(*database_, Morning), std::vector<std::string>());
}

TEST_F(RuleCheck, FindsNobodyWithoutRoomOnAnotherDay)
{
    database_->Session() << "update funcionario set agendamentos_simultaneos = 1 where codigo = 1";
    database_->Session() << "update agendamento set data_inicial = '2026-11-21', data_final = '2026-11-22'"
                            " where numero = 3";
    EXPECT_EQ(FindBrokenRules(*database_, Morning), std::vector<std::string>());
}

TEST_F(RuleCheck, LeavesWhatIsOverAsItWas)
{
    database_->Session() << "update funcionario set agendamentos_simultaneos = 1 where codigo = 1";
    EXPECT_EQ(FindBrokenRules(*database_, {{2026, 11, 20}, {17, 59, 0}}).size(), 1U);
    EXPECT_EQ(FindBrokenRules(*database_, {{2026, 11, 20}, {18, 0, 0}}), std::vector<std::string>());
}

} // namespace kova::family::test
