#include "agenda/list/frmLista_design.hpp"

#include "agenda/shared/palette.hpp"
#include "agenda/shared/wait_plate.hpp"

namespace kova::agenda {

namespace {

using Kind = WidgetKind;

// Pitch of the panel's rows: four of them fit below a full page on a screen of 768 rows.
constexpr Twips PrimeiraLinhaDoPainel = 55;
constexpr Twips PassoDoPainel = 260;
constexpr Twips MargemDoPainel = 90;
// Where the titles stand until the first appointment is shown; from then on each label follows the one
// before it.
constexpr Twips PrimeiraColuna = 960;
constexpr Twips SegundaColuna = 2400;
constexpr Twips TerceiraColuna = 3960;
constexpr Twips QuartaColuna = 5520;
constexpr Twips QuintaColuna = 7080;
constexpr Twips SextaColuna = 8640;

ControlDesign BotaoDaLinha(const char* nome, const char* icone, const char* acao, const char* tecla)
{
    return {.kind = Kind::KVCommandButton,
            .name = nome,
            .width = 570,
            .height = 570,
            .caption = " ",
            .visible = false,
            .accessibleName = acao,
            .backColor = cores::Cinza,
            .icon = icone,
            .highlightColor = cores::CinzaDeRealce,
            .fontColor = colours::White,
            .shortcut = tecla};
}

ControlDesign SetaDeDia(const char* nome, const char* icone, const char* acao, const char* tecla)
{
    return {.kind = Kind::KVCommandButton,
            .name = nome,
            .width = 360,
            .height = 510,
            .caption = " ",
            .toolTipText = acao,
            .accessibleName = acao,
            .backColor = colours::White,
            .icon = icone,
            .highlightColor = cores::CinzaDeSeta,
            .fontColor = colours::White,
            .shortcut = tecla};
}

ControlDesign Filtro(const char* nome, const char* acao)
{
    return {.kind = Kind::KVComboBox,
            .name = nome,
            .width = 2460,
            .height = 510,
            .toolTipText = acao,
            .accessibleName = acao};
}

ControlDesign Imagem(const char* nome, const char* figura)
{
    return {.kind = Kind::Image, .name = nome, .visible = false, .picture = figura};
}

ControlDesign Secao(const char* nome, const char* texto, int linha)
{
    return {.kind = Kind::Label,
            .name = nome,
            .container = "picPainel",
            .left = MargemDoPainel,
            .top = PrimeiraLinhaDoPainel + PassoDoPainel * static_cast<Twips>(linha),
            .caption = texto,
            .autoSize = true,
            .fontSize = 9,
            .fontBold = true,
            .foreColor = cores::CinzaEscuro};
}

ControlDesign Titulo(const char* nome, const char* texto, int linha, Twips esquerda)
{
    return {.kind = Kind::Label,
            .name = nome,
            .container = "picPainel",
            .left = esquerda,
            .top = PrimeiraLinhaDoPainel + PassoDoPainel * static_cast<Twips>(linha),
            .caption = texto,
            .autoSize = true,
            .fontSize = 9,
            .foreColor = cores::CinzaDeTitulo};
}

ControlDesign Valor(const char* nome, int linha)
{
    ControlDesign rotulo = Titulo(nome, "", linha, PrimeiraColuna);
    rotulo.foreColor = colours::Black;
    return rotulo;
}

ControlDesign MenuPai(const char* nome) { return {.kind = Kind::Menu, .name = nome, .visible = false}; }

ControlDesign EntradaDeMenu(const char* nome, const char* pai, const char* texto)
{
    return {.kind = Kind::Menu, .name = nome, .container = pai, .caption = texto};
}

void Append(std::vector<ControlDesign>& all, std::vector<ControlDesign> more)
{
    all.insert(all.end(), more.begin(), more.end());
}

std::vector<ControlDesign> CabecalhoEFiltros()
{
    return {
        {.kind = Kind::Label,
         .name = "lblTitulo",
         .left = 300,
         .top = 350,
         .caption = "Agenda",
         .autoSize = true,
         .fontSize = 20.25F,
         .foreColor = cores::CinzaEscuro},
        {.kind = Kind::KVCommandButton,
         .name = "kvcmdAdicionar",
         .left = 300,
         .top = 1200,
         .width = 1530,
         .height = 510,
         .caption = "    Adicionar",
         .toolTipText = "Adicionar agendamento",
         .backColor = cores::Azul,
         .icon = "adicionar",
         .highlightColor = cores::AzulDeRealce,
         .fontColor = colours::White,
         .shortcut = "F2"},
        {.kind = Kind::KVFind,
         .name = "kvfndPesquisar",
         .left = 1930,
         .top = 1200,
         .width = 2460,
         .height = 510,
         .caption = "Agenda",
         .toolTipText = "Código, Nome, Apelido, Nome Fantasia, Razão Social, Endereço, CPF ou CNPJ",
         .toolTipTextOfTextBox =
             "Código, Nome, Apelido, Nome Fantasia, Razão Social, Endereço, CPF ou CNPJ do "
             "cliente ou Código, Nome ou Microchip do animal",
         .accessibleName = "Pesquisar na agenda",
         .placeholder = "Pesquisar",
         .shortcut = "F3"},
        Filtro("kvcmbSituacao", "Situação"),
        SetaDeDia("kvcmdIrParaDiaAnterior", "anterior", "Dia anterior", "Alt+Left"),
        {.kind = Kind::KVDTPicker,
         .name = "kvdtpDataDeAgendamento",
         .width = 1605,
         .height = 510,
         .toolTipText = "Dia da agenda",
         .accessibleName = "Dia da agenda",
         .repeatKey = "F5"},
        SetaDeDia("kvcmdIrParaDiaPosterior", "posterior", "Próximo dia", "Alt+Right"),
        {.kind = Kind::KVCommandButton,
         .name = "kvcmdImprimirLista",
         .width = 510,
         .height = 510,
         .caption = " ",
         .accessibleName = "Imprimir lista",
         .backColor = colours::Black,
         .icon = "imprimir",
         .highlightColor = cores::CinzaMedio,
         .fontColor = colours::White,
         .shortcut = "Ctrl+P"},
        Filtro("kvcmbTiposDeServicos", "Tipo de serviço"),
        Filtro("kvcmbFuncionarios", "Funcionário"),
        {.kind = Kind::Label,
         .name = "lblExibirPainel",
         .caption = "Exibir painel",
         .autoSize = true,
         .labelOf = "chkExibirPainel",
         .fontSize = 9,
         .foreColor = cores::CinzaDeTitulo},
        {.kind = Kind::CheckBox,
         .name = "chkExibirPainel",
         .width = 240,
         .height = 240,
         .accessibleName = "Exibir painel"},
        {.kind = Kind::KVNavigationBar,
         .name = "kvnbBarraDeNavegacao",
         .width = 5220,
         .height = 795,
         .accessibleName = "Páginas da agenda"},
        {.kind = Kind::Label,
         .name = "lblMensagemDeResultado",
         .caption = "Mensagem de resultado",
         .visible = false,
         .autoSize = true,
         .fontSize = 12,
         .foreColor = cores::CinzaEscuro},
    };
}

std::vector<ControlDesign> GradeEBotoesDaLinha()
{
    return {
        {.kind = Kind::MSFlexGrid,
         .name = "msfgGrade",
         .left = 300,
         .top = 2470,
         .width = 12000,
         .height = 6000,
         .accessibleName = "Agendamentos do dia",
         .shortcut = "F7",
         .pageBar = "kvnbBarraDeNavegacao",
         .rowButton = "kvcmdDetalhar"},
        Imagem("imgEtiqueta_Situacao_Agendado", "etiqueta_agendado"),
        Imagem("imgEtiqueta_Situacao_Atendido", "etiqueta_atendido"),
        Imagem("imgEtiqueta_Situacao_Cancelado", "etiqueta_cancelado"),
        Imagem("imgEtiqueta_Situacao_Atendido_Gerado_PreVenda", "etiqueta_atendido_gerado_pre_venda"),
        BotaoDaLinha("kvcmdMarcarAgendamentoComoAgendado", "agendado", "Marcar agendamento como agendado",
                     "Ctrl+1"),
        BotaoDaLinha("kvcmdMarcarAgendamentoComoAtendido", "atendido", "Marcar agendamento como atendido",
                     "Ctrl+2"),
        BotaoDaLinha("kvcmdMarcarAgendamentoComoCancelado", "cancelado", "Marcar agendamento como cancelado",
                     "Ctrl+3"),
        BotaoDaLinha("kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda", "pre_venda",
                     "Marcar agendamento como atendido e gerado pré-venda", "Ctrl+4"),
        BotaoDaLinha("kvcmdDetalhar", "detalhar", "Detalhar", "F4"),
        BotaoDaLinha("kvcmdAlterar", "alterar", "Alterar", "F6"),
        BotaoDaLinha("kvcmdExcluir", "excluir", "Excluir", "F8"),
        BotaoDaLinha("kvcmdImprimirFicha", "imprimir", "Imprimir fichas ou etiqueta", "F9"),
    };
}

std::vector<ControlDesign> Painel()
{
    return {
        {.kind = Kind::PictureBox,
         .name = "picPainel",
         .width = 12000,
         .height = 1120,
         .visible = false,
         .accessibleName = "Detalhes do agendamento",
         .backColor = cores::CinzaDePainel},
        {.kind = Kind::Shape,
         .name = "shpShape1",
         .container = "picPainel",
         .top = 0,
         .width = 12000,
         .height = 15,
         .backColor = cores::Cinza},
        {.kind = Kind::Shape,
         .name = "shpShape2",
         .container = "picPainel",
         .top = 1105,
         .width = 12000,
         .height = 15,
         .backColor = cores::Cinza},

        Secao("lblTitulo_Cliente", "Cliente:", 0),
        Titulo("lblTitulo_ApelidoOuNomeFantasiaDoCliente", "Apelido:", 0, PrimeiraColuna),
        Valor("lblApelidoOuNomeFantasiaDoCliente", 0),
        Titulo("lblTitulo_NomeOuRazaoSocialDoCliente", "Nome:", 0, TerceiraColuna),
        Valor("lblNomeOuRazaoSocialDoCliente", 0),
        Titulo("lblTitulo_ComunicacaoDoCliente", "Comunicação:", 0, SextaColuna),
        Valor("lblComunicacaoDoCliente", 0),

        Secao("lblTitulo_Animal", "Animal:", 1),
        Titulo("lblTitulo_NomeDoAnimal", "Nome:", 1, PrimeiraColuna),
        Valor("lblNomeDoAnimal", 1),
        Titulo("lblTitulo_SexoDoAnimal", "Sexo:", 1, SegundaColuna),
        Valor("lblSexoDoAnimal", 1),
        Titulo("lblTitulo_PorteDoAnimal", "Porte:", 1, TerceiraColuna),
        Valor("lblPorteDoAnimal", 1),
        Titulo("lblTitulo_EspecieDoAnimal", "Espécie:", 1, QuartaColuna),
        Valor("lblEspecieDoAnimal", 1),
        Titulo("lblTitulo_RacaDoAnimal", "Raça:", 1, QuintaColuna),
        Valor("lblRacaDoAnimal", 1),
        Titulo("lblTitulo_ObservacaoDoAnimal", "Obs.:", 1, SextaColuna),
        Valor("lblObservacaoDoAnimal", 1),

        Secao("lblTitulo_Servico", "Serviço:", 2),
        Titulo("lblTitulo_InicioDoServico", "Inicio:", 2, PrimeiraColuna),
        Valor("lblInicioDoServico", 2),
        Titulo("lblTitulo_FimDoServico", "Fim:", 2, SegundaColuna),
        Valor("lblFimDoServico", 2),
        Titulo("lblTitulo_NomeDoServico", "Nome:", 2, TerceiraColuna),
        Valor("lblNomeDoServico", 2),
        Titulo("lblTitulo_Funcionario", "Funcionário:", 2, SextaColuna),
        Valor("lblNomeDoFuncionario", 2),

        Secao("lblTitulo_Transporte", "Obs.:", 3),
        Titulo("lblTitulo_TransporteBuscar", "Buscar:", 3, PrimeiraColuna),
        Valor("lblTransporteBuscar", 3),
        Titulo("lblTitulo_TransporteLevar", "Levar:", 3, SegundaColuna),
        Valor("lblTransporteLevar", 3),
        Titulo("lblTitulo_ObservacaoDoAgendamento", "Observação:", 3, TerceiraColuna),
        Valor("lblObservacaoDoAgendamento", 3),
        Titulo("lblTitulo_IncluidoOuAlteradoPor", "Incluído por:", 3, SextaColuna),
        Valor("lblIncluidoOuAlteradoPor", 3),
    };
}

std::vector<ControlDesign> Menus()
{
    return {
        MenuPai("mnuAdicionarAgendamento"),
        EntradaDeMenu("mnuAdicionarAgendamentoCompleto", "mnuAdicionarAgendamento", "Agendamento completo"),
        EntradaDeMenu("mnuAdicionarAgendamentoSimplificado", "mnuAdicionarAgendamento",
                      "Agendamento Simplificado"),
        MenuPai("mnuImprimirLista"),
        EntradaDeMenu("mnuImprimirListaDeAgendamentos", "mnuImprimirLista", "Lista de agendamentos"),
        EntradaDeMenu("mnuImprimirListaDeAgendamentosParaTransporte", "mnuImprimirLista",
                      "Lista de agendamentos para transporte"),
        MenuPai("mnuImprimirFicha"),
        EntradaDeMenu("mnuImprimirFichaDoAgendamentoParaTransporte", "mnuImprimirFicha",
                      "Imprimir ficha do agendamento para transporte"),
        EntradaDeMenu("mnuImprimirFichaDoAgendamentoParaInspecaoDoAnimal", "mnuImprimirFicha",
                      "Imprimir ficha do agendamento para inspeção do animal"),
        EntradaDeMenu("Separador", "mnuImprimirFicha", "-"),
        EntradaDeMenu("mnuImprimirEtiquetaDeEndereco", "mnuImprimirFicha", "Etiqueta de endereço"),
    };
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmLista",
                      .caption = "Agenda",
                      .width = 15360,
                      .height = 10800,
                      .backColor = colours::White,
                      .bordered = false,
                      .resizable = true,
                      .leastWidth = 10290,
                      .leastHeight = 5400,
                      .controls = {}};
    Append(design.controls, CabecalhoEFiltros());
    Append(design.controls, GradeEBotoesDaLinha());
    Append(design.controls, Painel());
    Append(design.controls, DesenhoDaPlacaDeEspera());
    Append(design.controls, Menus());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmLista()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
