// What a line tells of the fields that it has changed.

#include "tests/unit/family/history/history_fixture.hpp"

#include "family/registers/customers/customer_merge.hpp"
#include "family/registers/customers/customer_registers.hpp"

#include <algorithm>

namespace kova::family::test {

using Lines = std::vector<std::string>;

using HistoryChanges = HistoryTest;

TEST_F(HistoryChanges, OfAnAppointmentAreCalledAsTheRecordFormsCallThem)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.startTime = "11:00";
        input.endTime = "12:00";
        input.remark = "Às 10h, \"sem falta\"";
    });
    EXPECT_EQ(Changes(Newest("agendamento", FullNumber)),
              (Lines{"Hora inicial: 09:00 > 11:00", "Hora final: 10:00 > 12:00",
                     "Observação: Laço azul. > Às 10h, \"sem falta\""}));
}

TEST_F(HistoryChanges, OfARegisterAreCalledAndShownAsItsFormDoes)
{
    OtherSaves(registers::AnimalRegister(), 50,
               {{"Código do cliente", "10"}, {"Sexo", "Macho"}, {"Porte", "Gigante"}});
    EXPECT_EQ(Changes(Newest("animal", 50)), (Lines{"Sexo: Fêmea > Macho", "Porte: Médio > Gigante"}));
    OtherSaves(registers::CustomerRegister(), 10,
               {{"Canais", "Celular: (11) 91234-5678"}, {"Situação", "Bloqueado"}, {"CEP", "01310-100"}});
    const Lines told = Changes(Newest("cliente", 10));
    EXPECT_NE(std::ranges::find(told, "Situação: Ativo > Bloqueado"), told.end());
    EXPECT_NE(std::ranges::find(told, "CEP: 00123-456 > 01310-100"), told.end());
    EXPECT_TRUE(std::ranges::any_of(told, [](const std::string& one) {
        return one.starts_with("Canais: ") && one.ends_with("> Celular: (11) 91234-5678");
    }));
    EXPECT_EQ(told.size(), 3U) << "what follows from other fields is not told twice";
}

TEST_F(HistoryChanges, NameTheRowsThatCodesStandFor)
{
    OtherSaves(registers::ServiceRegister(), 2, {{"Nome", "Banho e tosa"}});
    Run("update auditoria set antes = '{\"numero_do_tipo_de_servico\":1}',"
        " depois = '{\"numero_do_tipo_de_servico\":77}' where tabela = 'servico' and chave = 2");
    EXPECT_EQ(Changes(Newest("servico", 2)), (Lines{"Tipo: 1 - Consulta > 77"}));
}

TEST_F(HistoryChanges, HideAmountsFromWhoeverMayNotSeePrices)
{
    OtherSaves(registers::ServiceRegister(), 2, {{"Preço", "70,00"}, {"Descrição", "Com xampu"}});
    EXPECT_EQ(Changes(Newest("servico", 2)), (Lines{"Descrição:  > Com xampu", "Preço: 60,00 > 70,00"}));
    OtherSetsStatus(FullNumber, 4);
    LiaMay({Right::SeeHistory});
    EXPECT_EQ(Changes(Newest("servico", 2)),
              (Lines{"Descrição:  > Com xampu", "Preço: (oculto) > (oculto)"}));
    const Lines preSale = Changes(Find(OfRow("agendamento", FullNumber)).at(1));
    EXPECT_NE(std::ranges::find(preSale, "Valor:  > (oculto)"), preSale.end());
}

TEST_F(HistoryChanges, OfLinesOfOtherKindsAreToldInWords)
{
    LiaMay({Right::SeeHistory});
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
        " ('2026-11-20 11:00:00', '7 - Lia', 'usuario', 7, 'direito_negado', "
        "'{\"direito\":\"dados.exportar\"}'),"
        " ('2026-11-20 11:00:01', '7 - Lia', 'uma_tabela', 7, 'outra_coisa', '{\"de_onde\":\"daqui\"}')");
    const std::vector<Line> found = Find({}, 2);
    EXPECT_EQ(history::ActOf(found[0]), "outra coisa: uma tabela 7");
    EXPECT_EQ(Changes(found[0]), (Lines{"De onde:  > daqui"}));
    EXPECT_EQ(history::ActOf(found[1]), "Foi recusado por falta de direito: o usuário 7");
    EXPECT_EQ(Changes(found[1]), (Lines{"Direito:  > Exportar dados"}));
}

TEST_F(HistoryChanges, TellFromEitherSideWhichOfTwoHasGoneOnAsTheOther)
{
    const auto plan = registers::PlanCustomerMerge(*otherDesk_, 10, 11);
    ASSERT_TRUE(plan);
    const auto merged = registers::MergeCustomers(*otherDesk_, *plan, {}, marcos_);
    ASSERT_TRUE(merged.IsDone());
    Filter unions;
    unions.operation = "uniao";
    unions.table = "cliente";
    const std::vector<Line> found = Find(unions);
    ASSERT_EQ(found.size(), 2U);
    for (const Line& line : found) {
        const bool hasStayed = line.key == 10;
        EXPECT_EQ(history::ActOf(line),
                  hasStayed ? "Uniu ao cliente 10 o registro 11" : "Uniu o cliente 11 ao registro 10");
        const Lines told = Changes(line);
        EXPECT_NE(std::ranges::find(told,
                                    hasStayed ? "Registro que foi unido a este:  > 11"
                                              : "Continua no registro:  > 10"),
                  told.end())
            << testing::PrintToString(told);
    }
}

TEST_F(HistoryChanges, OfWhoEntersAndOfWhatNobodyUndoesAreToldInWords)
{
    const std::pair<const char*, const char*> acts[] = {
        {"entrada", "Entrou como o usuário 7"},
        {"entrada_recusada", "Não conseguiu entrar como o usuário 7"},
        {"anonimizacao", "Tornou anônimo o usuário 7"},
        {"importacao_desfeita", "Desfez o usuário 7"},
    };
    for (const auto& [operation, act] : acts) {
        Run("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
            " ('2026-11-20 11:00:00', '7 - Lia', 'usuario', 7, '"
            + std::string(operation) + "', '{\"meio\":\"pin\",\"motivo\":\"inativo\"}')");
        const Line line = Newest("usuario", 7);
        EXPECT_EQ(history::ActOf(line), act);
        EXPECT_EQ(Changes(line), (Lines{"Meio:  > pin", "Motivo:  > inativo"}));
    }
}

TEST_F(HistoryChanges, OfAPreSaleAreItsStatesInWords)
{
    OtherSetsStatus(FullNumber, 4);
    Filter preSales;
    preSales.table = "pre_venda";
    const Lines made = Changes(Find(preSales).front());
    EXPECT_NE(std::ranges::find(made, "Situação:  > Aberta"), made.end()) << testing::PrintToString(made);
    EXPECT_TRUE(std::ranges::any_of(made, [](const std::string& one) {
        return one.starts_with("Criada em:  > 20/11/2026");
    })) << testing::PrintToString(made);
    OtherSetsStatus(FullNumber, 1);
    EXPECT_EQ(Changes(Find(preSales).front()), (Lines{"Situação: Aberta > Cancelada"}));
    Run("update auditoria set depois = '{\"situacao\":3}' where tabela = 'pre_venda' and operacao ="
        " 'alteracao'");
    EXPECT_EQ(Changes(Find(preSales).front()), (Lines{"Situação: Aberta > Faturada"}));
}

TEST_F(HistoryChanges, OfTheWaitingListAreToldInWords)
{
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes, depois) values"
        " ('2026-11-20 11:00:00', '7 - Lia', 'lista_de_espera', 5, 'alteracao', "
        "'{\"data_inicial\":\"2026-12-01\",\"dias_da_semana\":\"23456\",\"situacao\":1,\"versao\":1}',"
        "'{\"data_inicial\":\"2026-12-02\",\"dias_da_semana\":\"1234567\",\"situacao\":4,\"versao\":2}'),"
        " ('2026-11-20 11:00:01', '7 - Lia', 'espera_funcionario', 6, 'exclusao', "
        "'{\"codigo\":6,\"codigo_da_espera\":5,\"codigo_do_funcionario\":2}', null)");
    EXPECT_EQ(Changes(Newest("lista_de_espera", 5)),
              (Lines{"Do dia: 01/12/2026 > 02/12/2026", "Dias: seg, ter, qua, qui, sex > todos",
                     "Situação: Esperando > Desistiu"}));
    EXPECT_EQ(Changes(Newest("espera_funcionario", 6)),
              (Lines{"Pedido: 5 > ", "Funcionário(a): 2 - Bia > "}));
}

TEST_F(HistoryChanges, OfWhatNoFormHasAreCalledByWords)
{
    const std::pair<const char*, const char*> captions[] = {
        {"criado_em", "Criado em"},
        {"criado_por", "Criado por"},
        {"arquivo", "Arquivo"},
        {"cadastro", "Cadastro"},
        {"codificacao", "Codificação"},
        {"copia", "Cópia"},
        {"elo", "Último elo"},
        {"ultima_importacao", "Última importação"},
        {"de", "Da versão"},
        {"para", "Para a versão"},
        {"paginas", "Páginas"},
        {"linhas", "Linhas"},
        {"novos", "Novos"},
        {"alterados", "Alterados"},
        {"excluidos", "Excluídos"},
        {"restaurados", "Restaurados"},
        {"mantidos", "Mantidos"},
        {"linhas_da_auditoria", "Linhas do histórico"},
    };
    for (const auto& [column, caption] : captions) {
        Run("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
            " ('2026-11-20 11:00:00', '7 - Lia', 'importacao', 3, 'importacao', '{\""
            + std::string(column) + "\":\"3\"}')");
        EXPECT_EQ(Changes(Newest("importacao", 3)), (Lines{std::string(caption) + ":  > 3"}));
    }
}

TEST_F(HistoryChanges, OfWhatIsDoneWithTheShopAreToldInWords)
{
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
        " ('2026-11-20 11:00:00', '7 - Lia', 'exportacao', 0, 'exportacao', '{}'),"
        " ('2026-11-20 11:00:00', '7 - Lia', 'exportacao', 10, 'exportacao', '{}'),"
        " ('2026-11-20 11:00:00', '7 - Lia', 'impressao', 10, 'impressao', '{\"paginas\":2}'),"
        " ('2026-11-20 11:00:00', '7 - Lia', 'restauracao', 0, 'restauracao_de_copia', '{}'),"
        " ('2026-11-20 11:00:00', '7 - Lia', 'versao_do_esquema', 11, 'atualizacao', '{\"de\":7}'),"
        " ('2026-11-20 11:00:00', '7 - Lia', 'auditoria', 46432, 'arquivamento', '{\"ate\":2025}')");
    const std::vector<Line> found = Find({}, 6);
    std::vector<std::string> acts;
    for (const Line& line : found)
        acts.push_back(history::ActOf(line));
    EXPECT_EQ(
        acts,
        (Lines{"Arquivou linhas da auditoria", "Atualizou o banco de dados", "Restaurou uma cópia da loja",
               "Imprimiu dados do cliente 10", "Exportou dados do cliente 10", "Exportou dados"}));
    EXPECT_EQ(Changes(found[0]), (Lines{"Até o ano:  > 2025"}));
    EXPECT_EQ(Changes(found[1]), (Lines{"Da versão:  > 7"}));
    EXPECT_EQ(Changes(found[3]), (Lines{"Páginas:  > 2"}));
}

TEST_F(HistoryChanges, TellOfColumnsThatTheLineHasAndOfNoOthers)
{
    Run("update auditoria set antes = '{\"observacao\":\"a\"}', depois = '{\"observacao\":\"b\"}',"
        " operacao = 'alteracao' where tabela = 'agendamento' and chave = 24");
    EXPECT_EQ(Changes(Newest("agendamento", FullNumber)), (Lines{"Observação: a > b"}));
}

TEST_F(HistoryChanges, KeepQuotesLongTextsAndBytesThatAreNoCharacters)
{
    const std::string longText(1000, 'x');
    Run("update auditoria set antes = '{\"nome\":\"d''Ávila \\\"Zé\\\" <b>\"}', depois = '{\"nome\":\""
        + longText
        + "\"}', operacao = 'alteracao', tabela = 'cliente', chave = 10 where tabela = 'agendamento' and "
          "chave = 24");
    EXPECT_EQ(Changes(Newest("cliente", 10)), (Lines{"Nome: d'Ávila \"Zé\" <b> > " + longText}));
}

} // namespace kova::family::test
