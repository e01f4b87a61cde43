#include "agenda/search/frmPesquisaDeClientes.hpp"

#include "agenda/search/frmPesquisaDeClientes_design.hpp"
#include "agenda/search/search_dialog.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/shared/wait_plate.hpp"

#include <array>

namespace kova::agenda {

namespace {

using grid_alignment::LeftMiddle;

constexpr std::array<ColunaDePesquisa, 9> Colunas{{
    {"Coluna em branco", 0, LeftMiddle, ""},
    {"Código", 1100, LeftMiddle, "CodigoDoCliente"},
    {"Apelido/Nome fantasia", 2000, LeftMiddle, "ApelidoOuNomeFantasia"},
    {"Nome/Razão Social", 4020, LeftMiddle, "NomeOuRazaoSocial"},
    {"Situação", 0, LeftMiddle, "Situacao"},
    {"Endereço", 6300, LeftMiddle, "EnderecoCompleto"},
    {"Canal de Comunicação", 0, LeftMiddle, "TiposECanaisDeComunicacao"},
    {"ClienteVIP", 0, LeftMiddle, "VIP"},
    {"CategoriaDaCurvaABC", 0, LeftMiddle, "CategoriaDaCurvaABC"},
}};

} // namespace

std::shared_ptr<frmPesquisaDeClientes> frmPesquisaDeClientes::Criar()
{
    std::shared_ptr<frmPesquisaDeClientes> pesquisa(new frmPesquisaDeClientes);
    pesquisa->Formulario->Owner(pesquisa);
    return pesquisa;
}

frmPesquisaDeClientes::frmPesquisaDeClientes()
    : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmPesquisaDeClientes()))
{
    LigarEventos();
}

void frmPesquisaDeClientes::LigarEventos()
{
    Formulario->OnLoad([this] { Form_Load(); });
    Formulario->OnActivate([this] { Form_Activate(); });
    Formulario->OnResize([this] { Form_Resize(); });
    Formulario->OnUnload([this](bool&) { Form_Unload(); });
    kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo.OnClick(
        [this] { kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo_Click(); });
    msfgGrade.OnClick([this] { msfgGrade_Click(); });
    kvcmdFechar.OnClick([this] { kvcmdFechar_Click(); });
}

Integer frmPesquisaDeClientes::ConfigurarGrade()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, ConfigurarGrade, Ponto: ", Ponto, [&] {
        Formulario->Load();

        Ponto = 1;
        EsvaziarGradeDePesquisa(msfgGrade);

        Ponto = 2;
        DefinirColunasDaPesquisa(msfgGrade, Colunas);
    });
    return 0;
}

Integer frmPesquisaDeClientes::PreencherGrade(RecordSet& registros)
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, PreencherGrade, Ponto: ", Ponto, [&] {
        Ponto = 1;
        PreencherLinhasDaPesquisa(msfgGrade, Colunas, registros);
    });
    return 0;
}

void frmPesquisaDeClientes::CentralizarpicMensagem() { CentralizarPlacaDeEspera(*Formulario, picMensagem); }

void frmPesquisaDeClientes::ExibirOcultarpicMensagem(bool Exibir)
{
    ExibirOcultarPlacaDeEspera(*Formulario, picMensagem, Exibir);
}

void frmPesquisaDeClientes::Form_Load()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        AplicarBordaDoFormulario(*Formulario);

        Ponto = 2;
        kvcmdFechar.ToolTipText("Cancelar a pesquisa e fechar");
    });
}

void frmPesquisaDeClientes::Form_Activate() { RegistroSelecionado = false; }

void frmPesquisaDeClientes::Form_Resize()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, Form_Resize, Ponto: ", Ponto, [&] {
        Ponto = 1;
        DisporGradeEBotao(*Formulario, msfgGrade, kvcmdFechar);
    });
}

void frmPesquisaDeClientes::Form_Unload() { RegistroSelecionado = false; }

void frmPesquisaDeClientes::kvcmdFechar_Click()
{
    Integer Ponto = 0;
    Trap(", frmPesquisaDeClientes, kvcmdFechar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        RegistroSelecionado = false;
        Formulario->Hide();
    });
}

} // namespace kova::agenda
