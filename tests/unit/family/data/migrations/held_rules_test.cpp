#include "tests/unit/family/server_fixture.hpp"

#include "family/data/checks/rule_check.hpp"
#include "family/data/copies/database_copy.hpp"
#include "family/data/migrations/held_rules.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/appointment_rows.hpp"

namespace kova::family::test {

namespace {

constexpr const char* Breaches[] = {
    "update agendamento set hora_final = hora_inicial where numero = 1",
    "update agendamento set data_final = '2026-11-19' where numero = 2",
    "update agendamento set situacao = 5 where numero = 1",
    "update agendamento set tipo_do_agendamento = 2 where numero = 1",
    "update agendamento set codigo_do_animal = null where numero = 1",
    "update agendamento set codigo_do_cliente = null where numero = 1",
    "update agendamento set codigo_do_cliente = 11 where numero = 4",
    "update agendamento set codigo_do_animal = 51 where numero = 4",
    "update agendamento set nome_do_cliente = ' ' where numero = 4",
    "update agendamento set nome_do_animal = '' where numero = 4",
    "update agendamento set transporte_buscar = 2 where numero = 1",
    "update agendamento set transporte_levar = -1 where numero = 1",
    "update pre_venda set situacao = 4 where codigo = 1",
    "update pre_venda set situacao = 0 where codigo = 1",
    "insert into pre_venda (codigo, numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
    " values (2, 7, 6000, 3, '2026-11-20 09:00:00')",
    "update funcionario set agendamentos_simultaneos = -1 where codigo = 1",
    "update funcionario set situacao = 0 where codigo = 1",
    "update servico set duracao_em_minutos = -1 where codigo = 1",
    "update servico set preco_em_centavos = -1 where codigo = 1",
    "update servico set custo_em_centavos = -1 where codigo = 1",
    "update servico set quantidade_de_sessoes = 0 where codigo = 1",
    "update servico set situacao = 3 where codigo = 1",
    "update cliente set tipo_de_pessoa = 'X' where codigo = 10",
    "update cliente set situacao = 5 where codigo = 10",
    "update cliente set nome = ' ' where codigo = 10",
    "update animal set sexo = 'Macho' where codigo = 50",
    "update animal set porte = 5 where codigo = 50",
    "update animal set situacao = 3 where codigo = 50",
    "update animal set nome = '' where codigo = 50",
    "insert into feriado (codigo, nome, dia) values (1, 'Natal', 25)",
    "insert into feriado (codigo, nome, dia, mes, data) values (1, 'Natal', 25, 12, '2026-12-25')",
    "insert into feriado (codigo, nome, dia, mes) values (1, 'Natal', 25, 13)",
    "insert into feriado (codigo, nome, dia, mes) values (1, 'Natal', 31, 4)",
    "insert into feriado (codigo, nome, dia, mes) values (1, 'Natal', 30, 2)",
    "insert into expediente (dia_da_semana, hora_inicial, hora_final) values (0, '08:00', '18:00')",
    "insert into expediente (dia_da_semana, hora_inicial, hora_final) values (8, '08:00', '18:00')",
    "insert into expediente (dia_da_semana, hora_inicial, hora_final) values (2, '08:00', '08:00')",
    "insert into expediente (dia_da_semana, hora_inicial, hora_final) values (2, '18:00', '00:00')",
    "insert into expediente (dia_da_semana, hora_inicial, hora_final) values (2, '8:00', '18:00')",
    "insert into expediente (dia_da_semana, hora_inicial, hora_final) values (2, '08:00', '24:01')",
    "update expediente set hora_final = '00:00' where dia_da_semana = 2",
    "insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial, hora_final)"
    " values (1, 9, '08:00', '18:00')",
    "insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial, hora_final)"
    " values (1, 2, '18:00', '08:00')",
    "insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
    " values ('2026-12-02', '08:00', '2026-12-01', '18:00', 'Reforma')",
    "insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
    " values ('2026-12-01', '08:00', '2026-12-01', '08:00', 'Reforma')",
    "insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
    " values ('2026-12-01', '24:00', '2026-12-02', '08:00', 'Reforma')",
    "insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
    " values ('2026-12-01', '00:00', '2026-12-01', '24:00', ' ')",
    "update papel set nome = ' ' where codigo = 1",
    "insert into papel (nome) values ('')",
    "update papel_direito set direito = 'tudo' where codigo = 1",
    "insert into papel_direito (codigo_do_papel, direito) values (3, '.tudo')",
    "insert into papel_direito (codigo_do_papel, direito) values (3, 'tudo.')",
    "insert into usuario (nome, situacao) values ('Bia', 3)",
    "insert into usuario (nome, codigo_do_papel) values (' ', 3)",
    "insert into usuario (nome, senha) values ('Bia', 'gato preto')",
    "insert into usuario (nome, pin) values ('Bia', '2580')",
    "insert into usuario (nome, senha, pin) values ('Bia', '$argon2id$v=19$m=8,t=1,p=1$c2Fs$aGFzaA', '')",
    "insert into tentativa_de_entrada (identificador, erros, ultimo_erro) values ('a1', -1, 0)",
    "insert into tentativa_de_entrada (identificador, erros, ultimo_erro) values ('a1', 1, -1)",
    "insert into ajuste (nome, valor) values (' ', 'sim')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-02', '2026-12-01', '23456', '08:00', '18:00', '2026-11-20 09:00:00', 'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '', '08:00', '18:00', '2026-11-20 09:00:00', 'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '80', '08:00', '18:00', '2026-11-20 09:00:00', 'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '23456', '8:00', '18:00', '2026-11-20 09:00:00', 'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '23456', '08:00', '24:01', '2026-11-20 09:00:00', 'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '23456', '18:00', '18:00', '2026-11-20 09:00:00', 'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, situacao, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '23456', '08:00', '18:00', 5, '2026-11-20 09:00:00', "
    "'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, situacao, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '23456', '08:00', '18:00', 3, '2026-11-20 09:00:00', "
    "'Ana')",
    "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
    " dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento, incluido_em, incluido_por)"
    " values (10, 50, '2026-12-01', '2026-12-02', '23456', '08:00', '18:00', 4, 1, '2026-11-20 09:00:00', "
    "'Ana')",
};

} // namespace

class HeldRules : public ShopTest {
protected:
    HeldRules() { Insert(*database_, PreSaleRow{1, 7, 6000, 1, "2026-11-20 09:00:00"}); }

    /// What the engine says to it; nothing of it stays.
    std::string Try(const std::string& statement)
    {
        try {
            WriteTransaction transaction(*database_);
            database_->Session() << statement;
        } catch (const soci::soci_error& cause) {
            return TranslatedFailure(database_->Path(), cause).Cause();
        }
        return {};
    }
    void Lift() { LiftRules(database_->Session(), database_->GetDialect()); }
    void Hold()
    {
        WriteTransaction transaction(*database_, WriteTransaction::Of::Schema);
        HoldRules(database_->Session(), database_->GetDialect());
        transaction.Commit();
    }

    std::shared_ptr<Database> database_ = OpenDatabase(host_.DataSource());
};

TEST_F(HeldRules, RefuseEachRowThatBreaksOne)
{
    for (const char* breach : Breaches)
        EXPECT_EQ(
            Try(breach),
            "O banco de dados não aceita o que seria gravado, porque não segue as regras dele. Confira os "
            "dados.")
            << breach;
}

TEST_F(HeldRules, TakeWhatBreaksNone)
{
    for (const char* statement :
         {"update agendamento set hora_final = '13:00', data_final = '2026-11-21' where numero = 7",
          "update agendamento set observacao = null where numero = 4",
          "update servico set quantidade_de_sessoes = null where codigo = 1",
          "insert into feriado (codigo, nome, dia, mes) values (1, 'Ano bissexto', 29, 2)",
          "insert into feriado (codigo, nome, data) values (1, 'Carnaval', '2027-02-09')",
          "insert into expediente (dia_da_semana, hora_inicial, hora_final)"
          " values (1, '00:00', '24:00'), (7, '08:00', '12:00')",
          "insert into horario_do_funcionario (codigo_do_funcionario, dia_da_semana, hora_inicial,"
          " hora_final) values (1, 7, '23:59', '24:00')",
          "insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
          " values ('2026-12-01', '18:00', '2026-12-02', '08:00', 'Reforma')",
          "insert into ausencia (data_inicial, hora_inicial, data_final, hora_final, motivo)"
          " values ('2026-12-01', '00:00', '2026-12-01', '24:00', 'Reforma')",
          "insert into pre_venda (codigo, numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
          " values (2, 7, 6000, 2, '2026-11-20 09:00:00')",
          "insert into papel_direito (codigo_do_papel, direito) values (3, 'caixa.abrir_de_manha')",
          "insert into usuario (nome) values ('')",
          "insert into usuario (nome, codigo_do_papel, situacao, senha, pin) values ('Bia', 3, 2, null,"
          " '$argon2id$v=19$m=8,t=1,p=1$c2Fs$aGFzaA')",
          "insert into tentativa_de_entrada (identificador, erros, ultimo_erro) values ('a1', 0, 0)",
          "insert into ajuste (nome, valor) values ('outra.coisa', '')",
          "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
          " dias_da_semana, hora_inicial, hora_final, incluido_em, incluido_por)"
          " values (10, 50, '2026-12-01', '2026-12-01', '7', '00:00', '24:00', '2026-11-20 09:00:00', 'Ana')",
          "insert into lista_de_espera (codigo_do_cliente, codigo_do_animal, data_inicial, data_final,"
          " dias_da_semana, hora_inicial, hora_final, situacao, numero_do_agendamento, incluido_em, "
          "incluido_por)"
          " values (10, 50, '2026-12-01', '2026-12-02', '1234567', '08:00', '18:00', 3, 1, '2026-11-20 "
          "09:00:00', 'Ana')"})
        EXPECT_EQ(Try(statement), "") << statement;
}

TEST_F(HeldRules, AreLiftedAndHeldAgain)
{
    Lift();
    for (const char* breach : Breaches)
        EXPECT_EQ(Try(breach), "") << breach;
    Hold();
    for (const char* breach : Breaches)
        EXPECT_NE(Try(breach), "") << breach;
}

TEST_F(HeldRules, LeaveRowsThatBreakOneAlreadyAndRefuseOthers)
{
    Lift();
    database_->Session() << "update agendamento set hora_final = hora_inicial where numero = 1";
    database_->Session()
        << "insert into pre_venda (codigo, numero_do_agendamento, valor_em_centavos, situacao,"
           " criada_em) values (2, 7, 6000, 3, '2026-11-20 09:00:00')";
    Hold();
    std::vector<std::string> problems;
    FindBrokenRows(*database_, problems);
    EXPECT_NE(
        std::find(problems.begin(), problems.end(), "agendamento 1: o término não é posterior ao início."),
        problems.end());
    EXPECT_NE(Try("update agendamento set hora_final = hora_inicial where numero = 2"), "");
    EXPECT_NE(
        Try("insert into pre_venda (codigo, numero_do_agendamento, valor_em_centavos, situacao, criada_em)"
            " values (3, 7, 6000, 1, '2026-11-20 09:00:00')"),
        "");
    EXPECT_EQ(Try("update agendamento set hora_final = '09:30' where numero = 1"), "");
}

TEST_F(HeldRules, LetRowsThatBreakOneBeCopiedAndAreHeldInTheCopy)
{
    Lift();
    database_->Session() << "update agendamento set hora_final = hora_inicial where numero = 1";
    Hold();
    CopyDatabase(host_.DataSource(), folder_ / "copia.db", {});
    database_ = OpenDatabase(folder_ / "copia.db");
    std::string end;
    database_->Session() << "select hora_final from agendamento where numero = 1", soci::into(end);
    EXPECT_EQ(end, "09:00");
    EXPECT_NE(Try("update agendamento set hora_final = hora_inicial where numero = 2"), "");
}

class HeldRulesPostgresql : public PostgresqlShop { };

TEST_F(HeldRulesPostgresql, AreConfirmedForRowsThatAreThere)
{
    EXPECT_EQ(shop_
                  .Run("select count(*) > 20, bool_and(convalidated) from pg_constraint where contype = 'c'"
                       " and conname like 'regra_de_%'")
                  .front(),
              "t|t");
}

} // namespace kova::family::test
