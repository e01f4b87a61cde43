#include "agenda/simplified_record/frmFichaSimplificada.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/shared/wait_plate.hpp"
#include "agenda/simplified_record/frmFichaSimplificada_design.hpp"

namespace kova::agenda {

std::shared_ptr<frmFichaSimplificada> frmFichaSimplificada::Criar()
{
    std::shared_ptr<frmFichaSimplificada> ficha(new frmFichaSimplificada);
    ficha->Formulario->Owner(ficha);
    return ficha;
}

frmFichaSimplificada::frmFichaSimplificada()
    : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmFichaSimplificada()))
{
    LigarEventos();
}

void frmFichaSimplificada::LigarEventos()
{
    Formulario->OnLoad([this] { Form_Load(); });
    kvcmbEspeciesDeAnimais.OnClick([this] { kvcmbEspeciesDeAnimais_Click(); });
    kvcmbRacasDeAnimais.OnDropDown([this] { kvcmbRacasDeAnimais_DropDown(); });
    kvcmbTiposDeServicos.OnClick([this] { kvcmbTiposDeServicos_Click(); });
    kvfCodigoDoServico.OnClick([this] { kvfCodigoDoServico_Click(); });
    kvfNomeDoServico.OnClick([this] { kvfNomeDoServico_Click(); });
    kvfCodigoDoServico.OnKeyDown([this](Integer, Integer) { kvfCodigoDoServico_KeyDown(); });
    kvfNomeDoServico.OnKeyDown([this](Integer, Integer) { kvfNomeDoServico_KeyDown(); });
    kvtimHoraInicial.OnLostFocus([this] { kvtimHoraInicial_LostFocus(); });
    kvcmdSalvarFecharConfirmar.OnClick([this] { kvcmdSalvarFecharConfirmar_Click(); });
    kvcmdCancelarAlterar.OnClick([this] { kvcmdCancelarAlterar_Click(); });
}

void frmFichaSimplificada::Form_Load()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        AplicarBordaDoFormulario(*Formulario);
    });
}

void frmFichaSimplificada::CentralizarpicMensagem() { CentralizarPlacaDeEspera(*Formulario, picMensagem); }

void frmFichaSimplificada::ExibirOcultarpicMensagem(bool Exibir)
{
    ExibirOcultarPlacaDeEspera(*Formulario, picMensagem, Exibir);
}

void frmFichaSimplificada::MontarExibirFormulario(Integer Operacao)
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: the full record's.
    Trap(", frmFichaCompleta, MontarExibirFormulario, Ponto: ", Ponto, [&] {
        Ponto = 1;
        Estado.TipoDeOperacao = Operacao;
        Estado.IgnorarEventoDeCampo = true;
        if (kvcmbEspeciesDeAnimais.ListCount() == 0)
            PreencherComboboxEspeciesDeAnimais();
        if (kvcmbSexoDoAnimal.ListCount() == 0)
            PreencherkvcmbSexo();

        Ponto = 2;
        if (Operacao == operacao::Adicionar)
            PrepararInclusao();
        else
            PreencherComALinhaDaLista(Ponto);

        Ponto = 7;
        MontarOperacao();

        Ponto = 8;
        MontarCarimbos();

        Ponto = 9;
        ExibirFicha(*Formulario, Estado);
    });
}

void frmFichaSimplificada::PrepararInclusao()
{
    Estado.NumeroDeLancamento = 0;
    kvdtpDataInicial.Text(Principal.DataDaAgenda);
    // The guard swallows this Click: choosing the row has reset the service part already.
    if (kvcmbTiposDeServicos.ListIndex() == 0)
        kvcmbTiposDeServicos.ListIndex(0);
}

void frmFichaSimplificada::PreencherComALinhaDaLista(Integer& Ponto)
{
    Ponto = 3;
    Estado.NumeroDeLancamento = Val(CelulaSelecionadaDaLista(colunas::NumeroDeLancamento));
    kvtxtNomeOuRazaoSocialDoCliente.Text(CelulaSelecionadaDaLista(colunas::NomeOuRazaoSocialDoCliente));
    kvtxtCanaisDeComunicacaoDoCliente.Text(CelulaSelecionadaDaLista(colunas::TiposECanaisDeComunicacao));

    Ponto = 4;
    kvtxtNomeDoAnimal.Text(CelulaSelecionadaDaLista(colunas::NomeDoAnimal));
    const Text sexo = CelulaSelecionadaDaLista(colunas::SexoDoAnimal);
    const Text especie = CelulaSelecionadaDaLista(colunas::NomeDaEspecie);
    const Text raca = CelulaSelecionadaDaLista(colunas::NomeDaRaca);
    if (Estado.TipoDeOperacao == operacao::Excluir)
        ExibirAnimal(sexo, especie, raca);
    else
        PreencherAnimal(sexo, especie, raca);
    kvtxtCorDoAnimal.Text(CelulaSelecionadaDaLista(colunas::CorDoAnimal));

    Ponto = 5;
    Estado.IgnorarEventoDeCampo = true;
    SelecionarPelaCelula(kvcmbTiposDeServicos, CelulaSelecionadaDaLista(colunas::NumeroDoTipoDeServico));
    kvfCodigoDoServico.Text(CelulaSelecionadaDaLista(colunas::CodigoDoServico));
    kvfNomeDoServico.Text(CelulaSelecionadaDaLista(colunas::NomeDoServico));
    kvdtpDataInicial.Text(CelulaSelecionadaDaLista(colunas::DataInicial));
    kvtimHoraInicial.Text(CelulaSelecionadaDaLista(colunas::HoraInicial));
    kvdtpDataFinal.Text(CelulaSelecionadaDaLista(colunas::DataFinal));
    kvtimHoraFinal.Text(CelulaSelecionadaDaLista(colunas::HoraFinal));
    Estado.IgnorarEventoDeCampo = true;
    SelecionarPelaCelula(kvcmbFuncionarios, CelulaSelecionadaDaLista(colunas::CodigoDoFuncionario));

    // Nothing is swallowed from here on.
    Ponto = 6;
    Estado.IgnorarEventoDeCampo = false;
    kvtxtTempoDoServico.Text(CelulaSelecionadaDaLista(colunas::TempoDeExecucao));
    kvtxtObservacaoDoServico.Text(CelulaSelecionadaDaLista(colunas::Observacao));
    SelecionarPelaCelula(kvcmbSituacao, CelulaSelecionadaDaLista(colunas::Situacao));
}

void frmFichaSimplificada::MontarOperacao()
{
    switch (Estado.TipoDeOperacao) {
    case operacao::Adicionar:
        kvTheme.Caption("Adicionar agendamento simplificado");
        HabilitarCamposDeEdicao(*Formulario, true, CaixasDePesquisa::EsperamPesquisa);
        EscreverBotao(kvcmdSalvarFecharConfirmar, "Salvar", "Salvar inclusão e fechar");
        EscreverBotao(kvcmdCancelarAlterar, "Cancelar", "Cancelar inclusão e fechar");
        break;
    case operacao::Detalhar:
        kvTheme.Caption("Detalhar agendamento simplificado");
        HabilitarCamposDeEdicao(*Formulario, false, CaixasDePesquisa::Ficam);
        EscreverBotao(kvcmdSalvarFecharConfirmar, "Fechar", "Fechar detalhamento");
        EscreverBotao(kvcmdCancelarAlterar, "Alterar", "Alterar dados");
        break;
    case operacao::Alterar:
        // This title and the next one say "completo", as the full record's do: texts that users know stay
        // letter for letter.
        kvTheme.Caption("Alterar agendamento completo");
        HabilitarCamposDeEdicao(*Formulario, true, CaixasDePesquisa::Ficam);
        if (Formulario->Visible())
            kvtxtNomeOuRazaoSocialDoCliente.SetFocus();
        ReescreverBotao(kvcmdSalvarFecharConfirmar, "Salvar", "Salvar alteração e fechar");
        ReescreverBotao(kvcmdCancelarAlterar, "Cancelar", "Cancelar alteração e fechar");
        break;
    case operacao::Excluir:
        kvTheme.Caption("Excluir agendamento completo");
        HabilitarCamposDeEdicao(*Formulario, false, CaixasDePesquisa::Ficam);
        // The doubled word is part of the text.
        EscreverBotao(kvcmdSalvarFecharConfirmar, "Confirmar", "Confirmar exclusão e e fechar");
        EscreverBotao(kvcmdCancelarAlterar, "Cancelar", "Cancelar exclusão e fechar");
        break;
    default: break;
    }
}

void frmFichaSimplificada::MontarCarimbos()
{
    if (Estado.TipoDeOperacao == operacao::Adicionar) {
        kvTheme.DataOfInclusion("");
        kvTheme.DataOfAlteration("");
        return;
    }
    kvTheme.DataOfInclusion(CarimboDeInclusao(Estado.NumeroDeLancamento,
                                              CelulaSelecionadaDaLista(colunas::DataEHoraDaInclusao),
                                              Estado.TipoDeOperacao));
    kvTheme.DataOfAlteration(CarimboDeAlteracao(CelulaSelecionadaDaLista(colunas::DataEHoraDaAlteracao)));
}

} // namespace kova::agenda
