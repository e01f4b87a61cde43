// What leaves the agenda on paper, by keyboard, from the list to the file.

#include "tests/support/pdf_text.hpp"
#include "tests/window/shop.hpp"

#include <regex>

namespace kova::window_test {

namespace {

using Rows = std::vector<std::string>;

class Printing : public Shop {
protected:
    static constexpr const char* List = "frmLista";
    static constexpr const char* Files = "QFileDialog";

    Printing() { Execute("update agendamento set situacao = 1"); }

    /// The pages of the only file that was saved.
    Rows Saved() const
    {
        Rows files;
        for (const auto& entry : std::filesystem::directory_iterator(Documents()))
            files.push_back(entry.path().string());
        EXPECT_EQ(files.size(), 1U);
        return files.empty() ? Rows() : test::PdfPages(QString::fromStdString(files.front()), {"-layout"});
    }
};

TEST_F(Printing, TheDaysListHasHeadRowsInOrderAndPageNumbers)
{
    receptionist->WaitsFor(List).Presses("Ctrl+P").Picks("Lista dos agendamentos");
    receptionist->WaitsFor("frmImprimirAgenda").Presses("Return");
    receptionist->InWindow("visualizacao", "Ctrl+S").InWindow(Files, "Return");
    receptionist->InWindow("visualizacao", "Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows{});
    const Rows pages = Saved();
    ASSERT_GT(pages.size(), 1U);
    const std::string company = Value("select nome_fantasia from empresa order by codigo");
    Rows printed;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const std::string number =
            "Página: " + std::to_string(page + 1) + " de " + std::to_string(pages.size());
        EXPECT_TRUE(pages[page].starts_with(company + " Agendamentos Emissão: 20/11/2026 " + number
                                            + " Lista completa Hr.ini."))
            << pages[page];
        EXPECT_TRUE(pages[page].ends_with(" Kovaris Kovaris")) << pages[page];
        static const std::regex time("\\b\\d\\d:\\d\\d\\b");
        for (std::sregex_iterator found(pages[page].begin(), pages[page].end(), time), end; found != end;
             ++found)
            printed.push_back(found->str());
    }
    // Of each row the start, then, a line below, the end.
    Rows expected;
    for (const std::string& row : Query("select hora_inicial || hora_final from agendamento"
                                        " where data_inicial = '2026-11-20' order by hora_inicial, numero")) {
        expected.push_back(row.substr(0, 5));
        expected.push_back(row.substr(5));
    }
    EXPECT_EQ(printed, expected);
}

TEST_F(Printing, AnAddressLabelGoesFromTheRowIntoAPdf)
{
    Execute("update agendamento set tipo_do_agendamento = 0, codigo_do_cliente = 17, codigo_do_animal = 1"
            " where data_inicial = '2026-11-20'");
    Execute("update cliente set situacao = 1, apelido = 'Zuza', nome = 'Zulmar Quaresma',"
            " logradouro = 'Rua do Ipê', numero = '7', complemento = 'Fundos', bairro = 'Céu Azul',"
            " cidade = 'Vale Sereno', uf = 'SP', cep = '00456789' where codigo = 17");
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("F9").Picks("Etiqueta de endereço");
    receptionist->InWindow("etiqueta", "3").InWindow("etiqueta", "Alt+S").InWindow(Files, "Return");
    receptionist->InWindow("etiqueta", "Escape").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(), Rows{});
    const std::string label = "Zulmar Quaresma Rua do Ipê, 7 - Fundos Céu Azul Vale Sereno/SP CEP 00456-789";
    const Rows pages = test::PdfPages(QString::fromStdString(
        (Documents() / "Etiqueta de endereço - Zulmar Quaresma 2026-11-20.pdf").string()));
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages.front(), label + " " + label + " " + label);
}

TEST_F(Printing, AnAddressLabelOfADeletedCustomerIsRefusedAndTheListGoesOn)
{
    Execute("update agendamento set tipo_do_agendamento = 0, codigo_do_cliente = 17, codigo_do_animal = 1"
            " where data_inicial = '2026-11-20'");
    Execute("update cliente set situacao = 4 where codigo = 17");
    receptionist->WaitsFor(List).Presses("F7").Presses("Down").Presses("F9").Picks("Etiqueta de endereço");
    receptionist->Answers("Return").WaitsFor(List).Leaves();
    Run();
    EXPECT_EQ(receptionist->Boxes(),
              Rows{"O cliente de código 17 não está mais cadastrado.\n\n"
                   "Atualize a lista e escolha outro agendamento."});
}

} // namespace

} // namespace kova::window_test
