// A record form over data that somebody else keeps locked: it says that nothing was written, and stays open
// with all that was typed.

#include "tests/database_scenarios/shop/known_shop.hpp"
#include "tests/support/postgres_server.hpp"

#include "family/data/engine/write_transaction.hpp"
#include "family/data/sources/data_source.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace kova::database_scenarios {

namespace {

namespace fs = std::filesystem;

constexpr const char* Script = R"(application "Kova"
user
clock 2026-11-24 10:15:00
open
hover frmLista.msfgGrade 2
click frmLista.kvcmdAlterar
type frmFichaCompleta.kvtxtObservacaoDoServico "Laço verde"
click frmFichaCompleta.kvcmdSalvarFecharConfirmar
reply ok
show frmFichaCompleta.Visible
show frmFichaCompleta.kvtxtObservacaoDoServico.Text
click frmFichaCompleta.kvcmdCancelarAlterar
hover frmLista.msfgGrade 4
click frmLista.kvcmdAlterar
type frmFichaSimplificada.kvtxtNomeDoAnimal "Tobias II"
click frmFichaSimplificada.kvcmdSalvarFecharConfirmar
reply ok
show frmFichaSimplificada.Visible
show frmFichaSimplificada.kvtxtNomeDoAnimal.Text
click frmFichaSimplificada.kvcmdCancelarAlterar
)";

/// Another desk in the middle of a write.
class BusyDesk {
public:
    explicit BusyDesk(const std::string& dataSource)
        : database_(family::OpenDatabase(dataSource)), writing_(*database_)
    {
        if (database_->GetDialect().IsServer())
            database_->Session() << "set idle_in_transaction_session_timeout = 0;"
                                    " lock table agendamento in exclusive mode";
    }

private:
    std::shared_ptr<family::Database> database_;
    family::WriteTransaction writing_;
};

class LockedData : public testing::Test {
protected:
    LockedData()
    {
        std::string pattern = (fs::temp_directory_path() / "travado-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        std::ofstream(folder_ / "roteiro.scenario") << Script;
    }
    ~LockedData() override { fs::remove_all(folder_); }

    /// The transcript on a shop that another desk keeps.
    std::string Printed(const std::string& dataSource) const
    {
        const BusyDesk other(dataSource);
        const std::string command = std::string("'") + RUNNER + "' --database '" + dataSource + "' '"
            + (folder_ / "roteiro.scenario").string() + "' 2>&1";
        std::string printed;
        FILE* run = popen(command.c_str(), "r");
        for (int character = fgetc(run); character != EOF; character = fgetc(run))
            printed += static_cast<char>(character);
        EXPECT_EQ(pclose(run), 0) << printed;
        return printed;
    }

    static void ExpectOpenForms(const std::string& printed, const std::string& told)
    {
        const auto count = [&](const std::string& part) {
            int found = 0;
            for (std::size_t at = printed.find(part); at != std::string::npos;
                 at = printed.find(part, at + 1))
                ++found;
            return found;
        };
        EXPECT_EQ(count("box information \"Kova\" \"Nada foi gravado.\\r\\n" + told + "\" -> ok"), 2)
            << printed;
        EXPECT_EQ(count("frmFichaCompleta.Visible = True"), 1) << printed;
        EXPECT_EQ(count("frmFichaCompleta.kvtxtObservacaoDoServico.Text = \"Laço verde\""), 1) << printed;
        EXPECT_EQ(count("frmFichaSimplificada.Visible = True"), 1) << printed;
        EXPECT_EQ(count("frmFichaSimplificada.kvtxtNomeDoAnimal.Text = \"Tobias II\""), 1) << printed;
        EXPECT_EQ(count("KOVA_A_MsgErro"), 0) << printed;
    }

    fs::path folder_;
};

TEST_F(LockedData, OfAFileLeaveTheRecordFormsOpenWithAllThatWasTyped)
{
    const std::string file = (folder_ / "loja.db").string();
    MakeKnownShop(file);
    ExpectOpenForms(Printed(file),
                    "O banco de dados está em uso por outro programa. Feche-o e tente novamente.");
}

TEST_F(LockedData, OfPostgresqlLeaveTheRecordFormsOpenWithAllThatWasTyped)
{
    test::PostgresServer& server = test::PostgresServer::Shared();
    const test::PostgresDatabase shop(server, server.Model("shop", MakeKnownShop));
    ExpectOpenForms(Printed(shop.Address()),
                    "Outro posto está gravando o mesmo registro. Aguarde um momento e tente novamente.");
}

} // namespace

} // namespace kova::database_scenarios
