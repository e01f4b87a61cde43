// Where a driver has to be on a day, and how the engines look for it.

#include "tests/unit/family/plan_fixture.hpp"

#include "family/data/selections/transport_stops.hpp"

namespace kova::family::test {

using List = std::vector<std::string>;

class TransportStops : public BigShopTest {
protected:
    /// "hh:mm busca|leva NUMBER DISTRICT" of each.
    List On(const std::string& day)
    {
        List told;
        for (const TransportStop& stop : FindTransportStops(Data(), day))
            told.push_back(stop.time + (stop.isFetch ? " busca " : " leva ")
                           + std::to_string(stop.appointment) + " " + stop.district);
        return told;
    }
    void Set(const std::string& what, const std::string& numbers)
    {
        Run("update agendamento set " + what + " where numero in (" + numbers + ")");
    }
};

TEST_F(TransportStops, AreThoseOfTheDayByTime)
{
    EXPECT_EQ(On("2026-11-20"), (List{"11:00 busca 5 ", "12:00 busca 6 ", "18:00 leva 5 ", "18:00 leva 7 "}));
    Set("transporte_buscar = 1", "8");
    EXPECT_EQ(On("2026-11-20").size(), 4U) << "what is cancelled has none";
    EXPECT_EQ(On("2026-11-21"), List{});
}

TEST_F(TransportStops, OfOneTimeLieTogetherByDistrict)
{
    Set("transporte_buscar = 0, transporte_levar = 1", "1, 2, 3, 5, 6, 7");
    Run("update cliente set bairro = 'Água Rasa' where codigo = 11");
    Run("update cliente set bairro = 'belém' where codigo = 10");
    EXPECT_EQ(On("2026-11-20"),
              (List{"18:00 leva 3 Água Rasa", "18:00 leva 5 Água Rasa", "18:00 leva 6 Água Rasa",
                    "18:00 leva 7 Água Rasa", "18:00 leva 1 belém", "18:00 leva 2 belém"}));
}

TEST_F(TransportStops, OfAnAppointmentOfSeveralDaysAreOnTwoOfThem)
{
    Set("transporte_buscar = 1, transporte_levar = 1, data_final = '2026-12-04'", "24");
    EXPECT_EQ(On("2026-12-01"), List{"09:00 busca 24 "});
    EXPECT_EQ(On("2026-12-03"), List{});
    EXPECT_EQ(On("2026-12-04"), List{"10:00 leva 24 "});
}

TEST_F(TransportStops, TellWhomAndWhere)
{
    Set("transporte_buscar = 1", "2, 4");
    const std::vector<TransportStop> stops = FindTransportStops(Data(), "2026-11-20");
    EXPECT_EQ(stops.at(0).customer, "José Antônio Peçanha");
    EXPECT_EQ(stops.at(0).animal, "Paçoca");
    EXPECT_EQ(stops.at(0).employee, "Bia");
    EXPECT_NE(stops.at(0).address.find("Rua do Ipê"), std::string::npos);
    EXPECT_NE(stops.at(0).channels.find("91234-5678"), std::string::npos);
    EXPECT_EQ(stops.at(1).customer, "Íris Conceição");
    EXPECT_EQ(stops.at(1).animal, "Bidu");
    EXPECT_EQ(stops.at(1).channels, "(00) 90000-0001");
    EXPECT_EQ(stops.at(1).address, "");
}

TEST_F(TransportStops, AreFoundWithoutReadingATableThatGrows)
{
    AddAppointments(5);
    AddTheRest();
    Analyse();
    FindTransportStops(Data(), "2026-11-20");
    for (const auto& plans : {PlansOf(Data()), PlansForValues(Data())}) {
        const std::string plan = PlanWith("transporte_levar = 1", plans);
        EXPECT_FALSE(ReadsWholeTable(plan)) << plan;
        EXPECT_NE(plan.find("agendamento_por_inicio"), std::string::npos) << plan;
        // What ends then, and nothing behind or before it, whichever index of the employees' ends it is.
        EXPECT_NE(
            plan.find(TestsRunOnServer() ? "data_final = " : "codigo_do_funcionario=? AND data_final=?"),
            std::string::npos)
            << plan;
    }
}

} // namespace kova::family::test
