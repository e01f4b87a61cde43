// The two buttons: saving, and leaving or turning the detail view into an alteration.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/records/record_result.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

constexpr Integer ReagendarSim = 0;
constexpr Integer ReagendarPorSelecionarDatas = 3;
/// This form's value of TipoDoAgendamento; the simplified form has its own.
constexpr Long RegistroCompleto = 0;

constexpr const char* CampoDomingoOuFeriado = "DomingoOuFeriado";
constexpr const char* PertenceAUmPacote = "Este agendamento pertence a um pacote de banho e tosa.";

Long LinhaEscolhida(const KVComboBox& combo) { return combo.ItemData(combo.ListIndex()); }

/// A new appointment is always booked: its combo is hidden and has no selection.
Long SituacaoDaFicha(const frmFichaCompleta& ficha)
{
    return ficha.Estado.TipoDeOperacao == operacao::Adicionar ? situacao::Agendado
                                                              : LinhaEscolhida(ficha.kvcmbSituacao);
}

Long Reagendamentos(const frmFichaCompleta& ficha, bool datasSelecionadas)
{
    if (!datasSelecionadas)
        return ficha.kvcmbReagendar.ListIndex() == ReagendarSim
            ? RoundToLong(Val(ficha.kvnumNumeroDeSemanas.Text()))
            : 0;
    if (!ficha.ListaDasDatasEHorasSelecionadas)
        throw Failure(FailureNumber::IndexOutOfRange);
    // The list's last element is empty, and the first one is the appointment itself.
    return ficha.ListaDasDatasEHorasSelecionadas->UpperBound(2) - 1;
}

void EnviarRepeticao(const frmFichaCompleta& ficha, Component& agenda)
{
    const Integer frequencia = ficha.kvcmbReagendarPor.ListIndex();
    const bool datasSelecionadas = frequencia == ReagendarPorSelecionarDatas;
    agenda.Set("CriadaListaDasDatasEHorasSelecionadas", datasSelecionadas);
    agenda.Set("QuantidadeDeReagendamentos", Reagendamentos(ficha, datasSelecionadas));
    if (datasSelecionadas)
        agenda.Set("ListaDasDatasEHorasSelecionadas", ficha.ListaDasDatasEHorasSelecionadas);
    agenda.Set("FrequenciaDeReagendamento", frequencia);
}

/// The members of the business object in their fixed order.
void EnviarFicha(const frmFichaCompleta& ficha, Component& agenda)
{
    if (ficha.Estado.TipoDeOperacao != operacao::Adicionar)
        agenda.Set("NumeroDeLancamento", ficha.Estado.NumeroDeLancamento);
    agenda.Set("Situacao", SituacaoDaFicha(ficha));
    agenda.Set("CodigoDoFuncionario", ItemDataOuZero(ficha.kvcmbFuncionarios));
    agenda.Set("DataInicial", ficha.kvdtpDataInicial.Text());
    agenda.Set("HoraInicial", ficha.kvtimHoraInicial.Text());
    agenda.Set("DataFinal", ficha.kvdtpDataFinal.Text());
    agenda.Set("HoraFinal", ficha.kvtimHoraFinal.Text());
    agenda.Set("CodigoDoServico", Val(ficha.kvfCodigoDoServico.Text()));
    agenda.Set("CodigoDoCliente", Val(ficha.kvfCodigoDoCliente.Text()));
    agenda.Set("CodigoDoAnimal", ItemDataOuZero(ficha.kvcmbAnimal));
    agenda.Set("NumeroDoTipoDeServico", ItemDataOuZero(ficha.kvcmbTiposDeServicos));
    agenda.Set("Observacao", Trim(ficha.kvtxtObservacaoDoServico.Text()));
    agenda.Set("TransporteBuscar", LinhaEscolhida(ficha.kvcmbBuscar));
    agenda.Set("TransporteLevar", LinhaEscolhida(ficha.kvcmbLevar));
    EnviarRepeticao(ficha, agenda);
    agenda.Set("TipoDoAgendamento", RegistroCompleto);
    agenda.Set("DadosValidados", false);
    agenda.Set("DomingoOuFeriado", ficha.DomingoOuFeriado);
    agenda.Set("DadosDoUsuario", Principal.DadosDoUsuario);
}

bool PertenceAPacote(Component& agenda)
{
    return agenda.Get("RegistroPercenteAUmPacoteDeBanhoETosa").ToBoolean();
}

bool PerguntarPeloPacote(const Text& pergunta)
{
    return Perguntar(Text(PertenceAUmPacote) + QuebraDeLinha + QuebraDeLinha + pergunta);
}

void AlterarPacote(Component& agenda, std::vector<Argument> situacao)
{
    if (agenda.Call("AlterarSituacaoDoAgendamentoNoPacoteDeBanhoETosa", std::move(situacao)).ToInteger() != 0)
        ExibirInformacao(Text("Não foi possível alterar a situação dos demais agendamentos deste pacote.")
                         + QuebraDeLinha + QuebraDeLinha + "Tente novamente mais tarde.");
}

/// After a write that was done at once.
void OferecerSituacaoAoPacote(const frmFichaCompleta& ficha, Component& agenda)
{
    if (!PertenceAPacote(agenda))
        return;
    const Long situacaoDaFicha = SituacaoDaFicha(ficha);
    const Text palavra = situacaoDaFicha == situacao::Agendado ? "'AGENDADO'" : "'CANCELADO'";
    if (PerguntarPeloPacote("Deseja alterar a situação para " + palavra
                            + " de TODOS os agendamentos deste pacote que não foram atendidos?"))
        AlterarPacote(agenda, {situacaoDaFicha});
}

/// After a write that the user confirmed for a Sunday or holiday. It differs on purpose from the offer after
/// a write that was done at once: on altering only, in other words, and without an argument, which always
/// cancels.
void OferecerCancelamentoDoPacote(const frmFichaCompleta& ficha, Component& agenda)
{
    if (ficha.Estado.TipoDeOperacao != operacao::Alterar || !PertenceAPacote(agenda))
        return;
    if (PerguntarPeloPacote("Deseja cancelar TODOS os agendamentos deste pacote que não foram atendidos?"))
        AlterarPacote(agenda, {});
}

} // namespace

void frmFichaCompleta::kvcmdSalvarFecharConfirmar_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvcmdSalvarFecharConfirmar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (Estado.TipoDeOperacao == operacao::Detalhar)
            Estado.OperacaoConcluida = true;
        else if (!GravarAgendamento(Ponto))
            return;

        Ponto = 7;
        Formulario->Hide();
    });
}

bool frmFichaCompleta::GravarAgendamento(Integer& Ponto)
{
    Ponto = 2;
    const ComponentRef objAgenda = CreateObject("KOVA_N_Agenda.clsAgenda");
    EnviarFicha(*this, *objAgenda);

    Ponto = 3;
    const Integer resultado = Gravar(*objAgenda, Estado.TipoDeOperacao).ToInteger();

    Ponto = 4;
    switch (resultado) {
    case resultado_da_gravacao::Concluida:
        OferecerSituacaoAoPacote(*this, *objAgenda);
        Estado.OperacaoConcluida = true;
        return true;
    case resultado_da_gravacao::CampoRecusado:
        Ponto = 5;
        if (TratarCampoRecusado(*objAgenda) != CampoDomingoOuFeriado)
            return false;
        Ponto = 6;
        return GravarEmDomingoOuFeriado(*objAgenda);
    case resultado_da_gravacao::FalhaTecnica:
    case resultado_da_gravacao::Recusada:
        InformarFalhaOuRecusa(*objAgenda, resultado);
        Estado.OperacaoConcluida = false;
        return true;
    default: return true;
    }
}

Text frmFichaCompleta::TratarCampoRecusado(Component& agenda)
{
    const Text nome = MarcarCampoRecusado(
        agenda, *Formulario,
        {
            {"CodigoDoCliente", lblApelidoOuNomeFantasiaDoCliente, kvfApelidoOuNomeFantasiaDoCliente},
            {"CodigoDoAnimal", lblNomeDoAnimal, kvcmbAnimal},
            {"NumeroDoTipoDeServico", lblTipoDoServico, kvcmbTiposDeServicos},
            {"CodigoDoServico", lblNomeDoServico, kvfNomeDoServico},
            {"DataInicial", lblDataHoraInicial, kvdtpDataInicial},
            {"HoraInicial", lblDataHoraInicial, kvtimHoraInicial},
            {"DataFinal", lblDataHoraFinal, kvdtpDataFinal},
            {"HoraFinal", lblDataHoraFinal, kvtimHoraFinal},
            {"CodigoDoFuncionario", lblNomeDoFuncionario, kvcmbFuncionarios},
            {"Situacao", lblSituacao, kvcmbSituacao},
        });
    if (nome != CampoDomingoOuFeriado) {
        ExibirInformacao(agenda.Get("DescricaoDaFalha").ToText());
        Estado.OperacaoConcluida = false;
    }
    return nome;
}

bool frmFichaCompleta::GravarEmDomingoOuFeriado(Component& agenda)
{
    const bool manterData = Perguntar(agenda.Get("DescricaoDaFalha").ToText() + " Confirma o agendamento?");
    if (!manterData && !Perguntar("Gostaria de reagendar para o próximo dia útil?")) {
        kvdtpDataInicial.SetFocus();
        return false;
    }
    agenda.Set("DadosValidados", true);
    // True has the business tier move the date.
    agenda.Set("DomingoOuFeriado", !manterData);

    // The record that is being deleted is not written again, and no second answer is looked at.
    if (Estado.TipoDeOperacao != operacao::Excluir)
        Gravar(agenda, Estado.TipoDeOperacao);
    OferecerCancelamentoDoPacote(*this, agenda);
    Estado.OperacaoConcluida = true;
    return true;
}

void frmFichaCompleta::kvcmdCancelarAlterar_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvcmdCancelarAlterar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        RestaurarCorDosRotulos(*Formulario);

        Ponto = 2;
        if (Estado.TipoDeOperacao == operacao::Detalhar) {
            // The form stays on the screen under its own modal show.
            Estado.NaoAplicarFundoEscuro = true;
            Estado.NaoRemoverFundoEscuro = true;
            Estado.NaoExibirFormulario = true;
            MontarExibirFormulario(operacao::Alterar);
            return;
        }
        Estado.OperacaoConcluida = false;
        Formulario->Hide();
    });
}

} // namespace kova::agenda
