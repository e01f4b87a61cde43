#include "tests/unit/family/history/history_fixture.hpp"

#include "tests/unit/family/users/cheap.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/sources/data_source.hpp"

namespace kova::family::test {

HistoryTest::HistoryTest() : here_(OpenDatabase(host_.DataSource()))
{
    Insert(*here_, UserRow{7, "Lia"});
    Insert(*here_, UserRow{8, "Marcos"});
    NumberOn(*here_);
}

std::vector<history::Line> HistoryTest::Find(const Filter& filter, std::size_t most)
{
    return history::FindLines(*here_, lia_, filter, {}, most).lines;
}

std::vector<std::string> HistoryTest::Acts(const Filter& filter)
{
    std::vector<std::string> acts;
    for (const Line& line : Find(filter))
        acts.push_back(line.audit.user + ": " + history::ActOf(line));
    return acts;
}

std::vector<std::string> HistoryTest::Changes(const Line& line)
{
    std::vector<std::string> told;
    for (const history::Change& change : history::ChangesOf(*here_, lia_, line))
        told.push_back(change.caption + ": " + change.before + " > " + change.after);
    return told;
}

history::Filter HistoryTest::OfRow(const std::string& table, Key key)
{
    Filter filter;
    filter.subject = {Subject::Kind::Row, table, key};
    return filter;
}

history::Line HistoryTest::Newest(const std::string& table, Key key)
{
    Filter filter = OfRow(table, key);
    filter.table = table;
    const std::vector<Line> found = Find(filter);
    EXPECT_FALSE(found.empty()) << table << " " << key;
    return found.empty() ? Line() : found.front();
}

std::string HistoryTest::Plan(const Line& line)
{
    const history::UndoPlan plan = history::PlanUndo(*here_, lia_, line);
    return plan.IsPossible() ? plan.what : "! " + plan.why;
}

std::string HistoryTest::Undo(const Line& line) { return history::Undo(*here_, lia_, line).why; }

void HistoryTest::OtherSaves(const registers::Register& of, Key key, const TypedFields& typed)
{
    const registers::Texts before = of.Read(*otherDesk_, key).value();
    registers::Texts texts = before;
    for (const auto& [label, text] : typed)
        texts.at(registers::FieldNamed(of.Fields(), label)) = text;
    ASSERT_TRUE(of.Save(*otherDesk_, key, before, texts, marcos_).IsDone());
}

std::string HistoryTest::Field(const registers::Register& of, Key key, const char* label)
{
    return of.Read(*here_, key).value().at(registers::FieldNamed(of.Fields(), label));
}

void HistoryTest::LiaMay(const Rights& rights)
{
    constexpr Key Administration = 1, Reception = 3;
    const Secret ofMarcos("Gato-Preto 1"), ofLia("Laço Azul 22");
    EXPECT_EQ(SaveAccount(*otherDesk_, {8, "Marcos", Administration, true}, &ofMarcos, marcos_, Cheap).why,
              "");
    EXPECT_EQ(SaveAccount(*otherDesk_, {7, "Lia", Reception, true}, &ofLia, marcos_, Cheap).why, "");
    EXPECT_EQ(SaveRole(*otherDesk_, {Reception, "Recepção", rights}, marcos_).why, "");
}

} // namespace kova::family::test
