#include "agenda/printing/frmImprimirAgenda_design.hpp"

#include "agenda/shared/dialog_design.hpp"
#include "agenda/shared/palette.hpp"

namespace kova::agenda {

namespace {

using namespace medidas_do_dialogo;

constexpr Twips LarguraDoFiltro = 3600;
constexpr Twips SegundaColuna = Margem + LarguraDoFiltro + Vao;
constexpr Twips LimiteDireito = SegundaColuna + LarguraDoFiltro;
constexpr Twips Largura = LimiteDireito + Margem;
constexpr Twips PrimeiraLinha = AlturaDoCabecalho + 240;
constexpr Twips SegundaLinha = PrimeiraLinha + PassoDasLinhas;
constexpr Twips TopoDosBotoes = SegundaLinha + PassoDasLinhas + 120;
constexpr Twips Altura = TopoDosBotoes + AlturaDoCampo + 240;
/// Its caption is longer than those of the record forms.
constexpr Twips LarguraDeVisualizar = 2300;

std::vector<ControlDesign> Filtro(const char* rotulo, const char* texto, const char* combo, Twips esquerda,
                                  Twips linha)
{
    return {RotuloDeCampo(rotulo, texto, combo, esquerda, linha),
            CaixaDeCampo(WidgetKind::KVComboBox, combo, esquerda, linha, LarguraDoFiltro)};
}

std::vector<ControlDesign> Rodape()
{
    constexpr Twips esquerdaDeCancelar = LimiteDireito - LarguraDoBotao;
    return {
        LegendaDeCamposObrigatorios(TopoDosBotoes),
        {.kind = WidgetKind::KVCommandButton,
         .name = "kvcmdVisualizarImpressao",
         .left = esquerdaDeCancelar - Vao - LarguraDeVisualizar,
         .top = TopoDosBotoes,
         .width = LarguraDeVisualizar,
         .height = AlturaDoCampo,
         .caption = "Visualizar impressão",
         .backColor = cores::Azul,
         .highlightColor = cores::AzulDeRealce,
         .fontColor = colours::White,
         .isDefault = true,
         .shortcut = "Ctrl+P"},
        {.kind = WidgetKind::KVCommandButton,
         .name = "kvcmdCancelar",
         .left = esquerdaDeCancelar,
         .top = TopoDosBotoes,
         .width = LarguraDoBotao,
         .height = AlturaDoCampo,
         .caption = "Cancelar",
         .backColor = colours::White,
         .highlightColor = cores::AzulDeRealce,
         .fontColor = cores::CinzaDeTexto,
         .isCancel = true},
    };
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmImprimirAgenda",
                      .caption = "Imprimir agenda",
                      .width = Largura + Moldura,
                      .height = Altura + MolduraETitulo,
                      .backColor = colours::White,
                      .controls = {CabecalhoDoDialogo("Imprimir agenda", Largura)}};
    for (const auto& parte :
         {Filtro("lblSituacao", "&Situação", "kvcmbSituacao", Margem, PrimeiraLinha),
          Filtro("lblTipoDeServico", "&Tipo de serviço", "kvcmbTiposDeServicos", SegundaColuna,
                 PrimeiraLinha),
          Filtro("lblFuncionario", "&Funcionário", "kvcmbFuncionarios", Margem, SegundaLinha),
          Filtro("lblTransporte", "T&ransporte", "kvcmbTransporte", SegundaColuna, SegundaLinha), Rodape()})
        design.controls.insert(design.controls.end(), parte.begin(), parte.end());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmImprimirAgenda()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
