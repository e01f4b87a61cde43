#include "agenda/records/service_choice.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/text.hpp"
#include "agenda/shared/modPrincipal.hpp"

namespace kova::agenda {

namespace {

Text HoraEMinuto(const Text& tempo)
{
    const auto lido = ParseTime(tempo);
    return lido ? FormatTime(*lido) : tempo;
}

Text CelulaEscolhida(const frmPesquisaDeServicos& pesquisa, Long coluna)
{
    return pesquisa.msfgGrade.TextMatrix(pesquisa.msfgGrade.RowSel(), coluna);
}

bool PesquisouTodosOsTipos(const KVComboBox& kvcmbTiposDeServicos)
{
    return kvcmbTiposDeServicos.ListIndex() == 0;
}

void SelecionarTipo(KVComboBox& kvcmbTiposDeServicos, EstadoDaFicha& estado, Double NumeroDoTipoDeServico)
{
    const Integer linha = LinhaDoItemData(kvcmbTiposDeServicos, NumeroDoTipoDeServico);
    if (linha == -1)
        return;
    estado.IgnorarEventoDeCampo = true;
    kvcmbTiposDeServicos.ListIndex(linha);
}

} // namespace

Text MensagemDeServicoNaoEncontrado(const Text& Nome, Double Codigo, const Text& tipo)
{
    const Text procurado = Nome.empty() ? "Nenhum produto encontrado com o código '" + TextOf(Codigo)
                                        : "Nenhum serviço encontrado com o nome '" + Nome;
    return procurado + "' informado e com o tipo de serviço '" + tipo + "'.";
}

void MostrarServicoEncontrado(const CaixasDoServico& caixas, const RecordSet& registros)
{
    caixas.kvfNomeDoServico.Status(find_status::Found);
    caixas.kvfCodigoDoServico.Status(find_status::Found);
    caixas.kvfNomeDoServico.Text(registros.Field("Nome").ToText());
    caixas.kvfCodigoDoServico.Text(registros.Field("Codigo").ToText());
    caixas.kvtxtTempoDoServico.Text(HoraEMinuto(registros.Field("TempoDeExecucao").ToText()));
}

void MostrarServicoEscolhido(const CaixasDoServico& caixas, const frmPesquisaDeServicos& pesquisa)
{
    caixas.kvfNomeDoServico.Status(find_status::Found);
    caixas.kvfCodigoDoServico.Status(find_status::Found);
    caixas.kvfCodigoDoServico.Text(TextOf(Val(CelulaEscolhida(pesquisa, colunas_de_servicos::Codigo))));
    caixas.kvfNomeDoServico.Text(CelulaEscolhida(pesquisa, colunas_de_servicos::Nome));
    caixas.kvtxtTempoDoServico.Text(CelulaEscolhida(pesquisa, colunas_de_servicos::TempoDeExecucao));
}

void SelecionarTipoEncontrado(KVComboBox& kvcmbTiposDeServicos, EstadoDaFicha& estado,
                              const RecordSet& registros)
{
    if (PesquisouTodosOsTipos(kvcmbTiposDeServicos))
        SelecionarTipo(kvcmbTiposDeServicos, estado, registros.Field("NumeroDoTipoDeServico").ToDouble());
}

void SelecionarTipoEscolhido(KVComboBox& kvcmbTiposDeServicos, EstadoDaFicha& estado,
                             const frmPesquisaDeServicos& pesquisa)
{
    if (PesquisouTodosOsTipos(kvcmbTiposDeServicos))
        SelecionarTipo(kvcmbTiposDeServicos, estado,
                       Val(CelulaEscolhida(pesquisa, colunas_de_servicos::NumeroDoTipoDeServico)));
}

std::shared_ptr<frmPesquisaDeServicos> AbrirPesquisaDeServicos(RecordSet& registros)
{
    auto pesquisa = frmPesquisaDeServicos::Criar();
    pesquisa->EfetuarOPreenchimentoDaComboboxTiposDeServicos = false;
    pesquisa->FormularioDeConsultaDePreco = false;
    pesquisa->ConfigurarGrade();
    pesquisa->PreencherGrade(registros);
    return pesquisa;
}

void SelecionarTipoNaPesquisa(frmPesquisaDeServicos& pesquisa, Integer linha)
{
    Principal.IgnorarClickDoTipoNaPesquisa = true;
    pesquisa.kvcmbTiposDeServicos.ListIndex(linha);
}

} // namespace kova::agenda
