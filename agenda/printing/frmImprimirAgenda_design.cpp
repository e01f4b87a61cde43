#include "agenda/printing/frmImprimirAgenda_design.hpp"

#include "agenda/records/record_form.hpp"
#include "agenda/records/record_form_design.hpp"

namespace kova::agenda {

namespace {

using namespace medidas_da_ficha;

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
    return {RotuloDaFicha(rotulo, texto, combo, esquerda, linha),
            CampoDaFicha(WidgetKind::KVComboBox, combo, esquerda, linha, LarguraDoFiltro)};
}

std::vector<ControlDesign> Rodape()
{
    constexpr Twips esquerdaDeCancelar = LimiteDireito - LarguraDoBotao;
    return {
        {.kind = WidgetKind::Label,
         .name = "lblObservacaoDeCamposObrigatorios",
         .left = Margem,
         .top = TopoDosBotoes + (AlturaDoCampo - AlturaDoRotulo) / 2,
         .caption = "* Campos obrigatórios",
         .autoSize = true,
         .fontSize = 9,
         .foreColor = CorDoRotulo},
        {.kind = WidgetKind::KVCommandButton,
         .name = "kvcmdVisualizarImpressao",
         .left = esquerdaDeCancelar - Vao - LarguraDeVisualizar,
         .top = TopoDosBotoes,
         .width = LarguraDeVisualizar,
         .height = AlturaDoCampo,
         .caption = "Visualizar impressão",
         .backColor = 16617293,
         .highlightColor = 14530157,
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
         .highlightColor = 14530157,
         .fontColor = 4210752,
         .isCancel = true},
    };
}

FormDesign Desenhar()
{
    ControlDesign cabecalho = CabecalhoDaFicha("Imprimir agenda");
    cabecalho.width = Largura;
    FormDesign design{.name = "frmImprimirAgenda",
                      .caption = "Imprimir agenda",
                      .width = Largura + Moldura,
                      .height = Altura + MolduraETitulo,
                      .backColor = colours::White,
                      .controls = {cabecalho}};
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
