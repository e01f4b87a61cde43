#include "agenda/search/frmPesquisaDeServicos_design.hpp"

#include "agenda/search/search_dialog.hpp"
#include "agenda/shared/wait_plate.hpp"

namespace kova::agenda {

namespace {

constexpr Twips EsquerdaDoTipo = MargemDaPesquisa;
constexpr Twips LarguraDoTipo = 3600;
constexpr Twips EsquerdaDoCodigoOuNome = EsquerdaDoTipo + LarguraDoTipo + 180;

std::vector<ControlDesign> Campos()
{
    return {
        RotuloDaPesquisa("lblTipoDeServico", "&Tipo de serviço*", "kvcmbTiposDeServicos", EsquerdaDoTipo),
        {.kind = WidgetKind::KVComboBox,
         .name = "kvcmbTiposDeServicos",
         .left = EsquerdaDoTipo,
         .top = TopoDosCamposDaPesquisa,
         .width = LarguraDoTipo,
         .height = AlturaDosCamposDaPesquisa},
        RotuloDaPesquisa("lblCodigoOuNome", "&Código ou nome*", "kvfndCodigoOuNome", EsquerdaDoCodigoOuNome),
        {.kind = WidgetKind::KVFind,
         .name = "kvfndCodigoOuNome",
         .left = EsquerdaDoCodigoOuNome,
         .top = TopoDosCamposDaPesquisa,
         .width = 6000,
         .height = AlturaDosCamposDaPesquisa,
         .caption = "Código ou nome*",
         .enabled = false,
         .placeholder = "Pesquisar serviço",
         .announcesEndOfSearch = true},
    };
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmPesquisaDeServicos",
                      .caption = "Pesquisa de serviços",
                      .width = LarguraDaPesquisa,
                      .height = AlturaDaPesquisa,
                      .backColor = colours::White,
                      .resizable = true,
                      .leastWidth = MenorLarguraDaPesquisa,
                      .leastHeight = MenorAlturaDaPesquisa,
                      .controls = DesenhoComumDaPesquisa("Pesquisa de serviços", "Serviços encontrados")};
    for (const auto& parte : {Campos(), DesenhoDaPlacaDeEspera()})
        design.controls.insert(design.controls.end(), parte.begin(), parte.end());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmPesquisaDeServicos()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
