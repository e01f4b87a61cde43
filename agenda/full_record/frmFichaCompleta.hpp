#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets.hpp"
#include "agenda/records/record_form.hpp"
#include "agenda/records/service_choice.hpp"
#include "agenda/search/frmPesquisaDeClientes.hpp"

#include <array>
#include <memory>

namespace kova::agenda {

/// The record form of an appointment for a registered customer: adds, shows, alters and deletes one. The
/// list loads it, fills its three combos, runs it and reads OperacaoConcluida.
///
/// Its procedures lie by concern: frmFichaCompleta.cpp makes it, frmFichaCompleta_opening.cpp fills it for
/// an operation, frmFichaCompleta_modes.cpp labels, enables and places its controls,
/// frmFichaCompleta_customer.cpp and _customer_search.cpp, _animal.cpp and _animal_search.cpp and
/// _service.cpp look things up, frmFichaCompleta_repetition.cpp asks for a repeated booking,
/// frmFichaCompleta_validation.cpp checks it before dates are picked, and frmFichaCompleta_confirmation.cpp
/// saves.
class frmFichaCompleta {
public:
    /// A new record form, hidden, in design state.
    static std::shared_ptr<frmFichaCompleta> Criar();
    frmFichaCompleta(const frmFichaCompleta&) = delete;
    frmFichaCompleta& operator=(const frmFichaCompleta&) = delete;

    /// Called on the open form with `Alterar` by its own second button, it turns the detail view into an
    /// alteration.
    void MontarExibirFormulario(Integer Operacao);
    /// The wait plate: true shows it and waits one second, false hides it. Only while the form is visible.
    void ExibirOcultarpicMensagem(bool Exibir);
    void CentralizarpicMensagem();

    FormRef Formulario;
    KVComboBox& kvcmbTiposDeServicos = Bind<KVComboBox>(Formulario, "kvcmbTiposDeServicos");
    KVComboBox& kvcmbFuncionarios = Bind<KVComboBox>(Formulario, "kvcmbFuncionarios");
    KVComboBox& kvcmbSituacao = Bind<KVComboBox>(Formulario, "kvcmbSituacao");
    EstadoDaFicha Estado;

    KVTheme& kvTheme = Bind<KVTheme>(Formulario, "KVTheme");

    // How the customer is searched; on adding only.
    Label& txtPesquisarPor = Bind<Label>(Formulario, "txtPesquisarPor");
    OptionButton& optAgendarPorCliente = Bind<OptionButton>(Formulario, "optAgendarPor", 1);
    OptionButton& optAgendarPorAnimal = Bind<OptionButton>(Formulario, "optAgendarPor", 2);

    // The customer.
    Label& lblCliente = Bind<Label>(Formulario, "lblCliente");
    Label& lblCodigoDoCliente = Bind<Label>(Formulario, "lblCodigoDoCliente");
    KVFind& kvfCodigoDoCliente = Bind<KVFind>(Formulario, "kvfCodigoDoCliente");
    Label& lblApelidoOuNomeFantasiaDoCliente = Bind<Label>(Formulario, "lblApelidoOuNomeFantasiaDoCliente");
    KVFind& kvfApelidoOuNomeFantasiaDoCliente = Bind<KVFind>(Formulario, "kvfApelidoOuNomeFantasiaDoCliente");
    Label& lblNomeOuRazaoSocialDoCliente = Bind<Label>(Formulario, "lblNomeOuRazaoSocialDoCliente");
    KVFind& kvfNomeOuRazaoSocialDoCliente = Bind<KVFind>(Formulario, "kvfNomeOuRazaoSocialDoCliente");
    Label& lblEndereco = Bind<Label>(Formulario, "lblEndereco");
    KVFind& kvfEnderecoDoCliente = Bind<KVFind>(Formulario, "kvfEnderecoDoCliente");
    Label& lblCanalDeComunicacao = Bind<Label>(Formulario, "lblCanalDeComunicacao");
    KVTextBox& kvtxtTiposECanaisDeComunicacao = Bind<KVTextBox>(Formulario, "kvtxtTiposECanaisDeComunicacao");

    // The animal.
    Label& lblAnimal = Bind<Label>(Formulario, "lblAnimal");
    Label& lblNomeDoAnimal = Bind<Label>(Formulario, "lblNomeDoAnimal");
    KVComboBox& kvcmbAnimal = Bind<KVComboBox>(Formulario, "kvcmbAnimal");
    KVFind& kvfNomeDoAnimal = Bind<KVFind>(Formulario, "kvfNomeDoAnimal");
    Label& lblSexoDoAnimal = Bind<Label>(Formulario, "lblSexoDoAnimal");
    KVTextBox& kvtxtSexoDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtSexoDoAnimal");
    Label& lblEspecieDoAnimal = Bind<Label>(Formulario, "lblEspecieDoAnimal");
    KVTextBox& kvtxtEspecieDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtEspecieDoAnimal");
    Label& lblRacaDoAnimal = Bind<Label>(Formulario, "lblRacaDoAnimal");
    KVTextBox& kvtxtRacaDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtRacaDoAnimal");
    Label& lblCorDoAnimal = Bind<Label>(Formulario, "lblCorDoAnimal");
    KVTextBox& kvtxtCorDoAnimal = Bind<KVTextBox>(Formulario, "kvtxtCorDoAnimal");

    // The service and its times; its type, its employee and the situation stand above.
    Label& lblServico = Bind<Label>(Formulario, "lblServico");
    Label& lblTipoDoServico = Bind<Label>(Formulario, "lblTipoDoServico");
    Label& lblCodigoDoServico = Bind<Label>(Formulario, "lblCodigoDoServico");
    KVFind& kvfCodigoDoServico = Bind<KVFind>(Formulario, "kvfCodigoDoServico");
    Label& lblNomeDoServico = Bind<Label>(Formulario, "lblNomeDoServico");
    KVFind& kvfNomeDoServico = Bind<KVFind>(Formulario, "kvfNomeDoServico");
    Label& lblDataHoraInicial = Bind<Label>(Formulario, "lblDataHoraInicial");
    KVDTPicker& kvdtpDataInicial = Bind<KVDTPicker>(Formulario, "kvdtpDataInicial");
    KVTime& kvtimHoraInicial = Bind<KVTime>(Formulario, "kvtimHoraInicial");
    Label& lblDataHoraFinal = Bind<Label>(Formulario, "lblDataHoraFinal");
    KVDTPicker& kvdtpDataFinal = Bind<KVDTPicker>(Formulario, "kvdtpDataFinal");
    KVTime& kvtimHoraFinal = Bind<KVTime>(Formulario, "kvtimHoraFinal");
    Label& lblTempoDoServico = Bind<Label>(Formulario, "lblTempoDoServico");
    KVTextBox& kvtxtTempoDoServico = Bind<KVTextBox>(Formulario, "kvtxtTempoDoServico");
    Label& lblNomeDoFuncionario = Bind<Label>(Formulario, "lblNomeDoFuncionario");
    Label& lblObservacao = Bind<Label>(Formulario, "lblObservacao");
    KVTextBox& kvtxtObservacaoDoServico = Bind<KVTextBox>(Formulario, "kvtxtObservacaoDoServico");

    // The repetition; on adding only.
    Label& lblReagendar = Bind<Label>(Formulario, "lblReagendar");
    KVComboBox& kvcmbReagendar = Bind<KVComboBox>(Formulario, "kvcmbReagendar");
    KVNumberBox& kvnumNumeroDeSemanas = Bind<KVNumberBox>(Formulario, "kvnumNumeroDeSemanas");
    KVComboBox& kvcmbReagendarPor = Bind<KVComboBox>(Formulario, "kvcmbReagendarPor");

    // Transport and situation.
    Label& lblBuscar = Bind<Label>(Formulario, "lblBuscar");
    KVComboBox& kvcmbBuscar = Bind<KVComboBox>(Formulario, "kvcmbBuscar");
    Label& lblLevar = Bind<Label>(Formulario, "lblLevar");
    KVComboBox& kvcmbLevar = Bind<KVComboBox>(Formulario, "kvcmbLevar");
    Label& lblSituacao = Bind<Label>(Formulario, "lblSituacao");

    Label& lblObservacaoDeCamposObrigatorios = Bind<Label>(Formulario, "lblObservacaoDeCamposObrigatorios");
    KVCommandButton& kvcmdSalvarFecharConfirmar =
        Bind<KVCommandButton>(Formulario, "kvcmdSalvarFecharConfirmar");
    KVCommandButton& kvcmdCancelarAlterar = Bind<KVCommandButton>(Formulario, "kvcmdCancelarAlterar");
    PictureBox& picMensagem = Bind<PictureBox>(Formulario, "picMensagem");

    /// The date selection's answer: a Sunday or holiday among the dates is to move to the next working day.
    bool DomingoOuFeriado = false;
    /// The dates and times picked by hand; null until some were.
    ArrayRef ListaDasDatasEHorasSelecionadas;
    /// The height that the form gets back after the date selection.
    Integer AlturaDoFormulario = 0;

private:
    frmFichaCompleta();
    void LigarEventos();
    void Form_Load();

    // Opening.
    void PreencherParaAdicionar();
    void PreencherComALinhaDaLista(Integer& Ponto);
    void PreencherAnimal(const Text& codigo, const Text& nome);
    void PreencherkvComboBoxsSimENao();
    void PreencherkvcmbReagendarPor();

    // Modes.
    void MontarModo();
    void MontarAdicionar();
    void MontarDetalhar();
    void MontarAlterar();
    void MontarExcluir();
    void PreencherCarimbos();
    void FixarCamposDoRetorno();
    void RedimensionaEReposicionaCampos();
    void PosicionarParaAdicionar();
    void PosicionarComSituacao();
    void HabilitarDesabilitarCampos(bool Habilitar);

    // Customer.
    /// The boxes by which a customer is searched, and which show the one found.
    std::array<KVFind*, 4> CaixasDoCliente();
    /// A press of one of them. True where it leaves the form without a customer.
    bool CaixaDoCliente_Click(KVFind& origem, Integer& Ponto);
    bool PesquisarPelaCaixa(KVFind& origem, Integer& Ponto);
    void EsvaziarOutrasCaixasDoCliente(const KVFind& origem);
    /// The user types in one of them: the others show nothing any more.
    void CaixaDoCliente_KeyDown(const KVFind& origem);
    bool PesquisarCliente(const Text& ApelidoOuNomeFantasia, const Text& NomeOuRazaoSocial, Double Codigo,
                          const Text& Endereco);
    bool RecusarClientePelaSituacao(Integer Situacao);
    /// One was found: false where its situation forbids it.
    bool AceitarClienteEncontrado(const RecordSet& registros);
    /// Several were found: false where the user picks none.
    bool EscolherCliente(RecordSet& registros);
    /// Shows the dialog with what was found and returns when the user is done with it; it is still loaded.
    std::shared_ptr<frmPesquisaDeClientes> AbrirPesquisaDeClientes(RecordSet& registros);
    void ExibirClienteDoRegistro(const RecordSet& registros);
    void ExibirClienteEscolhido(const frmPesquisaDeClientes& pesquisa);
    void ExibirMarcasDoCliente(const Text& vip, const Text& categoria);
    void LimparCamposDoCliente();
    void LimparOutrosCamposDoFormularioRelacionadoAoCliente();
    void kvfCodigoDoCliente_Click();
    void kvfApelidoOuNomeFantasiaDoCliente_Click();
    void kvfNomeOuRazaoSocialDoCliente_Click();
    void kvfEnderecoDoCliente_Click();
    void kvfCodigoDoCliente_KeyDown();
    void kvfApelidoOuNomeFantasiaDoCliente_KeyDown();
    void kvfNomeOuRazaoSocialDoCliente_KeyDown();
    void kvfEnderecoDoCliente_KeyDown();

    // Animal.
    /// 1 where the customer has no animal or the call failed; 0 where the combo was filled, but also after a
    /// reported failure.
    Integer PreencherComboboxAnimal(Double Codigo);
    bool PesquisarAnimal(const Text& Nome);
    void ExibirAnimal(const RecordSet& registros);
    void LimparCamposDoAnimal();
    void kvcmbAnimal_Click();
    void CarregarAnimal(Integer& Ponto);
    void kvfNomeDoAnimal_Click();
    void PesquisarPeloAnimal(Integer& Ponto);
    bool AceitarDonoEncontrado(const RecordSet& registros);
    bool EscolherDono(RecordSet& registros);
    void ExibirAnimaisDoDono();
    void EsvaziarClienteDoAnimal();
    void kvfNomeDoAnimal_KeyDown();
    void optAgendarPor_Click(Integer Index);
    void PararComTab(bool porCliente);

    // Service and times.
    void kvcmbTiposDeServicos_Click();
    CaixasDoServico Servico();
    /// A press of one of the two boxes of the service.
    void CaixaDoServico_Click(KVFind& origem, KVFind& outra, Integer& Ponto);
    void PesquisarPelaCaixaDoServico(KVFind& origem, KVFind& outra, Integer& Ponto);
    bool PesquisarServico(Integer NumeroDoTipoDeServico, const Text& Nome, Double Codigo);
    bool AceitarServicoEncontrado(const RecordSet& registros);
    bool EscolherServico(RecordSet& registros);
    void CopiarTiposPara(frmPesquisaDeServicos& pesquisa);
    void kvfCodigoDoServico_Click();
    void kvfNomeDoServico_Click();
    void kvfCodigoDoServico_KeyDown();
    void kvfNomeDoServico_KeyDown();
    void kvtimHoraInicial_LostFocus();

    // Repetition, and the check before dates are picked.
    /// While the combo stands alone it covers kvcmbReagendarPor, which is then no stop of the Tab key.
    void kvcmbReagendar_Click();
    void kvcmbReagendarPor_Click();
    void kvnumNumeroDeSemanas_KeyPress(Integer& KeyAscii);
    /// 1 where something is missing; 0 when all is there, but also after a failure that was reported before
    /// anything was found missing.
    Integer ValidarCampos();

    // Confirming.
    void kvcmdSalvarFecharConfirmar_Click();
    void kvcmdCancelarAlterar_Click();
    /// Writes the record and acts on the answer. Whether the form is to close.
    bool GravarAgendamento(Integer& Ponto);
    /// Marks the refused field and says why, but for a Sunday or holiday, which is asked about. Answers the
    /// field's name.
    Text TratarCampoRecusado(Component& agenda);
    /// Asks about the Sunday or holiday and writes again. Whether the form is to close.
    bool GravarEmDomingoOuFeriado(Component& agenda);
};

} // namespace kova::agenda
