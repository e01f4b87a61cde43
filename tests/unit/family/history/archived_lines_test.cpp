// Lines of the archive are found as those of the shop were.

#include "tests/unit/family/history/history_fixture.hpp"

#include "family/data/archive/audit_archive.hpp"
#include "family/data/sources/file_connection.hpp"
#include "family/registers/customers/customer_registers.hpp"

#include <algorithm>

namespace kova::family::test {

using Lines = std::vector<std::string>;

class ArchivedLines : public HistoryTest {
protected:
    static Filter Of(Subject subject)
    {
        Filter filter;
        filter.subject = std::move(subject);
        return filter;
    }
    static Filter With(std::string Filter::*member, const char* value)
    {
        Filter filter;
        filter.*member = value;
        return filter;
    }

    void Archive()
    {
        Author owner = lia_;
        owner.isOwner = true;
        ASSERT_GT(ArchiveAudit(host_.DataSource(), 2026, folder_ / "velha.auditoria", owner, {}).lines, 0);
        archive_ = OpenSearchableArchive(*here_);
        ASSERT_TRUE(archive_);
    }
    /// The acts of the shop and of its archive, without that of archiving itself, by pages.
    Lines Acts(const Filter& filter)
    {
        Lines acts;
        std::optional<Line> last;
        for (bool more = true; more;) {
            const history::Lines page = history::FindLines({*here_, archive_.get()}, lia_, filter, last, 3);
            more = page.more;
            for (const Line& line : page.lines) {
                last = line;
                if (line.audit.operation != audit_operation::Archiving)
                    acts.push_back(std::to_string(line.audit.code) + " " + history::ActOf(line));
            }
        }
        return acts;
    }

    TemporaryFolder folder_;
    std::unique_ptr<Database> archive_;
};

TEST_F(ArchivedLines, AreFoundByEachFilterAsTheyWereInTheShop)
{
    OtherSetsStatus(FullNumber, 3);
    OtherDeletes(FullNumber);
    OtherSetsStatus(SimplifiedNumber, 3);
    OtherSaves(registers::AnimalRegister(), 50, {{"Cor", "Preto"}});
    OtherSaves(registers::CustomerRegister(), 10, {{"Apelido", "Zezé"}});
    const Filter filters[] = {
        {},
        Of({Subject::Kind::Row, "agendamento", FullNumber}),
        Of({Subject::Kind::Row, "agendamento", SimplifiedNumber}),
        Of({Subject::Kind::Row, "cliente", 10}),
        Of({Subject::Kind::Customer, "", 10}),
        Of({Subject::Kind::User, "", 8}),
        Of({Subject::Kind::BookedDay, "", 0, "2026-11-20"}),
        Of({Subject::Kind::BookedDay, "", 0, "2026-12-01"}),
        With(&Filter::user, "8 - Marcos"),
        With(&Filter::operation, "exclusao"),
        With(&Filter::operation, history::Cancellation),
        With(&Filter::table, "animal"),
        With(&Filter::from, "2026-11-20"),
        With(&Filter::to, "2026-11-19"),
        With(&Filter::text, "preto"),
        With(&Filter::text, "50"),
    };
    std::vector<Lines> before;
    for (const Filter& filter : filters)
        before.push_back(Acts(filter));
    EXPECT_GE(before[0].size(), 5U);
    EXPECT_FALSE(before[4].empty());
    Archive();
    for (std::size_t at = 0; at < before.size(); ++at)
        EXPECT_EQ(Acts(filters[at]), before[at]) << at;
    const std::vector<std::string> writers = history::FindWriters({*here_, archive_.get()}, lia_);
    EXPECT_NE(std::ranges::find(writers, "8 - Marcos"), writers.end());
    archive_.reset();
    EXPECT_TRUE(Acts({}).empty());
}

TEST_F(ArchivedLines, AreFoundInAnArchiveOfAFormerProgramToo)
{
    OtherSaves(registers::AnimalRegister(), 50, {{"Cor", "Preto"}});
    const Lines before = Acts(With(&Filter::text, "preto"));
    ASSERT_EQ(before.size(), 1U);
    Archive();
    archive_.reset();
    {
        const std::string path = folder_ / "velha.auditoria";
        Database archive(SqliteDialect(), FileConnection(path), path);
        for (const char* what :
             {"trigger palavras_da_linha_nova", "trigger palavras_da_linha_mudada",
              "trigger palavras_da_linha_excluida", "table palavras_da_auditoria", "index auditoria_por_dia",
              "index auditoria_por_usuario", "index auditoria_por_operacao", "index auditoria_por_tabela"})
            archive.Session() << std::string("drop ") + what;
    }
    archive_ = OpenSearchableArchive(*here_);
    ASSERT_TRUE(archive_);
    EXPECT_EQ(Acts(With(&Filter::text, "preto")), before);
}

TEST_F(ArchivedLines, ThatAnArchivingWasCutOffBehindAreToldOnce)
{
    OtherSetsStatus(FullNumber, 3);
    const Filter filter = OfRow("agendamento", FullNumber);
    const Lines before = Acts(filter);
    Archive();
    const history::Lines archived = history::FindLines({*here_, archive_.get()}, lia_, filter, {}, 1);
    Run("insert into auditoria (codigo, momento, usuario, posto, tabela, chave, operacao) values ("
        + std::to_string(archived.lines.at(0).audit.code)
        + ", '2026-11-20 09:30:00', '8 - Marcos', '', 'agendamento', " + std::to_string(FullNumber)
        + ", 'alteracao')");
    EXPECT_EQ(Acts(filter).size(), before.size());
}

TEST_F(ArchivedLines, AreNotUndone)
{
    OtherSetsStatus(FullNumber, 3);
    Archive();
    const history::Lines found =
        history::FindLines({*here_, archive_.get()}, lia_, OfRow("agendamento", FullNumber), {}, 1);
    ASSERT_EQ(found.lines.size(), 1U);
    EXPECT_TRUE(found.lines[0].isArchived);
    EXPECT_NE(history::PlanUndo(*here_, lia_, found.lines[0]).why.find("arquivo da auditoria"),
              std::string::npos);
}

} // namespace kova::family::test
