// Which lines of the audit are found, and in which order.

#include "tests/unit/family/history/history_fixture.hpp"

#include "family/history/findings.hpp"
#include "family/registers/customers/customer_registers.hpp"

#include <algorithm>

namespace kova::family::test {

using Lines = std::vector<std::string>;

class HistoryLines : public HistoryTest {
protected:
    HistoryLines() { Run("delete from auditoria"); }

    /// A line past the audit's own writing, as older programs have left them.
    void Add(const std::string& moment, const std::string& user, const std::string& table, Key key,
             const std::string& operation, const std::string& before, const std::string& after)
    {
        Run("insert into auditoria (momento, usuario, posto, tabela, chave, operacao, antes, depois) values "
            "('"
            + moment + "', '" + user + "', 'BALCAO-1', '" + table + "', " + std::to_string(key) + ", '"
            + operation + "', " + (before.empty() ? "null" : "'" + before + "'") + ", "
            + (after.empty() ? "null" : "'" + after + "'") + ")");
    }

    static Filter With(const std::function<void(Filter&)>& change)
    {
        Filter filter;
        change(filter);
        return filter;
    }

    std::vector<Key> Keys(const Filter& filter)
    {
        std::vector<Key> keys;
        for (const Line& line : Find(filter))
            keys.push_back(line.key);
        return keys;
    }
};

TEST_F(HistoryLines, ComeLastFirstWhateverTheClocksOfTheDesksWere)
{
    Add("2026-11-20 10:00:00", "7 - Lia", "animal", 1, "alteracao", "{}", "{}");
    Add("2026-11-20 09:00:00", "8 - Marcos", "animal", 2, "alteracao", "{}", "{}");
    Add("2026-11-19 23:00:00", "8 - Marcos", "animal", 3, "alteracao", "{}", "{}");
    EXPECT_EQ(Keys({}), (std::vector<Key>{2, 1, 3}));
}

TEST_F(HistoryLines, ComeInPagesThatTellOfEachOnce)
{
    for (Key key = 1; key <= 25; ++key)
        Add("2026-11-" + std::to_string(10 + key / 4) + " 10:00:00", "7 - Lia", "animal", key, "alteracao",
            "{}", "{}");
    std::vector<Key> keys;
    std::optional<Line> last;
    for (bool more = true; more;) {
        const history::Lines page = history::FindLines(*here_, lia_, {}, last, 10);
        more = page.more;
        EXPECT_EQ(page.lines.size(), more ? 10U : 5U);
        for (const Line& line : page.lines)
            keys.push_back(line.key);
        last = page.lines.back();
    }
    ASSERT_EQ(keys.size(), 25U);
    EXPECT_TRUE(std::ranges::is_sorted(keys, std::greater()));
}

TEST_F(HistoryLines, AreThoseOfTheUserTheKindTheTableAndTheDays)
{
    Add("2026-11-18 10:00:00", "7 - Lia", "animal", 1, "inclusao", "", "{}");
    Add("2026-11-19 10:00:00", "8 - Marcos", "animal", 2, "alteracao", "{}", "{}");
    Add("2026-11-20 10:00:00", "7 - Lia", "cliente", 3, "alteracao", "{}", "{}");
    EXPECT_EQ(Keys(With([](Filter& filter) { filter.user = "7 - Lia"; })), (std::vector<Key>{3, 1}));
    EXPECT_EQ(Keys(With([](Filter& filter) { filter.operation = "alteracao"; })), (std::vector<Key>{3, 2}));
    EXPECT_EQ(Keys(With([](Filter& filter) { filter.table = "animal"; })), (std::vector<Key>{2, 1}));
    EXPECT_EQ(Keys(With([](Filter& filter) { filter.from = "2026-11-19"; })), (std::vector<Key>{3, 2}));
    EXPECT_EQ(Keys(With([](Filter& filter) { filter.to = "2026-11-19"; })), (std::vector<Key>{2, 1}));
    EXPECT_EQ(Keys(With([](Filter& filter) {
                  filter.user = "7 - Lia";
                  filter.operation = "alteracao";
                  filter.from = filter.to = "2026-11-20";
              })),
              (std::vector<Key>{3}));
    EXPECT_TRUE(Keys(With([](Filter& filter) { filter.user = "7 - Lia' or '1'='1"; })).empty());
}

TEST_F(HistoryLines, AreFoundByTheBeginningsOfTheirWords)
{
    Add("2026-11-18 10:00:00", "7 - Lia", "cliente", 1, "inclusao", "",
        "{\"nome\":\"José Antônio Peçanha\",\"nome_de_busca\":\"zebra\",\"preco_em_centavos\":6000}");
    Add("2026-11-19 10:00:00", "7 - Lia", "cliente", 2, "alteracao", "{\"nome\":\"JOSÉ d''Ávila\"}",
        "{\"nome\":\"Ana \\\"Bia\\\"\"}");
    const auto found = [&](const char* text) {
        return Keys(With([&](Filter& filter) { filter.text = text; }));
    };
    EXPECT_EQ(found("jose"), (std::vector<Key>{2, 1}));
    EXPECT_EQ(found("JOSÉ  anton"), (std::vector<Key>{1}));
    EXPECT_EQ(found("d'Avila"), (std::vector<Key>{2}));
    EXPECT_EQ(found("\"bia\""), (std::vector<Key>{2}));
    EXPECT_TRUE(found("zebra").empty()) << "it is no text that people know";
    EXPECT_TRUE(found("6000").empty()) << "who may not see prices must not find them";
    EXPECT_TRUE(found("nome").empty()) << "columns are no words";
    EXPECT_EQ(found("2"), (std::vector<Key>{2})) << "a number is a key";
    EXPECT_EQ(found("  ").size(), 2U);
    EXPECT_TRUE(found("\" * & | ! ( ) :").empty());
    EXPECT_NO_THROW(found("a\xff\xc3"));
    EXPECT_TRUE(found(std::string(1000, 'x').c_str()).empty());
}

TEST_F(HistoryLines, ComeByTheirDaysAlsoWhereAWordStandsInThousandsOfThem)
{
    // Codes that go up while the days go to and fro.
    Run("insert into auditoria (momento, usuario, posto, tabela, chave, operacao, depois) with recursive n "
        "(i)"
        " as (select 1 union all select i + 1 from n where i < 9000) select '2026-' || substr(cast(101 + i % "
        "7"
        " as text), 2) || '-01 10:00:00', '7 - Lia', '', case when i % 3 = 0 then 'animal' else 'cliente' "
        "end,"
        " i, 'inclusao', case when i % 5 = 0 then '{\"nome\":\"Rex\"}' else '{\"nome\":\"Peçanha\"}' end"
        " from n");
    std::vector<Key> expected;
    for (Key month = 7; month >= 1; --month)
        for (Key i = 9000; i >= 1; --i)
            if (i % 7 + 1 == month && i % 5 != 0)
                expected.push_back(i);
    const Filter many = With([](Filter& filter) { filter.text = "pecan"; });
    ASSERT_EQ(history::FindingsFor(*here_, many).hasManyOfText, !TestsRunOnServer());
    EXPECT_FALSE(history::FindingsFor(*here_, {}).hasManyOfText);
    EXPECT_EQ(Find(many, 500).back().key, expected[499]);
    std::vector<Key> keys;
    std::optional<Line> last;
    for (int page = 0; page < 3; ++page) {
        for (const Line& line : history::FindLines(*here_, lia_, many, last, 700).lines) {
            keys.push_back(line.key);
            last = line;
        }
    }
    expected.resize(2100);
    EXPECT_EQ(keys, expected);
    std::erase_if(expected, [](Key key) { return key % 3 != 0; });
    Filter animals = many;
    animals.table = "animal";
    EXPECT_EQ(Find(animals, 1).front().key, expected.front());
    EXPECT_EQ(Keys(With([](Filter& filter) {
                  filter.text = "pecan";
                  filter.user = "8 - Marcos";
              })),
              std::vector<Key>{});
}

TEST_F(HistoryLines, AreFoundByWordsThatWereChangedInTheAudit)
{
    Add("2026-11-18 10:00:00", "7 - Lia", "cliente", 1, "inclusao", "", "{\"nome\":\"Peçanha\"}");
    const Filter secret = With([](Filter& filter) { filter.text = "pecanha"; });
    const Filter clean = With([](Filter& filter) { filter.text = "anonimo"; });
    ASSERT_EQ(Keys(secret).size(), 1U);
    Run("update auditoria set depois = '{\"nome\":\"Anônimo\"}'");
    EXPECT_TRUE(Keys(secret).empty());
    EXPECT_EQ(Keys(clean).size(), 1U);
    Run("delete from auditoria");
    EXPECT_TRUE(Keys(clean).empty());
}

TEST_F(HistoryLines, AreFoundByWhatTheyKeepUnderNamesOfFormerProgramsAndOfToday)
{
    const std::string agendamento = "agendamento";
    for (const auto& [key, customer, day, status] :
         {std::tuple(Key(901), "codigo_do_cliente", "data_inicial", "situacao"),
          {Key(902), "cc", "di", "si"}}) {
        const auto kept = [](const char* name, const std::string& value) {
            return "{\"" + std::string(name) + "\":" + value + "}";
        };
        Add("2026-11-18 10:00:00", "7 - Lia", agendamento, key, "alteracao", kept(status, "1"),
            kept(status, "3"));
        Add("2026-11-18 11:00:00", "7 - Lia", agendamento, key, "alteracao", kept(status, "3"),
            kept(status, "2"));
        Add("2026-11-19 10:00:00", "7 - Lia", agendamento, key, "alteracao", kept(day, "\"2027-01-05\""),
            kept(day, "\"2027-01-06\""));
        Add("2026-11-20 10:00:00", "7 - Lia", agendamento, key, "exclusao", kept(customer, "11"), "");
    }
    EXPECT_EQ(Keys(With([](Filter& filter) { filter.operation = history::Cancellation; })),
              (std::vector<Key>{902, 901}));
    EXPECT_EQ(Keys(With([](Filter& filter) {
                  filter.subject = {Subject::Kind::Customer, "", 11};
                  filter.from = "2026-11-20";
              })),
              (std::vector<Key>{902, 901}));
    EXPECT_EQ(Keys(With([](Filter& filter) {
                  filter.subject = {Subject::Kind::BookedDay, "", 0, "2027-01-05"};
                  filter.operation = "exclusao";
              })),
              (std::vector<Key>{902, 901}));
}

TEST_F(HistoryLines, OfACustomerAreThoseOfHisAnimalsAndAppointmentsAlsoOfThoseThatAreGone)
{
    OtherSetsStatus(FullNumber, 3);
    OtherDeletes(FullNumber);
    OtherSetsStatus(SimplifiedNumber, 3);
    OtherSaves(registers::AnimalRegister(), 50, {{"Cor", "Preto"}});
    OtherSaves(registers::CustomerRegister(), 10, {{"Apelido", "Zezé"}});
    OtherSaves(registers::CustomerRegister(), 11, {{"Apelido", "Canil"}});
    EXPECT_EQ(Acts(With([](Filter& filter) {
                  filter.subject = {Subject::Kind::Customer, "", 10};
              })),
              (Lines{"8 - Marcos: Alterou o cliente 10", "8 - Marcos: Alterou o animal 50",
                     "8 - Marcos: Excluiu o agendamento 24", "8 - Marcos: Cancelou o agendamento 24"}));
}

TEST_F(HistoryLines, OfAUserAreWhatHeDidAndWhatWasDoneWithHim)
{
    Add("2026-11-18 10:00:00", "7 - Lia", "cliente", 1, "inclusao", "", "{}");
    Add("2026-11-18 11:00:00", "7 - Lia Prado", "cliente", 2, "inclusao", "", "{}");
    Add("2026-11-18 12:00:00", "71 - Ivo", "cliente", 3, "inclusao", "", "{}");
    Add("2026-11-18 13:00:00", "71 - Ivo", "usuario", 7, "alteracao", "{}", "{}");
    EXPECT_EQ(Keys(With([](Filter& filter) {
                  filter.subject = {Subject::Kind::User, "", 7};
              })),
              (std::vector<Key>{7, 2, 1}));
}

TEST_F(HistoryLines, OfADayAreThoseOfAppointmentsThatAreOrWereBookedForIt)
{
    OtherSetsStatus(SimplifiedNumber, 2);
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.startDate = input.endDate = "02/12/2026"; });
    const auto booked = [&](const char* day) {
        return Acts(With([&](Filter& filter) { filter.subject = {Subject::Kind::BookedDay, "", 0, day}; }));
    };
    const std::string moved = "8 - Marcos: Alterou o agendamento 24";
    EXPECT_EQ(booked("2026-12-01"), (Lines{moved, "8 - Marcos: Marcou como atendido o agendamento 25"}));
    EXPECT_EQ(booked("2026-12-02"), (Lines{moved}));
    OtherDeletes(FullNumber);
    EXPECT_EQ(booked("2026-12-02"), (Lines{"8 - Marcos: Excluiu o agendamento 24", moved}));
    EXPECT_TRUE(booked("2026-12-03").empty());
}

TEST_F(HistoryLines, OfAnAppointmentTellOfItsPreSales)
{
    OtherSetsStatus(FullNumber, 4);
    const Lines acts = Acts(OfRow("agendamento", FullNumber));
    ASSERT_EQ(acts.size(), 2U);
    EXPECT_EQ(acts.front(), "8 - Marcos: Marcou como atendido e gerou pré-venda para o agendamento 24");
    EXPECT_EQ(acts.back().find("8 - Marcos: Incluiu a pré-venda "), 0U);
}

TEST_F(HistoryLines, ThatCancelledAreAKindOfTheirOwn)
{
    OtherSetsStatus(FullNumber, 2);
    OtherSetsStatus(FullNumber, 3);
    OtherChanges(FullNumber, [](AppointmentInput& input) { input.remark = "Outra"; });
    OtherSaves(registers::CustomerRegister(), 10, {{"Situação", "Bloqueado"}});
    EXPECT_TRUE(Acts(With([](Filter& filter) {
                    filter.operation = history::Cancellation;
                    filter.table = "cliente";
                })).empty());
    EXPECT_EQ(Acts(With([](Filter& filter) { filter.operation = history::Cancellation; })),
              (Lines{"8 - Marcos: Cancelou o agendamento 24"}));
}

TEST_F(HistoryLines, ThatCannotBeReadAreToldWithoutWhatTheyHold)
{
    Add("2026-11-18 10:00:00", "7 - Lia", "cliente", 1, "alteracao", "{\"nome\":1.5}", "{");
    const std::vector<Line> found = Find({});
    ASSERT_EQ(found.size(), 1U);
    EXPECT_FALSE(found.front().isReadable);
    EXPECT_EQ(Plan(found.front()), "! Esta linha do histórico não pode ser lida.");
}

TEST_F(HistoryLines, AreFoundAgainByTheirCode)
{
    OtherSetsStatus(FullNumber, 3);
    const Line line = Newest("agendamento", FullNumber);
    const auto again = history::FindLine(*here_, lia_, line.audit.code);
    ASSERT_TRUE(again);
    EXPECT_EQ(history::ActOf(*again), "Cancelou o agendamento 24");
    EXPECT_FALSE(history::FindLine(*here_, lia_, line.audit.code + 1));
}

TEST_F(HistoryLines, TellOfEachWriterOnce)
{
    for (int time = 0; time < 3; ++time) {
        Add("2026-11-18 10:00:00", "7 - Lia", "cliente", 1, "inclusao", "", "{}");
        Add("2026-11-18 10:00:00", "8 - Marcos", "cliente", 1, "inclusao", "", "{}");
    }
    EXPECT_EQ(history::FindWriters(*here_, lia_), (Lines{"7 - Lia", "8 - Marcos"}));
    Run("delete from auditoria");
    EXPECT_TRUE(history::FindWriters(*here_, lia_).empty());
}

TEST_F(HistoryLines, AreRefusedToWhoeverMayNotSeeThemAndThatStandsInTheAudit)
{
    LiaMay({Right::Book});
    OtherSetsStatus(FullNumber, 3);
    EXPECT_THROW(Find({}), RightDenied);
    EXPECT_THROW(history::FindWriters(*here_, lia_), RightDenied);
    EXPECT_THROW(history::FindLine(*here_, lia_, 1), RightDenied);
    EXPECT_THROW(history::PlanUndo(*here_, lia_, Line()), RightDenied);
    EXPECT_EQ(Texts("select usuario from auditoria where operacao = 'direito_negado'"), Lines(4, "7 - Lia"));
    LiaMay({Right::SeeHistory});
    EXPECT_FALSE(Find({}).empty());
}

} // namespace kova::family::test
