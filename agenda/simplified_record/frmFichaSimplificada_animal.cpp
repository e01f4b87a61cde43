// The animal's three combos: sex, species and breed.

#include "agenda/contracts/text.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modFundoEscuro.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/simplified_record/frmFichaSimplificada.hpp"

namespace kova::agenda {

namespace {

/// Fills a combo with names and codes. Both a failure and an empty register take the dimming away.
void PreencherCombo(KVComboBox& combo, const char* classe, const std::vector<Argument>& argumentos,
                    const Text& mensagemSemLinhas, Integer& Ponto)
{
    Ponto = 1;
    ComponentRef objeto = CreateObject(classe);

    Ponto = 2;
    if (objeto->Call("SelecionarParaComboBox", argumentos).ToInteger() != 0) {
        MensagemDeErroDoObjeto(*objeto);
        objeto.reset();
        RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
        return;
    }

    Ponto = 3;
    const auto registros = objeto->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
    objeto.reset();
    combo.Clear();
    if (registros->RecordCount() == 0) {
        ExibirInformacao(mensagemSemLinhas);
        RemoverFundoEscuro(Principal.HandleDaJanelaPrincipal);
        return;
    }

    Ponto = 4;
    for (; !registros->Eof(); registros->MoveNext()) {
        combo.AddItem(registros->Field("Nome").ToText());
        combo.ItemData(combo.NewIndex(), registros->Field("Codigo").ToLong());
    }
}

} // namespace

void frmFichaSimplificada::PreencherComboboxEspeciesDeAnimais()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, PreencherComboboxEspeciesDeAnimais, Ponto: ", Ponto, [&] {
        Double filtro = 0;
        PreencherCombo(
            kvcmbEspeciesDeAnimais, "KOVA_N_EspecRacas.clsEspecies", {ByRef(filtro)},
            Text("Nenhuma espécie de animais cadastrado.") + QuebraDeLinha
                + "É necessário ter no mínimo uma espécie de animais cadastrada para incluir um animal.",
            Ponto);
    });
}

void frmFichaSimplificada::PreencherComboboxRacasDeAnimais(Double codigoDaEspecie)
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, PreencherComboboxRacasDeAnimais, Ponto: ", Ponto, [&] {
        Double filtro = 0;
        PreencherCombo(kvcmbRacasDeAnimais, "KOVA_N_EspecRacas.clsRacas",
                       {ByRef(codigoDaEspecie), ByRef(filtro)},
                       Text("Nenhuma Raça de animal cadastrada ou ativa.") + QuebraDeLinha
                           + "É necessário ter no mínimo uma raça de animal cadastrada ou ativa para incluir "
                             "um agendamento simplificado.",
                       Ponto);
    });
}

void frmFichaSimplificada::PreencherkvcmbSexo()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose: that of a form in another module.
    Trap(", frmFichaDeClientesEAnimais, PreencherkvcmbSexo, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvcmbSexoDoAnimal.Clear();
        kvcmbSexoDoAnimal.AddItem("Fêmea");
        kvcmbSexoDoAnimal.ItemData(kvcmbSexoDoAnimal.NewIndex(), 0);
        kvcmbSexoDoAnimal.AddItem("Macho");
        kvcmbSexoDoAnimal.ItemData(kvcmbSexoDoAnimal.NewIndex(), 1);
        kvcmbSexoDoAnimal.ListIndex(-1);
    });
}

void frmFichaSimplificada::ExibirAnimal(const Text& sexo, const Text& especie, const Text& raca)
{
    const auto exibirSo = [this](KVComboBox& combo, const Text& texto) {
        combo.Clear();
        combo.AddItem(texto);
        Estado.IgnorarEventoDeCampo = true;
        combo.ListIndex(0);
    };
    exibirSo(kvcmbSexoDoAnimal, sexo);
    exibirSo(kvcmbEspeciesDeAnimais, especie);
    exibirSo(kvcmbRacasDeAnimais, raca);
}

void frmFichaSimplificada::PreencherAnimal(const Text& sexo, const Text& especie, const Text& raca)
{
    if (!Trim(sexo).empty()) {
        Estado.IgnorarEventoDeCampo = true;
        kvcmbSexoDoAnimal.Text(sexo);
    }
    if (!especie.empty() && SelecionarPeloTexto(kvcmbEspeciesDeAnimais, especie))
        PreencherComboboxRacasDeAnimais(kvcmbEspeciesDeAnimais.ItemData(kvcmbEspeciesDeAnimais.ListIndex()));
    if (!raca.empty())
        SelecionarPeloTexto(kvcmbRacasDeAnimais, raca);
}

bool frmFichaSimplificada::SelecionarPeloTexto(KVComboBox& combo, const Text& texto)
{
    const Integer linhas = combo.ListCount();
    for (Integer linha = 0; linha < linhas; ++linha) {
        Estado.IgnorarEventoDeCampo = true;
        combo.ListIndex(linha);
        if (combo.Text() == texto)
            return true;
    }
    // A name that the register no longer has stays on show, and is stored again as it is.
    combo.Text(texto);
    return false;
}

void frmFichaSimplificada::kvcmbEspeciesDeAnimais_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvcmbEspeciesDeAnimais_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (EventoIgnorado(Estado))
            return;

        Ponto = 2;
        PreencherComboboxRacasDeAnimais(kvcmbEspeciesDeAnimais.ItemData(kvcmbEspeciesDeAnimais.ListIndex()));
    });
}

void frmFichaSimplificada::kvcmbRacasDeAnimais_DropDown()
{
    Integer Ponto = 0;
    Trap(", frmFichaSimplificada, kvcmbRacasDeAnimais_DropDown, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (!Trim(kvcmbEspeciesDeAnimais.Text()).empty())
            return;
        ExibirInformacao("Selecione uma espécie de animal.");
        kvcmbEspeciesDeAnimais.SetFocus();
    });
}

} // namespace kova::agenda
