#include "host/transport/run_sheet.hpp"
#include "host/transport/stop_model.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kova::host {

namespace {

using family::TransportStop;

const TransportStop Fetch{7,
                          true,
                          "09:00",
                          "Água Rasa",
                          "Rua do Ipê, 7 - Água Rasa - Vale Sereno/SP",
                          "Zulmira Quaresma",
                          "Celular: (11) 91234-5678; E-mail: zu2@exemplo.com; Fixo: (11) 3456-7890",
                          "Tobias",
                          "Bia"};
const TransportStop Home{8, false, "18:30", "", "", "Seu Zé", "Recado com a vizinha", "Rex", "Lia"};

} // namespace

TEST(RunSheet, TellsWhatIsDoneWhereAndByWhichPhones)
{
    EXPECT_EQ(WhatIsDone(Fetch), "Buscar");
    EXPECT_EQ(WhatIsDone(Home), "Levar");
    EXPECT_EQ(WhereItIs(Fetch), Fetch.address);
    EXPECT_EQ(WhereItIs(Home), "(sem endereço no cadastro)");
    EXPECT_EQ(PhonesOf(Fetch), "Celular: (11) 91234-5678; Fixo: (11) 3456-7890");
    EXPECT_EQ(PhonesOf(Home), "");
    EXPECT_EQ(PhonesOf({}), "");
}

TEST(RunSheet, CountsItsStops)
{
    EXPECT_EQ(CountOf({}), "Nenhuma parada");
    EXPECT_EQ(CountOf({Fetch}), "1 parada: 1 para buscar, 0 para levar");
    EXPECT_EQ(CountOf({Fetch, Home, Home}), "3 paradas: 1 para buscar, 2 para levar");
}

TEST(StopsOfADay, StandInATableAsTheyComeWithoutWhatNobodyNeedsOnTheWay)
{
    StopModel model(nullptr);
    model.Show({Fetch, Home});
    const auto row = [&](int number) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(number, column).data().toString();
        return cells.join(QLatin1Char('|')).toStdString();
    };
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(row(0),
              "09:00|Buscar|Água Rasa|Rua do Ipê, 7 - Água Rasa - Vale Sereno/SP|Zulmira Quaresma|"
              "Celular: (11) 91234-5678; Fixo: (11) 3456-7890|Tobias|Bia");
    EXPECT_EQ(row(1), "18:30|Levar||(sem endereço no cadastro)|Seu Zé||Rex|Lia");
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Hora"));
}

} // namespace kova::host
