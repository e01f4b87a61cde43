#include "agenda/full_record/frmSelecionarDatas.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/full_record/frmSelecionarDatas_design.hpp"
#include "agenda/shared/border_shape.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"
#include "agenda/shared/wait_plate.hpp"

#include <exception>

namespace kova::agenda {

namespace {

// Elements of the table's first dimension.
constexpr Long DataDeInicio = 0;
constexpr Long HoraDeInicio = 1;
constexpr Long DataDeTermino = 2;
constexpr Long HoraDeTermino = 3;

/// The time at which a service ends. Past midnight it counts from 00:00 again.
Text FimDoServico(const Text& inicio, const Text& tempo)
{
    const TimeOfDay duracao = RequireTime(tempo);
    const DateTime comeco{DateOfDayNumber(0), RequireTime(inicio)};
    return FormatTime(AddMinutes(comeco, duracao.hour * 60L + duracao.minute).time);
}

} // namespace

std::shared_ptr<frmSelecionarDatas> frmSelecionarDatas::Criar()
{
    std::shared_ptr<frmSelecionarDatas> formulario(new frmSelecionarDatas);
    formulario->Formulario->Owner(formulario);
    return formulario;
}

frmSelecionarDatas::frmSelecionarDatas()
    : Formulario(ThePlatform().Toolkit().CreateForm(DesenhoDefrmSelecionarDatas()))
{
    Formulario->OnLoad([this] { Form_Load(); });
    kvcmdSalvarFecharConfirmar.OnClick([this] { kvcmdSalvarFecharConfirmar_Click(); });
    kvcmdCancelar.OnClick([this] { kvcmdCancelar_Click(); });
}

frmSelecionarDatas::~frmSelecionarDatas()
{
    // The opener unloads it; this is for an opener that failed before.
    if (!Formulario->IsLoaded())
        return;
    try {
        Formulario->Unload();
    } catch (const std::exception&) {
        // The opener has reported its own failure, and the form goes with its last reference.
    }
}

void frmSelecionarDatas::MontarExibirFormulario()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmFicha, MontarExibirFormulario, Ponto: ", Ponto, [&] {
        Ponto = 1;
        DomingoOuFeriado = false;
        Ponto = 2;
        Formulario->Show(ShowMode::Modal);
    });
}

void frmSelecionarDatas::Form_Load()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmImprimirAgenda, Form_Load, Ponto: ", Ponto, [&] {
        Ponto = 1;
        AplicarBordaDoFormulario(*Formulario);
    });
}

void frmSelecionarDatas::CentralizarpicMensagem() { CentralizarPlacaDeEspera(*Formulario, picMensagem); }

void frmSelecionarDatas::ExibirOcultarpicMensagem(bool Exibir)
{
    ExibirOcultarPlacaDeEspera(*Formulario, picMensagem, Exibir);
}

void frmSelecionarDatas::kvcmdSalvarFecharConfirmar_Click()
{
    Integer Ponto = 0;
    Trap(", frmSelecionarDatas, kvcmdSalvarFecharConfirmar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (ValidarCampos() == 1)
            return;
        Ponto = 2;
        if (PreencherListaDasDatasEHorasSelecionadas_Click() == 1)
            return;
        Ponto = 3;
        OperacaoConcluida = true;
        Formulario->Hide();
    });
}

void frmSelecionarDatas::kvcmdCancelar_Click()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    Trap(", frmFicha, kvcmdCancelar_Click, Ponto: ", Ponto, [&] {
        Ponto = 1;
        OperacaoConcluida = false;
        Formulario->Hide();
    });
}

Integer frmSelecionarDatas::PreencherListaDasDatasEHorasSelecionadas_Click()
{
    Integer Ponto = 0;
    // After a failure the form stays open.
    constexpr Integer falhou = 1;
    constexpr auto rotulo = ", frmSelecionarDatas, PreencherListaDasDatasEHorasSelecionadas_Click, Ponto: ";
    return Trap(rotulo, Ponto, falhou, [&]() -> Integer {
        // The rows that count. Gaps between them disappear.
        Ponto = 1;
        std::array<bool, Linhas> preenchida{};
        Long quantidade = 0;
        for (std::size_t linha = 0; linha < Linhas; ++linha) {
            preenchida[linha] = LinhaPreenchida(linha);
            quantidade += preenchida[linha] ? 1 : 0;
        }

        // One element more than there are rows; the last one stays empty.
        Ponto = 2;
        ListaDasDatasEHorasSelecionadas = std::make_shared<Array>(HoraDeTermino, quantidade);

        Ponto = 3;
        Long elemento = 0;
        for (std::size_t linha = 0; linha < Linhas; ++linha) {
            if (preenchida[linha])
                PreencherElemento(*ListaDasDatasEHorasSelecionadas, elemento++, linha);
        }
        return 0;
    });
}

bool frmSelecionarDatas::LinhaPreenchida(std::size_t linha) const
{
    return kvtimHoraInicial[linha]->Text().find('_') == Text::npos && !DataVazia(linha);
}

void frmSelecionarDatas::PreencherElemento(Array& lista, Long elemento, std::size_t linha) const
{
    const Text data = kvdtpDataInicial[linha]->Text();
    const Text hora = kvtimHoraInicial[linha]->Text();
    lista.At(DataDeInicio, elemento) = data;
    lista.At(HoraDeInicio, elemento) = hora;
    // The date stays also where the end passes midnight: the reader of the table knows that an end before
    // its start is on the next day.
    lista.At(DataDeTermino, elemento) = data;
    lista.At(HoraDeTermino, elemento) = FimDoServico(hora, kvtxtTempoDoServico.Text());
}

} // namespace kova::agenda
