// Writes that leave nothing for a cause that passes: somebody else's lock, a full disk.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

namespace {

constexpr const char* Package = "AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa";

/// Another desk in the middle of a write.
class BusyDesk {
public:
    explicit BusyDesk(const std::string& dataSource)
        : database_(OpenDatabase(dataSource)), writing_(*database_)
    {
        if (TestsRunOnServer())
            database_->Session() << "lock table agendamento in exclusive mode";
    }

private:
    std::shared_ptr<Database> database_;
    WriteTransaction writing_;
};

} // namespace

class PassingFailure : public BookingTest {
protected:
    void ExpectNothingWritten(Component& agenda, const char* member, const Text& cause)
    {
        SCOPED_TRACE(member);
        ExpectAnswer(agenda, member, 2, "Gravacao", "Nada foi gravado.\r\n" + cause);
        EXPECT_EQ(agenda.Get("DescricaoDoErro"), Value(""));
    }

    void WaitNoLongerForLocks()
    {
        Run(TestsRunOnServer() ? "set lock_timeout = '30ms'" : "pragma busy_timeout = 0");
    }

    /// From now on there is no room for many more appointments.
    void FillTheDisk()
    {
        if (!TestsRunOnServer())
            return Run("pragma max_page_count = 1");
        Run("create function falha() returns trigger language plpgsql as"
            " $$ begin raise exception 'parada de teste' using errcode = '53100'; end $$");
        Run("create trigger falha after insert on agendamento for each row execute function falha()");
    }
};

TEST_F(PassingFailure, OfALockNamesNoFieldAndEveryWriteWorksAfterwards)
{
    WaitNoLongerForLocks();
    const Text cause = TestsRunOnServer()
        ? "Outro posto está gravando o mesmo registro. Aguarde um momento e tente novamente."
        : "O banco de dados está em uso por outro programa. Feche-o e tente novamente.";
    const auto added = Full(On("01/12/2026"));
    const auto typed = Simplified(On("02/12/2026"));
    const auto altered = Over(1, Full(On("03/12/2026")));
    const auto deleted = Over(3, Full(On("04/12/2026")));
    const auto status = DeskTest::Desk(2, 2);
    const auto package = DeskTest::Desk(21, 3);
    {
        const BusyDesk other(host_.DataSource());
        ExpectNothingWritten(*added, "Adicionar", cause);
        ExpectNothingWritten(*typed, "Adicionar", cause);
        ExpectNothingWritten(*altered, "Alterar", cause);
        ExpectNothingWritten(*deleted, "Excluir", cause);
        ExpectNothingWritten(*status, "Alterar", cause);
        ExpectNothingWritten(*package, Package, cause);
    }
    EXPECT_EQ(Write(*added), 0);
    EXPECT_EQ(Write(*typed), 0);
    EXPECT_EQ(Write(*altered, "Alterar"), 0);
    EXPECT_EQ(Write(*deleted, "Excluir"), 0);
    EXPECT_EQ(Write(*status, "Alterar"), 0);
    EXPECT_EQ(Write(*package, Package), 0);
    EXPECT_EQ(added->Get("NomeDoCampoValidado"), Value(""));
}

TEST_F(PassingFailure, OfAFullDiskNamesNoField)
{
    FillTheDisk();
    const auto desk = Full(On("02/12/2026"));
    desk->Set("QuantidadeDeReagendamentos", Long(300));
    desk->Set("FrequenciaDeReagendamento", Integer(0));
    desk->Set("DadosValidados", true);
    ExpectNothingWritten(
        *desk, "Adicionar",
        TestsRunOnServer()
            ? "O disco do servidor está cheio. Libere espaço nele e tente novamente; nada do que estava "
              "gravado"
              " se perdeu."
            : "O disco está cheio. Libere espaço e tente novamente; nada do que estava gravado se perdeu.");
}

TEST_F(PassingFailure, IsToldFromOneThatWillNotPassByItself)
{
    Break("agendamento", "before insert");
    const auto desk = Full(On("01/12/2026"));
    const auto before = Contents();
    EXPECT_EQ(desk->Call("Adicionar"), Value(Integer(1)));
    EXPECT_EQ(desk->Get("NomeDoCampoValidado"), Value(""));
    EXPECT_NE(desk->Get("DescricaoDoErro").ToText().find("parada de teste"), std::string::npos);
    EXPECT_EQ(Contents(), before);
}

} // namespace kova::family::test
