#include "agenda/search/search_dialog.hpp"

#include "agenda/shared/palette.hpp"

#include <algorithm>

namespace kova::agenda {

namespace {

constexpr Long AlturaDoCabecalho = 300;
constexpr Long AlturaDaLinha = 570;
constexpr Long ColunaDoCodigo = 1;

constexpr Twips TopoDaGrade = 1725;
constexpr Twips ForaDaGrade = 2700;
constexpr Twips EntreGradeEBotao = 240;

void DarAparencia(MSFlexGrid& grade)
{
    grade.FocusRect(0);
    grade.Appearance(0);
    grade.BorderStyle(0);
    grade.AllowUserResizing(1);
    grade.FixedCols(0);
    grade.FontName("Arial");
    grade.FontSize(11);
    grade.BackColorFixed(cores::CinzaDeCabecalho);
    grade.BackColorSel(cores::CinzaClaro);
    grade.ForeColorSel(colours::ButtonText);
    grade.BackColorBkg(colours::White);
    grade.GridColor(cores::CinzaDeGrade);
    grade.GridColorFixed(cores::CinzaDeGrade);
    grade.BackColor(colours::White);
    grade.ForeColor(colours::Black);
    grade.GridLines(0);
    grade.GridLinesFixed(0);
    grade.GridLineWidth(1);
    grade.WordWrap(true);
    grade.ScrollBars(2);
}

void ColorirLinha(MSFlexGrid& grade, Long linha, Long colunas)
{
    const Colour fundo = linha % 2 == 0 ? cores::CinzaClaro : cores::Cinza;
    for (Long coluna = 0; coluna < colunas; ++coluna) {
        grade.Col(coluna);
        grade.Row(linha);
        grade.CellBackColor(fundo);
        grade.CellForeColor(coluna == ColunaDoCodigo ? cores::CinzaMedio : colours::Black);
    }
}

void EscreverCampos(MSFlexGrid& grade, Long linha, std::span<const ColunaDePesquisa> colunas,
                    const RecordSet& registros)
{
    Long coluna = 0;
    for (const ColunaDePesquisa& dados : colunas) {
        if (*dados.campo != '\0')
            grade.TextMatrix(linha, coluna, registros.Field(dados.campo).ToText());
        ++coluna;
    }
}

} // namespace

void EsvaziarGradeDePesquisa(MSFlexGrid& grade)
{
    grade.Visible(false);
    grade.Redraw(false);
    grade.Clear();
    DarAparencia(grade);
}

void DefinirColunasDaPesquisa(MSFlexGrid& grade, std::span<const ColunaDePesquisa> colunas)
{
    grade.Rows(1);
    grade.Cols(static_cast<Long>(colunas.size()));
    if (grade.Rows() > 1)
        grade.FixedRows(1);
    Long coluna = 0;
    for (const ColunaDePesquisa& dados : colunas) {
        grade.TextMatrix(0, coluna, dados.titulo);
        grade.ColWidth(coluna, dados.largura);
        grade.ColAlignment(coluna, dados.alinhamento);
        ++coluna;
    }
}

void PreencherLinhasDaPesquisa(MSFlexGrid& grade, std::span<const ColunaDePesquisa> colunas,
                               RecordSet& registros)
{
    grade.Redraw(false);
    grade.Rows(registros.RecordCount() + 1);
    const bool temLinhas = grade.Rows() > 1;
    if (temLinhas) {
        grade.FixedRows(1);
        registros.MoveFirst();
    }
    grade.RowHeight(0, AlturaDoCabecalho);
    for (Long linha = 1; !registros.Eof(); ++linha) {
        grade.RowHeight(linha, AlturaDaLinha);
        ColorirLinha(grade, linha, static_cast<Long>(colunas.size()));
        EscreverCampos(grade, linha, colunas, registros);
        registros.MoveNext();
    }
    // Filling has left the cursor in the last cell; the keys start at the top.
    if (temLinhas) {
        grade.Row(1);
        grade.Col(ColunaDoCodigo);
        grade.TopRow(1);
    }
    grade.Redraw(true);
}

bool HaLinhasParaEscolher(const MSFlexGrid& grade) { return grade.Rows() > 2; }

void DisporGradeEBotao(const Form& formulario, MSFlexGrid& grade, KVCommandButton& kvcmdFechar)
{
    grade.Visible(false);
    kvcmdFechar.Visible(false);

    grade.Top(formulario.ScaleTop() + TopoDaGrade);
    grade.Left(formulario.ScaleLeft() + MargemDaPesquisa);
    // A window may be drawn smaller than its margins.
    grade.Width(std::max<Twips>(formulario.ScaleWidth() - 2 * grade.Left(), 0));
    grade.Height(std::max<Twips>(formulario.ScaleHeight() - ForaDaGrade, 0));
    kvcmdFechar.Left(grade.Left() + grade.Width() + 10 - (kvcmdFechar.Width() + 250));
    kvcmdFechar.Top(grade.Top() + grade.Height() + EntreGradeEBotao);

    grade.Visible(true);
    kvcmdFechar.Visible(true);
}

std::vector<ControlDesign> DesenhoComumDaPesquisa(const std::string& titulo, const std::string& nomeDaGrade)
{
    return {
        {.kind = WidgetKind::KVTheme,
         .name = "kvTheme",
         // As wide as the dialog can become: a form does not lay its header out.
         .width = 57600,
         .height = 795,
         .caption = titulo,
         .backColor = cores::CinzaClaro},
        {.kind = WidgetKind::MSFlexGrid,
         .name = "msfgGrade",
         .left = MargemDaPesquisa,
         .top = TopoDaGrade,
         .width = LarguraDaPesquisa - 2 * MargemDaPesquisa,
         .height = AlturaDaPesquisa - ForaDaGrade,
         .accessibleName = nomeDaGrade,
         .cellLimit = false,
         .selectionMode = 1},
        {.kind = WidgetKind::KVCommandButton,
         .name = "kvcmdFechar",
         .left = LarguraDaPesquisa - 2250,
         .top = AlturaDaPesquisa - 735,
         .width = 1500,
         .height = 510,
         .caption = "Fechar",
         .backColor = cores::AzulEscuro,
         .highlightColor = cores::AzulDeRealce,
         .fontColor = colours::White,
         .isCancel = true},
    };
}

ControlDesign RotuloDaPesquisa(const std::string& nome, const std::string& legenda, const std::string& campo,
                               Twips esquerda)
{
    return {.kind = WidgetKind::Label,
            .name = nome,
            .left = esquerda,
            .top = TopoDosCamposDaPesquisa - 255,
            .width = 6000,
            .height = 240,
            .caption = legenda,
            .labelOf = campo,
            .fontSize = 9,
            .foreColor = cores::Rotulo};
}

} // namespace kova::agenda
