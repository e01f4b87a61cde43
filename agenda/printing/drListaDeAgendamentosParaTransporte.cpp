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
        2719,
        {
            Bold(Label("lblNomeDoAnimal", "Nome do animal", 2430, 2205, 2487, 225)),
            Bold(Label("lblHoraFinal", "Hr.fin.", 170, 2205, 550, 225)),
            Bold(Label("lblHoraInicial", "Hr.ini.", 170, 1650, 550, 225)),
            Bold(Label("lblCodigoDoCliente", "Código do Cliente", 790, 1650, 1590, 225)),
            Bold(Label("lblTipoDeServico", "Tipo de serviço", 6540, 2494, 3230, 225)),
            Bold(Label("lblEspecieDoAnimal", "Espécie do animal", 6540, 2205, 3230, 225)),
            Line("linSeparador", 170, 1587, 14940),
            Right(Label("lblData", "%d", 14030, 740, 855, 225)),
            Label("Label6", "%p", 14087, 1024, 240, 225),
            Label("Label7", "Página:", 13293, 1024, 750, 225),
            Label("lblEmissao", "Emissão:", 13293, 740, 690, 225),
            Right(Label("Label9", "%P", 14653, 1023, 255, 225)),
            Centered(Label("lblDe", "de", 14370, 1023, 285, 225)),
            Label("lblTitulo", "Título", 170, 736, 13046, 510, 20.25F),
            CanGrow(
                Bold(Label("lblNomeFantasiaDaEmpresa", "Nome fantasia da empresa", 170, 56, 14744, 624, 24))),
            Label("lblSubtitulo", "Lista completa classificada por", 170, 1307, 14744, 240, 9.75F),
            Bold(Label("lblEndereco", "Endereço", 6540, 1643, 8370, 225)),
            Bold(Label("lblNomeDoServico", "Nome do serviço", 9800, 2494, 5098, 225)),
            Bold(Label("lblNomeOuRazaoSocialDoCliente", "Nome/Razão Social", 2430, 1928, 4110, 225)),
            Bold(Label("lblApelidoOuNomeFantasiaDoCliente", "Apelido/Nome Fantasia", 2430, 1650, 4040, 225)),
            Bold(Label("lblCodigoDoAnimal", "Código do Animal", 790, 2205, 1590, 225)),
            Bold(Label("lblRacaDoAnimal", "Raça do animal", 4985, 2205, 1490, 225)),
            Line("Line1", 170, 2719, 14940),
            Bold(Label("lblObservacaoDoAgendamento", "Observação do agendamento", 2386, 2448, 4074, 225)),
            Bold(Label("lblTipoECanalDeComunicacao", "Canal de comunicação", 6540, 1935, 8372, 225)),
        }};
}

ReportSectionDesign Detalhes()
{
    return {ReportSectionKind::Details,
            "Detalhes",
            1189,
            {
                TextBox("txtHoraInicial", "HoraInicial", 170, 57, 550, 225),
                Light(Line("Line3", 170, 1184, 14769)),
                TextBox("txtHoraFinal", "HoraFinal", 170, 627, 550, 225),
                CanGrow(TextBox("txtNomeDoServico", "NomeDoServico", 9800, 912, 5098, 225)),
                CanGrow(TextBox("txtCodigoDoCliente", "CodigoDoCliente", 790, 57, 1590, 225)),
                CanGrow(TextBox("txtCodigoDoAnimal", "CodigoDoAnimal", 790, 627, 1590, 226)),
                CanGrow(TextBox("txtRacaDoAnimal", "NomeDaRaca", 4985, 627, 1490, 225)),
                CanGrow(TextBox("txtEnderecoDoCliente", "EnderecoCompletoComCEP", 6540, 53, 8368, 225)),
                CanGrow(TextBox("txtTipoDeServico", "NomeDoTipoDeServico", 6540, 907, 3230, 225)),
                CanGrow(TextBox("txtApelidoOuNomeFantasiaDoCliente", "ApelidoOuNomeFantasiaDoCliente", 2430,
                                57, 4040, 225)),
                CanGrow(TextBox("txtNomeDoAnimal", "NomeDoAnimal", 2430, 627, 2444, 225)),
                CanGrow(TextBox("txtNomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente", 2430, 340,
                                4053, 225)),
                CanGrow(TextBox("txtEspecieDoAnimal", "NomeDaEspecie", 6540, 627, 3230, 225)),
                CanGrow(TextBox("txtObservacaoDoAgendamento", "Observacao", 2386, 912, 4077, 225)),
                CanGrow(TextBox("txtComunicacao", "TiposECanaisDeComunicacao", 6540, 342, 8372, 225)),
            }};
}

ReportSectionDesign Rodape()
{
    return {ReportSectionKind::PageFoot,
            "RodapeDaPagina",
            570,
            {
                Line("Line2", 170, 113, 14712),
                Label("lblKovaris", "Kovaris", 170, 227, 1365, 180),
                Right(Label("lblTituloDoAplicativo", "Titulo do Aplicativo", 13180, 227, 1704, 240)),
            }};
}

} // namespace

const ReportDesign& DesenhoDedrListaDeAgendamentosParaTransporte()
{
    static const ReportDesign desenho =
        Report("drListaDeAgendamentosParaTransporte", 15110, {Cabecalho(), Detalhes(), Rodape()});
    return desenho;
}

} // namespace kova::agenda
