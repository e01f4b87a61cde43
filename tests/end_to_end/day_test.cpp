// A receptionist's day on a demonstration shop: the module's real library, the reference components, and a
// database of each engine.

#include "tests/support/postgres_server.hpp"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <string>

namespace {

enum class Engine { Sqlite, Postgresql };

class ADay : public testing::TestWithParam<Engine> {
protected:
    ADay()
    {
        if (GetParam() == Engine::Postgresql)
            onServer_.emplace(kova::test::PostgresServer::Shared());
        std::string pattern = (std::filesystem::temp_directory_path() / "dia-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        EXPECT_EQ(Call(std::string(AGENDA_DATA) + " demo " + Database() + " --date 20/11/2026"), 0)
            << printed_;
    }
    ~ADay() override { std::filesystem::remove_all(folder_); }

    std::string Database() const { return onServer_ ? onServer_->Address() : folder_ + "/loja.db"; }

    /// Runs a script on the shop; the transcript is in Printed().
    int Run(const std::string& statements)
    {
        const std::string file = folder_ + "/dia.scenario";
        std::ofstream(file) << "application \"Kova\"\nuser\nopen\n" << statements;
        return Call(std::string(RUNNER) + " --database " + Database() + " " + file);
    }

    const std::string& Printed() const { return printed_; }

    /// The number behind the last "PLACE = " of the transcript; -1 where there is none.
    int NumberAt(const std::string& place) const
    {
        const std::size_t at = printed_.rfind(place + " = ");
        return at == std::string::npos ? -1 : std::atoi(printed_.c_str() + at + place.size() + 3);
    }

private:
    int Call(const std::string& command)
    {
        printed_.clear();
        FILE* pipe = popen((command + " 2>&1").c_str(), "r");
        std::array<char, 4096> part{};
        while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe))
            printed_.append(part.data(), read);
        const int status = pclose(pipe);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string folder_;
    std::optional<kova::test::PostgresDatabase> onServer_;
    std::string printed_;
};

INSTANTIATE_TEST_SUITE_P(On, ADay, testing::Values(Engine::Sqlite, Engine::Postgresql),
                         [](const testing::TestParamInfo<Engine>& engine) {
                             return std::string(engine.param == Engine::Sqlite ? "Sqlite" : "Postgresql");
                         });

TEST_P(ADay, OpensAndPagesToTheEnd)
{
    ASSERT_EQ(Run("show frmLista.kvnbBarraDeNavegacao.RecordCount\nbar frmLista.kvnbBarraDeNavegacao 4\n"
                  "show frmLista.kvnbBarraDeNavegacao.LastRecord\nshow frmLista.msfgGrade.Rows\n"),
              0)
        << Printed();
    const int total = NumberAt("frmLista.kvnbBarraDeNavegacao.RecordCount");
    EXPECT_GT(total, 20);
    EXPECT_EQ(NumberAt("frmLista.kvnbBarraDeNavegacao.LastRecord"), total);
    EXPECT_EQ(NumberAt("frmLista.msfgGrade.Rows") - 1, (total - 1) % 19 + 1);
    EXPECT_EQ(Printed().find("KOVA_A_MsgErro"), std::string::npos) << Printed();
}

TEST_P(ADay, ShowsOnlyTheChosenStatus)
{
    ASSERT_EQ(Run("show frmLista.kvnbBarraDeNavegacao.RecordCount\n"
                  "choose frmLista.kvcmbSituacao \"Cancelado\"\n"
                  "show frmLista.kvnbBarraDeNavegacao.RecordCount\n"
                  "show frmLista.msfgGrade.TextMatrix(1,33)\nshow frmLista.msfgGrade.CellPicture(1,34)\n"),
              0)
        << Printed();
    EXPECT_NE(Printed().find("frmLista.msfgGrade.TextMatrix(1,33) = \"3\""), std::string::npos) << Printed();
    EXPECT_NE(Printed().find("CellPicture(1,34) = \"etiqueta_cancelado\""), std::string::npos);
    const int cancelled = NumberAt("frmLista.kvnbBarraDeNavegacao.RecordCount");
    EXPECT_GT(cancelled, 0);
    EXPECT_LT(cancelled, 20);
}

TEST_P(ADay, FindsATextAndComesBack)
{
    ASSERT_EQ(Run("show frmLista.kvnbBarraDeNavegacao.RecordCount\n"
                  "type frmLista.kvfndPesquisar \"ZZZ NINGUÉM\"\npress frmLista.kvfndPesquisar\n"
                  "show frmLista.lblMensagemDeResultado.Visible\npress frmLista.kvfndPesquisar\n"
                  "show frmLista.msfgGrade.Visible\n"),
              0)
        << Printed();
    EXPECT_NE(Printed().find("lblMensagemDeResultado.Visible = True"), std::string::npos) << Printed();
    EXPECT_NE(Printed().find("msfgGrade.Visible = True"), std::string::npos);
}

TEST_P(ADay, ShowsTheHoveredAppointmentInThePanel)
{
    ASSERT_EQ(Run("hover frmLista.msfgGrade 3\nshow frmLista.msfgGrade.TextMatrix(3,13)\n"
                  "show frmLista.lblNomeDoAnimal.Caption\nshow frmLista.lblIncluidoOuAlteradoPor.Caption\n"),
              0)
        << Printed();
    std::smatch animal;
    ASSERT_TRUE(std::regex_search(Printed(), animal, std::regex(R"(TextMatrix\(3,13\) = (".+"))")));
    EXPECT_NE(Printed().find("lblNomeDoAnimal.Caption = " + animal[1].str()), std::string::npos);
    EXPECT_TRUE(
        std::regex_search(Printed(), std::regex(R"(lblIncluidoOuAlteradoPor.Caption = ".+ às \d\d:\d\d")")))
        << Printed();
}

TEST_P(ADay, GoesToTheNextDay)
{
    ASSERT_EQ(Run("click frmLista.kvcmdIrParaDiaPosterior\nshow frmLista.msfgGrade.TextMatrix(1,2)\n"), 0)
        << Printed();
    EXPECT_NE(Printed().find("TextMatrix(1,2) = \"21/11/2026\""), std::string::npos) << Printed();
}

} // namespace
