// The list on paper: its selection, its binding and its preview.

#include "agenda/contracts/text.hpp"
#include "agenda/printing/frmImprimirAgenda.hpp"
#include "agenda/printing/layouts.hpp"
#include "agenda/printing/printed_report.hpp"
#include "agenda/shared/frmMensagem.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace kova::agenda {

namespace {

constexpr Twips LarguraDoRelatorio = 10145;

// The employee's box shows the short name, although it is called by the other.
constexpr Vinculo VinculosDaLista[] = {
    {"txtHoraInicial", "HoraInicial"},
    {"txtHoraFinal", "HoraFinal"},
    {"txtApelidoOuNomeFantasiaDoCliente", "ApelidoOuNomeFantasiaDoCliente"},
    {"txtNomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente"},
    {"txtNomeDoFuncionario", "ApelidoDoFuncionario"},
    {"txtComunicacao", "TiposECanaisDeComunicacao"},
    {"txtNomeDoAnimal", "NomeDoAnimal"},
    {"txtEspecieDoAnimal", "NomeDaEspecie"},
    {"txtTipoDeServico", "NomeDoTipoDeServico"},
    {"txtNomeDoServico", "NomeDoServico"},
    {"txtObservacaoDoAgendamento", "Observacao"},
};

constexpr Vinculo VinculosDaListaParaTransporte[] = {
    {"txtHoraInicial", "HoraInicial"},
    {"txtHoraFinal", "HoraFinal"},
    {"txtCodigoDoCliente", "CodigoDoCliente"},
    {"txtApelidoOuNomeFantasiaDoCliente", "ApelidoOuNomeFantasiaDoCliente"},
    {"txtNomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente"},
    {"txtEnderecoDoCliente", "EnderecoCompletoComCEP"},
    {"txtComunicacao", "TiposECanaisDeComunicacao"},
    {"txtCodigoDoAnimal", "CodigoDoAnimal"},
    {"txtNomeDoAnimal", "NomeDoAnimal"},
    {"txtRacaDoAnimal", "NomeDaRaca"},
    {"txtEspecieDoAnimal", "NomeDaEspecie"},
    {"txtTipoDeServico", "NomeDoTipoDeServico"},
    {"txtNomeDoServico", "NomeDoServico"},
    {"txtObservacaoDoAgendamento", "Observacao"},
};

struct ListaImpressa {
    ReportRef& instancia;
    const ReportDesign& desenho;
    const char* titulo;
    std::span<const Vinculo> vinculos;
};

/// None where no list has that number.
std::optional<ListaImpressa> ListaDoTipo(Integer tipo)
{
    switch (tipo) {
    case tipo_da_lista::Agendamentos:
        return ListaImpressa{Principal.drListaDeAgendamentos, DesenhoDedrListaDeAgendamentos(),
                             "Agendamentos", VinculosDaLista};
    case tipo_da_lista::Transporte:
        return ListaImpressa{Principal.drListaDeAgendamentosParaTransporte,
                             DesenhoDedrListaDeAgendamentosParaTransporte(),
                             "Agendamentos (lista para transportes)", VinculosDaListaParaTransporte};
    default: return std::nullopt;
    }
}

Long Escolhido(const KVComboBox& combo) { return combo.ItemData(combo.ListIndex()); }

} // namespace

Integer frmImprimirAgenda::ImprimirLista()
{
    Integer Ponto = 0;
    return Trap(", frmImprimirAgenda, ImprimirLista, Ponto: ", Ponto, [&]() -> Integer {
        Ponto = 1;
        Formulario->Hide();

        Ponto = 2;
        const std::shared_ptr<frmMensagem> mensagem = frmMensagem::Criar();
        mensagem->lblMensagem.Caption("Aguarde, reorganizando dados.");
        mensagem->MontarExibirFormulario();
        const auto fecharMensagem = [&] { mensagem->Formulario->Unload(); };

        Ponto = 3;
        RecordSetRef empresa = SelecionarEmpresa(fecharMensagem);
        if (!empresa)
            return 1;

        // The day of the list, whatever of it is on the screen; its search box plays no part.
        Ponto = 4;
        ComponentRef objAgenda = CreateObject("KOVA_N_Agenda.clsAgenda");
        const Value status = objAgenda->Call("Selecionar",
                                             {Long{2}, Integer{0}, Escolhido(kvcmbSituacao), Text(),
                                              ByRef(Principal.DataDaAgenda), Escolhido(kvcmbTiposDeServicos),
                                              Escolhido(kvcmbFuncionarios), Escolhido(kvcmbTransporte)});
        Ponto = 5;
        fecharMensagem();
        if (status.ToInteger() != 0) {
            empresa.reset();
            MensagemDeErroDoObjeto(*objAgenda);
            objAgenda.reset();
            Formulario->Hide();
            return 1;
        }

        Ponto = 6;
        const auto agendamentos = objAgenda->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        agendamentos->Sort("DataInicial, HoraInicial ASC");
        if (agendamentos->RecordCount() == 0) {
            ExibirInformacao("Nenhum agendamento encontrado com as específicações informadas.");
            return 0;
        }
        ImprimirAgendamentos(agendamentos, *empresa, Ponto);
        return 0;
    });
}

void frmImprimirAgenda::ImprimirAgendamentos(const RecordSetRef& agendamentos, const RecordSet& empresa,
                                             Integer& Ponto)
{
    Ponto = 7;
    const auto lista = ListaDoTipo(TipoDaLista);
    if (!lista)
        return;
    const ReportRef relatorio = InstanciaDoRelatorio(lista->instancia, lista->desenho);

    Ponto = 8;
    relatorio->DataSource(agendamentos);
    relatorio->DataMember("");

    Ponto = 9;
    ReportSection& cabecalho = relatorio->Section(secoes::Cabecalho);
    cabecalho.Label("lblNomeFantasiaDaEmpresa").Caption(empresa.Field("NomeFantasia").ToText());
    cabecalho.Label("lblTitulo").Caption(lista->titulo);
    cabecalho.Label("lblSubtitulo").Caption(Subtitulo());

    Ponto = 10;
    Vincular(*relatorio, lista->vinculos);

    Ponto = 11;
    EscreverNomeDoAplicativo(*relatorio);

    Ponto = 12;
    relatorio->Caption("Imprimir agendamentos");
    relatorio->WindowState(ReportWindowState::Maximized);
    relatorio->Width(LarguraDoRelatorio);
    DarMargens(*relatorio);
    relatorio->Orientation(ReportOrientation::Landscape);
    VisualizarRelatorio(*relatorio);
}

Text frmImprimirAgenda::Subtitulo() const
{
    const std::array<const KVComboBox*, 4> filtros{&kvcmbSituacao, &kvcmbTiposDeServicos, &kvcmbFuncionarios,
                                                   &kvcmbTransporte};
    if (std::all_of(filtros.begin(), filtros.end(),
                    [](const KVComboBox* combo) { return Escolhido(*combo) == 0; }))
        return "Lista completa";
    return "Lista filtrada por situação: " + LowerCase(kvcmbSituacao.Text()) + ", tipo de serviço: "
        + LowerCase(kvcmbTiposDeServicos.Text()) + ", funcionário(a): " + LowerCase(kvcmbFuncionarios.Text())
        + " e transporte: " + LowerCase(kvcmbTransporte.Text());
}

} // namespace kova::agenda
