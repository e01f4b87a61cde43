// The animal: one of the customer's, or the way to the customer.

#include "agenda/contracts/text.hpp"
#include "agenda/full_record/frmFichaCompleta.hpp"
#include "agenda/shared/mensagens.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

/// What clsAnimais.Selecionar answers for one animal.
namespace selecao_do_animal {
constexpr Integer Concluida = 0;
constexpr Integer FalhaTecnica = 1;
constexpr Integer Recusada = 2;
constexpr Integer Impedida = 3;
} // namespace selecao_do_animal

Text TextoDoEstouro()
{
    const Text& nome = Principal.NomeDaAplicacao;
    return "Houve um estouro no processamento devido as diversas tentativas de conexão com o banco de dados."
           "Para preservar os dados foi preciso encerrar o "
        + nome + ". Reinicie novamente o " + nome + ".";
}

} // namespace

Integer frmFichaCompleta::PreencherComboboxAnimal(Double Codigo)
{
    Integer Ponto = 0;
    return Trap(", frmFichaCompleta, PreencherComboboxAnimal, Ponto: ", Ponto, [&]() -> Integer {
        Ponto = 1;
        ExibirOcultarpicMensagem(true);
        ComponentRef objAnimais = CreateObject("KOVA_N_ClientAnim.clsAnimais");

        Ponto = 2;
        Double codigo = Codigo;
        if (objAnimais->Call("SelecionarParaComboBoxFiltradoPorCliente", {ByRef(codigo), Integer{1}})
                .ToInteger()
            != 0) {
            Ponto = 3;
            ExibirOcultarpicMensagem(false);
            MensagemDeErroDoObjeto(*objAnimais);
            return 1;
        }

        Ponto = 4;
        const auto registros = objAnimais->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objAnimais.reset();
        const bool vazio = registros->RecordCount() == 0;
        kvcmbAnimal.Clear();
        for (; !registros->Eof(); registros->MoveNext()) {
            kvcmbAnimal.AddItem(registros->Field("Nome").ToText());
            kvcmbAnimal.ItemData(kvcmbAnimal.NewIndex(), registros->Field("Codigo").ToLong());
        }

        Ponto = 5;
        ExibirOcultarpicMensagem(false);
        if (!vazio)
            return 0;
        ExibirInformacao(Text("Nenhum animal cadastrado.") + QuebraDeLinha
                         + "É necessário ter ao menos um animal cadastrado com as especificações "
                           "informadas para incluir ou alterar um agendamento.");
        return 1;
    });
}

void frmFichaCompleta::kvcmbAnimal_Click()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, kvcmbAnimal_Click, Ponto: ", Ponto, [&] {
        try {
            CarregarAnimal(Ponto);
        } catch (const Failure& falha) {
            // Only this procedure words a missing row in its own way.
            constexpr auto semLinha = FailureNumber::BadListRow;
            if (falha.Number() != static_cast<Long>(semLinha))
                throw;
            throw Failure(semLinha, TextoDoEstouro());
        }
    });
}

void frmFichaCompleta::CarregarAnimal(Integer& Ponto)
{
    Ponto = 1;
    ExibirOcultarpicMensagem(true);
    ComponentRef objAnimais = CreateObject("KOVA_N_ClientAnim.clsAnimais");

    Ponto = 2;
    const Integer situacao =
        objAnimais
            ->Call("Selecionar",
                   {Long{2}, Integer{0}, Long{1}, kvcmbAnimal.ItemData(kvcmbAnimal.ListIndex()), Integer{1},
                    Val(kvfCodigoDoCliente.Text())})
            .ToInteger();

    Ponto = 3;
    switch (situacao) {
    case selecao_do_animal::Concluida: {
        const auto registros = objAnimais->Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
        objAnimais.reset();
        ExibirAnimal(*registros);
        break;
    }
    case selecao_do_animal::FalhaTecnica: MensagemDeErroDoObjeto(*objAnimais); break;
    case selecao_do_animal::Recusada: ExibirInformacao(objAnimais->Get("DescricaoDaFalha").ToText()); break;
    case selecao_do_animal::Impedida: ExibirCritica(objAnimais->Get("DescricaoDaFalha").ToText()); break;
    default: break;
    }

    Ponto = 4;
    ExibirOcultarpicMensagem(false);
}

void frmFichaCompleta::ExibirAnimal(const RecordSet& registros)
{
    if (registros.RecordCount() == 0)
        return;
    kvtxtSexoDoAnimal.Text(registros.Field("Sexo").ToText());
    kvtxtEspecieDoAnimal.Tag(registros.Field("CodigoDaEspecie").ToText());
    kvtxtEspecieDoAnimal.Text(registros.Field("NomeDaEspecie").ToText());
    kvtxtRacaDoAnimal.Tag(registros.Field("CodigoDaRaca").ToText());
    kvtxtRacaDoAnimal.Text(registros.Field("NomeDaRaca").ToText());
    kvtxtCorDoAnimal.Text(registros.Field("Cor").ToText());
}

void frmFichaCompleta::LimparCamposDoAnimal()
{
    Integer Ponto = 0;
    Trap(", frmFichaCompleta, LimparCamposDoAnimal, Ponto: ", Ponto, [&] {
        Ponto = 1;
        kvcmbAnimal.Clear();
        // Species and breed keep their codes in Tag.
        kvtxtSexoDoAnimal.Text("");
        kvtxtEspecieDoAnimal.Text("");
        kvtxtRacaDoAnimal.Text("");
        kvtxtCorDoAnimal.Text("");
    });
}

} // namespace kova::agenda
