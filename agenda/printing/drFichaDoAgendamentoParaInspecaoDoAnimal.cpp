#include "agenda/printing/layouts.hpp"

#include "agenda/printing/layout_parts.hpp"

namespace kova::agenda {

namespace {

using namespace layout;

ReportSectionDesign Cabecalho()
{
    return {
        ReportSectionKind::PageHead,
        "CabecalhoDaPagina",
        1710,
        {
            Line("linSeparador", 170, 1707, 9810),
            Right(Label("lblData", "%d", 9128, 797, 855, 225)),
            Label("Label1", "%p", 9185, 1081, 240, 225),
            Label("Label2", "Página:", 8391, 1081, 737, 225),
            Right(Label("Label3", "%P", 9751, 1080, 255, 225)),
            Centered(Label("lblDe", "de", 9468, 1080, 282, 225)),
            Label("lblEmissao", "Emissão:", 8391, 797, 690, 225),
            Label("lblTitulo", "Inspeção de banho e tosa", 170, 793, 7688, 510, 20.25F),
            CanGrow(
                Bold(Label("lblNomeFantasiaDaEmpresa", "Nome fantasia da empresa", 170, 113, 9842, 624, 24))),
            Label("lblSubtitulo", "Ficha de inspeção do banho e tosa do animal", 170, 1364, 9842, 240, 9.75F),
        }};
}

ReportSectionDesign Detalhes()
{
    return {
        ReportSectionKind::Details,
        "Detalhes",
        12038,
        {
            Bold(Label("lblDataEHoraInicialDoAgendamento", "Tipo de Tosa:", 227, 5729, 2385, 285, 9.75F)),
            Right(Bold(Label("lblDataEHoraFinalDoAgendamento", "CheckUp:", 4840, 5729, 2385, 285, 9.75F))),
            Bold(Label("lblCodigoDoAnimal", "Código:", 227, 2432, 2385, 250, 9.75F)),
            TextBox("txtCodigoDoAnimal", "CodigoDoAnimal", 2650, 2432, 2595, 250),
            Bold(Label("lblNomeDoAnimal", "Nome:", 227, 2770, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtNomeDoAnimal", "NomeDoAnimal", 2650, 2770, 7300, 250)),
            Bold(Label("lblNomeDoServico", "Uso de anti-pulgas:", 227, 4991, 2385, 240, 9.75F)),
            Bold(Label("lblObservacaoDoAgendamento", "Observação:", 227, 8171, 2381, 240, 9.75F)),
            Bold(Label("lblCodigoDoCliente", "Código:", 227, 501, 2385, 240, 9.75F)),
            TextBox("txtCodigoDoCliente", "CodigoDoCliente", 2650, 500, 2595, 240),
            Bold(Label("lblNomeOuRazaoDoCliente", "Nome/Razão Social:", 227, 1122, 2385, 240, 9.75F)),
            CanGrow(TextBox("txtNomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente", 2650, 1122, 7300,
                            240)),
            Bold(Label("lblCodigoDoServico", "Nome do motorista:", 227, 4624, 2385, 240, 9.75F)),
            Bold(Label("lblApelidoOuNomeFantasiaDoCliente", "Apelido/Nome Fantasia:", 227, 839, 2385, 240,
                       9.75F)),
            CanGrow(TextBox("txtApelidoOuNomeFantasiaDoCliente", "ApelidoOuNomeFantasiaDoCliente", 2650, 839,
                            7300, 240)),
            OnGrey(Bold(Label("lblCliente", "Cliente:", 227, 151, 2381, 240, 9.75F))),
            Light(Line("Line8", 227, 434, 9810)),
            Bold(Label("lblEnderecoDoCliente", "Endereço:", 227, 1407, 2385, 240, 9.75F)),
            CanGrow(TextBox("txtEnderecoDoCliente", "EnderecoDoCliente", 2650, 1407, 7300, 240)),
            OnGrey(Bold(Label("lblAnimal", "Animal:", 227, 2089, 2381, 225, 9.75F))),
            Light(Line("Line9", 227, 2372, 9810)),
            Right(Bold(Label("lblSexo", "Sexo:", 6554, 3348, 675, 250, 9.75F))),
            CanGrow(TextBox("txtSexoDoAnimal", "SexoDoAnimal", 7267, 3347, 2652, 250)),
            Bold(Label("lblEspecie", "Espécie:", 227, 3060, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtEspecieDoAnimal", "EspecieDoAnimal", 2650, 3060, 3813, 250)),
            Bold(Label("lblRaca", "Raça", 227, 3343, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtRacaDoAnimal", "RacaDoAnimal", 2650, 3343, 3813, 250)),
            Right(Bold(Label("lblPorte", "Porte:", 6554, 3059, 675, 240, 9.75F))),
            CanGrow(TextBox("txtPorteDoAnimal", "PorteDoAnimal", 7267, 3062, 2652, 240)),
            OnGrey(Bold(Label("lblServico", "Dados do Checklist:", 227, 3856, 2381, 240, 9.75F))),
            Light(Line("Line10", 227, 4139, 9810)),
            Right(Bold(Label("lblVistoPor", "Visto", 9354, 11798, 555, 240, 9.75F))),
            Bold(Label("lblTipoDeServico", "Animal retirado (hora):", 227, 4308, 2385, 240, 9.75F)),
            CanGrow(TextBox("txtCanalDeComunicacaoDoCliente", "TiposECanaisDeComunicacao", 2650, 1692, 7300,
                            240)),
            Bold(Label("lblComunicacao", "Comunicação:", 227, 1692, 2385, 240, 9.75F)),
            Right(Bold(Label("Label4", "Animal entregado (hora):", 4703, 4308, 2526, 240, 9.75F))),
            Line("Line5", 2650, 4480, 1871),
            Line("Line6", 7310, 4480, 2610),
            Line("Line7", 2650, 4822, 7284),
            Label("Label5", "(    ) Sim  (    ) Não  Qual produto:  ", 2650, 4990, 3076, 284, 9.75F),
            Label("Label6", "(    )  Geral", 2650, 5731, 2100, 285, 9.75F),
            Label("Label7", "(    )  Pulga", 7279, 5731, 2613, 285, 9.75F),
            Label("Label8", "(    )  da raça", 2650, 6016, 2100, 285, 9.75F),
            Label("Label9", "(    )  Carrapato", 7279, 6016, 2613, 285, 9.75F),
            Label("Label10", "(    )  Higiênica", 2650, 6301, 2100, 285, 9.75F),
            Label("Label11", "(    )  Tártaro", 7279, 6301, 2613, 285, 9.75F),
            Label("Label12", "(    )  Tosa bebê", 2650, 6529, 2100, 285, 9.75F),
            Label("Label13", "(    )  Dermatite", 7279, 6529, 2613, 285, 9.75F),
            Label("Label14", "(    )  Pacote", 2650, 6871, 2100, 285, 9.75F),
            Label("Label15", "(    )  Otite", 7279, 6871, 2613, 285, 9.75F),
            Label("Label16", "(    )  Hidratação", 2650, 7156, 2100, 285, 9.75F),
            Label("Label17", "(    )  Olho", 7279, 7156, 2613, 285, 9.75F),
            Line("Line3", 2707, 8413, 7229),
            Line("Line11", 2707, 8755, 7229),
            Line("Line12", 2707, 9097, 7229),
            Line("Line13", 2707, 9439, 7229),
            Line("Line14", 5555, 5214, 4377),
            Label("Label18", "(    )  _______________", 2650, 7441, 2100, 285, 9.75F),
            Label("Label19", "(    )  ___________________", 7279, 7441, 2610, 285, 9.75F),
            Line("Line1", 6241, 11776, 3695),
        }};
}

ReportSectionDesign Rodape()
{
    return {ReportSectionKind::PageFoot,
            "RodapeDaPagina",
            660,
            {
                Line("Line2", 170, 114, 9810),
                Label("lblKovaris", "Kovaris", 170, 227, 1365, 225),
                Right(Label("lblTituloDoAplicativo", "Título do aplicativo", 8107, 227, 1875, 225)),
            }};
}

} // namespace

const ReportDesign& DesenhoDedrFichaDoAgendamentoParaInspecaoDoAnimal()
{
    static const ReportDesign desenho =
        Report("drFichaDoAgendamentoParaInspecaoDoAnimal", 10320, {Cabecalho(), Detalhes(), Rodape()});
    return desenho;
}

} // namespace kova::agenda
