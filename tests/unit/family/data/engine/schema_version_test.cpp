// A desk that is open while another program changes the schema.

#include "tests/unit/family/server_fixture.hpp"

#include "family/business/appointments/appointment_writes.hpp"
#include "family/business/shop/company_selection.hpp"
#include "family/data/migrations/current_migrations.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

class SchemaVersion : public ShopTest {
protected:
    SchemaVersion() : desk_(OpenDatabase(host_.DataSource())), other_(OpenDatabase(host_.DataSource())) { }

    int Appointments()
    {
        int appointments = 0;
        other_->Session() << "select count(*) from agendamento", soci::into(appointments);
        return appointments;
    }

    std::shared_ptr<Database> desk_, other_;
};

TEST_F(SchemaVersion, ThatIsNewerTakesNoWritesOfAnOlderProgram)
{
    EXPECT_TRUE(AddAppointments(*desk_, Bath("01/12/2026"), Somebody).IsDone());
    other_->Session() << "insert into versao_do_esquema (versao) values (1000)";
    const int before = Appointments();
    for (int time = 0; time < 2; ++time) {
        const std::string told = FailureOf([&] { AddAppointments(*desk_, Bath("02/12/2026"), Somebody); });
        EXPECT_NE(told.find("é da versão 1000"), std::string::npos) << told;
        EXPECT_NE(told.find("Atualize o programa."), std::string::npos) << told;
    }
    EXPECT_EQ(Appointments(), before);
    EXPECT_EQ(SelectTradeNames(*desk_).size(), 1U);
}

TEST_F(SchemaVersion, ThatIsNewerKeepsNobodyElseFromWriting)
{
    other_->Session() << "insert into versao_do_esquema (versao) values (1000)";
    EXPECT_NE(FailureOf([&] { const WriteTransaction refused(*desk_); }), "");
    other_->ExpectSchema(1000);
    WriteTransaction transaction(*other_);
    other_->Session() << "update usuario set nome = 'Ana'";
    EXPECT_EQ(FailureOf([&] { transaction.Commit(); }), "");
}

TEST_F(SchemaVersion, ThatIsOlderTellsHowItIsBroughtUpToDate)
{
    const int newest = NewestVersion(CurrentMigrations());
    other_->Session() << "delete from versao_do_esquema where versao = :versao", soci::use(newest);
    const std::string told = FailureOf([&] { const WriteTransaction refused(*desk_); });
    EXPECT_NE(told.find("agenda-data migrate"), std::string::npos) << told;
}

} // namespace kova::family::test
