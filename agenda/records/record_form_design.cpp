#include "agenda/records/record_form_design.hpp"

#include "agenda/shared/palette.hpp"

namespace kova::agenda {

using Kind = WidgetKind;
using namespace medidas_da_ficha;

namespace {

ControlDesign Botao(const char* nome, const char* texto, Twips esquerda, Twips topo)
{
    return {.kind = Kind::KVCommandButton,
            .name = nome,
            .left = esquerda,
            .top = topo,
            .width = LarguraDoBotao,
            .height = AlturaDoCampo,
            .caption = texto,
            .highlightColor = cores::AzulDeRealce};
}

} // namespace

ControlDesign CabecalhoDaFicha(const char* titulo) { return CabecalhoDoDialogo(titulo, LarguraInterna); }

ControlDesign SecaoDaFicha(const char* nome, const char* texto, Twips topo)
{
    return {.kind = Kind::Label,
            .name = nome,
            .left = Margem,
            .top = topo,
            .caption = texto,
            .autoSize = true,
            .fontSize = 11.25F,
            .fontBold = true,
            .foreColor = cores::Rotulo};
}

ControlDesign CampoDeCodigo(const char* nome, Twips esquerda, Twips linha, Twips largura)
{
    ControlDesign campo = CaixaDeCampo(Kind::KVFind, nome, esquerda, linha, largura);
    campo.style = 2;
    return campo;
}

ControlDesign CampoDeTexto(const char* nome, Twips esquerda, Twips linha, Twips largura, int limite)
{
    ControlDesign campo = CaixaDeCampo(Kind::KVTextBox, nome, esquerda, linha, largura);
    campo.backColor = colours::White;
    campo.maxLength = limite;
    return campo;
}

ControlDesign CampoSomenteLeitura(const char* nome, Twips esquerda, Twips linha, Twips largura, int limite)
{
    ControlDesign campo = CampoDeTexto(nome, esquerda, linha, largura, limite);
    campo.tabStop = false;
    campo.backColor = cores::CinzaDeLeitura;
    campo.locked = true;
    return campo;
}

ControlDesign ComNomeAcessivel(ControlDesign campo, const char* nome)
{
    campo.accessibleName = nome;
    return campo;
}

std::vector<ControlDesign> RodapeDaFicha(Twips topo)
{
    constexpr Twips esquerdaDoSegundo = BordaDireita - LarguraDoBotao;
    ControlDesign salvar =
        Botao("kvcmdSalvarFecharConfirmar", "Salvar", esquerdaDoSegundo - Vao - LarguraDoBotao, topo);
    salvar.backColor = cores::Azul;
    salvar.fontColor = colours::White;
    salvar.shortcut = "Ctrl+S";
    // In a detail view this one leaves, and the other leads into the alteration.
    salvar.isCancel = true;
    salvar.cancelCaption = "Fechar";
    ControlDesign cancelar = Botao("kvcmdCancelarAlterar", "Cancelar", esquerdaDoSegundo, topo);
    cancelar.backColor = colours::White;
    cancelar.fontColor = cores::CinzaDeTexto;
    cancelar.isCancel = true;
    cancelar.cancelCaption = "Cancelar";
    return {LegendaDeCamposObrigatorios(topo), salvar, cancelar};
}

} // namespace kova::agenda
