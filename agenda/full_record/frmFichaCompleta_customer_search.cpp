// The search for a customer, and what of the one found the form shows.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/search/customer_state.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

Text MensagemDeClienteNaoEncontrado(const Text& apelido, const Text& nome, Double codigo,
                                    const Text& endereco)
{
    if (!Trim(apelido).empty())
        return "Nenhum cliente encontrado com o apelido ou nome fantasia '" + apelido + "'.";
    if (!Trim(nome).empty())
        return "Nenhum cliente encontrado com o nome ou razão social '" + nome + "'.";
    if (!Trim(endereco).empty())
        return "Nenhum cliente encontrado com o endereço '" + endereco + "'.";
    return "Nenhum cliente encontrado com o código '" + TextOf(codigo) + "' informado.";
}

} // namespace

bool frmFichaCompleta::PesquisarCliente(const Text& ApelidoOuNomeFantasia, const Text& NomeOuRazaoSocial,
                                        Double Codigo, const Text& Endereco)
{
    Integer Ponto = 0;
    return Trap(", frmFichaCompleta, PesquisarCliente, Ponto: ", Ponto, [&] {
        // The selection, by the one field that is filled.
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objClientes = CreateObject("KOVA_N_ClientAnim.clsClientes");
        objClientes->Set("DadosDoUsuario", Principal.DadosDoUsuario);

        Ponto = 2;
        Text apelidoOuNome = !Trim(ApelidoOuNomeFantasia).empty() ? ApelidoOuNomeFantasia
            : !Trim(NomeOuRazaoSocial).empty()                    ? NomeOuRazaoSocial
                                                                  : Text();
        Double codigo = Codigo;
        Text endereco = Endereco;
        const Integer falha = objClientes
                                  ->Call("Selecionar",
                                         {Long{2}, Integer{0}, Long{0}, "", ByRef(apelidoOuNome),
                                          ByRef(codigo), ByRef(endereco), "", "", Double{0}, ""})
                                  .ToInteger();
        if (falha != 0) {
            Ponto = 3;
            ExibirOcultarpicMensagem(false);
            MensagemDeErroDoObjeto(*objClientes);
            return false;
        }

        Ponto = 4;
        ExibirOcultarpicMensagem(false);
        const auto registros = objClientes->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objClientes.reset();

        // None, one or several.
        Ponto = 5;
        const Long encontrados = registros->RecordCount();
        if (encontrados == 0) {
            ExibirInformacao(
                MensagemDeClienteNaoEncontrado(ApelidoOuNomeFantasia, NomeOuRazaoSocial, Codigo, Endereco));
            ThePlatform().Toolkit().SendKeys("+({HOME})");
            return false;
        }

        Ponto = 6;
        return encontrados == 1 ? AceitarClienteEncontrado(*registros) : EscolherCliente(*registros);
    });
}

bool frmFichaCompleta::AceitarClienteEncontrado(const RecordSet& registros)
{
    if (RecusarClientePelaSituacao(registros.Field("Situacao").ToInteger())) {
        // The box that searched is emptied too: its text leads to a customer who must not be used.
        LimparCamposDoCliente();
        return false;
    }
    ExibirClienteDoRegistro(registros);
    ExibirMarcasDoCliente(registros.Field("VIP").ToText(), registros.Field("CategoriaDaCurvaABC").ToText());
    return true;
}

bool frmFichaCompleta::EscolherCliente(RecordSet& registros)
{
    const auto pesquisa = AbrirPesquisaDeClientes(registros);
    const bool escolhido = pesquisa->RegistroSelecionado;
    if (escolhido) {
        ExibirClienteEscolhido(*pesquisa);
        const MSFlexGrid& grade = pesquisa->msfgGrade;
        ExibirMarcasDoCliente(grade.TextMatrix(grade.RowSel(), colunas_de_clientes::ClienteVIP),
                              grade.TextMatrix(grade.RowSel(), colunas_de_clientes::CategoriaDaCurvaABC));
    }
    pesquisa->Formulario->Unload();
    return escolhido;
}

bool frmFichaCompleta::RecusarClientePelaSituacao(Integer Situacao)
{
    const Text motivo = MotivoDaRecusaDoCliente(Situacao);
    if (motivo.empty())
        return false;
    ExibirInformacao(motivo);
    return true;
}

std::shared_ptr<frmPesquisaDeClientes> frmFichaCompleta::AbrirPesquisaDeClientes(RecordSet& registros)
{
    auto pesquisa = frmPesquisaDeClientes::Criar();
    pesquisa->ConfigurarGrade();
    pesquisa->PreencherGrade(registros);
    Formulario->Refresh();
    pesquisa->Formulario->Show(ShowMode::Modal);
    return pesquisa;
}

void frmFichaCompleta::ExibirClienteDoRegistro(const RecordSet& registros)
{
    Estado.IgnorarEventoDeCampo = true;
    for (KVFind* caixa : CaixasDoCliente())
        caixa->Status(find_status::Found);
    kvfApelidoOuNomeFantasiaDoCliente.Text(registros.Field("ApelidoOuNomeFantasia").ToText());
    kvfNomeOuRazaoSocialDoCliente.Text(registros.Field("NomeOuRazaoSocial").ToText());
    kvfCodigoDoCliente.Text(registros.Field("CodigoDoCliente").ToText());
    kvfEnderecoDoCliente.Text(registros.Field("EnderecoCompleto").ToText());
    kvtxtTiposECanaisDeComunicacao.Text(registros.Field("TiposECanaisDeComunicacao").ToText());
}

void frmFichaCompleta::ExibirClienteEscolhido(const frmPesquisaDeClientes& pesquisa)
{
    namespace coluna = colunas_de_clientes;
    const MSFlexGrid& grade = pesquisa.msfgGrade;
    const auto celula = [&](Long numero) { return grade.TextMatrix(grade.RowSel(), numero); };
    Estado.IgnorarEventoDeCampo = true;
    for (KVFind* caixa : CaixasDoCliente())
        caixa->Status(find_status::Found);
    kvfCodigoDoCliente.Text(TextOf(Val(celula(coluna::Codigo))));
    kvfApelidoOuNomeFantasiaDoCliente.Text(celula(coluna::ApelidoOuNomeFantasia));
    kvfNomeOuRazaoSocialDoCliente.Text(celula(coluna::NomeOuRazaoSocial));
    kvfEnderecoDoCliente.Text(celula(coluna::Endereco));
    kvtxtTiposECanaisDeComunicacao.Text(celula(coluna::CanalDeComunicacao));
}

void frmFichaCompleta::ExibirMarcasDoCliente(const Text& vip, const Text& categoria)
{
    Principal.TextoDoCliente =
        Text("Cliente* [ ") + (UpperCase(vip) == "SIM" ? "VIP - " : "") + categoria + " ]";
    lblCliente.Caption(Principal.TextoDoCliente);
}

} // namespace kova::agenda
