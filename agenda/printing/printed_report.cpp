#include "agenda/printing/printed_report.hpp"

#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

namespace {

constexpr Twips Margem = 850;

void AvisarQueNaoHaEmpresa()
{
    ExibirInformacao(
        Text("Não foi possível imprimir o documento porque não há empresa cadastrada.") + QuebraDeLinha
        + "Selecione a guia (aba) 'Cadastros' e em seguida, clique na opções 'Empresa'. Efetue o cadastro e "
          "solicite a impressão novamente");
}

} // namespace

RecordSetRef SelecionarEmpresa(const std::function<void()>& antesDeAvisar)
{
    const ComponentRef objEmpresa = CreateObject("KOVA_N_Empresa.clsEmpresa");
    if (objEmpresa->Call("SelecionarNova", {Long{2}, Integer{0}, Long{1}, Text()}).ToInteger() != 0) {
        antesDeAvisar();
        MensagemDeErroDoObjeto(*objEmpresa);
        return nullptr;
    }
    auto registros = objEmpresa->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
    if (registros->RecordCount() == 0) {
        antesDeAvisar();
        AvisarQueNaoHaEmpresa();
        return nullptr;
    }
    return registros;
}

ReportRef InstanciaDoRelatorio(ReportRef& instancia, const ReportDesign& desenho)
{
    if (!instancia)
        instancia = ThePlatform().Toolkit().CreateReport(desenho);
    return instancia;
}

void Vincular(Report& relatorio, std::span<const Vinculo> vinculos)
{
    ReportSection& detalhes = relatorio.Section(secoes::Detalhes);
    for (const auto& [caixa, campo] : vinculos)
        detalhes.TextBox(caixa).DataField(campo);
}

void EscreverNomeDoAplicativo(Report& relatorio)
{
    relatorio.Section(secoes::Rodape).Label("lblTituloDoAplicativo").Caption(Principal.NomeDaAplicacao);
}

void DarMargens(Report& relatorio)
{
    relatorio.LeftMargin(Margem);
    relatorio.TopMargin(Margem);
    relatorio.RightMargin(Margem);
    relatorio.BottomMargin(Margem);
}

void VisualizarRelatorio(Report& relatorio)
{
    relatorio.Refresh();
    relatorio.ShowModal();
}

} // namespace kova::agenda
