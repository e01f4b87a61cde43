// The check of the twelve rows, from the first to the last.

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmSelecionarDatas.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

constexpr int Domingo = 1;
/// Characters of "dd/mm": holidays are looked up in every year.
constexpr std::size_t DiaEMes = 5;

/// A box without icon and without a title of its own.
void Avisar(const Text& mensagem) { ThePlatform().Toolkit().MessageBox(MessageKind::Plain, mensagem, ""); }

/// "Data inicial 3 '22/11/2026'", as the questions name a row.
Text Nomear(const char* campo, std::size_t linha, const Text& valor)
{
    return Text(campo) + " " + std::to_string(linha + 1) + " '" + valor + "'";
}

/// "hh:mm"; a text that is no time stays as it is.
Text HoraFormatada(const Text& hora)
{
    const auto lida = ParseTime(hora);
    return lida ? FormatTime(*lida) : hora;
}

bool JaPassou(const Text& hora) { return HoraFormatada(hora) < FormatTime(ThePlatform().Clock().Now().time); }

} // namespace

Integer frmSelecionarDatas::ValidarCampos()
{
    Integer Ponto = 0;
    // Another procedure's tag, on purpose.
    return Trap(", frmFicha, ValidarCampos, Ponto: ", Ponto, [&]() -> Integer {
        bool existeData = false;
        if (!LinhasValidas(existeData, Ponto))
            return 1;
        Ponto = 9;
        if (existeData)
            return 0;
        Avisar("Informe uma data para o agendamento.");
        kvdtpDataInicial.front()->SetFocus();
        return 1;
    });
}

bool frmSelecionarDatas::LinhasValidas(bool& existeData, Integer& Ponto)
{
    for (std::size_t linha = 0; linha < Linhas; ++linha) {
        Ponto = 1;
        if (DataVazia(linha))
            continue;
        existeData = true;
        if (!LinhaValida(linha, Ponto))
            return false;
    }
    return true;
}

bool frmSelecionarDatas::DataVazia(std::size_t linha) const
{
    const Text data = kvdtpDataInicial[linha]->Text();
    return data.empty() || data == EmptyDateMask;
}

bool frmSelecionarDatas::LinhaValida(std::size_t linha, Integer& Ponto)
{
    const Text numero = std::to_string(linha + 1);
    const Text D = kvdtpDataInicial[linha]->Text();
    const Text H = kvtimHoraInicial[linha]->Text();
    const auto mandarPara = [](Widget& campo) {
        campo.SetFocus();
        return false;
    };
    Widget& campoDaData = *kvdtpDataInicial[linha];
    Widget& campoDaHora = *kvtimHoraInicial[linha];

    // A date and a time must be there.
    Ponto = 2;
    const auto data = ParseDate(D);
    if (!data) {
        Avisar("Informe uma data inicial " + numero + " válida.");
        return mandarPara(campoDaData);
    }
    Ponto = 3;
    if (H == EmptyTimeMask) {
        Avisar("Informe uma hora inicial " + numero + " válida.");
        return mandarPara(campoDaHora);
    }

    // What is unusual, the user confirms.
    Ponto = 4;
    const Date hoje = ThePlatform().Clock().Now().date;
    const Text nomeDaData = Nomear("Data inicial", linha, D);
    if (*data < hoje && !Perguntar(nomeDaData + " é menor que a data atual. Confirma?"))
        return mandarPara(campoDaData);
    Ponto = 5;
    if (Weekday(*data) == Domingo
        && !ConfirmarOuReagendar(nomeDaData + " é um domingo. Confirma o agendamento?"))
        return mandarPara(campoDaData);
    Ponto = 6;
    if (*data == hoje && JaPassou(H)
        && !Perguntar(Nomear("Hora inicial", linha, H) + " é menor que o hora atual. Confirma?"))
        return mandarPara(campoDaHora);
    Ponto = 7;
    if (PesquisarFeridado(Left(D, DiaEMes))
        && !ConfirmarOuReagendar(nomeDaData + " é um feriado. Confirma o agendamento?"))
        return mandarPara(campoDaData);
    Ponto = 8;
    return true;
}

bool frmSelecionarDatas::ConfirmarOuReagendar(const Text& pergunta)
{
    if (Perguntar(pergunta)) {
        DomingoOuFeriado = false;
        return true;
    }
    if (!Perguntar("Gostaria de reagendar para o próximo dia útil?"))
        return false;
    DomingoOuFeriado = true;
    return true;
}

bool frmSelecionarDatas::PesquisarFeridado(const Text& Data)
{
    Integer Ponto = 0;
    return Trap(", frmSelecionarDatas, PesquisarFeridado, Ponto: ", Ponto, [&] {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objFeriados = CreateObject("KOVA_N_Feriados.clsFeriados");
        objFeriados->Set("DadosDoUsuario", Principal.DadosDoUsuario);

        Ponto = 2;
        Text data = Data;
        const bool falhou =
            objFeriados->Call("Selecionar", {Long{2}, Integer{0}, Long{0}, ByRef(data)}).ToBoolean();

        // A holiday that cannot be looked up stops no booking, and nothing is said of it.
        Ponto = 3;
        ExibirOcultarpicMensagem(false);
        if (falhou)
            return false;

        Ponto = 4;
        const auto registros = objFeriados->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objFeriados.reset();
        return registros->RecordCount() > 0;
    });
}

} // namespace kova::agenda
