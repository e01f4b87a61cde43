#include "tests/unit/tools/agenda-data/import_fixture.hpp"

#include <cstdio>

namespace kova::data::test {

namespace {

constexpr int Lines = 50'000;

/// Every hundredth line is bad, each in its own way.
bool IsBad(int line) { return line % 100 == 37; }

std::string CustomerLine(int number, bool bad)
{
    char text[160];
    const char* state = bad && number % 3 == 0 ? "Perdido" : "Ativo";
    const char* postalCode = bad && number % 3 == 1 ? "123" : "01234-567";
    const char* name = bad && number % 3 == 2 ? "" : "Maria";
    std::snprintf(text, sizeof text, "%d;%s;%s;Rua %d;%s;Celular: (11) 9%08d\n", number, name, state, number,
                  postalCode, number);
    return text;
}

/// The lines of the file count from 1, the header's.
std::string ManyCustomers(bool someBad)
{
    std::string content = "Código;Nome;Situação;Logradouro;CEP;Canais\n";
    for (int line = 2; line <= Lines + 1; ++line)
        content += CustomerLine(line - 1, someBad && IsBad(line));
    return content;
}

} // namespace

class LargeImport : public ImportTest { };

TEST_F(LargeImport, NamesEveryBadLineAndImportsNone)
{
    ASSERT_EQ(Import("clientes", ManyCustomers(true)), 1);
    std::vector<int> expected, named;
    for (int line = 2; line <= Lines + 1; ++line) {
        if (IsBad(line))
            expected.push_back(line);
    }
    std::istringstream output(Error());
    for (std::string text; std::getline(output, text);) {
        int line = 0;
        if (std::sscanf(text.c_str(), "linha %d:", &line) == 1)
            named.push_back(line);
    }
    EXPECT_EQ(expected.size(), 500u);
    EXPECT_EQ(named, expected);
    EXPECT_NE(Error().find("500 erros em 500 linhas; nada foi importado.\n"), std::string::npos);
    EXPECT_EQ(Ask("select count(*) from cliente"), "0");
    EXPECT_EQ(Ask("select count(*) from auditoria"), "0");
}

TEST_F(LargeImport, TellsHowFarItIs)
{
    ASSERT_EQ(Import("clientes", ManyCustomers(false)), 0) << Error();
    for (const char* line : {"Conferência: 10% (5001 de 50001)\n", "Conferência: 100% (50001 de 50001)\n",
                             "Gravação: 50% (25001 de 50001)\n", "Gravação: 100% (50001 de 50001)\n"})
        EXPECT_NE(Error().find(line), std::string::npos) << line << Error();
    EXPECT_EQ(Answer(), "Arquivo lido em UTF-8.\n50000 linhas importadas.\n");
    // Of a server nobody knows whether others have written since the first look.
    EXPECT_EQ(Error().find("Nova conferência") != std::string::npos, kova::test::TestsRunOnServer());
    EXPECT_EQ(Ask("select count(*) from cliente"), "50000");
    EXPECT_EQ(Ask("select count(*) from canal_de_comunicacao"), "50000");
    EXPECT_EQ(Run({"export", Database(), "clientes", File("saida.csv")}), 0);
    EXPECT_NE(Error().find("Exportação: 100% (50000 de 50000)\n"), std::string::npos) << Error();
}

} // namespace kova::data::test
