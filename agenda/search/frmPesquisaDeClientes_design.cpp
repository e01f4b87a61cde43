#include "agenda/search/frmPesquisaDeClientes_design.hpp"

#include "agenda/search/search_dialog.hpp"
#include "agenda/shared/wait_plate.hpp"

namespace kova::agenda {

namespace {

constexpr const char* Caixa = "kvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo";

std::vector<ControlDesign> Campos()
{
    return {
        RotuloDaPesquisa("lblApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo",
                         "&Apelido, nome fantasia, nome, razão social ou código*", Caixa, MargemDaPesquisa),
        {.kind = WidgetKind::KVFind,
         .name = Caixa,
         .left = MargemDaPesquisa,
         .top = TopoDosCamposDaPesquisa,
         .width = 7200,
         .height = AlturaDosCamposDaPesquisa,
         .caption = "Apelido, nome fantasia, nome, razão social ou código*",
         .placeholder = "Pesquisar cliente",
         .announcesEndOfSearch = true},
    };
}

FormDesign Desenhar()
{
    FormDesign design{.name = "frmPesquisaDeClientes",
                      .caption = "Pesquisa de clientes",
                      .width = LarguraDaPesquisa,
                      .height = AlturaDaPesquisa,
                      .backColor = colours::White,
                      .resizable = true,
                      .leastWidth = MenorLarguraDaPesquisa,
                      .leastHeight = MenorAlturaDaPesquisa,
                      .controls = DesenhoComumDaPesquisa("Pesquisa de clientes", "Clientes encontrados")};
    for (const auto& parte : {Campos(), DesenhoDaPlacaDeEspera()})
        design.controls.insert(design.controls.end(), parte.begin(), parte.end());
    return design;
}

} // namespace

const FormDesign& DesenhoDefrmPesquisaDeClientes()
{
    static const FormDesign design = Desenhar();
    return design;
}

} // namespace kova::agenda
