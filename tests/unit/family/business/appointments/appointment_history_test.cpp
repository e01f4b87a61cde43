#include "tests/unit/family/business/appointments/two_desk_fixture.hpp"

#include "family/business/appointments/appointment_history.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/sources/shared_database.hpp"

#include <algorithm>

namespace kova::family::test {

class AppointmentHistory : public TwoDesksTest {
protected:
    /// "MOMENT USER DESK OPERATION", then "CAPTION: BEFORE > AFTER" of each field, line by line.
    std::vector<std::string> History(Key number)
    {
        std::vector<std::string> told;
        for (const HistoryLine& line : HistoryOf(*SharedDatabase(host_.DataSource()), number)) {
            told.push_back(line.moment + " " + line.user + " " + line.desk + " " + line.operation);
            for (const FieldHistory& field : line.fields)
                told.push_back(field.caption + ": " + field.before + " > " + field.after);
        }
        return told;
    }
};

TEST_F(AppointmentHistory, TellsEveryWriteForPeopleOldestFirst)
{
    OtherChanges(FullNumber, [](AppointmentInput& input) {
        input.customer = 11;
        input.animal = 51;
        input.startDate = input.endDate = "02/12/2026";
        input.remark = "";
    });
    OtherSetsStatus(FullNumber, 2);
    auto history = History(FullNumber);
    ASSERT_GT(history.size(), 12U);
    EXPECT_EQ(history.front().find("20/11/2026 09:04:05 7 - Lia "), 0U);
    EXPECT_NE(history.front().find(" Inclusão"), std::string::npos);
    EXPECT_EQ(history[1], "Tipo do agendamento:  > Completo");
    EXPECT_EQ(history[2], "Cliente:  > 10 - Zé");
    const auto change = std::ranges::find(history, "20/11/2026 09:30:00 8 - Marcos BALCAO-2 Alteração");
    EXPECT_EQ(std::vector<std::string>(change, history.end()),
              (std::vector<std::string>{
                  "20/11/2026 09:30:00 8 - Marcos BALCAO-2 Alteração",
                  "Cliente: 10 - Zé > 11 - Canil Céu",
                  "Animal: 50 - Paçoca > 51 - Leão",
                  "Data inicial: 01/12/2026 > 02/12/2026",
                  "Data final: 01/12/2026 > 02/12/2026",
                  "Observação: Laço azul. > ",
                  "20/11/2026 09:30:00 8 - Marcos BALCAO-2 Alteração",
                  "Situação: Agendado > Atendido",
              }));
}

TEST_F(AppointmentHistory, TellsWhatADeletedAppointmentWas)
{
    OtherDeletes(SimplifiedNumber);
    const auto history = History(SimplifiedNumber);
    const auto removal = std::ranges::find(history, "20/11/2026 09:30:00 8 - Marcos BALCAO-2 Exclusão");
    ASSERT_NE(removal, history.end());
    EXPECT_NE(std::find(removal, history.end(), "Nome ou razão social: Íris Conceição > "), history.end());
    EXPECT_NE(std::find(removal, history.end(), "Situação: Agendado > "), history.end());
}

TEST_F(AppointmentHistory, OfANumberThatWasNeverGivenIsEmpty) { EXPECT_TRUE(History(999).empty()); }

TEST_F(AppointmentHistory, NamesACodeAloneThatIsNotRegisteredAnyMore)
{
    Run("update auditoria set depois = replace(depois, '\"cs\":2', '\"cs\":99')"
        " where chave = 24");
    const auto history = History(FullNumber);
    EXPECT_NE(std::ranges::find(history, "Serviço:  > 99"), history.end());
}

TEST_F(AppointmentHistory, FailsOnALineThatTheAuditDoesNotWrite)
{
    for (const char* values : {"{\"situacao\":1", "[1]", "{\"situacao\":{}}", "{\"situacao\":1.5}"}) {
        Run("update auditoria set depois = '" + std::string(values) + "' where chave = 24");
        EXPECT_THROW(History(FullNumber), Failure) << values;
    }
}

TEST_F(AppointmentHistory, ReadsTextsAsTheyWereWritten)
{
    OtherChanges(SimplifiedNumber, [](AppointmentInput& input) { input.remark = "\"aspas\" \\ 🐶 null"; });
    const auto lines =
        FindAuditLines(*SharedDatabase(host_.DataSource()), AppointmentRow::Table, SimplifiedNumber, 1);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].after.at("observacao"), "\"aspas\" \\ 🐶 null");
    EXPECT_FALSE(lines[0].after.contains("codigo_do_cliente"));
    EXPECT_EQ(lines[0].before.at("versao"), "1");
}

TEST_F(AppointmentHistory, ReadsLineBreaksByTheirNumbersToo)
{
    OtherChanges(SimplifiedNumber, [](AppointmentInput& input) { input.remark = "uma e outra"; });
    std::string before = "uma e outra";
    for (const std::string written : {"uma\\r\\noutra", "uma\\u000d\\u000aoutra"}) {
        Run("update auditoria set depois = replace(depois, '" + before + "', '" + written + "')");
        const auto database = SharedDatabase(host_.DataSource());
        const auto lines = FindAuditLines(*database, AppointmentRow::Table, SimplifiedNumber, 1);
        EXPECT_EQ(lines.at(0).after.at("observacao"), "uma\r\noutra") << written;
        before = written;
    }
}

} // namespace kova::family::test
