#include "tools/scenario/scripted_components.hpp"

#include <gtest/gtest.h>

namespace kova::scenario {
namespace {

constexpr const char* Class = "KOVA_N_Agenda.clsAgenda";

RecordSetRef Selected(ScriptedComponents& script)
{
    const ComponentRef component = script.CreateObject(Class);
    EXPECT_EQ(component->Call("Selecionar"), Value(Integer{0}));
    return component->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
}

TEST(ScriptedSelection, WithoutATableIsEmptyAndTakesAnyOrder)
{
    ScriptedComponents script;
    const RecordSetRef rows = Selected(script);
    EXPECT_EQ(rows->RecordCount(), 0);
    EXPECT_EQ(rows->Sort(), "");
    EXPECT_NO_THROW(rows->Sort("DataInicial, HoraInicial ASC"));
    EXPECT_EQ(rows->Sort(), "DataInicial, HoraInicial ASC");
    EXPECT_TRUE(rows->Eof());
}

TEST(ScriptedSelection, OfATableKnowsItsFieldsAlsoWithoutRows)
{
    ScriptedComponents script;
    script.Always(std::string(Class) + ".Selecionar", {.records = {{"HoraInicial"}, {}}});
    const RecordSetRef rows = Selected(script);
    EXPECT_NO_THROW(rows->Sort("HoraInicial ASC"));
    EXPECT_THROW(rows->Sort("DataInicial"), Failure);
}

} // namespace
} // namespace kova::scenario
