// The status write against a data source that fails in the middle or is in use.

#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/business/appointments/status_change.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/shared_database.hpp"

#include <atomic>
#include <thread>

namespace kova::family::test {

class StatusWrite : public DeskTest {
protected:
    struct Stop {
        const char *event, *table, *condition;
    };

    /// Every write that is stopped there answers 1 with its reason and leaves nothing behind.
    void ExpectUndone(Component& agenda, const char* member, const Stop& stop)
    {
        SCOPED_TRACE(std::string(stop.event) + " " + stop.table + " " + stop.condition);
        Break(stop.table, stop.event, stop.condition);
        const auto before = Everything();
        EXPECT_EQ(agenda.Call(member), Value(Integer(1)));
        EXPECT_NE(agenda.Get("DescricaoDoErro").ToText().find("parada de teste"), std::string::npos);
        EXPECT_NE(agenda.Get("NumeroDoErro"), Value(Long(0)));
        EXPECT_EQ(Everything(), before);
        Mend(stop.table);
    }
};

namespace {

constexpr const char* Package = "AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa";

/// Changes an appointment again and again on a connection of its own; counts what did not succeed.
void ChangeRepeatedly(const std::string& path, const std::vector<int>& statuses, std::atomic<int>& failures)
{
    try {
        const std::shared_ptr<Database> database = OpenDatabase(path);
        const Author author{"7", "Lia", "2026-11-20 09:04:05"};
        for (int round = 0; round < 15; ++round) {
            for (const int status : statuses)
                failures += ChangeStatus(*database, 2, status, author).IsDone() ? 0 : 1;
        }
    } catch (const Failure&) {
        ++failures;
    }
}

} // namespace

TEST_F(StatusWrite, IsUndoneWholeWhereverItFailsAndWorksAfterwards)
{
    const auto agenda = Desk(2, 4);
    for (const Stop& stop : {Stop{"after insert", "pre_venda", ""}, Stop{"before update", "agendamento", ""},
                             Stop{"before insert", "auditoria", "new.tabela = 'pre_venda'"},
                             Stop{"before insert", "auditoria", "new.tabela = 'agendamento'"}})
        ExpectUndone(*agenda, "Alterar", stop);
    EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    agenda->Set("SituacaoNova", Integer(1));
    for (const Stop& stop : {Stop{"after update", "pre_venda", ""}, Stop{"after update", "agendamento", ""}})
        ExpectUndone(*agenda, "Alterar", stop);
    EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(agenda->Get("DescricaoDoErro"), Value(""));
}

TEST_F(StatusWrite, OfAPackageIsUndoneWholeWhereItsLastAppointmentFails)
{
    const auto agenda = Desk(21, 1);
    ExpectUndone(*agenda, Package, {"before update", "agendamento", "new.numero = 23"});
    EXPECT_EQ(agenda->Call(Package), Value(Integer(0)));
    EXPECT_EQ(StatusOf(23), 3);
}

TEST_F(StatusWrite, TellsThatTheDataAreInUseAndWorksWhenTheyAreFree)
{
    Run("pragma busy_timeout = 0");
    const auto before = Everything();
    const auto agenda = Desk(2, 2);
    const std::shared_ptr<Database> other = OpenDatabase(host_.DataSource());
    {
        WriteTransaction writing(*other);
        EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(2)));
        EXPECT_EQ(agenda->Get("NomeDoCampoValidado"), Value("Gravacao"));
        EXPECT_NE(agenda->Get("DescricaoDaFalha").ToText().find("em uso por outro programa"),
                  std::string::npos);
        EXPECT_EQ(Everything(), before);
    }
    EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
}

TEST_F(StatusWrite, SeesWhatAnotherConnectionHasWrittenSinceItsLastRead)
{
    const auto agenda = Desk(2, 4);
    ASSERT_EQ(Find("").size(), 8U);
    const std::shared_ptr<Database> other = OpenDatabase(host_.DataSource());
    ASSERT_TRUE(ChangeStatus(*other, 2, 4, {"8", "Rui", "2026-11-20 09:00:00"}).IsDone());
    ASSERT_EQ(agenda->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(PreSales(), std::vector<std::string>{"2 6000 1 2026-11-20 09:00:00"});
    other->Session() << "delete from agendamento where numero = 2";
    EXPECT_EQ(agenda->Call("Alterar"), Value(Integer(3)));
}

TEST_F(StatusWrite, LosesNothingWhereTwoConnectionsWriteAtOnce)
{
    std::atomic<int> failures = 0;
    std::thread first([&] { ChangeRepeatedly(host_.DataSource(), {4, 1}, failures); });
    std::thread second([&] { ChangeRepeatedly(host_.DataSource(), {4, 2}, failures); });
    first.join();
    second.join();
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(Count("auditoria where tabela = 'agendamento'"), 60);
    // Each line begins where the one before it ended. A status that was written twice stands in no line's
    // columns, since it did not change.
    const auto lines = FindAuditLines(*SharedDatabase(host_.DataSource()), "agendamento", 2, 100);
    ASSERT_EQ(lines.size(), 60U);
    for (std::size_t at = 1; at < lines.size(); ++at)
        EXPECT_EQ(lines[at - 1].before.at("versao"), lines[at].after.at("versao")) << at;
    EXPECT_EQ(Count("pre_venda where situacao = 1"), StatusOf(2) == 4 ? 1 : 0);
}

} // namespace kova::family::test
