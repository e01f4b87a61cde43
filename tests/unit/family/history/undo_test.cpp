// What is undone, by the rules of any write, and why something is not.

#include "tests/unit/family/history/history_fixture.hpp"

#include "family/registers/access/access_registers.hpp"
#include "family/registers/customers/customer_merge.hpp"
#include "family/registers/customers/customer_registers.hpp"
#include "family/users/accounts.hpp"
#include "tests/unit/family/users/cheap.hpp"

#include <algorithm>

namespace kova::family::test {

using Lines = std::vector<std::string>;

class HistoryUndo : public HistoryTest {
protected:
    /// It is refused with that, before and in the end, and nothing is written.
    void ExpectRefused(const Line& line, const std::string& why)
    {
        EXPECT_EQ(Plan(line), "! " + why);
        const auto before = Contents();
        EXPECT_EQ(Undo(line), why);
        EXPECT_EQ(Contents(), before);
    }

    Line LineOf(const std::string& operation)
    {
        Filter filter;
        filter.operation = operation;
        return Find(filter).at(0);
    }
};

TEST_F(HistoryUndo, SetsTheFormerStatusAgain)
{
    OtherSetsStatus(FullNumber, 3);
    const Line line = Newest("agendamento", FullNumber);
    EXPECT_EQ(Plan(line), "Situação volta a ser \"Agendado\".");
    EXPECT_EQ(Undo(line), "");
    EXPECT_EQ(Stored(FullNumber).situacao, 1);
    EXPECT_EQ(Stored(FullNumber).alteradoPor.value, "Lia");
}

TEST_F(HistoryUndo, LeavesALineOfItsOwnThatNamesTheOneThatItUndoes)
{
    OtherSetsStatus(FullNumber, 3);
    const Line line = Newest("agendamento", FullNumber);
    ASSERT_EQ(Undo(line), "");
    const Line undoing = Newest("agendamento", FullNumber);
    EXPECT_EQ(undoing.audit.user, "7 - Lia");
    EXPECT_EQ(undoing.audit.moment, "2026-11-20 10:04:05");
    EXPECT_EQ(history::ActOf(undoing), "Marcou como agendado o agendamento 24");
    EXPECT_EQ(
        Changes(undoing),
        (Lines{"Situação: Cancelado > Agendado",
               "Desfaz:  > Cancelou o agendamento 24, de Marcos (posto BALCAO-2) em 20/11/2026 às 09:30"}));
}

TEST_F(HistoryUndo, DoesNothingTwice)
{
    OtherSetsStatus(FullNumber, 3);
    const Line line = Newest("agendamento", FullNumber);
    ASSERT_EQ(Undo(line), "");
    ExpectRefused(line, "Já foi desfeito por Lia (posto BALCAO-1) em 20/11/2026 às 10:04.");
}

TEST_F(HistoryUndo, OfAnUndoSetsBackWhatWasUndone)
{
    OtherSetsStatus(FullNumber, 3);
    ASSERT_EQ(Undo(Newest("agendamento", FullNumber)), "");
    ASSERT_EQ(Undo(Newest("agendamento", FullNumber)), "");
    EXPECT_EQ(Stored(FullNumber).situacao, 3);
}

TEST_F(HistoryUndo, PutsBackTheFieldsOfALineAndNoOthers)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.startDate = input.endDate = "02/12/2026";
        input.remark = "Outra";
    });
    const Line line = Newest("agendamento", FullNumber);
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.take = 1; });
    EXPECT_EQ(Plan(line),
              "Data inicial volta a ser \"01/12/2026\".\nData final volta a ser \"01/12/2026\".\n"
              "Observação volta a ser \"Laço azul.\".");
    ASSERT_EQ(Undo(line), "");
    EXPECT_EQ(Stored(FullNumber).dataInicial, "2026-12-01");
    EXPECT_EQ(Stored(FullNumber).observacao.value, "Laço azul.");
    EXPECT_EQ(Stored(FullNumber).transporteLevar, 1);
}

TEST_F(HistoryUndo, IsRefusedWhereTheSameWasChangedSince)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Uma"; });
    const Line line = Newest("agendamento", FullNumber);
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Outra"; });
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Uma"; });
    ExpectRefused(line,
                  "O mesmo foi mudado depois por Marcos (posto BALCAO-2) em 20/11/2026 às 09:30."
                  " Desfaça antes essa alteração.");
}

TEST_F(HistoryUndo, IsRefusedWhereAnotherProgramChangedTheRow)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Uma"; });
    Run("update agendamento set observacao = 'Por fora' where numero = 24");
    ExpectRefused(Newest("agendamento", FullNumber),
                  "Não está mais como esta alteração deixou: outro programa o mudou. Mude-o à mão.");
}

TEST_F(HistoryUndo, GoesByTheRulesOfAnyWrite)
{
    OtherSetsStatus(FullNumber, 3);
    const Line line = Newest("agendamento", FullNumber);
    ASSERT_EQ(Write(*Full(On(Day, "09:00", "10:00"))), 0) << "somebody else has the place now";
    EXPECT_EQ(Plan(line), "Situação volta a ser \"Agendado\".") << "only the write can tell";
    const auto before = Contents();
    EXPECT_NE(Undo(line).find(" já tem agendamento das 09:00 às 10:00 em 01/12/2026."), std::string::npos);
    EXPECT_EQ(Contents(), before);
}

TEST_F(HistoryUndo, OfAPreSaleCancelsItAndIsRefusedOnceItWasBilled)
{
    OtherSetsStatus(FullNumber, 4);
    const Line line = Newest("agendamento", FullNumber);
    Run("update pre_venda set situacao = 3 where numero_do_agendamento = 24");
    EXPECT_NE(Undo(line).find("faturada"), std::string::npos);
    Run("update pre_venda set situacao = 1 where numero_do_agendamento = 24");
    EXPECT_EQ(Undo(line), "");
    EXPECT_EQ(Stored(FullNumber).situacao, 1);
    EXPECT_EQ(Texts("select cast(situacao as text) from pre_venda where numero_do_agendamento = 24"),
              (Lines{"2"}));
}

TEST_F(HistoryUndo, BringsADeletedAppointmentBackOnce)
{
    const AppointmentRow before = Stored(FullNumber);
    OtherDeletes(FullNumber);
    const Line line = Newest("agendamento", FullNumber);
    EXPECT_EQ(Plan(line), "O agendamento 24 volta para a agenda como estava.");
    ASSERT_EQ(Undo(line), "");
    EXPECT_EQ(Stored(FullNumber).observacao.value, before.observacao.value);
    ExpectRefused(line, "Já foi desfeito por Lia (posto BALCAO-1) em 20/11/2026 às 10:04.");
    ExpectRefused(Newest("agendamento", FullNumber),
                  "Uma restauração não se desfaz aqui: exclua o registro onde ele está.");
    OtherDeletes(FullNumber);
    ExpectRefused(line,
                  "Depois disto houve outra gravação (Exclusão) por Marcos (posto BALCAO-2) em 20/11/2026 às "
                  "09:30. Só a última exclusão pode ser desfeita.");
    EXPECT_EQ(Undo(Newest("agendamento", FullNumber)), "");
}

TEST_F(HistoryUndo, OfAChangeWaitsForTheAppointmentToBeThereAgain)
{
    OtherSetsStatus(FullNumber, 3);
    const Line line = Newest("agendamento", FullNumber);
    OtherDeletes(FullNumber);
    ExpectRefused(line, "O agendamento não existe mais: foi excluído. Desfaça antes a exclusão.");
    ASSERT_EQ(Undo(Newest("agendamento", FullNumber)), "");
    EXPECT_EQ(Undo(line), "");
    EXPECT_EQ(Stored(FullNumber).situacao, 1);
}

TEST_F(HistoryUndo, PutsBackTheFieldsOfARegistersRow)
{
    const registers::Register& customers = registers::CustomerRegister();
    OtherSaves(customers, 10, {{"Canais", "E-mail: ze@example.com; Recado: Falar com \"Tê\""}});
    const std::string channels = Field(customers, 10, "Canais");
    OtherSaves(customers, 10, {{"Canais", "Celular: (11) 91234-5678"}, {"Apelido", "Zezé"}});
    const Line line = Newest("cliente", 10);
    OtherSaves(customers, 10, {{"Bairro", "Centro"}});
    ASSERT_EQ(Undo(line), "");
    EXPECT_EQ(Field(customers, 10, "Apelido"), "Zé");
    EXPECT_EQ(Field(customers, 10, "Canais"), channels);
    EXPECT_EQ(Field(customers, 10, "Bairro"), "Centro");
    ExpectRefused(line, "Já foi desfeito por Lia (posto BALCAO-1) em 20/11/2026 às 10:04.");
}

TEST_F(HistoryUndo, InARegisterGoesByItsRules)
{
    const registers::Register& customers = registers::CustomerRegister();
    OtherSaves(customers, 10, {{"Documento", ""}});
    const Line line = Newest("cliente", 10);
    OtherSaves(customers, 11, {{"Tipo de pessoa", "PF"}, {"Documento", "123.456.789-09"}});
    const auto before = Contents();
    EXPECT_EQ(Undo(line), "O que havia antes não cabe mais. Documento: o cliente 11 já tem este documento.");
    EXPECT_EQ(Contents(), before);
}

TEST_F(HistoryUndo, BringsARemovedRowOfARegisterBackWithAllThatBelongedToIt)
{
    const registers::Register& customers = registers::CustomerRegister();
    registers::Texts typed = customers.New();
    typed.at(registers::FieldNamed(customers.Fields(), "Nome")) = "Íris d'Ávila";
    typed.at(registers::FieldNamed(customers.Fields(), "Canais")) = "Celular: (11) 91234-5678";
    const Key key = customers.Save(*otherDesk_, 0, {}, typed, marcos_).key;
    const registers::Texts before = customers.Read(*here_, key).value();
    ASSERT_TRUE(customers.Remove(*otherDesk_, key, marcos_).IsDone());
    const Line line = Newest("cliente", key);
    EXPECT_EQ(Plan(line), "O cliente " + std::to_string(key) + " volta para os cadastros como estava.");
    ASSERT_EQ(Undo(line), "");
    EXPECT_EQ(customers.Read(*here_, key).value(), before);
    EXPECT_EQ(Newest("cliente", key).audit.operation, "restauracao");
    ExpectRefused(line, "Já foi desfeito por Lia (posto BALCAO-1) em 20/11/2026 às 10:04.");
}

TEST_F(HistoryUndo, OfARemovalIsRefusedWhereWhatItRefersToIsGone)
{
    const registers::Register& animals = registers::AnimalRegister();
    registers::Texts typed = animals.New();
    for (const auto& [label, text] : TypedFields{{"Código do cliente", "11"},
                                                 {"Nome", "Nina"},
                                                 {"Sexo", "Fêmea"},
                                                 {"Espécie", "Canina"},
                                                 {"Porte", "Médio"}})
        typed.at(registers::FieldNamed(animals.Fields(), label)) = text;
    const Key key = animals.Save(*otherDesk_, 0, {}, typed, marcos_).key;
    ASSERT_TRUE(animals.Remove(*otherDesk_, key, marcos_).IsDone());
    UncheckReferences(Session());
    Run("delete from cliente where codigo = 11");
    EXPECT_EQ(Undo(Newest("animal", key)), "O que havia antes se refere a cliente 11, que não existe mais.");
}

TEST_F(HistoryUndo, TellsWhatItCannotDo)
{
    ExpectRefused(Newest("agendamento", FullNumber),
                  "Uma inclusão não se desfaz aqui: exclua o registro onde ele está.");
    OtherSetsStatus(FullNumber, 4);
    OtherSetsStatus(FullNumber, 1);
    Filter preSales;
    preSales.table = "pre_venda";
    ExpectRefused(Find(preSales).at(0),
                  "O que foi gravado em Pré-vendas segue de outra gravação, e se desfaz com ela.");
    for (const auto& [operation, why] :
         {std::pair("importacao", "Uma importação se desfaz por inteiro, em \"agenda-data undo-import\"."),
          std::pair("uniao", "Uma união de cadastros não pode ser desfeita."),
          std::pair("anonimizacao", "Uma anonimização não pode ser desfeita: os dados não existem mais."),
          std::pair("entrada", "Isto não mudou nenhum registro: não há o que desfazer.")}) {
        Run("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
            " ('2026-11-20 11:00:00', '7 - Lia', 'cliente', 10, '"
            + std::string(operation) + "', '{}')");
        ExpectRefused(LineOf(operation), why);
    }
}

TEST_F(HistoryUndo, BringsNobodyBackWhoHasBecomeOneWithAnother)
{
    const auto plan = registers::PlanCustomerMerge(*otherDesk_, 10, 11);
    ASSERT_TRUE(plan);
    ASSERT_TRUE(registers::MergeCustomers(*otherDesk_, *plan, {}, marcos_).IsDone());
    const Line removal = Newest("cliente", 11);
    EXPECT_EQ(removal.audit.operation, "exclusao");
    ExpectRefused(removal, "Foi unido a outro cadastro, e uma união não pode ser desfeita.");
    ExpectRefused(LineOf("uniao"), "Uma união de cadastros não pode ser desfeita.");
}

TEST_F(HistoryUndo, GivesNobodyHisUserRoleOrSecretsBack)
{
    LiaMay({Right::SeeHistory, Right::AdministerUsers});
    const Secret password("Laço Verde 33");
    ASSERT_EQ(SetPassword(*otherDesk_, 7, password, marcos_, Cheap).why, "");
    ExpectRefused(Newest("usuario", 7), "Esta alteração não se desfaz aqui.");
    const auto made = SaveAccount(*otherDesk_, {0, "Nina", 3, true}, &password, marcos_, Cheap);
    ASSERT_EQ(made.why, "");
    const Key role = SaveRole(*otherDesk_, {0, "Tosa", {Right::Book}}, marcos_).code;
    ASSERT_TRUE(registers::UserRegister().Remove(*otherDesk_, made.code, marcos_).IsDone());
    ASSERT_TRUE(registers::RoleRegister().Remove(*otherDesk_, role, marcos_).IsDone());
    for (const Line& line : {Newest("usuario", made.code), Newest("papel", role)})
        ExpectRefused(line, "A exclusão de um usuário ou de um papel não se desfaz: cadastre-o de novo.");
}

TEST_F(HistoryUndo, NeedsALineThatTellsWhatWasThere)
{
    OtherSetsStatus(FullNumber, 3);
    OtherSaves(registers::CustomerRegister(), 10, {{"Apelido", "Zezé"}});
    Run("update auditoria set antes = '{}' where operacao = 'alteracao'");
    for (const Line& line : {Newest("agendamento", FullNumber), Newest("cliente", 10)})
        ExpectRefused(line, "Esta linha não diz tudo que havia antes.");
}

TEST_F(HistoryUndo, OfAChangeThatWasMadeAnonymousSinceIsRefused)
{
    OtherSaves(registers::CustomerRegister(), 10, {{"Apelido", "Zezé"}});
    const Line line = Newest("cliente", 10);
    Run("insert into auditoria (momento, usuario, tabela, chave, operacao, depois) values"
        " ('2026-11-20 11:00:00', '7 - Lia', 'cliente', 10, 'anonimizacao', '{}')");
    ExpectRefused(line, "Os dados desta pessoa foram apagados depois, e não voltam.");
}

TEST_F(HistoryUndo, NeedsTheRightOfTheActItself)
{
    OtherSetsStatus(FullNumber, 2);
    const Line attended = Newest("agendamento", FullNumber);
    OtherSetsStatus(SimplifiedNumber, 3);
    OtherSetsStatus(SimplifiedNumber, 1);
    const Line rebooked = Newest("agendamento", SimplifiedNumber);
    OtherDeletes(23);
    const Line deleted = Newest("agendamento", 23);
    OtherSaves(registers::ServiceRegister(), 2, {{"Preço", "70,00"}});
    const Line price = Newest("servico", 2);
    const std::tuple<Line, Right, std::string> needs[] = {
        {attended, Right::ChangeAppointments, "alterar agendamentos"},
        {rebooked, Right::CancelAppointments, "cancelar agendamentos"},
        {deleted, Right::Book, "incluir agendamentos"},
        {price, Right::ChangeRegisters, "alterar cadastros"},
        {price, Right::SeePrices, "ver e alterar preços e custos"},
    };
    for (const auto& [line, right, act] : needs) {
        Rights rights;
        for (const RightInfo& info : AllRights())
            rights.insert(info.right);
        rights.erase(right);
        LiaMay(rights);
        ExpectRefused(line, "Recepção não pode " + act + ". Peça a quem administra os usuários.");
    }
    LiaMay({Right::SeeHistory, Right::ChangeAppointments});
    EXPECT_EQ(Undo(attended), "");
}

} // namespace kova::family::test
