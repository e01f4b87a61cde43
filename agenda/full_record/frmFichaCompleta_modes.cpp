// The four modes: title, stamps, what is enabled, the two buttons, and where things stand.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/full_record/frmFichaCompleta_design.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

void frmFichaCompleta::MontarModo()
{
    switch (Estado.TipoDeOperacao) {
    case operacao::Adicionar: return MontarAdicionar();
    case operacao::Detalhar: return MontarDetalhar();
    case operacao::Alterar: return MontarAlterar();
    case operacao::Excluir: return MontarExcluir();
    default: return;
    }
}

void frmFichaCompleta::MontarAdicionar()
{
    kvTheme.Caption("Adicionar agendamento completo");
    kvTheme.DataOfInclusion("");
    kvTheme.DataOfAlteration("");
    HabilitarCamposDeEdicao(*Formulario, true, CaixasDePesquisa::EsperamPesquisa);
    EscreverBotao(kvcmdSalvarFecharConfirmar, "Salvar", "Salvar inclusão e fechar");
    EscreverBotao(kvcmdCancelarAlterar, "Cancelar", "Cancelar inclusão e fechar");
}

void frmFichaCompleta::MontarDetalhar()
{
    kvTheme.Caption("Detalhar agendamento completo");
    PreencherCarimbos();
    HabilitarCamposDeEdicao(*Formulario, false, CaixasDePesquisa::Ficam);
    EscreverBotao(kvcmdSalvarFecharConfirmar, "Fechar", "Fechar detalhamento");
    EscreverBotao(kvcmdCancelarAlterar, "Alterar", "Alterar dados");
}

void frmFichaCompleta::MontarAlterar()
{
    kvTheme.Caption("Alterar agendamento completo");
    PreencherCarimbos();
    HabilitarCamposDeEdicao(*Formulario, true, CaixasDePesquisa::Ficam);
    if (UpperCase(CelulaSelecionadaDaLista(colunas::NomeDoTipoDeServico)) == "RETORNO")
        FixarCamposDoRetorno();

    // Only the form that came from the detail view is on show here.
    if (kvfApelidoOuNomeFantasiaDoCliente.Enabled() && Formulario->Visible())
        kvfApelidoOuNomeFantasiaDoCliente.SetFocus();
    else if (Formulario->Visible())
        kvdtpDataInicial.SetFocus();

    ReescreverBotao(kvcmdSalvarFecharConfirmar, "Salvar", "Salvar alteração e fechar");
    ReescreverBotao(kvcmdCancelarAlterar, "Cancelar", "Cancelar alteração e fechar");
}

void frmFichaCompleta::MontarExcluir()
{
    kvTheme.Caption("Excluir agendamento completo");
    PreencherCarimbos();
    HabilitarCamposDeEdicao(*Formulario, false, CaixasDePesquisa::Ficam);
    // The doubled word is part of the text.
    EscreverBotao(kvcmdSalvarFecharConfirmar, "Confirmar", "Confirmar exclusão e e fechar");
    EscreverBotao(kvcmdCancelarAlterar, "Cancelar", "Cancelar exclusão e fechar");
}

void frmFichaCompleta::PreencherCarimbos()
{
    kvTheme.DataOfInclusion(CarimboDeInclusao(Estado.NumeroDeLancamento,
                                              CelulaSelecionadaDaLista(colunas::DataEHoraDaInclusao),
                                              Estado.TipoDeOperacao));
    kvTheme.DataOfAlteration(CarimboDeAlteracao(CelulaSelecionadaDaLista(colunas::DataEHoraDaAlteracao)));
}

void frmFichaCompleta::FixarCamposDoRetorno()
{
    kvfApelidoOuNomeFantasiaDoCliente.Enabled(false);
    kvfNomeOuRazaoSocialDoCliente.Enabled(false);
    kvfCodigoDoCliente.Enabled(false);
    kvfEnderecoDoCliente.Enabled(false);
    kvcmbAnimal.Enabled(false);
    kvcmbTiposDeServicos.Enabled(false);
    kvfNomeDoServico.Enabled(false);
    kvfCodigoDoServico.Enabled(false);
}

void frmFichaCompleta::HabilitarDesabilitarCampos(bool Habilitar)
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, HabilitarDesabilitarCampos, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Widget* const campos[] = {&kvcmbAnimal,        &kvcmbTiposDeServicos,
                                  &kvfCodigoDoServico, &kvfNomeDoServico,
                                  &kvdtpDataInicial,   &kvtimHoraInicial,
                                  &kvdtpDataFinal,     &kvtimHoraFinal,
                                  &kvcmbFuncionarios,  &kvtxtObservacaoDoServico,
                                  &kvcmbReagendar,     &kvcmbBuscar,
                                  &kvcmbLevar,         &kvcmbSituacao};
        for (Widget* campo : campos)
            campo->Enabled(Habilitar);
    });
}

void frmFichaCompleta::RedimensionaEReposicionaCampos()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, RedimensionaEReposicionaCampos, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (Estado.TipoDeOperacao == operacao::Adicionar)
            PosicionarParaAdicionar();
        else
            PosicionarComSituacao();
    });
}

void frmFichaCompleta::PosicionarParaAdicionar()
{
    kvfNomeDoAnimal.Height(kvcmbAnimal.Height());
    kvfNomeDoAnimal.Width(kvcmbAnimal.Width());
    kvfNomeDoAnimal.Left(kvcmbAnimal.Left());
    kvfNomeDoAnimal.Top(kvcmbAnimal.Top());
    kvcmbReagendar.Width(LarguraDeReagendarSozinho);
    kvcmbReagendar.BringToFront();
    kvtxtObservacaoDoServico.Width(3000);
    lblSituacao.Visible(false);
    kvcmbSituacao.Visible(false);
    lblLevar.Top(lblSituacao.Top());
    lblLevar.Left(lblSituacao.Left());
    kvcmbLevar.Top(kvcmbSituacao.Top());
    kvcmbLevar.Left(kvcmbSituacao.Left());
}

void frmFichaCompleta::PosicionarComSituacao()
{
    kvcmbBuscar.Width(1095);
    lblLevar.Top(lblBuscar.Top());
    lblLevar.Left(8415);
    kvcmbLevar.Width(1080);
    kvcmbLevar.Top(kvcmbBuscar.Top());
    kvcmbLevar.Left(8415);
    kvtxtObservacaoDoServico.Width(6735);
    // The repetition has no meaning here: the note lies over it, and Tab passes it by.
    lblReagendar.Visible(false);
    kvtxtObservacaoDoServico.BringToFront();
    kvcmbReagendar.TabStop(false);
}

} // namespace kova::agenda
