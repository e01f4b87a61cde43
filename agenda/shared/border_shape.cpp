#include "agenda/shared/border_shape.hpp"

#include "agenda/contracts/text.hpp"
#include "agenda/shared/modArredondarCantosDoObjeto.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

bool SistemaTemCantosRetos()
{
    const ComponentRef objVersao = CreateObject("KOVA_N_SO.clsObterVersaoDoSO");
    return UpperCase(objVersao->Call("ObterversaoDoSO").ToText()) == UpperCase(SistemaDeCantosRetos);
}

void AdicionarMoldura(Form& formulario)
{
    Widget& moldura = formulario.Add(WidgetKind::Shape, "lshpObj");
    moldura.Visible(true);
    moldura.Top(formulario.ScaleTop());
    moldura.Left(formulario.ScaleLeft());
    moldura.Height(formulario.ScaleHeight());
    moldura.Width(formulario.ScaleWidth());
}

void AplicarBordaDoFormulario(Form& formulario)
{
    if (SistemaTemCantosRetos())
        AdicionarMoldura(formulario);
}

} // namespace kova::agenda
