// The grid: its 39 columns, the page it shows, and the row under the mouse.

#include "agenda/contracts/text.hpp"
#include "agenda/list/frmLista.hpp"
#include "agenda/shared/frmLista_columns.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/palette.hpp"
#include "agenda/shared/trap.hpp"

namespace kova::agenda {

namespace {

constexpr Long AlturaDoCabecalho = 700;
constexpr Long AlturaDaLinha = 570;

/// A Null cell is empty in the columns that may hold one; elsewhere it is a failure of the fill.
Text TextoDaColuna(const RecordSet& pagina, const Coluna& coluna)
{
    const Value valor = pagina.Field(coluna.campo);
    return coluna.aceitaNulo && valor.IsNull() ? Text() : valor.ToText();
}

} // namespace

Integer frmLista::ConfigurarGrade()
{
    Integer Ponto = 0;
    Trap(", frmLista, ConfigurarGrade, Ponto: ", Ponto, [&] {
        Ponto = 1;
        msfgGrade.Visible(false);
        msfgGrade.Redraw(false);
        msfgGrade.Clear();
        msfgGrade.FocusRect(0);
        msfgGrade.Appearance(0);
        msfgGrade.BorderStyle(0);
        msfgGrade.AllowUserResizing(1);
        msfgGrade.FixedCols(0);
        msfgGrade.FontName("Arial");
        msfgGrade.FontSize(11);
        msfgGrade.BackColorFixed(cores::CinzaDeCabecalho);
        msfgGrade.BackColorSel(cores::Cinza);
        msfgGrade.ForeColorSel(colours::ButtonText);
        msfgGrade.BackColorBkg(colours::White);
        msfgGrade.GridColor(cores::CinzaDeGrade);
        msfgGrade.BackColor(colours::White);
        msfgGrade.ForeColor(colours::Black);
        msfgGrade.GridColorFixed(cores::CinzaDeGrade);
        msfgGrade.GridLines(0);
        msfgGrade.GridLinesFixed(0);
        msfgGrade.GridLineWidth(1);
        msfgGrade.WordWrap(true);
        msfgGrade.ScrollBars(0);

        Ponto = 2;
        msfgGrade.Rows(1);
        msfgGrade.Cols(QuantidadeDeColunas);
        if (msfgGrade.Rows() > 1)
            msfgGrade.FixedRows(1);

        Ponto = 3;
        for (const Coluna& coluna : ColunasDaGrade()) {
            msfgGrade.TextMatrix(0, coluna.numero, coluna.titulo);
            msfgGrade.ColWidth(coluna.numero, coluna.largura);
            msfgGrade.ColAlignment(coluna.numero, coluna.alinhamento);
            msfgGrade.ColData(coluna.numero, 0);
        }

        Ponto = 4;
        for (Long coluna = 0; coluna <= msfgGrade.Cols() - 1; ++coluna) {
            msfgGrade.Row(0);
            msfgGrade.Col(coluna);
            msfgGrade.CellFontBold(true);
            msfgGrade.CellForeColor(coluna == 1 ? cores::CinzaMedio : colours::Black);
            msfgGrade.BackColorFixed(colours::White);
        }

        Ponto = 5;
        msfgGrade.Redraw(true);
    });
    return 0;
}

Integer frmLista::PreencherGrade()
{
    Integer Ponto = 0;
    Trap(", frmLista, PreencherGrade, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (ResultadoDaSelecao()->RecordCount() == 0)
            return;

        Ponto = 2;
        ResultadoDaSelecao()->AbsolutePage(PaginaAtual);

        Ponto = 3;
        ObjectRef copia;
        objAgendaDaLista->Call("PaginarResultadoDaSelecaoEmRecordset",
                               {ByRef(RegistrosPorPagina), ByRef(copia)});
        const auto pagina = Value(copia).ToObject<RecordSet>();

        Ponto = 4;
        const Integer quantidade = Checked(pagina->RecordCount() - 1);

        Ponto = 5;
        msfgGrade.Redraw(false);
        msfgGrade.Rows(quantidade + 2);
        if (msfgGrade.Rows() > 1)
            msfgGrade.FixedRows(1);

        Ponto = 6;
        msfgGrade.RowHeight(0, AlturaDoCabecalho);
        pagina->MoveFirst();

        Ponto = 7;
        for (Long linha = 1; !pagina->Eof(); ++linha) {
            PreencherLinha(linha, *pagina);
            pagina->MoveNext();
        }

        Ponto = 8;
        if (picPainel.Visible())
            AtualizarPainel();

        Ponto = 9;
        msfgGrade.Redraw(true);
        Ponto = 10;
    });
    return 0;
}

void frmLista::PreencherLinha(Long linha, const RecordSet& pagina)
{
    // The row's height.
    msfgGrade.RowHeight(linha, AlturaDaLinha);

    // The colours of all its cells.
    const Colour fundo = linha % 2 != 0 ? cores::CinzaClaro : colours::White;
    for (Long coluna = 0; coluna <= msfgGrade.Cols() - 1; ++coluna) {
        msfgGrade.Col(coluna);
        msfgGrade.Row(linha);
        msfgGrade.CellBackColor(fundo);
        msfgGrade.CellForeColor(coluna == colunas::NumeroDeLancamento ? cores::CinzaMedio : colours::Black);
    }

    // The fields up to the status.
    for (Long coluna = colunas::NumeroDeLancamento; coluna <= colunas::Situacao; ++coluna)
        msfgGrade.TextMatrix(linha, coluna,
                             TextoDaColuna(pagina, ColunasDaGrade()[static_cast<std::size_t>(coluna)]));

    // The picture of the status; any other status has none.
    msfgGrade.Row(linha);
    msfgGrade.Col(colunas::FiguraDaSituacao);
    msfgGrade.CellPictureAlignment(grid_alignment::CentreMiddle);
    msfgGrade.CellPicture(FiguraDaSituacao(pagina.Field("Situacao").ToDouble()));

    // Who included and changed it, and when.
    for (Long coluna = colunas::DataEHoraDaInclusao; coluna <= colunas::UsuarioDaAlteracao; ++coluna)
        msfgGrade.TextMatrix(linha, coluna,
                             TextoDaColuna(pagina, ColunasDaGrade()[static_cast<std::size_t>(coluna)]));
}

Picture frmLista::FiguraDaSituacao(Double numero) const
{
    if (numero == situacao::Agendado)
        return imgEtiqueta_Situacao_Agendado.Picture();
    if (numero == situacao::Atendido)
        return imgEtiqueta_Situacao_Atendido.Picture();
    if (numero == situacao::Cancelado)
        return imgEtiqueta_Situacao_Cancelado.Picture();
    if (numero == situacao::AtendidoEGeradoPreVenda)
        return imgEtiqueta_Situacao_Atendido_Gerado_PreVenda.Picture();
    return {};
}

void frmLista::msfgGrade_SelChange()
{
    Integer Ponto = 0;
    Trap(", frmLista, msfgGrade_SelChange, Ponto: ", Ponto, [&] {
        Ponto = 1;
        if (msfgGrade.RowSel() != msfgGrade.Row()) {
            msfgGrade.Row(msfgGrade.RowSel());
            msfgGrade.ColSel(msfgGrade.Cols() - 1);
        }
    });
}

void frmLista::msfgGrade_MouseMove(Integer, Integer, Twips, Twips Y)
{
    Integer Ponto = 0;
    Trap(", frmLista, msfgGrade_MouseMove, Ponto: ", Ponto, [&] {
        Ponto = 2;
        // Rounding finds the row below a header of 700 twips: with rows of 570, 155 would meet their edges,
        // and 150 changes the row 5 twips below each.
        const Integer linhaSobOMouse =
            RoundToInteger((static_cast<Double>(Y) + 150) / static_cast<Double>(msfgGrade.RowHeight(1)) - 1);

        Ponto = 3;
        if (linhaSobOMouse == UltimaLinhaSobOMouse)
            return;

        Ponto = 4;
        UltimaLinhaSobOMouse = linhaSobOMouse;

        Ponto = 5;
        if (linhaSobOMouse >= 1 && linhaSobOMouse <= msfgGrade.Rows() - 1) {
            Ponto = 6;
            msfgGrade.Col(colunas::NomeOuRazaoSocialDoCliente);
            msfgGrade.Row(linhaSobOMouse);
            if (picPainel.Visible())
                AtualizarPainel();
            PosicionarBotoesDaLinha();

            Ponto = 7;
            msfgGrade.SelectionMode(1);
            msfgGrade.Col(0);
            msfgGrade.Row(linhaSobOMouse);
            msfgGrade.ColSel(msfgGrade.Cols() - 1);
        } else {
            Ponto = 8;
            for (KVCommandButton* botao : BotoesDaLinha())
                botao->Visible(false);

            Ponto = 9;
            msfgGrade.SelectionMode(0);
            msfgGrade.Col(0);
            msfgGrade.Row(1);
        }
    });
}

std::array<KVCommandButton*, 8> frmLista::BotoesDaLinha()
{
    return {&kvcmdMarcarAgendamentoComoAgendado,
            &kvcmdMarcarAgendamentoComoAtendido,
            &kvcmdMarcarAgendamentoComoCancelado,
            &kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda,
            &kvcmdDetalhar,
            &kvcmdAlterar,
            &kvcmdExcluir,
            &kvcmdImprimirFicha};
}

void frmLista::PosicionarBotoesDaLinha()
{
    // The first button stands 4560 twips from the right end of the name's column, the last one 570.
    Twips distancia = 4560;
    for (KVCommandButton* botao : BotoesDaLinha()) {
        botao->Left(msfgGrade.Left() + static_cast<Twips>(msfgGrade.CellLeft() + msfgGrade.CellWidth())
                    - distancia);
        botao->Top(msfgGrade.Top() + static_cast<Twips>(msfgGrade.CellTop()));
        botao->Visible(true);
        distancia -= static_cast<Twips>(AlturaDaLinha);
    }
}

} // namespace kova::agenda
