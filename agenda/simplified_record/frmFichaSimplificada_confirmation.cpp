// The two buttons: the appointment goes to the business tier, or the user backs out.

#include "agenda/contracts/text.hpp"
#include "agenda/records/record_result.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/simplified_record/frmFichaSimplificada.hpp"

namespace kova::agenda {

namespace {

constexpr Long AgendamentoSimplificado = 1;
/// Characters that the register of appointments keeps of a species and of a breed.
constexpr std::size_t LarguraDaEspecieEDaRaca = 50;

} // namespace

void frmFichaSimplificada::kvcmdSalvarFecharConfirmar_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvcmdSalvarFecharConfirmar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (Estado.TipoDeOperacao == operacao::Detalhar) {
            Estado.OperacaoConcluida = true;
            Formulario->Hide();
            return;
        }

        Ponto = 2;
        ComponentRef objAgenda = CreateObject("KOVA_N_Agenda.clsAgenda");

        Ponto = 3;
        EscreverAgendamento(*objAgenda);

        Ponto = 4;
        const Integer resultado = Gravar(*objAgenda, Estado.TipoDeOperacao).ToInteger();

        Ponto = 5;
        if (resultado == resultado_da_gravacao::CampoRecusado) {
            InformarCampoRecusado(*objAgenda);
            Estado.OperacaoConcluida = false;
            return;
        }
        InformarFalhaOuRecusa(*objAgenda, resultado);
        if (resultado == resultado_da_gravacao::Concluida)
            Estado.OperacaoConcluida = true;
        else if (resultado == resultado_da_gravacao::FalhaTecnica
                 || resultado == resultado_da_gravacao::Recusada)
            Estado.OperacaoConcluida = false;

        Ponto = 6;
        objAgenda.reset();
        Formulario->Hide();
    });
}

void frmFichaSimplificada::EscreverAgendamento(Component& agenda)
{
    const bool inclui = Estado.TipoDeOperacao == operacao::Adicionar;
    if (!inclui)
        agenda.Set("NumeroDeLancamento", Estado.NumeroDeLancamento);
    agenda.Set("Situacao",
               inclui ? Long{situacao::Agendado} : kvcmbSituacao.ItemData(kvcmbSituacao.ListIndex()));
    agenda.Set("CodigoDoFuncionario", ItemDataOuZero(kvcmbFuncionarios));
    agenda.Set("DataInicial", kvdtpDataInicial.Text());
    agenda.Set("HoraInicial", kvtimHoraInicial.Text());
    agenda.Set("DataFinal", kvdtpDataFinal.Text());
    agenda.Set("HoraFinal", kvtimHoraFinal.Text());
    agenda.Set("CodigoDoServico", Val(kvfCodigoDoServico.Text()));
    agenda.Set("NomeOuRazaoSocialDoCliente", Trim(kvtxtNomeOuRazaoSocialDoCliente.Text()));
    agenda.Set("CanaisdeComunicacaoDoCliente", Trim(kvtxtCanaisDeComunicacaoDoCliente.Text()));
    agenda.Set("NomeDoAnimal", Trim(kvtxtNomeDoAnimal.Text()));
    agenda.Set("SexoDoAnimal", SexoParaGravar());
    agenda.Set("EspecieDoAnimal", Left(Trim(kvcmbEspeciesDeAnimais.Text()), LarguraDaEspecieEDaRaca));
    agenda.Set("RacaDoAnimal", Left(Trim(kvcmbRacasDeAnimais.Text()), LarguraDaEspecieEDaRaca));
    agenda.Set("CorDoAnimal", Trim(kvtxtCorDoAnimal.Text()));
    agenda.Set("NumeroDoTipoDeServico", ItemDataOuZero(kvcmbTiposDeServicos));
    agenda.Set("Observacao", Trim(kvtxtObservacaoDoServico.Text()));
    agenda.Set("TipoDoAgendamento", AgendamentoSimplificado);
    agenda.Set("DadosDoUsuario", Principal.DadosDoUsuario);
}

Text frmFichaSimplificada::SexoParaGravar() const
{
    const Integer linha = kvcmbSexoDoAnimal.ListIndex();
    if (linha == -1)
        return {};
    return kvcmbSexoDoAnimal.ItemData(linha) == 0 ? "F" : "M";
}

void frmFichaSimplificada::InformarCampoRecusado(Component& agenda)
{
    MarcarCampoRecusado(
        agenda, *Formulario,
        {
            {"NomeOuRazaoSocialDoCliente", lblNomeOuRazaoSocialDoCliente, kvtxtNomeOuRazaoSocialDoCliente},
            {"NomeDoAnimal", lblNomeDoAnimal, kvtxtNomeDoAnimal},
            {"NumeroDoTipoDeServico", lblTipoDoServico, kvcmbTiposDeServicos},
            {"CodigoDoServico", lblNomeDoServico, kvfNomeDoServico},
            {"DataInicial", lblDataHoraInicial, kvdtpDataInicial},
            {"HoraInicial", lblDataHoraInicial, kvtimHoraInicial},
            {"DataFinal", lblDataHoraFinal, kvdtpDataFinal},
            {"HoraFinal", lblDataHoraFinal, kvtimHoraFinal},
            {"CodigoDoFuncionario", lblNomeDoFuncionario, kvcmbFuncionarios},
            {"Situacao", lblSituacao, kvcmbSituacao},
        });
    ExibirInformacao(agenda.Get("DescricaoDaFalha").ToText());
}

void frmFichaSimplificada::kvcmdCancelarAlterar_Click()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: the full record's.
    Trap(", frmFichaCompleta, kvcmdCancelarAlterar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        RestaurarCorDosRotulos(*Formulario);

        Ponto = 2;
        if (Estado.TipoDeOperacao != operacao::Detalhar) {
            Estado.OperacaoConcluida = false;
            Formulario->Hide();
            return;
        }

        // The detail view becomes an alteration under its own modal show.
        Ponto = 3;
        Estado.NaoAplicarFundoEscuro = true;
        Estado.NaoExibirFormulario = true;
        Estado.NaoRemoverFundoEscuro = true;
        MontarExibirFormulario(operacao::Alterar);
    });
}

} // namespace kova::agenda
