#pragma once

#include "agenda/contracts/reports.hpp"

#include <functional>
#include <span>

namespace kova::agenda {

// What printing a list and printing a card have in common.

namespace secoes {
inline constexpr const char* Cabecalho = "CabecalhoDaPagina";
inline constexpr const char* Detalhes = "Detalhes";
inline constexpr const char* Rodape = "RodapeDaPagina";
} // namespace secoes

/// Which field of the record set a text box of the details shows.
struct Vinculo {
    const char* caixa;
    const char* campo;
};

/// The company's rows, standing on the first, which is the one that is printed. Null where the selection
/// failed or no company is registered: the user has been told then, after `antesDeAvisar` has run.
RecordSetRef SelecionarEmpresa(const std::function<void()>& antesDeAvisar);

/// The module's one report of that design, hidden: made at its first use and kept in `instancia`.
ReportRef InstanciaDoRelatorio(ReportRef& instancia, const ReportDesign& desenho);

/// Ties the text boxes of the details to their fields.
void Vincular(Report& relatorio, std::span<const Vinculo> vinculos);

// The preview leaves a report as designed, so the window and the paper are set anew for every one. Lists and
// cards write them in different orders, which a toolkit sees and a transcript shows: neither order changes.

/// The application's name at the foot of each page.
void EscreverNomeDoAplicativo(Report& relatorio);
void DarMargens(Report& relatorio);
/// Until the user closes it.
void VisualizarRelatorio(Report& relatorio);

} // namespace kova::agenda
