#include "agenda/shared/dialog_design.hpp"

#include "agenda/shared/palette.hpp"

namespace kova::agenda {

using namespace medidas_do_dialogo;

ControlDesign CabecalhoDoDialogo(const char* titulo, Twips largura)
{
    return {.kind = WidgetKind::KVTheme,
            .name = "KVTheme",
            .width = largura,
            .height = AlturaDoCabecalho,
            .caption = titulo};
}

ControlDesign RotuloDeCampo(const char* nome, const char* texto, const char* campo, Twips esquerda,
                            Twips linha)
{
    return {.kind = WidgetKind::Label,
            .name = nome,
            .left = esquerda,
            .top = linha,
            .caption = texto,
            .autoSize = true,
            .labelOf = campo,
            .fontSize = 9,
            .foreColor = cores::Rotulo};
}

ControlDesign CaixaDeCampo(WidgetKind especie, const char* nome, Twips esquerda, Twips linha, Twips largura)
{
    return {.kind = especie,
            .name = nome,
            .left = esquerda,
            .top = linha + AlturaDoRotulo,
            .width = largura,
            .height = AlturaDoCampo};
}

ControlDesign LegendaDeCamposObrigatorios(Twips topo)
{
    return {.kind = WidgetKind::Label,
            .name = "lblObservacaoDeCamposObrigatorios",
            .left = Margem,
            .top = topo + (AlturaDoCampo - AlturaDoRotulo) / 2,
            .caption = "* Campos obrigatórios",
            .autoSize = true,
            .fontSize = 9,
            .foreColor = cores::Rotulo};
}

} // namespace kova::agenda
