// Opening hours, employees' hours and absences that come from files.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include "agenda/contracts/date_time.hpp"

namespace kova::data::test {

class WorkImports : public ImportTest {
protected:
    WorkImports() { ImportShop(); }
};

TEST_F(WorkImports, ReadThemAndAreWrittenAgain)
{
    ASSERT_EQ(Import("expediente", "Dia da semana;Hora inicial;Hora final\ndomingo;8:00;12:00:00\n"), 0)
        << Error();
    EXPECT_EQ(Exported("expediente").substr(0, 64).find("Código;Dia da semana;Hora inicial;Hora final\r\n"),
              0u);
    EXPECT_NE(Exported("expediente").find("\r\n7;Domingo;08:00;12:00\r\n"), std::string::npos);
    ASSERT_EQ(Import("horarios",
                     "Código do funcionário;Dia da semana;Hora inicial;Hora final\n"
                     "1;Terça-feira;08:00;12:00\n1;terca-feira;12:00;24:00:00\n"),
              0)
        << Error();
    EXPECT_EQ(Exported("horarios"),
              "Código;Código do funcionário;Dia da semana;Hora inicial;Hora final\r\n"
              "1;1;Terça-feira;08:00;12:00\r\n2;1;Terça-feira;12:00;24:00\r\n");
    ASSERT_EQ(
        Import("ausencias",
               "Código do funcionário;Data inicial;Hora inicial;Data final;Hora final;Motivo\n"
               "2;24/12/2026;00:00;02/01/2027;24:00;Férias\n;25/12/2026;00:00;25/12/2026;24:00;Natal\n"),
        0)
        << Error();
    EXPECT_EQ(Exported("ausencias"),
              "Código;Código do funcionário;Data inicial;Hora inicial;Data final;Hora final;Motivo\r\n"
              "1;2;24/12/2026;00:00;02/01/2027;24:00;Férias\r\n"
              "2;;25/12/2026;00:00;25/12/2026;24:00;Natal\r\n");
    EXPECT_EQ(Run({"check", Database()}), 0) << Error();
}

TEST_F(WorkImports, RefuseHoursThatAreNone)
{
    EXPECT_EQ(Import("expediente",
                     "Dia da semana;Hora inicial;Hora final\nDomingo;12:00;12:00\nFeira;08:00;25:00\n"
                     "Domingo;;12:00\n"),
              1);
    EXPECT_EQ(Error(),
              "linha 2: Hora final \"12:00\": deve ser depois da hora inicial.\n"
              "linha 3: Dia da semana \"Feira\": não é conhecido. Use Domingo, Segunda-feira, Terça-feira,"
              " Quarta-feira, Quinta-feira, Sexta-feira ou Sábado.\n"
              "linha 3: Hora final \"25:00\": não é uma hora válida. Escreva hh:mm, até 24:00.\n"
              "linha 4: Hora inicial: deve ser informado.\n"
              "4 erros em 3 linhas; nada foi importado.\n");
}

TEST_F(WorkImports, RefuseHoursThatCrossOthersOfTheDay)
{
    EXPECT_EQ(Import("expediente",
                     "Dia da semana;Hora inicial;Hora final\nSegunda-feira;08:00;12:00\n"
                     "Domingo;08:00;12:00\nDomingo;11:59;13:00\nDomingo;12:00;14:00\n"),
              1);
    EXPECT_EQ(Error(),
              "linha 2: Hora inicial \"08:00\": o horário das 00:00 às 24:00 desse dia já existe no banco de"
              " dados, e os dois se cruzam.\n"
              "linha 4: Hora inicial \"11:59\": o horário das 08:00 às 12:00 desse dia já está na linha 3, e"
              " os dois se cruzam.\n"
              "2 erros em 2 linhas; nada foi importado.\n");
    ASSERT_EQ(Import("horarios",
                     "Código do funcionário;Dia da semana;Hora inicial;Hora final\n"
                     "1;Sábado;08:00;12:00\n2;Sábado;08:00;12:00\n1;Domingo;08:00;12:00\n"),
              0)
        << "of another employee, or of another day" << Error();
}

TEST_F(WorkImports, RefuseAnEmployeeThatThereIsNot)
{
    EXPECT_EQ(Import("horarios",
                     "Código do funcionário;Dia da semana;Hora inicial;Hora final\n9;Sábado;08:00;12:00\n"),
              1);
    EXPECT_NE(Error().find("linha 2: Código do funcionário \"9\": não há funcionário(a) com este código.\n"),
              std::string::npos)
        << Error();
    EXPECT_EQ(Import("ausencias",
                     "Código do funcionário;Data inicial;Hora inicial;Data final;Hora final;Motivo\n"
                     "9;24/12/2026;00:00;23/12/2026;24:00;Férias\n"
                     "1;24/12/2026;12:00;24/12/2026;10:00;Férias\n"),
              1);
    EXPECT_EQ(Error(),
              "linha 2: Código do funcionário \"9\": não há funcionário(a) com este código.\n"
              "linha 2: Data final: não pode ser antes da data inicial.\n"
              "linha 3: Hora final \"10:00\": deve ser depois da hora inicial, que é do mesmo dia.\n"
              "3 erros em 2 linhas; nada foi importado.\n");
}

TEST_F(WorkImports, PutABreakIntoADayByOneLineThatChangesAndOneThatIsNew)
{
    ASSERT_EQ(Import("expediente",
                     "Código;Dia da semana;Hora inicial;Hora final\n;Segunda-feira;13:00;18:00\n"
                     "1;Segunda-feira;08:00;12:00\n",
                     {"--update"}),
              0)
        << Error();
    EXPECT_EQ(Ask("select hora_inicial || '-' || hora_final from expediente where dia_da_semana = 2"
                  " order by hora_inicial"),
              "08:00-12:00,13:00-18:00");
    EXPECT_EQ(Import("expediente",
                     "Código;Dia da semana;Hora inicial;Hora final\n1;Segunda-feira;08:00;12:30\n"
                     ";Segunda-feira;12:00;12:45\n",
                     {"--update"}),
              1);
    EXPECT_NE(Error().find("o horário das 08:00 às 12:30 desse dia já existe no banco de dados, e os dois se"
                           " cruzam."),
              std::string::npos)
        << Error();
}

TEST_F(WorkImports, JudgeHoursAsTheyStandAfterTheFile)
{
    const std::string header = "Código;Código do funcionário;Dia da semana;Hora inicial;Hora final\n";
    const std::string hours = "select codigo || ' ' || hora_inicial || '-' || hora_final"
                              " from horario_do_funcionario order by codigo";
    ASSERT_EQ(Import("horarios", header + ";1;Sábado;08:00;12:00\n;1;Sábado;13:00;18:00\n"), 0) << Error();
    ASSERT_EQ(Import("horarios", header + "1;1;Sábado;13:00;18:00\n2;1;Sábado;08:00;12:00\n", {"--update"}),
              0)
        << Error();
    EXPECT_EQ(Ask(hours), "1 13:00-18:00,2 08:00-12:00");
    ASSERT_EQ(Run({"undo-import", Database()}), 0) << Error();
    EXPECT_EQ(Ask(hours), "1 08:00-12:00,2 13:00-18:00");
    EXPECT_EQ(Import("horarios", header + "1;1;Sábado;08:00;13:30\n2;1;Sábado;13:00;18:00\n", {"--update"}),
              1);
    EXPECT_NE(
        Error().find("linha 2: Hora inicial \"08:00\": há outro horário nesse dia, das 13:00 às 18:00, e os"
                     " dois se cruzam."),
        std::string::npos)
        << Error();
    EXPECT_EQ(Ask(hours), "1 08:00-12:00,2 13:00-18:00");
}

TEST_F(WorkImports, JudgeANewLineByTheRowsThatTheFileChangesFurtherOn)
{
    const std::string header = "Código;Código do funcionário;Dia da semana;Hora inicial;Hora final\n";
    ASSERT_EQ(Import("horarios", header + ";1;Sábado;08:00;12:00\n"), 0) << Error();
    std::string content = header + ";1;Sábado;09:00;12:00\n";
    for (int minute = 0; minute < 600; ++minute)
        content += ";2;Domingo;" + FormatTime({minute / 60, minute % 60, 0}) + ";"
            + FormatTime({(minute + 1) / 60, (minute + 1) % 60, 0}) + "\n";
    EXPECT_EQ(Import("horarios", content + "1;1;Sábado;13:00;18:00\n", {"--update"}), 0) << Error();
    EXPECT_EQ(Ask("select hora_inicial from horario_do_funcionario where codigo_do_funcionario = 1"
                  " order by hora_inicial"),
              "09:00,13:00");
}

TEST_F(WorkImports, LeaveOutWhatIsThereAlready)
{
    ASSERT_EQ(
        Import("expediente",
               "Dia da semana;Hora inicial;Hora final\nSegunda-feira;00:00;24:00\nDomingo;08:00;12:00\n",
               {"--skip-existing"}),
        0)
        << Error();
    EXPECT_EQ(Answer(), "Arquivo lido em UTF-8.\n1 linha importada; 1 linha já estava no banco.\n");
}

} // namespace kova::data::test
