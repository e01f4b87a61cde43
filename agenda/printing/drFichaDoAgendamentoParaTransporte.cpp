#include "agenda/printing/layouts.hpp"

#include "agenda/printing/layout_parts.hpp"

namespace kova::agenda {

namespace {

using namespace layout;

ReportSectionDesign Cabecalho()
{
    return {ReportSectionKind::PageHead,
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
                Label("lblTitulo", "Agendamento", 170, 793, 7688, 510, 20.25F),
                CanGrow(Bold(
                    Label("lblNomeFantasiaDaEmpresa", "Nome fantasia da empresa", 170, 113, 9842, 624, 24))),
                Label("lblSubtitulo", "Ficha para transporte", 170, 1364, 9842, 240, 9.75F),
            }};
}

ReportSectionDesign Detalhes()
{
    return {
        ReportSectionKind::Details,
        "Detalhes",
        9110,
        {
            Light(Line("Line1", 227, 8825, 9810)),
            TextBox("txtDataEHoraInicialDoAgendamento", "DataEHoraInicialDoAgendamento", 2650, 6527, 2566,
                    240),
            TextBox("txtDataEHoraFinalDoAgendamento", "DataEHoraFinalDoAgendamento", 2650, 6867, 2566, 240),
            Bold(
                Label("lblDataEHoraInicialDoAgendamento", "Data/Hora Inicial:", 227, 6527, 2381, 240, 9.75F)),
            Bold(Label("lblDataEHoraFinalDoAgendamento", "Data/Hora Final:", 227, 6867, 2381, 240, 9.75F)),
            Bold(Label("lblCodigoDoAnimal", "Código:", 227, 2660, 2385, 250, 9.75F)),
            TextBox("txtCodigoDoAnimal", "CodigoDoAnimal", 2650, 2660, 2595, 250),
            Bold(Label("lblNomeDoAnimal", "Nome:", 227, 2998, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtNomeDoAnimal", "NomeDoAnimal", 2650, 2998, 7300, 250)),
            Bold(Label("lblNomeDoServico", "Nome do Serviço:", 227, 5618, 2385, 240, 9.75F)),
            Bold(Label("lblObservacaoDoAgendamento", "Observação:", 227, 7259, 2381, 240, 9.75F)),
            CanGrow(TextBox("txtObservacaoDoAgendamento", "ObservacaoDoAgendamento", 2650, 7259, 7300, 240)),
            Bold(Label("lblCodigoDoCliente", "Código:", 227, 615, 2385, 240, 9.75F)),
            TextBox("txtCodigoDoCliente", "CodigoDoCliente", 2650, 614, 2595, 240),
            Bold(Label("lblNomeOuRazaoDoCliente", "Nome/Razão Social:", 227, 1236, 2385, 240, 9.75F)),
            CanGrow(TextBox("txtNomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente", 2650, 1236, 7300,
                            240)),
            Bold(Label("lblCodigoDoServico", "Código do Serviço:", 227, 5334, 2385, 240, 9.75F)),
            TextBox("txtCodigoDoServico", "CodigoDoServico", 2650, 5334, 2585, 240),
            TextBox("txtNomeDoServico", "NomeDoServico", 2650, 5618, 7300, 240),
            Bold(Label("lblApelidoOuNomeFantasiaDoCliente", "Apelido/Nome Fantasia:", 227, 953, 2385, 240,
                       9.75F)),
            CanGrow(TextBox("txtApelidoOuNomeFantasiaDoCliente", "ApelidoOuNomeFantasiaDoCliente", 2650, 953,
                            7300, 240)),
            OnGrey(Bold(Label("lblCliente", "Cliente:", 227, 265, 2381, 240, 9.75F))),
            Light(Line("Line8", 227, 548, 9810)),
            Bold(Label("lblEnderecoDoCliente", "Endereço:", 227, 1521, 2385, 240, 9.75F)),
            CanGrow(TextBox("txtEnderecoDoCliente", "EnderecoDoCliente", 2650, 1521, 7300, 240)),
            OnGrey(Bold(Label("lblAnimal", "Animal:", 227, 2317, 2381, 225, 9.75F))),
            Light(Line("Line9", 227, 2600, 9810)),
            Bold(Label("lblSexo", "Sexo:", 227, 3291, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtSexoDoAnimal", "SexoDoAnimal", 2650, 3290, 2595, 250)),
            Bold(Label("lblEspecie", "Espécie:", 227, 3573, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtEspecieDoAnimal", "EspecieDoAnimal", 2650, 3573, 7300, 250)),
            Bold(Label("lblRaca", "Raça", 227, 3856, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtRacaDoAnimal", "RacaDoAnimal", 2650, 3856, 7300, 250)),
            Bold(Label("lblPorte", "Porte:", 227, 4137, 2385, 250, 9.75F)),
            CanGrow(TextBox("txtPorteDoAnimal", "PorteDoAnimal", 2650, 4137, 2595, 250)),
            OnGrey(Bold(Label("lblServico", "Serviço:", 227, 4654, 2381, 240, 9.75F))),
            Light(Line("Line10", 227, 4937, 9810)),
            OnGrey(Bold(Label("lblAgendamento", "Agendamento:", 227, 6136, 2381, 240, 9.75F))),
            Light(Line("Line3", 227, 6404, 9808, 15)),
            TextBox("txtTransporteBuscarDoAgendamento", "TransporteBuscarDoAgendamento", 2707, 8009, 2566,
                    240),
            TextBox("txtTransporteLevarDoAgendamento", "TransporteLevarDoAgendamento", 2707, 8349, 2566, 240),
            Bold(Label("lblTransporteBuscarDoAgendamento", "Buscar:", 227, 8009, 2381, 240, 9.75F)),
            Bold(Label("lblTransporteLevarDoAgendamento", "Levar:", 227, 8349, 2381, 240, 9.75F)),
            OnGrey(Bold(Label("lblTransporte", "Transporte:", 227, 7618, 2381, 240, 9.75F))),
            Light(Line("Line4", 227, 7886, 9808, 15)),
            Bold(Label("lblTipoDeServico", "Tipo de  Serviço:", 227, 5049, 2385, 240, 9.75F)),
            TextBox("txtTipoDeServico", "TipoDeServico", 2650, 5049, 7300, 240),
            CanGrow(TextBox("txtCanalDeComunicacaoDoCliente", "TiposECanaisDeComunicacao", 2650, 1806, 7300,
                            240)),
            Bold(Label("lblComunicacao", "Comunicação:", 227, 1806, 2385, 240, 9.75F)),
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

const ReportDesign& DesenhoDedrFichaDoAgendamentoParaTransporte()
{
    static const ReportDesign desenho =
        Report("drFichaDoAgendamentoParaTransporte", 10125, {Cabecalho(), Detalhes(), Rodape()});
    return desenho;
}

} // namespace kova::agenda
