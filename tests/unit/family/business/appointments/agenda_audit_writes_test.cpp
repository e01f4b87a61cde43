// What the audit keeps of written appointments.

#include "tests/unit/family/business/appointments/booking_fixture.hpp"

#include "family/business/appointments/appointment_history.hpp"
#include "family/data/audit/audited_row.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "system/computer_name.hpp"

namespace kova::family::test {

class WritesAudit : public BookingTest {
protected:
    /// Columns of one line's values.
    std::vector<std::string> KeysOf(const std::string& member)
    {
        return Texts("select e.key from auditoria a, json_each(a." + member
                     + ") e where a.codigo ="
                       " (select max(codigo) from auditoria) order by e.key");
    }
};

TEST_F(WritesAudit, KeepsWhatIsGivenOfWhatIsAdded)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    EXPECT_EQ(
        Audit(),
        std::vector<std::string>{
            R"(agendamento 24 inclusao - {"numero":24,"di":"2026-12-01","hi":"09:00","df":"2026-12-01","hf":"10:00",)"
            R"("ta":0,"cc":10,"ca":50,"ts":4,"cs":2,"cf":2,"ob":"Laço azul.","tb":1,"tl":0,"si":1,"ve":1})"});
    EXPECT_EQ(Texts("select momento || ' ' || usuario || ' ' || posto from auditoria"),
              std::vector<std::string>{"2026-11-20 09:04:05 7 - Lia " + system::ComputerName()});
}

TEST_F(WritesAudit, NamesAUserWhoseNameHoldsBytesThatAreNoCharacters)
{
    const auto user = std::make_shared<DeskUser>(" Jos\xE9\r\nSil\xC3va ");
    const auto added = Full(On("01/12/2026"));
    added->Set("DadosDoUsuario", user);
    ASSERT_EQ(Write(*added), 0);
    const auto changed = DeskTest::Desk(24, 2);
    changed->Set("DadosDoUsuario", user);
    ASSERT_EQ(changed->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(Texts("select incluido_por || ', ' || alterado_por from agendamento where numero = 24"),
              std::vector<std::string>{"Jos\uFFFD Sil\uFFFDva, Jos\uFFFD Sil\uFFFDva"});
    EXPECT_EQ(Texts("select distinct usuario from auditoria"),
              std::vector<std::string>{"7 - Jos\uFFFD Sil\uFFFDva"});
    EXPECT_EQ(HistoryOf(*SharedDatabase(host_.DataSource()), 24).back().user, "7 - Jos\uFFFD Sil\uFFFDva");
}

TEST_F(WritesAudit, KeepsTheChangedColumnsBeforeAndAfterAnAlteration)
{
    ASSERT_EQ(Write(*Full(On("01/12/2026"))), 0);
    desk_.now.time = {10, 0, 0};
    const auto desk = Over(24, Full(On("01/12/2026")));
    desk->Set("Observacao", "Laço verde.");
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(Texts("select antes || ' ' || depois from auditoria where operacao = 'alteracao'"),
              std::vector<std::string>{R"({"ob":"Laço azul.","ve":1})"
                                       R"( {"ob":"Laço verde.","ve":2})"});
    ASSERT_EQ(DeskTest::Desk(24, 2)->Call("Alterar"), Value(Integer(0)));
    EXPECT_EQ(Texts("select antes || ' ' || depois from auditoria where operacao = 'alteracao'").back(),
              R"({"si":1,"ve":2} {"si":2,"ve":3})");
}

TEST_F(WritesAudit, KeepsAllThatTellsWhoseAnAppointmentIsWhereOneOfItIsChanged)
{
    ASSERT_EQ(Write(*Simplified(On("01/12/2026"))), 0);
    desk_.now.time = {10, 0, 0};
    const auto desk = Over(24, Simplified(On("02/12/2026")));
    desk->Set("NomeDoAnimal", "Rex");
    ASSERT_EQ(Write(*desk, "Alterar"), 0);
    EXPECT_EQ(Count("auditoria where chave = 24"), 2);
    EXPECT_EQ(Texts("select json_extract(antes, '$.na') || ' ' ||"
                    " json_extract(depois, '$.na') || ' ' ||"
                    " json_extract(antes, '$.di') || ' ' || json_extract(depois, '$.di')"
                    " from auditoria where operacao = 'alteracao'"),
              std::vector<std::string>{"Bidu Rex 2026-12-01 2026-12-02"});
    const std::vector<std::string> kept = {"cc", "df", "di", "na", "nc", "ta", "tc", "texto_de_busca", "ve"};
    EXPECT_EQ(KeysOf("antes"), kept);
    EXPECT_EQ(KeysOf("depois"), kept);
}

TEST_F(WritesAudit, LetsADeletedAppointmentBePutBack)
{
    const auto desk = Simplified(On("01/12/2026"));
    desk->Set("Observacao", "\"aspas\" \\ 🐶 e\nlinha");
    ASSERT_EQ(Write(*desk), 0);
    for (const int number : {24, 21, 2}) {
        Database& database = *SharedDatabase(host_.DataSource());
        const auto before = FindByKey<AppointmentRow>(database, number);
        ASSERT_TRUE(before);
        ASSERT_EQ(Write(*Over(number, Simplified(On("01/12/2026"))), "Excluir"), 0);
        ASSERT_FALSE(FindByKey<AppointmentRow>(database, number));
        const auto lines = FindAuditLines(database, "agendamento", number, 1);
        AppointmentRow kept;
        ASSERT_TRUE(TakeRow(lines.at(0).before, kept));
        EXPECT_EQ(ValuesOf(kept).Line(), ValuesOf(*before).Line());
        EXPECT_TRUE(lines.at(0).after.empty());
    }
}

TEST_F(WritesAudit, SaysNothingOfWhatWasRefused)
{
    Full(On("30/02/2026"))->Call("Adicionar");
    Over(1, Full(On("06/12/2026")))->Call("Alterar");
    Over(7, Full(On("01/12/2026")))->Call("Excluir");
    EXPECT_EQ(Count("auditoria"), 0);
}

TEST_F(WritesAudit, IsWrittenWithTheAppointmentOrNeither)
{
    Break("auditoria", "before insert");
    for (const char* member : {"Adicionar", "Alterar", "Excluir"}) {
        const auto before = Contents();
        const auto desk = Over(1, Full(On("01/12/2026")));
        EXPECT_EQ(desk->Call(member), Value(Integer(1))) << member;
        EXPECT_NE(desk->Get("DescricaoDoErro").ToText().find("parada de teste"), std::string::npos);
        EXPECT_EQ(Contents(), before) << member;
    }
    Mend("auditoria");
    EXPECT_EQ(Write(*Full(On("01/12/2026"))), 0);
}

} // namespace kova::family::test
