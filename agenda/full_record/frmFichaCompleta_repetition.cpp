// The repeated booking: how often, how many times, or on which dates.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/full_record/frmFichaCompleta_design.hpp"
#include "agenda/full_record/frmSelecionarDatas.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

// Rows of the combos "Sim"/"Não" and of the unit.
constexpr Integer Sim = 0;
constexpr Integer Nao = 1;
constexpr Integer Semanas = 0;
constexpr Integer SelecionarDatas = 3;
constexpr Integer NenhumaUnidade = -1;

constexpr Integer TeclaDeApagar = 8;

void Acrescentar(KVComboBox& combo, const char* texto, Long itemData)
{
    combo.AddItem(texto);
    combo.ItemData(combo.NewIndex(), itemData);
}

} // namespace

void frmFichaCompleta::PreencherkvcmbReagendarPor()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, PreencherkvcmbReagendarPor, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvcmbReagendarPor.Clear();
        Acrescentar(kvcmbReagendarPor, "Semana(s)", 0);
        Acrescentar(kvcmbReagendarPor, "Quinzena(s)", 1);
        Acrescentar(kvcmbReagendarPor, "Mes(es)", 2);
        Acrescentar(kvcmbReagendarPor, "Selecionar datas", 3);
        Ponto = 2;
        kvcmbReagendarPor.ListIndex(Semanas);
    });
}

void frmFichaCompleta::PreencherkvComboBoxsSimENao()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, PreencherkvComboBoxsSimENao, Ponto: ", Ponto, [&] {
        Ponto = 1;
        for (KVComboBox* combo : {&kvcmbReagendar, &kvcmbBuscar, &kvcmbLevar}) {
            combo->Clear();
            Acrescentar(*combo, "Sim", -1);
            Acrescentar(*combo, "Não", 0);
            combo->ListIndex(Nao);
        }
    });
}

void frmFichaCompleta::kvcmbReagendar_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvcmbReagendar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (EventoIgnorado(Estado))
            return;

        if (kvcmbReagendar.ListIndex() == Sim) {
            Ponto = 2;
            lblReagendar.Caption("Reagendar por mais");
            kvcmbReagendar.Width(LarguraDeReagendarComUnidade);
            kvnumNumeroDeSemanas.Enabled(true);
            kvcmbReagendarPor.Enabled(true);
            kvcmbReagendarPor.TabStop(true);
            kvcmbReagendarPor.ListIndex(Semanas);
            return;
        }

        // The combo covers number and unit. Adding enables every combo afterwards, so Tab is told apart.
        Ponto = 3;
        lblReagendar.Caption("Reagendar");
        kvcmbReagendar.Width(LarguraDeReagendarSozinho);
        kvnumNumeroDeSemanas.Enabled(false);
        kvnumNumeroDeSemanas.Text("");
        kvcmbReagendarPor.Enabled(false);
        kvcmbReagendarPor.TabStop(false);
        kvcmbReagendarPor.ListIndex(NenhumaUnidade);
    });
}

void frmFichaCompleta::kvnumNumeroDeSemanas_KeyPress(Integer& KeyAscii)
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvnumNumeroDeSemanas_KeyPress, Ponto: ", Ponto, [&] {
        Ponto = 1;
        const bool digito = KeyAscii >= '0' && KeyAscii <= '9';
        if (!digito && KeyAscii != TeclaDeApagar)
            KeyAscii = 0;
    });
}

void frmFichaCompleta::kvcmbReagendarPor_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvcmbReagendarPor_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (EventoIgnorado(Estado) || kvcmbReagendarPor.ListIndex() != SelecionarDatas)
            return;

        // The date selection shows what is booked, so that must be there.
        if (ValidarCampos() == 1)
            return;

        // What it shows, and its first row.
        Ponto = 2;
        const auto datas = frmSelecionarDatas::Criar();
        datas->Formulario->Load();
        datas->kvtxtApelidoDoCliente.Text(kvfApelidoOuNomeFantasiaDoCliente.Text());
        datas->kvtxtNomeDoAnimal.Text(kvcmbAnimal.Text());
        datas->kvtxtNomeDoServico.Text(kvfNomeDoServico.Text());
        datas->kvtxtTempoDoServico.Text(kvtxtTempoDoServico.Text());
        datas->kvdtpDataInicial.front()->Text(kvdtpDataInicial.Text());
        datas->kvtimHoraInicial.front()->Text(kvtimHoraInicial.Text());

        // This form vanishes meanwhile; its own modal show goes on.
        Ponto = 3;
        AlturaDoFormulario = RoundToInteger(static_cast<Double>(Formulario->Height()));
        Formulario->Height(0);

        // Returns when the user has finished.
        Ponto = 4;
        datas->MontarExibirFormulario();

        // Confirming the dates saves at once.
        if (datas->OperacaoConcluida) {
            Ponto = 5;
            DomingoOuFeriado = datas->DomingoOuFeriado;
            ListaDasDatasEHorasSelecionadas = datas->ListaDasDatasEHorasSelecionadas;
            Formulario->Height(AlturaDoFormulario);
            datas->Formulario->Unload();
            Ponto = 6;
            kvcmdSalvarFecharConfirmar_Click();
            return;
        }

        // Without dates there is no repetition.
        Ponto = 7;
        kvcmbReagendar.ListIndex(Nao);
        Formulario->Height(AlturaDoFormulario);
        datas->Formulario->Unload();
    });
}

} // namespace kova::agenda
