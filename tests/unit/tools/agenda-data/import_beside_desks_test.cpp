// Imports while desks and other imports write.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/data/engine/write_transaction.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/booking_registers.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data::test {

namespace {

constexpr Long Bia = 1, Juca = 2;
const std::string Checked = "Conferência: 100%", Written = "Gravação com novos códigos: 100%";

const std::string Header = "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;"
                           "Código do serviço;Código do funcionário\n";
const std::string HourOfBia = Header + "25/11/2026;10:00;11:00;10;50;2;1\n";

} // namespace

class ImportBesideDesks : public ImportTest {
protected:
    ImportBesideDesks()
    {
        ImportShop();
        desk_ = family::OpenDatabase(Database());
        // Whoever waits for a lock of this very test waits in vain.
        desk_->Session() << (kova::test::TestsRunOnServer() ? "set lock_timeout = '50ms'"
                                                            : "pragma busy_timeout = 50");
    }

    /// A desk books the hour that HourOfBia is about.
    family::WriteAnswer Book(Long employee)
    {
        family::AppointmentInput input;
        input.kind = family::AppointmentInput::SimplifiedKind;
        input.status = 1;
        input.serviceType = 4;
        input.service = 2;
        input.employee = employee;
        input.customerName = "Íris";
        input.animalName = "Bidu";
        input.startDate = input.endDate = "25/11/2026";
        input.startTime = "10:30";
        input.endTime = "11:30";
        return family::AddAppointments(*desk_, input, {"7", "Lia", "2026-11-20 09:04:05"});
    }

    /// Another program imports the types of services that are being imported.
    void ImportTheSame()
    {
        std::ostringstream output, error;
        const std::vector<std::string> words = {"import", Database(), "tipos", File("entrada.csv")};
        EXPECT_EQ(data::Run(words, {{2026, 11, 20}, {9, 0, 0}}, output, error), 0) << error.str();
    }

    std::shared_ptr<family::Database> desk_;
};

TEST_F(ImportBesideDesks, DoesNotBookWhatADeskHasBookedWhileItChecked)
{
    EXPECT_EQ(ImportWhile("agendamentos", HourOfBia, Checked, [&] { EXPECT_TRUE(Book(Bia).IsDone()); }), 1);
    EXPECT_NE(Error().find("linha 2: Hora inicial \"10:00\": Bia já tem agendamento das 10:30 às 11:30 em "
                           "25/11/2026.\n"),
              std::string::npos)
        << Error();
    EXPECT_NE(Error().find("1 erro em 1 linha; nada foi importado.\n"), std::string::npos) << Error();
    EXPECT_EQ(Ask("select nome_do_cliente from agendamento"), "Íris");
}

TEST_F(ImportBesideDesks, HasThemWaitForTheEmployeesOfItsFile)
{
    const auto act = [&] {
        EXPECT_THROW(Book(Bia), family::DatabaseFailure);
        if (kova::test::TestsRunOnServer()) {
            EXPECT_TRUE(Book(Juca).IsDone());
        }
    };
    EXPECT_EQ(ImportWhile("agendamentos", HourOfBia, Written, act), 0) << Error();
    const family::WriteAnswer answer = Book(Bia);
    EXPECT_EQ(answer.field, "HoraInicial");
    EXPECT_EQ(answer.text, "Bia já tem agendamento das 10:00 às 11:00 em 25/11/2026.");
}

TEST_F(ImportBesideDesks, LocksNobodyForWhatTakesNoRoom)
{
    const std::string content = Header + "19/11/2026;10:00;11:00;10;50;2;1\n";
    const auto act = [&] {
        if (kova::test::TestsRunOnServer()) {
            EXPECT_TRUE(Book(Bia).IsDone());
        }
    };
    EXPECT_EQ(ImportWhile("agendamentos", content, Written, act), 0) << Error();
}

TEST_F(ImportBesideDesks, WaitsForNobodyWhileItOnlyChecks)
{
    const family::WriteTransaction transaction(*desk_);
    family::FindByKey<family::BookedEmployee>(*desk_, Bia);
    EXPECT_EQ(Import("agendamentos", HourOfBia, {"--dry-run"}), 0) << Error();
    EXPECT_EQ(Import("agendamentos", HourOfBia + "25/11/2026;12:00;12:00;10;50;2;1\n"), 1);
    EXPECT_EQ(Error(),
              "linha 3: Hora final \"12:00\": o término deve ser posterior ao início.\n"
              "1 erro em 1 linha; nada foi importado.\n");
}

TEST_F(ImportBesideDesks, HasOtherImportsWait)
{
    const auto act = [&] {
        if (kova::test::TestsRunOnServer()) {
            EXPECT_EQ(Ask("select pg_try_advisory_xact_lock(20081114)"), "false");
        } else {
            EXPECT_THROW(family::WriteTransaction transaction(*desk_), family::DatabaseFailure);
        }
    };
    EXPECT_EQ(ImportWhile("tipos", "Nome\nHotel\n", Written, act), 0) << Error();
}

TEST_F(ImportBesideDesks, DoesNotAddWhatAnotherImportHasAddedWhileItChecked)
{
    EXPECT_EQ(ImportWhile("tipos", "Nome\nHotel\n", Checked, [this] { ImportTheSame(); }), 1);
    EXPECT_NE(Error().find("linha 2: Número: o registro já existe no banco de dados, com o número 5."),
              std::string::npos)
        << Error();
    EXPECT_EQ(Ask("select count(*) from tipo_de_servico where nome = 'Hotel'"), "1");
}

TEST_F(ImportBesideDesks, NotesNothingWhereAnotherImportHasAddedAllOfItWhileItChecked)
{
    const std::string count = "select count(*) from auditoria where tabela = 'importacao'";
    const int before = std::stoi(Ask(count));
    EXPECT_EQ(
        ImportWhile("tipos", "Nome\nHotel\n", Checked, [this] { ImportTheSame(); }, {"--skip-existing"}), 0)
        << Error();
    EXPECT_NE(Output().find("0 linhas importadas; 1 linha já estava no banco.\n"), std::string::npos)
        << Output();
    EXPECT_EQ(Output().find("Para desfazer"), std::string::npos) << Output();
    EXPECT_EQ(Ask(count), std::to_string(before + 1));
}

} // namespace kova::data::test
