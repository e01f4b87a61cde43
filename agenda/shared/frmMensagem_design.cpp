#include "agenda/shared/frmMensagem_design.hpp"

#include "agenda/shared/palette.hpp"

namespace kova::agenda {

const FormDesign& DesenhoDefrmMensagem()
{
    static const FormDesign design{.name = "frmMensagem",
                                   .caption = "",
                                   .width = 4800,
                                   .height = 900,
                                   .backColor = cores::Azul,
                                   .bordered = false,
                                   .controls = {{.kind = WidgetKind::Label,
                                                 .name = "lblMensagem",
                                                 .left = 390,
                                                 .top = 300,
                                                 .caption = "Aguarde, acessando o sistema",
                                                 .autoSize = true,
                                                 .alignment = 2,
                                                 .fontSize = 12,
                                                 .foreColor = colours::White}}};
    return design;
}

} // namespace kova::agenda
