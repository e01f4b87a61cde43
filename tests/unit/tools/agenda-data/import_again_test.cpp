// What a file brings that is in the database already.

#include "tests/unit/tools/agenda-data/import_fixture.hpp"

namespace kova::data::test {

namespace {

/// Lines without codes.
struct CodelessFile {
    const char* name;
    const char* table;
    std::string header;
    std::vector<std::string> lines;

    std::string Content() const
    {
        std::string content = header + "\n";
        for (const std::string& line : lines)
            content += line + "\n";
        return content;
    }
};

const CodelessFile Files[] = {
    {"tipos", "tipo_de_servico", "Nome", {"Hotel", "Creche"}},
    {"servicos",
     "servico",
     "Nome;Número do tipo;Duração em minutos;Preço",
     {"Tosa;4;30;40,00", "Tosa;1;30;40,00", "Hidratação;4;30;40,00"}},
    {"funcionarios", "funcionario", "Apelido;Nome", {"Lu;Luana Reis", "Lu;Lúcia Prado", "Nina;Lúcia Prado"}},
    {"feriados", "feriado", "Nome;Data", {"Natal;25/12", "Carnaval;16/02/2027"}},
    {"clientes",
     "cliente",
     "Nome;Documento;Logradouro;Celular;E-mail",
     {"Ana Sá;529.982.247-25;;;", "Ana Sá;;;(11) 91234-5678;ana@example.com", "Ana Sá;;;(11) 95555-0000;",
      "Rui Sá;;;(11) 91234-5678;", "Ana Sá;;;;", "Ana Sá;;Rua A;;", "Ana Sá;;Rua B;;"}},
    {"animais",
     "animal",
     "Código do cliente;Nome;Sexo;Espécie;Porte",
     {"10;Rex;M;Canina;Médio", "11;Rex;M;Canina;Médio", "10;Rex;M;Felina;Pequeno", "10;Mel;F;Canina;Médio"}},
    {"agendamentos",
     "agendamento",
     "Data inicial;Hora inicial;Hora final;Código do cliente;Código do animal;Nome do cliente;"
     "Nome do animal;Código do serviço;Código do funcionário",
     {"25/11/2026;10:00;11:00;10;50;;;2;2", "25/11/2026;10:00;11:00;11;51;;;2;2",
      "25/11/2026;12:00;13:00;10;50;;;2;2", "26/11/2026;10:00;11:00;10;50;;;2;2",
      "25/11/2026;10:00;11:00;10;50;;;2;1", "02/11/2026;10:00;11:00;10;50;;;1;1",
      "02/11/2026;10:00;11:00;10;50;;;2;1", "02/11/2026;10:00;11:00;;;Íris;Bidu;2;1",
      "02/11/2026;10:00;11:00;;;Íris;Lulu;2;1", "02/11/2026;10:00;11:00;;;Caio;Lulu;2;1"}},
    {"expediente",
     "expediente",
     "Dia da semana;Hora inicial;Hora final",
     {"Domingo;08:00;12:00", "Domingo;12:00;13:00", "Domingo;14:00;24:00"}},
    {"horarios",
     "horario_do_funcionario",
     "Código do funcionário;Dia da semana;Hora inicial;Hora final",
     {"1;Segunda-feira;08:00;12:00", "1;Segunda-feira;13:00;18:00", "1;Sábado;08:00;12:00",
      "2;Segunda-feira;08:00;12:00"}},
    {"ausencias",
     "ausencia",
     "Código do funcionário;Data inicial;Hora inicial;Data final;Hora final;Motivo",
     {"1;24/12/2026;00:00;24/12/2026;24:00;Natal", "2;24/12/2026;00:00;24/12/2026;24:00;Natal",
      ";31/12/2026;12:00;31/12/2026;24:00;Festa", "1;24/12/2026;00:00;26/12/2026;24:00;Férias"}},
};

} // namespace

class ImportAgain : public ImportTest {
protected:
    ImportAgain() { ImportShop(); }

    std::string Count(const CodelessFile& file)
    {
        return Ask(std::string("select count(*) from ") + file.table);
    }
};

TEST_F(ImportAgain, OfAFileAddsNothingAndNamesEachOfItsLines)
{
    for (const CodelessFile& file : Files) {
        ASSERT_EQ(Import(file.name, file.Content()), 0) << file.name << Error();
        const std::string count = Count(file);
        for (const std::vector<std::string>& options :
             {std::vector<std::string>{}, std::vector<std::string>{"--dry-run"}}) {
            EXPECT_EQ(Import(file.name, file.Content(), options), 1) << file.name;
            for (std::size_t line = 2; line < file.lines.size() + 2; ++line)
                EXPECT_NE(("\n" + Error()).find("\nlinha " + std::to_string(line) + ": "), std::string::npos)
                    << file.name << Error();
            const std::string lines = std::to_string(file.lines.size());
            EXPECT_NE(Error().find(lines + " erros em " + lines + " linhas; nada foi importado.\n"),
                      std::string::npos)
                << file.name << Error();
            EXPECT_EQ(Count(file), count) << file.name;
        }
    }
}

TEST_F(ImportAgain, OfOneOfItsLinesAddsNothing)
{
    for (const CodelessFile& file : Files) {
        ASSERT_EQ(Import(file.name, file.Content()), 0) << file.name << Error();
        for (const std::string& line : file.lines) {
            EXPECT_EQ(Import(file.name, file.header + "\n" + line + "\n"), 1) << file.name << line;
            EXPECT_NE(Error().find("1 erro em 1 linha"), std::string::npos) << Error();
        }
    }
}

TEST_F(ImportAgain, OfALineInOneFileNamesTheLineBefore)
{
    for (const CodelessFile& file : Files) {
        CodelessFile twice = file;
        twice.lines.push_back(file.lines.front());
        EXPECT_EQ(Import(file.name, twice.Content()), 1) << file.name;
        EXPECT_EQ(Error().find("linha " + std::to_string(twice.lines.size() + 1) + ": "), 0U) << Error();
        EXPECT_NE(Error().find("já está na linha 2."), std::string::npos) << file.name << Error();
    }
}

TEST_F(ImportAgain, TellsTheStoredRecord)
{
    EXPECT_EQ(Import("tipos", "Nome\nCONSULTA\n"), 1);
    EXPECT_EQ(
        Error(),
        "linha 2: Número: o registro já existe no banco de dados, com o número 1. Se for outro, preencha "
        "esta coluna.\n1 erro em 1 linha; nada foi importado.\n");
    EXPECT_EQ(Import("animais", "Código do cliente;Nome;Sexo;Espécie;Porte\n10;pacoca;F;canina;Grande\n"), 1);
    EXPECT_NE(Error().find("Código: o registro já existe no banco de dados, com o código 50. "),
              std::string::npos)
        << Error();
}

TEST_F(ImportAgain, KnowsAPersonByAnyOfTheNumbersHoweverTheyAreWritten)
{
    ASSERT_EQ(Import("clientes", "Nome;Celular;E-mail\nJosé Alves;(11) 91234-5678;ze@example.com\n"), 0);
    for (const char* line : {"JOSE ALVES;11912345678;", "josé alves;;ZE@example.com",
                             "José Alves;(21) 90000-0000;ze@example.com"}) {
        EXPECT_EQ(Import("clientes", std::string("Nome;Celular;E-mail\n") + line + "\n"), 1) << line;
        EXPECT_NE(Error().find("com o código 12."), std::string::npos) << Error();
    }
    for (const char* line : {"José Alves;(21) 90000-0000;", "José Alves;;", "Ana Alves;(11) 91234-5678;"})
        EXPECT_EQ(Import("clientes", std::string("Nome;Celular;E-mail\n") + line + "\n"), 0)
            << line << Error();
}

TEST_F(ImportAgain, KnowsOneAmongManyNamesakes)
{
    std::string content = "Código;Nome;Celular\n";
    for (int code = 1001; code <= 2300; ++code)
        content += std::to_string(code) + ";Maria;11 90000-" + std::to_string(code) + "\n";
    ASSERT_EQ(Import("clientes", content), 0) << Error();
    EXPECT_EQ(Import("clientes", "Nome;Celular\nMaria;11 90000-2300\n"), 1);
    EXPECT_NE(Error().find("com o código 2300."), std::string::npos) << Error();
    EXPECT_EQ(Import("clientes", "Nome;Celular\nMaria;11 90000-2301\n"), 0) << Error();
}

TEST_F(ImportAgain, BringsInWhatIsOnlyAlikeWithACodeOfItsOwn)
{
    ASSERT_EQ(Import("tipos", "Número;Nome\n9;Consulta\n"), 0) << Error();
    ASSERT_EQ(Import("clientes", "Código;Nome\n70;Ana Sá\n71;Ana Sá\n"), 0) << Error();
    EXPECT_EQ(Ask("select count(*) from cliente where nome = 'Ana Sá'"), "2");
    EXPECT_EQ(Import("clientes", "Código;Nome\n;Ana Sá\n"), 1);
}

TEST_F(ImportAgain, LooksPastTheFirstLinesOfAFile)
{
    std::string content = "Nome\n";
    for (int line = 0; line < 1200; ++line)
        content += "Cliente " + std::to_string(line) + "\n";
    ASSERT_EQ(Import("clientes", content), 0) << Error();
    ASSERT_EQ(Import("clientes", "Nome\nOutro\nCliente 1199\n"), 1);
    EXPECT_EQ(Import("clientes", content), 1);
    EXPECT_NE(Error().find("1200 erros em 1200 linhas"), std::string::npos);
    EXPECT_EQ(Import("clientes", content + "Cliente 3\n"), 1);
}

} // namespace kova::data::test
