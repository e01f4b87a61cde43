#include "agenda/printing/appointment_card.hpp"

#include "agenda/contracts/support/memory_record_set.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/printing/layouts.hpp"
#include "agenda/printing/printed_report.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modPrincipal.hpp"

#include <cstddef>

namespace kova::agenda {

namespace {

using enum FieldType;

constexpr CampoImpresso Campos[] = {
    {"CodigoDoCliente", Integer32, 0, colunas::CodigoDoCliente, 0, "txtCodigoDoCliente"},
    {"ApelidoOuNomeFantasiaDoCliente", FixedText, 50, colunas::ApelidoOuNomeFantasiaDoCliente, 0,
     "txtApelidoOuNomeFantasiaDoCliente"},
    {"NomeOuRazaoSocialDoCliente", FixedText, 50, colunas::NomeOuRazaoSocialDoCliente, 0,
     "txtNomeOuRazaoSocialDoCliente"},
    {"EnderecoDoCliente", LongText, 0, colunas::EnderecoCompletoComCEP, 0, "txtEnderecoDoCliente"},
    {"TiposECanaisDeComunicacao", LongText, 0, colunas::TiposECanaisDeComunicacao, 0,
     "txtCanalDeComunicacaoDoCliente"},
    {"CodigoDoAnimal", Integer32, 0, colunas::CodigoDoAnimal, 0, "txtCodigoDoAnimal"},
    {"NomeDoAnimal", FixedText, 50, colunas::NomeDoAnimal, 0, "txtNomeDoAnimal"},
    {"SexoDoAnimal", FixedText, 5, colunas::SexoDoAnimal, 0, "txtSexoDoAnimal"},
    {"EspecieDoAnimal", FixedText, 50, colunas::NomeDaEspecie, 0, "txtEspecieDoAnimal"},
    {"RacaDoAnimal", FixedText, 50, colunas::NomeDaRaca, 0, "txtRacaDoAnimal"},
    {"PorteDoAnimal", FixedText, 7, colunas::PorteDoAnimal, 0, "txtPorteDoAnimal"},
    {"TipoDeServico", FixedText, 50, colunas::NomeDoTipoDeServico, 0, "txtTipoDeServico"},
    {"CodigoDoServico", Integer32, 0, colunas::CodigoDoServico, 0, "txtCodigoDoServico"},
    {"NomeDoServico", FixedText, 50, colunas::NomeDoServico, 0, "txtNomeDoServico"},
    // These two are shifted by a column: the card has always printed the start's time with the end's date,
    // and the end's time with the customer's code.
    {"DataEHoraInicialDoAgendamento", FixedText, 20, colunas::HoraInicial, colunas::DataFinal,
     "txtDataEHoraInicialDoAgendamento"},
    {"DataEHoraFinalDoAgendamento", FixedText, 20, colunas::HoraFinal, colunas::CodigoDoCliente,
     "txtDataEHoraFinalDoAgendamento"},
    {"ObservacaoDoAgendamento", LongText, 0, colunas::Observacao, 0, "txtObservacaoDoAgendamento"},
    {"TransporteBuscarDoAgendamento", FixedText, 3, colunas::TransporteBuscar, 0,
     "txtTransporteBuscarDoAgendamento"},
    {"TransporteLevarDoAgendamento", FixedText, 3, colunas::TransporteLevar, 0,
     "txtTransporteLevarDoAgendamento"},
};

/// Customer and animal; the appointment's own fields come after them.
constexpr std::size_t CamposDaInspecao = 11;

Text TextoDoCampo(const CampoImpresso& campo, const MSFlexGrid& grade)
{
    const Long linha = grade.Row();
    const Text texto = grade.TextMatrix(linha, campo.coluna);
    return campo.segundaColuna == 0 ? texto : texto + " " + grade.TextMatrix(linha, campo.segundaColuna);
}

} // namespace

FichaImpressa FichaParaTransporte()
{
    return {.instancia = Principal.drFichaDoAgendamentoParaTransporte,
            .desenho = DesenhoDedrFichaDoAgendamentoParaTransporte(),
            .titulo = "Imprimir ficha do agendamento para transporte",
            .campos = Campos,
            .aceitaCodigoEmBranco = false};
}

FichaImpressa FichaParaInspecaoDoAnimal()
{
    return {.instancia = Principal.drFichaDoAgendamentoParaInspecaoDoAnimal,
            .desenho = DesenhoDedrFichaDoAgendamentoParaInspecaoDoAnimal(),
            .titulo = "Imprimir ficha do agendamento para inspeção do animal",
            .campos = std::span(Campos).first(CamposDaInspecao),
            .aceitaCodigoEmBranco = true};
}

RecordSetRef MontarRegistroDaFicha(const FichaImpressa& ficha, const MSFlexGrid& grade)
{
    const auto registro = std::make_shared<MemoryRecordSet>();
    for (const CampoImpresso& campo : ficha.campos)
        registro->Append(campo.campo, campo.tipo, campo.tamanho);
    registro->Open();
    registro->AddNew();
    for (const CampoImpresso& campo : ficha.campos) {
        const Text texto = TextoDoCampo(campo, grade);
        const bool deixaVazio = ficha.aceitaCodigoEmBranco && campo.tipo == Integer32 && Trim(texto).empty();
        if (!deixaVazio)
            registro->SetField(campo.campo, texto);
    }
    registro->Update();
    return registro;
}

void VincularFicha(const FichaImpressa& ficha, Report& relatorio, const RecordSet& registro)
{
    ReportSection& detalhes = relatorio.Section(secoes::Detalhes);
    int numero = 0;
    for (const CampoImpresso& campo : ficha.campos)
        detalhes.TextBox(campo.caixa).DataField(registro.FieldName(numero++));
}

} // namespace kova::agenda
