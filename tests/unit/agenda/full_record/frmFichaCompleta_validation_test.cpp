// The check that runs before dates are picked.

#include "tests/unit/agenda/full_record/frmFichaCompleta_saving_fixture.hpp"

namespace kova::agenda {

namespace {

using Strings = std::vector<std::string>;

class CheckBeforeDates : public SavingTest {
protected:
    CheckBeforeDates() { Prepare(); }

    /// Takes something away, asks for the dates and looks at what comes of it.
    void Expect(const std::function<void()>& takeAway, const std::string& message, const std::string& focused)
    {
        Answers({Reply::Ok});
        EXPECT_FALSE(Run(operacao::Adicionar, [&] {
            takeAway();
            EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendar", "Sim"), "");
            toolkit.ClearLog();
            EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendarPor", "Selecionar datas"), "");
            EXPECT_EQ(Boxes(), (Strings{"box information \"Kova\" \"" + message + "\" -> ok"}));
            EXPECT_EQ(FocusedByCode(), (Strings{"focus frmFichaCompleta." + focused}));
            EXPECT_TRUE(Logged("show ").empty()) << "no dates are asked for";
            EXPECT_EQ(ficha->kvcmbReagendarPor.Text(), "Semana(s)");
            EXPECT_FALSE(ficha->Estado.IgnorarEventoDeCampo) << "the guard has swallowed the unit's click";
        }));
    }
};

TEST_F(CheckBeforeDates, WantsACustomer)
{
    Expect(
        [this] {
            ficha->kvfCodigoDoCliente.Text("");
            ficha->kvfApelidoOuNomeFantasiaDoCliente.Text("");
        },
        "Informe um cliente.", "kvfApelidoOuNomeFantasiaDoCliente");
    EXPECT_TRUE(ficha->optAgendarPorCliente.Value());
}

TEST_F(CheckBeforeDates, OffersTheCustomersOwnSearchBeforeItAsksForOne)
{
    bool offered = false;
    toolkit.OnLine([&](const std::string& line) {
        if (line.starts_with("box information"))
            offered = ficha->optAgendarPorCliente.Value() && ficha->kvfCodigoDoCliente.Enabled();
    });
    Expect(
        [this] {
            EXPECT_EQ(user.Click("frmFichaCompleta", "optAgendarPor", 2), "");
            EXPECT_FALSE(ficha->kvfCodigoDoCliente.Enabled());
        },
        "Informe um cliente.", "kvfApelidoOuNomeFantasiaDoCliente");
    EXPECT_TRUE(offered);
}

TEST_F(CheckBeforeDates, TakesBlanksForACustomer)
{
    Expect(
        [this] {
            ficha->kvfCodigoDoCliente.Text(" ");
            ficha->kvfApelidoOuNomeFantasiaDoCliente.Text("");
            ficha->kvcmbAnimal.Text("  ");
        },
        "Selecione um animal.", "kvcmbAnimal");
}

TEST_F(CheckBeforeDates, WantsAService)
{
    Expect(
        [this] {
            ficha->kvfCodigoDoServico.Text("  ");
            ficha->kvfNomeDoServico.Text(" ");
            ficha->kvcmbFuncionarios.ListIndex(-1);
        },
        "Informe um serviço.", "kvfNomeDoServico");
}

TEST_F(CheckBeforeDates, TakesAServiceByItsCodeAloneAndWantsAnEmployee)
{
    Expect(
        [this] {
            ficha->kvfNomeDoServico.Text("");
            ficha->kvcmbFuncionarios.ListIndex(-1);
        },
        "Selecione um funcionário/colaborador.", "kvcmbFuncionarios");
}

TEST_F(CheckBeforeDates, RunsAgainAtTheNextChoice)
{
    Answers({Reply::Ok, Reply::Ok});
    EXPECT_FALSE(Run(operacao::Adicionar, [&] {
        ficha->kvcmbAnimal.Text("");
        EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendar", "Sim"), "");
        EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendarPor", "Selecionar datas"), "");
        EXPECT_EQ(user.Choose("frmFichaCompleta", "kvcmbReagendarPor", "Selecionar datas"), "");
        EXPECT_EQ(Boxes().size(), 2U);
    }));
}

} // namespace

} // namespace kova::agenda
