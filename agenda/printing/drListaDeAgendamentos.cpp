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
        2548,
        {
            Bold(Label("lblNomeDoAnimal", "Nome do animal", 794, 2212, 2490, 225)),
            Bold(Label("lblHoraFinal", "Hr.fin.", 170, 2205, 550, 225)),
            Bold(Label("lblHoraInicial", "Hr.ini.", 170, 1650, 550, 225)),
            Bold(Label("lblTipoDeServico", "Tipo de serviço", 5045, 2212, 1950, 225)),
            Bold(Label("lblEspecieDoAnimal", "Espécie do animal", 3328, 2212, 1629, 225)),
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
            Bold(Label("lblNomeDoServico", "Nome do serviço", 7030, 2212, 3618, 225)),
            Bold(Label("lblNomeOuRazaoSocialDoCliente", "Nome/Razão Social", 3328, 1650, 7334, 225)),
            Bold(Label("lblApelidoOuNomeFantasia", "Apelido/Nome Fantasia", 781, 1650, 2501, 225)),
            Bold(Label("lblFuncionario", "Nome do funcionário", 10719, 1644, 4131, 225)),
            Line("Line1", 170, 2548, 14940),
            Bold(Label("lblObservacaoDoAgendamento", "Observação do agendamento", 10719, 2220, 4131, 225)),
            Bold(Label("lblTipoECanalDeComunicacao", "Canal de comunicação", 3328, 1935, 11552, 225)),
        }};
}

ReportSectionDesign Detalhes()
{
    return {ReportSectionKind::Details,
            "Detalhes",
            956,
            {
                TextBox("txtHoraInicial", "HoraInicial", 170, 57, 550, 225),
                Light(Line("Line3", 170, 956, 14769)),
                TextBox("txtHoraFinal", "HoraFinal", 170, 627, 550, 225),
                CanGrow(TextBox("txtNomeDoServico", "NomeDoServico", 7028, 625, 3618, 225)),
                CanGrow(TextBox("txtNomeDoFuncionario", "ApelidoDoFuncionario", 10719, 57, 4131, 225)),
                CanGrow(TextBox("txtTipoDeServico", "NomeDoTipoDeServico", 5045, 625, 1950, 225)),
                CanGrow(TextBox("txtApelidoOuNomeFantasiaDoCliente", "ApelidoOuNomeFantasiaDoCliente", 794,
                                57, 2490, 225)),
                CanGrow(TextBox("txtNomeDoAnimal", "NomeDoAnimal", 794, 627, 2490, 225)),
                CanGrow(TextBox("txtNomeOuRazaoSocialDoCliente", "NomeOuRazaoSocialDoCliente", 3328, 57, 7334,
                                225)),
                CanGrow(TextBox("txtEspecieDoAnimal", "NomeDaEspecie", 3328, 627, 1577, 225)),
                CanGrow(TextBox("txtObservacaoDoAgendamento", "Observacao", 10719, 627, 4131, 225)),
                CanGrow(TextBox("txtComunicacao", "TiposECanaisDeComunicacao", 3328, 342, 11552, 225)),
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

const ReportDesign& DesenhoDedrListaDeAgendamentos()
{
    static const ReportDesign desenho =
        Report("drListaDeAgendamentos", 15150, {Cabecalho(), Detalhes(), Rodape()});
    return desenho;
}

} // namespace kova::agenda
