#pragma once

#include "agenda/contracts/business_services.hpp"
#include "agenda/contracts/widgets.hpp"

#include <span>
#include <string>
#include <vector>

namespace kova::agenda {

// What the two search dialogs do alike. Failures go up to the caller, which has set the checkpoint.

/// One column of a search dialog's grid.
struct ColunaDePesquisa {
    const char* titulo;
    /// Twips; 0 hides the column.
    Long largura;
    Integer alinhamento;
    /// Field of the record set; "" where the column has none.
    const char* campo;
};

/// Hides and empties the grid and gives it the look of both dialogs. It is not painted from here on, until
/// it has been filled.
void EsvaziarGradeDePesquisa(MSFlexGrid& grade);
/// One row, the header, with these columns.
void DefinirColunasDaPesquisa(MSFlexGrid& grade, std::span<const ColunaDePesquisa> colunas);
/// One row for each record, from the first on; paints the grid again. The first record's row is the current
/// one.
void PreencherLinhasDaPesquisa(MSFlexGrid& grade, std::span<const ColunaDePesquisa> colunas,
                               RecordSet& registros);

/// Whether a search has found more than the one row that is chosen by itself.
bool HaLinhasParaEscolher(const MSFlexGrid& grade);

/// The grid fills the form below the search fields; the button stands below its right end. Both are on show
/// afterwards.
void DisporGradeEBotao(const Form& formulario, MSFlexGrid& grade, KVCommandButton& kvcmdFechar);

/// What both dialogs have by design: the header with its title, the grid with its name for screen readers,
/// and the button that closes the dialog. The grid comes first, so that the keys choose a row at once, then
/// the button: from there on the keys go round as the eye reads.
std::vector<ControlDesign> DesenhoComumDaPesquisa(const std::string& titulo, const std::string& nomeDaGrade);
/// A label over a search field, `esquerda` twips from the left edge.
ControlDesign RotuloDaPesquisa(const std::string& nome, const std::string& legenda, const std::string& campo,
                               Twips esquerda);

/// Size of both dialogs, frame included: all columns and the scroll bar fit, on a screen of 1024 by 768 too.
inline constexpr Twips LarguraDaPesquisa = 14500;
inline constexpr Twips AlturaDaPesquisa = 9900;
/// What the box of the search, the headline, two rows and the button take.
inline constexpr Twips MenorLarguraDaPesquisa = 8100;
inline constexpr Twips MenorAlturaDaPesquisa = 4800;
/// Left edge of grid and fields.
inline constexpr Twips MargemDaPesquisa = 390;
/// Search fields stand between their labels and the grid.
inline constexpr Twips TopoDosCamposDaPesquisa = 1170;
inline constexpr Twips AlturaDosCamposDaPesquisa = 480;

} // namespace kova::agenda
