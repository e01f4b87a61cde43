// However long the audit is: each way to look for lines goes by an index, on both engines.

#include "tests/unit/family/plan_fixture.hpp"

#include "family/history/findings.hpp"
#include "family/history/lines.hpp"

namespace kova::family::test {

namespace {

using history::Filter;
using history::Subject;

/// A filter, and the index that leads to its lines.
struct Way {
    const char* name;
    Filter filter;
    /// One of them where an engine has the choice, separated by '|'.
    const char* index;
};

Filter Of(Subject subject)
{
    Filter filter;
    filter.subject = std::move(subject);
    return filter;
}

Filter With(std::string Filter::*member, const char* value)
{
    Filter filter;
    filter.*member = value;
    return filter;
}

const Way Ways[] = {
    {"Everything", {}, "auditoria_por_dia"},
    {"User", With(&Filter::user, "3 - Ana"), "auditoria_por_usuario"},
    {"Kind", With(&Filter::operation, "exclusao"), "auditoria_por_operacao"},
    {"Table", With(&Filter::table, "cliente"), "auditoria_por_tabela"},
    {"FirstDay", With(&Filter::from, "2026-11-26"), "auditoria_por_dia"},
    {"LastDay", With(&Filter::to, "2026-11-26"), "auditoria_por_dia"},
    {"Words", With(&Filter::text, "pecanha"), "palavras_da_auditoria|auditoria_por_palavra"},
    {"Number", With(&Filter::text, "4321"), "auditoria_por_chave"},
    {"Row", Of({Subject::Kind::Row, "agendamento", 4321}), "auditoria_por_chave"},
    {"Customer", Of({Subject::Kind::Customer, "", 1234}), "auditoria_por_chave"},
    {"UserAsSubject", Of({Subject::Kind::User, "", 3}), "auditoria_por_usuario"},
    {"BookedDay", Of({Subject::Kind::BookedDay, "", 0, "2026-11-27"}), "auditoria_por_chave"},
};

} // namespace

class HistoryPlans : public BigShopTest {
protected:
    HistoryPlans()
    {
        AddAppointments(5);
        AddTheRest();
        Run("insert into auditoria (momento, usuario, tabela, chave, operacao, antes) select"
            " substr(momento, 1, 8) || substr(cast(110 + codigo % 18 as text), 2) || substr(momento, 11),"
            " cast(codigo % 7 as text) || ' - Ana', 'cliente', codigo, 'exclusao', '{\"nome\":\"Peçanha\"}'"
            " from auditoria where codigo % 20 = 0");
        Analyse();
    }

    std::string PlanOf(const Filter& filter, const std::optional<history::Place>& behind = {})
    {
        const history::LineStatement of = history::StatementOf(filter, history::FindingsFor(Data(), filter),
                                                               behind, 51, Data().GetDialect());
        return TestsRunOnServer() ? Explain("explain ", of) : Explain("explain query plan ", of);
    }

private:
    std::string Explain(const std::string& how, history::LineStatement of)
    {
        std::string plan, step;
        int id = 0, parent = 0, unused = 0;
        soci::statement statement(Data().Session());
        for (auto& [name, text] : of.parameters)
            statement.exchange(soci::use(text, name));
        if (!TestsRunOnServer()) {
            statement.exchange(soci::into(id));
            statement.exchange(soci::into(parent));
            statement.exchange(soci::into(unused));
        }
        statement.exchange(soci::into(step));
        statement.alloc();
        statement.prepare(how + of.text);
        statement.define_and_bind();
        statement.execute();
        while (statement.fetch())
            plan += step + "\n";
        return plan;
    }
};

namespace {

bool Names(const std::string& plan, std::string indexes)
{
    for (std::size_t end = 0; end != std::string::npos;) {
        end = indexes.find('|');
        if (plan.find(indexes.substr(0, end)) != std::string::npos)
            return true;
        indexes.erase(0, end == std::string::npos ? end : end + 1);
    }
    return false;
}

/// Which of them need no order of their own.
bool ComesInOrder(const Filter& filter) { return filter.subject == Subject() && filter.text.empty(); }

} // namespace

// One big shop for each engine: it takes longer to fill than to ask.
TEST_F(HistoryPlans, GoByAnIndexForEachFilterAlsoBehindAPageAndReadNothingTwiceForTheOrder)
{
    for (const Way& way : Ways) {
        const std::string plan = PlanOf(way.filter);
        EXPECT_TRUE(Names(plan, way.index)) << way.name << "\n" << plan;
        // The first page of all lines begins at an end of the index, and goes no further.
        EXPECT_TRUE(way.filter == Filter() || !ReadsWholeTable(plan)) << way.name << "\n" << plan;
        const std::string behind = PlanOf(way.filter, history::Place{"2026-11-01", 500});
        EXPECT_FALSE(ReadsWholeTable(behind)) << way.name << "\n" << behind;
        const bool isOrdered =
            TestsRunOnServer() || !ComesInOrder(way.filter) || plan.find("TEMP B-TREE") == std::string::npos;
        EXPECT_TRUE(isOrdered) << way.name << "\n" << plan;
    }
}

TEST_F(HistoryPlans, GoByTheRarestOfSeveralFiltersAndReadRemovalsAloneForWhatIsGone)
{
    Filter filter = With(&Filter::user, "1 - Carla");
    filter.table = "agendamento";
    filter.operation = "uniao";
    EXPECT_TRUE(Names(PlanOf(filter), "auditoria_por_operacao")) << PlanOf(filter);
    filter.operation = "";
    filter.table = "cliente";
    // Both begin with the table.
    EXPECT_TRUE(Names(PlanOf(filter), "auditoria_por_tabela") || Names(PlanOf(filter), "auditoria_por_chave"))
        << PlanOf(filter);
    const Author owner{"", "", "2026-11-20 10:00:00", "", 0, 0, false, true};
    history::FindLines(Data(), owner, Of({Subject::Kind::Customer, "", 1234}), {}, 50);
    history::FindWriters(Data(), owner);
    for (const StatementPlan& plan : PlansOf(Data()))
        EXPECT_FALSE(ReadsWholeTable(plan.plan)) << plan.statement << "\n" << plan.plan;
}

} // namespace kova::family::test
