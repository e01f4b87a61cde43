#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/records/record_form.hpp"

#include <memory>

namespace kova::agenda {

/// The appointment of a customer who is not registered: customer and animal are stored as plain text, for
/// which the registers only offer names of species and breeds. Service and employee are those of the
/// registers.
///
/// Its procedures lie by concern: frmFichaSimplificada.cpp opens it, frmFichaSimplificada_animal.cpp fills
/// the animal's combos, frmFichaSimplificada_service.cpp looks up services and works out the end,
/// frmFichaSimplificada_confirmation.cpp has the two buttons.
class frmFichaSimplificada {
public:
    /// A new form, not yet loaded. Its opener loads it and fills the three combos.
    static std::shared_ptr<frmFichaSimplificada> Criar();
    frmFichaSimplificada(const frmFichaSimplificada&) = delete;
    frmFichaSimplificada& operator=(const frmFichaSimplificada&) = delete;

    /// The list's selected row fills the form in every operation but adding.
    void MontarExibirFormulario(Integer Operacao);
    /// Switches the service part of the form.
    void HabilitarDesabilitarCampos(bool habilitar);
    /// Brings the wait plate to the front, in the middle.
    void CentralizarpicMensagem();
    /// True shows the wait plate and waits one second; nothing happens while the form is not visible.
    void ExibirOcultarpicMensagem(bool Exibir);

    FormRef Formulario;
    KVComboBox& kvcmbTiposDeServicos = Bind<KVComboBox>(Formulario, "kvcmbTiposDeServicos");
    KVComboBox& kvcmbFuncionarios = Bind<KVComboBox>(Formulario, "kvcmbFuncionarios");
    KVComboBox& kvcmbSituacao = Bind<KVComboBox>(Formulario, "kvcmbSituacao");
    EstadoDaFicha Estado;

    KVTheme& kvTheme = Bind<KVTheme>(Formulario, "KVTheme");

    Label& lblNomeOuRazaoSocialDoCliente = Bind<Label>(Formulario, "lblNomeOuRazaoSocialDoCliente");
    KVTextBox& kvtxtNomeOuRazaoSocialDoCliente =
        Bind<KVTextBox>(Formulario, "kvtxtNomeOuRazaoSocialDoCliente");
    KVTextBox& kvtxtCanaisDeComunicacaoDoCliente =
        Bind<KVTextBox>(Formulario, "kvtxtCanaisDeComunicacaoDoCliente");

    Label& lblNomeDoAnimal = Bind<Label>(Formulario, "lblNomeDoAnimal");
    KVTextBox& kvtxtNomeDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtNomeDoAnimal");
    KVComboBox& kvcmbSexoDoAnimal = Bind<KVComboBox>(Formulario, "kvcmbSexoDoAnimal");
    KVComboBox& kvcmbEspeciesDeAnimais = Bind<KVComboBox>(Formulario, "kvcmbEspeciesDeAnimais");
    KVComboBox& kvcmbRacasDeAnimais = Bind<KVComboBox>(Formulario, "kvcmbRacasDeAnimais");
    KVTextBox& kvtxtCorDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtCorDoAnimal");

    Label& lblTipoDoServico = Bind<Label>(Formulario, "lblTipoDoServico");
    KVFind& kvfCodigoDoServico = Bind<KVFind>(Formulario, "kvfCodigoDoServico");
    Label& lblNomeDoServico = Bind<Label>(Formulario, "lblNomeDoServico");
    KVFind& kvfNomeDoServico = Bind<KVFind>(Formulario, "kvfNomeDoServico");
    Label& lblDataHoraInicial = Bind<Label>(Formulario, "lblDataHoraInicial");
    KVDTPicker& kvdtpDataInicial = Bind<KVDTPicker>(Formulario, "kvdtpDataInicial");
    KVTime& kvtimHoraInicial = Bind<KVTime>(Formulario, "kvtimHoraInicial");
    Label& lblDataHoraFinal = Bind<Label>(Formulario, "lblDataHoraFinal");
    KVDTPicker& kvdtpDataFinal = Bind<KVDTPicker>(Formulario, "kvdtpDataFinal");
    KVTime& kvtimHoraFinal = Bind<KVTime>(Formulario, "kvtimHoraFinal");
    KVTextBox& kvtxtTempoDoServico = Bind<KVTextBox>(Formulario, "kvtxtTempoDoServico");
    Label& lblNomeDoFuncionario = Bind<Label>(Formulario, "lblNomeDoFuncionario");
    Label& lblSituacao = Bind<Label>(Formulario, "lblSituacao");
    KVTextBox& kvtxtObservacaoDoServico = Bind<KVTextBox>(Formulario, "kvtxtObservacaoDoServico");

    KVCommandButton& kvcmdSalvarFecharConfirmar =
        Bind<KVCommandButton>(Formulario, "kvcmdSalvarFecharConfirmar");
    KVCommandButton& kvcmdCancelarAlterar = Bind<KVCommandButton>(Formulario, "kvcmdCancelarAlterar");
    PictureBox& picMensagem = Bind<PictureBox>(Formulario, "picMensagem");

private:
    frmFichaSimplificada();
    void LigarEventos();
    void Form_Load();

    void PrepararInclusao();
    void PreencherComALinhaDaLista(Integer& Ponto);
    void MontarOperacao();
    void MontarCarimbos();

    void ExibirAnimal(const Text& sexo, const Text& especie, const Text& raca);
    void PreencherAnimal(const Text& sexo, const Text& especie, const Text& raca);
    bool SelecionarPeloTexto(KVComboBox& combo, const Text& texto);
    void PreencherComboboxEspeciesDeAnimais();
    void PreencherComboboxRacasDeAnimais(Double codigoDaEspecie);
    void PreencherkvcmbSexo();
    void kvcmbEspeciesDeAnimais_Click();
    void kvcmbRacasDeAnimais_DropDown();

    void kvcmbTiposDeServicos_Click();
    void kvfCodigoDoServico_Click();
    void kvfNomeDoServico_Click();
    void CaixaDoServico_Click(KVFind& origem, KVFind& outra, Integer& Ponto);
    void kvfCodigoDoServico_KeyDown();
    void kvfNomeDoServico_KeyDown();
    bool PesquisarServico(Integer tipo, Text nome, Double codigo);
    bool EscolherServico(RecordSet& registros);
    void kvtimHoraInicial_LostFocus();

    void kvcmdSalvarFecharConfirmar_Click();
    void kvcmdCancelarAlterar_Click();
    void EscreverAgendamento(Component& agenda);
    Text SexoParaGravar() const;
    void InformarCampoRecusado(Component& agenda);
};

} // namespace kova::agenda
