// What a script sees is the same on the toolkit without a screen and on the real one.

#include "tests/unit/tools/scenario/runner_process.hpp"

#include <algorithm>
#include <vector>

namespace kova::scenario {

namespace {

class BothScreens : public RunnerTest {
protected:
    /// The transcript, which must be the same on both.
    std::string Play(const std::string& script, int status = 0)
    {
        const Result without = Run(day + script, "--widgets");
        const Result with = Run(day + script, "--widgets --toolkit qt");
        EXPECT_EQ(without.status, status) << without.text;
        EXPECT_EQ(with.status, status) << with.text;
        const auto differs =
            std::mismatch(with.text.begin(), with.text.end(), without.text.begin(), without.text.end());
        EXPECT_TRUE(with.text == without.text)
            << "from: " << std::string(differs.first, with.text.end()).substr(0, 200);
        return with.text;
    }

    static void ExpectLines(const std::string& text, const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
            EXPECT_NE(text.find(line + "\n"), std::string::npos)
                << line << " is missing before\n"
                << text.substr(text.size() - std::min<std::size_t>(text.size(), 2000));
    }

    const std::string day = shop
        + "records dia NumeroDeLancamento DataInicial HoraInicial DataFinal HoraFinal CodigoDoCliente "
          "ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente TipoDeCliente EnderecoCompletoComCEP "
          "TiposECanaisDeComunicacao CodigoDoAnimal NomeDoAnimal SexoDoAnimal CodigoDaEspecie NomeDaEspecie "
          "CodigoDaRaca NomeDaRaca PorteDoAnimal CorDoAnimal ObservacaoDoAnimal NumeroDoTipoDeServico "
          "NomeDoTipoDeServico CodigoDoServico NomeDoServico TempoDeExecucao CodigoDoFuncionario "
          "ApelidoDoFuncionario NomeDoFuncionario Observacao TransporteBuscar TransporteLevar Situacao "
          "DataEHoraDaInclusao UsuarioDaInclusao DataEHoraDaAlteracao UsuarioDaAlteracao\n"
        + Row("1.0", "08:00") + Row("2.0", "09:00") + Row("3.0", "10:00")
        + "end\nalways KOVA_N_Agenda.clsAgenda.Selecionar 0 records dia\n";

private:
    static std::string Row(const std::string& number, const std::string& hour)
    {
        return number + ", \"20/11/2026\", \"" + hour
            + "\", \"20/11/2026\", \"11:00\", 12.0, \"Zé\", \"José\", \"PF\", \"Rua A\", \"Celular\", 3, "
              "\"Rex\", \"Macho\", 1, \"Cão\", 2, \"Poodle\", \"Pequeno\", \"Branco\", null, 1, "
              "\"Consulta\", "
              "8.0, \"Banho\", \"01:00\", 7, \"Ana\", \"Ana Souza\", null, \"Sim\", \"Não\", 1, "
              "\"19/11/2026 17:45:10\", \"Maria\", null, null\n";
    }
};

TEST_F(BothScreens, RefuseWhatTheUserCannotDo)
{
    ExpectLines(
        Play("open\nclick frmLista.kvcmdExcluir\nclick frmLista.kvcmdNada\nclick frmLista.msfgGrade\n"
             "reply ok\nmenu none\npages\nchoose frmLista.kvcmbSituacao 9\n"
             "choose frmLista.kvcmbSituacao \"Nada\"\ntype frmLista.kvcmbSituacao \"x\"\n"
             "bar frmLista.kvnbBarraDeNavegacao 1\nhover frmLista.msfgGrade 9\nclose frmFichaCompleta\n"
             "click frmLista.kvcmdAdicionar\nmenu mnuNada\nclick frmLista.kvcmdAdicionar\n"
             "menu mnuAdicionarAgendamentoCompleto\nclick frmLista.kvcmdAdicionar\nclose frmLista\n"
             "rest frmLista.msfgGrade 1\nclick frmFichaCompleta.kvcmdCancelarAlterar"),
        {"refused: frmLista.kvcmdExcluir is not visible", "refused: frmLista.kvcmdNada does not exist",
         "refused: frmLista.msfgGrade is a MSFlexGrid", "refused: no message box is open",
         "refused: no menu is open", "refused: no report preview is open",
         "refused: frmLista.kvcmbSituacao has no row 9",
         "refused: frmLista.kvcmbSituacao has no row \"Nada\"",
         "refused: frmLista.kvcmbSituacao is a KVComboBox",
         "refused: frmLista.kvnbBarraDeNavegacao does not offer button 1",
         "refused: frmLista.msfgGrade has no row 9", "refused: frmFichaCompleta does not exist",
         "refused: mnuNada is not in the menu", "refused: frmLista is under a modal form"});
}

TEST_F(BothScreens, EndWhereTheScriptEndsInsideAForm)
{
    ExpectLines(
        Play("open\nclick frmLista.kvcmdAdicionar\nmenu mnuAdicionarAgendamentoCompleto\nnote \"dentro\""),
        {"dentro", "end inside frmFichaCompleta", "unload frmFichaCompleta"});
}

TEST_F(BothScreens, EndWithTwoWhereTheScriptIsWrongInsideAForm)
{
    ExpectLines(Play("open\nclick frmLista.kvcmdAdicionar\nmenu mnuAdicionarAgendamentoCompleto\nvoar", 2),
                {"show frmFichaCompleta modal", "linha 18: comando desconhecido: 'voar'"});
}

TEST_F(BothScreens, TakeKeysWhereTheFocusIs)
{
    ExpectLines(Play("open\nclick frmLista.kvcmdAdicionar\nmenu mnuAdicionarAgendamentoCompleto\n"
                     "focus frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente\nkey \"a\"\nkey \"É\"\nkey b\n"
                     "key Backspace\nkey Home\nkey \"x\"\n"
                     "show frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente.Text\n"
                     "focus frmFichaCompleta.kvfEnderecoDoCliente\n"
                     "focus frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente\nkey Delete\nkey \"z\"\n"
                     "show frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente.Text\n"
                     "focus frmFichaCompleta.kvtxtObservacaoDoServico\nkey \"Shift+Tab\"\nkey \"Tab\"\n"
                     "key \"b\"\nkey \"Ctrl+A\"\nkey \"c\"\n"
                     "show frmFichaCompleta.kvtxtObservacaoDoServico.Text\nkey \"F24\"",
                     2),
                {"frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente.Text = \"xaÉ\"",
                 "frmFichaCompleta.kvfNomeOuRazaoSocialDoCliente.Text = \"z\"",
                 "frmFichaCompleta.kvtxtObservacaoDoServico.Text = \"c\"",
                 "linha 38: 'F24' não é uma tecla"});
}

TEST_F(BothScreens, ReachButtonsByTheirKeys)
{
    ExpectLines(Play("open\nfocus frmLista.kvfndPesquisar\nkey \"Tab\"\nkey \"F1\"\n"
                     "show frmLista.Visible"),
                {"help frmLista", "frmLista.Visible = True"});
}

TEST_F(BothScreens, KnowWhereTheMouseRests)
{
    ExpectLines(Play("open\nrest frmLista.msfgGrade 2\nshow frmLista.kvcmdAlterar.Visible\n"
                     "show frmLista.msfgGrade.Row\nhover frmLista.msfgGrade 1\nshow frmLista.msfgGrade.Row\n"
                     "hover frmLista.msfgGrade 100 1900\nshow frmLista.msfgGrade.Row"),
                {"frmLista.kvcmdAlterar.Visible = True", "frmLista.msfgGrade.Row = 2",
                 "frmLista.msfgGrade.Row = 1", "frmLista.msfgGrade.Row = 3"});
}

TEST_F(BothScreens, ClickARow)
{
    ExpectLines(
        Play("open\nselect frmLista.msfgGrade 3\nshow frmLista.msfgGrade.Row\nselect frmLista.msfgGrade 0\n"
             "show frmLista.msfgGrade.Row"),
        {"frmLista.msfgGrade.Row = 3"});
}

TEST_F(BothScreens, FollowTheContainersSize)
{
    ExpectLines(Play("container 28807 5423\nopen\nshow frmLista.ScaleHeight\nresize 20003 9001\n"
                     "show frmLista.ScaleWidth\nclose frmLista"),
                {"frmLista.ScaleHeight = 5423", "frmLista.ScaleWidth = 20003", "unload frmLista"});
}

TEST_F(BothScreens, AreTheOnlyOnes)
{
    const Result result = Run(day + "open", "--toolkit voar");
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.text.find("'voar'"), std::string::npos) << result.text;
}

} // namespace

} // namespace kova::scenario
