// What may be written of the waiting list, and what becomes of two desks that want the same of it.

#include "tests/unit/family/waiting/waiting_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/users/user_rights.hpp"

#include <atomic>
#include <functional>
#include <thread>

namespace kova::family::test {

using waiting::WaitingAnswer;

class WaitingWrites : public WaitingTest {
protected:
    const Author lia_ = LiaAt("2026-11-20 09:10:00");

    std::vector<std::string> Rows() { return RowsOf("lista_de_espera", "1 = 1"); }

    void ExpectInvalid(const char* field, const std::string& text,
                       const std::function<void(WaitingEntry&)>& change)
    {
        WaitingEntry entry = Bath();
        change(entry);
        const WaitingAnswer answer = waiting::Add(Data(), entry, lia_);
        EXPECT_EQ(answer.status, WriteAnswer::Invalid) << text;
        EXPECT_EQ(answer.field, field);
        EXPECT_EQ(answer.text, text);
        EXPECT_EQ(Count("lista_de_espera"), 0);
    }
    void ExpectRefused(const WaitingAnswer& answer, const std::string& text)
    {
        EXPECT_EQ(answer.status, WriteAnswer::Refused);
        EXPECT_EQ(answer.text, text);
    }
};

TEST_F(WaitingWrites, AddWhoWaits)
{
    WaitingEntry entry = Bath();
    entry.row.situacao = waiting_status::Booked;
    entry.row.numeroDoAgendamento = Key(24);
    entry.row.versao = 9;
    entry.employees = {1, 2};
    const WaitingAnswer answer = waiting::Add(Data(), entry, lia_);
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(answer.version, 1);
    const WaitingRow row = Kept(answer.code);
    EXPECT_EQ(row.situacao, waiting_status::Waiting);
    EXPECT_TRUE(row.numeroDoAgendamento.IsNull());
    EXPECT_EQ(row.versao, 1);
    EXPECT_EQ(row.incluidoPor, "Lia");
    EXPECT_EQ(row.incluidoEm, "2026-11-20 09:10:00");
    EXPECT_EQ(Count("auditoria where tabela in ('lista_de_espera', 'espera_servico', 'espera_funcionario')"),
              4);
}

TEST_F(WaitingWrites, AskForACustomerAndAnAnimalThatCanBeBooked)
{
    ExpectInvalid("codigo_do_cliente", "Informe um cliente cadastrado.",
                  [](WaitingEntry& entry) { entry.row.codigoDoCliente = 99; });
    ExpectInvalid("codigo_do_animal", "Informe um animal do cliente.",
                  [](WaitingEntry& entry) { entry.row.codigoDoAnimal = 51; });
    ExpectInvalid("codigo_do_animal", "Informe um animal do cliente.",
                  [](WaitingEntry& entry) { entry.row.codigoDoAnimal = 0; });
    Run("update animal set situacao = 2 where codigo = 50");
    ExpectInvalid("codigo_do_animal", "O animal está inativo.", [](WaitingEntry&) {});
    Run("update cliente set situacao = 4 where codigo = 10");
    ExpectInvalid("codigo_do_cliente", "O cliente está excluído.", [](WaitingEntry&) {});
}

TEST_F(WaitingWrites, AskForServicesAndEmployeesThatAreOffered)
{
    ExpectInvalid("servicos", "Informe o serviço.", [](WaitingEntry& entry) { entry.services.clear(); });
    ExpectInvalid("servicos", "O serviço 77 não existe ou está inativo.", [](WaitingEntry& entry) {
        entry.services = {2, 77};
    });
    Run("update servico set situacao = 2 where codigo = 1");
    ExpectInvalid("servicos", "O serviço 1 não existe ou está inativo.", [](WaitingEntry& entry) {
        entry.services = {1, 2};
    });
    ExpectInvalid("funcionarios", "O(a) funcionário(a) 3 não existe ou está inativo(a).",
                  [](WaitingEntry& entry) {
                      entry.employees = {2, 3};
                  });
}

TEST_F(WaitingWrites, AskForDaysAndHoursThatCanCome)
{
    ExpectInvalid("data_inicial", "Informe o primeiro dia.",
                  [](WaitingEntry& entry) { entry.row.dataInicial = "2026-02-30"; });
    ExpectInvalid("data_final", "Informe o último dia.",
                  [](WaitingEntry& entry) { entry.row.dataFinal = ""; });
    ExpectInvalid("data_final", "O último dia é anterior ao primeiro.",
                  [](WaitingEntry& entry) { entry.row.dataFinal = "2026-11-30"; });
    ExpectInvalid("data_final", "O último dia já passou.", [](WaitingEntry& entry) {
        entry.row.dataInicial = "2026-11-01";
        entry.row.dataFinal = "2026-11-19";
    });
    for (const char* digits : {"", "0", "8", "2a", "32", "22"})
        ExpectInvalid("dias_da_semana", "Informe os dias da semana.",
                      [&](WaitingEntry& entry) { entry.row.diasDaSemana = digits; });
    ExpectInvalid("dias_da_semana", "Nenhum desses dias da semana cai entre o primeiro e o último dia.",
                  [](WaitingEntry& entry) {
                      entry.row.dataFinal = "2026-12-04";
                      entry.row.diasDaSemana = "27";
                  });
    ExpectInvalid("hora_inicial", "Informe a hora a partir da qual serve.",
                  [](WaitingEntry& entry) { entry.row.horaInicial = "24:00"; });
    ExpectInvalid("hora_final", "Informe a hora até a qual serve.",
                  [](WaitingEntry& entry) { entry.row.horaFinal = "25:00"; });
    ExpectInvalid("hora_final", "O fim não é posterior ao início.",
                  [](WaitingEntry& entry) { entry.row.horaFinal = "08:00"; });
    ExpectInvalid("hora_final", "Das 08:00 às 09:14 não cabe Banho, que leva 75 minutos.",
                  [](WaitingEntry& entry) { entry.row.horaFinal = "09:14"; });
    WaitingEntry tight = Bath();
    tight.row.dataInicial = tight.row.dataFinal = "2026-11-20";
    tight.row.diasDaSemana = "6";
    tight.row.horaFinal = "09:15";
    EXPECT_TRUE(waiting::Add(Data(), tight, lia_).IsDone()) << "today, and just long enough";
}

TEST_F(WaitingWrites, ChangeWhatPeopleSayAndNotTheState)
{
    const WaitingRow row = Added();
    WaitingEntry entry = FindWaiting(Data(), row.codigo).value();
    entry.row.horaFinal = "12:00";
    entry.row.situacao = waiting_status::GivenUp;
    entry.services = {1};
    const WaitingAnswer answer = waiting::Change(Data(), entry, lia_);
    ASSERT_TRUE(answer.IsDone()) << answer.text;
    EXPECT_EQ(answer.version, 2);
    EXPECT_EQ(Kept(row.codigo).horaFinal, "12:00");
    EXPECT_EQ(Kept(row.codigo).situacao, waiting_status::Waiting);
    EXPECT_EQ(FindWaiting(Data(), row.codigo)->services, std::set<Key>{1});
    entry.row.versao = 2;
    entry.services.clear();
    EXPECT_EQ(waiting::Change(Data(), entry, lia_).field, "servicos");
    EXPECT_EQ(FindWaiting(Data(), row.codigo)->services, std::set<Key>{1}) << "nothing was written";
}

TEST_F(WaitingWrites, TellWhoHasChangedItMeanwhile)
{
    const WaitingRow row = Added();
    WaitingEntry mine = FindWaiting(Data(), row.codigo).value(), theirs = mine;
    theirs.row.horaFinal = "12:00";
    ASSERT_TRUE(waiting::Change(*otherDesk_, theirs, marcos_).IsDone());
    const std::vector<std::string> before = Rows();
    mine.row.observacao = std::string("Ligar antes");
    const std::string told = "Este pedido da lista de espera foi alterado por Marcos em 20/11/2026 09:30:00."
                             " Nada foi gravado.";
    ExpectRefused(waiting::Change(Data(), mine, lia_), told);
    ExpectRefused(waiting::GiveUp(Data(), row.codigo, row.versao, lia_), told);
    ExpectRefused(waiting::MarkBooked(Data(), row.codigo, row.versao, FullNumber, lia_), told);
    EXPECT_EQ(Rows(), before);
    ExpectRefused(waiting::GiveUp(Data(), 77, 1, lia_),
                  "Este pedido da lista de espera não existe mais. Nada foi gravado.");
}

TEST_F(WaitingWrites, GiveUpAndAreThenOver)
{
    const WaitingRow row = Added();
    ASSERT_TRUE(waiting::GiveUp(Data(), row.codigo, 1, lia_).IsDone());
    EXPECT_EQ(Kept(row.codigo).situacao, waiting_status::GivenUp);
    const std::string told = "Este pedido da lista de espera foi encerrado por Lia em 20/11/2026 09:10:00: o"
                             " cliente desistiu. Nada foi gravado.";
    ExpectRefused(waiting::Take(*otherDesk_, row.codigo, marcos_), told);
    ExpectRefused(waiting::GiveUp(Data(), row.codigo, 2, lia_), told);
    ExpectRefused(waiting::MarkBooked(Data(), row.codigo, 2, FullNumber, lia_), told);
    ExpectRefused(waiting::Change(Data(), FindWaiting(Data(), row.codigo).value(), lia_), told);
}

TEST_F(WaitingWrites, LetOneDeskBookAndTellTheOther)
{
    const WaitingRow row = Added();
    const WaitingAnswer taken = waiting::Take(Data(), row.codigo, lia_);
    ASSERT_TRUE(taken.IsDone()) << taken.text;
    EXPECT_EQ(Kept(row.codigo).situacao, waiting_status::BeingBooked);
    ExpectRefused(waiting::Take(*otherDesk_, row.codigo, LiaAt("2026-11-20 09:24:59")),
                  "Este pedido da lista de espera está sendo marcado por Lia em 20/11/2026 09:10:00."
                  " Nada foi gravado.");
    const WaitingAnswer booked = waiting::MarkBooked(Data(), row.codigo, taken.version, FullNumber, lia_);
    ASSERT_TRUE(booked.IsDone()) << booked.text;
    EXPECT_EQ(Kept(row.codigo).numeroDoAgendamento.ValueOr(0), FullNumber);
    ExpectRefused(waiting::Take(*otherDesk_, row.codigo, marcos_),
                  "Este pedido da lista de espera já foi marcado por Lia em 20/11/2026 09:10:00 (agendamento"
                  " 24). Nada foi gravado.");
}

TEST_F(WaitingWrites, PutBackWhatWasNotBookedAfterAll)
{
    const WaitingRow row = Added();
    const WaitingAnswer taken = waiting::Take(Data(), row.codigo, lia_);
    ASSERT_TRUE(waiting::PutBack(Data(), row.codigo, taken.version, lia_).IsDone());
    EXPECT_EQ(Kept(row.codigo).situacao, waiting_status::Waiting);
    EXPECT_TRUE(waiting::Take(*otherDesk_, row.codigo, marcos_).IsDone());
    ExpectRefused(waiting::PutBack(Data(), row.codigo, taken.version, lia_),
                  "Este pedido da lista de espera está sendo marcado por Marcos em 20/11/2026 09:30:00."
                  " Nada foi gravado.");
}

TEST_F(WaitingWrites, LetGoOfWhatADeskKeepsForTooLong)
{
    const WaitingRow row = Added();
    const WaitingAnswer taken = waiting::Take(Data(), row.codigo, lia_);
    ASSERT_TRUE(taken.IsDone());
    EXPECT_TRUE(waiting::IsInHand(Kept(row.codigo), "2026-11-20 09:24:59"));
    EXPECT_FALSE(waiting::IsInHand(Kept(row.codigo), "2026-11-20 09:25:00"));
    ASSERT_TRUE(waiting::Take(*otherDesk_, row.codigo, marcos_).IsDone()) << "at 09:30";
    ExpectRefused(waiting::MarkBooked(Data(), row.codigo, taken.version, FullNumber, lia_),
                  "Este pedido da lista de espera está sendo marcado por Marcos em 20/11/2026 09:30:00."
                  " Nada foi gravado.");
}

TEST_F(WaitingWrites, MarkAsBookedWithAnAppointmentOfTheCustomerOnly)
{
    const WaitingRow row = Added();
    ExpectRefused(waiting::MarkBooked(Data(), row.codigo, 1, 999, lia_),
                  "O agendamento 999 não existe. Nada foi gravado.");
    for (const Key other : {Key(3), SimplifiedNumber})
        ExpectRefused(waiting::MarkBooked(Data(), row.codigo, 1, other, lia_),
                      "O agendamento " + std::to_string(other) + " não é deste cliente. Nada foi gravado.");
    EXPECT_TRUE(waiting::MarkBooked(Data(), row.codigo, 1, FullNumber, lia_).IsDone());
}

TEST_F(WaitingWrites, OfTwoDesksAtOnceAreOneAndTellTheOther)
{
    constexpr int Entries = 12;
    std::vector<Key> codes;
    for (int number = 0; number < Entries; ++number)
        codes.push_back(Added().codigo);
    std::atomic<int> done = 0, told = 0, failed = 0;
    const auto take = [&](const Author& author) {
        try {
            const std::shared_ptr<Database> database = OpenDatabase(host_.DataSource());
            for (const Key code : codes) {
                const WaitingAnswer answer = waiting::Take(*database, code, author);
                const bool tells = answer.text.find("está sendo marcado por") != std::string::npos;
                ++(answer.IsDone() ? done : tells ? told : failed);
            }
        } catch (const Failure&) {
            ++failed;
        }
    };
    std::thread first([&] { take(lia_); }), second([&] { take(LiaAt("2026-11-20 09:11:00")); });
    first.join();
    second.join();
    EXPECT_EQ(done, Entries);
    EXPECT_EQ(told, Entries);
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(Count("lista_de_espera where situacao = 2 and versao = 2"), Entries);
}

TEST_F(WaitingWrites, AreForThoseWithTheRightTo)
{
    const WaitingRow row = Added();
    Run("update usuario set situacao = 1");
    Run("insert into papel (codigo, nome) values (9, 'Banho')");
    Run("insert into usuario (codigo, nome, codigo_do_papel) values (7, 'Lia', 9)");
    const std::string denied = "Banho não pode incluir agendamentos.";
    for (const WaitingAnswer& answer :
         {waiting::Add(Data(), Bath(), lia_), waiting::Take(Data(), row.codigo, lia_),
          waiting::MarkBooked(Data(), row.codigo, 1, FullNumber, lia_)})
        EXPECT_EQ(answer.text.substr(0, denied.size()), denied);
    EXPECT_EQ(waiting::GiveUp(Data(), row.codigo, 1, lia_).status, WriteAnswer::Refused);
    EXPECT_EQ(Count("lista_de_espera where situacao = 1"), 1);
    EXPECT_EQ(Count("auditoria where operacao = 'direito_negado'"), 4);
}

} // namespace kova::family::test
