#pragma once

#include "agenda/contracts/reports.hpp"
#include "agenda/contracts/support/memory_record_set.hpp"
#include "agenda/contracts/widgets/grid.hpp"

#include <memory>
#include <span>

namespace kova::agenda {

/// One field of a card: where its text comes from, and the box that shows it.
struct CampoImpresso {
    const char* campo;
    FieldType tipo;
    /// Characters of a fixed text; 0 for the other types.
    Long tamanho;
    /// Column of frmLista's grid.
    Long coluna;
    /// A second column, shown after a blank; 0 is none.
    Long segundaColuna;
    const char* caixa;
};

/// What tells one card from the other.
struct FichaImpressa {
    ReportRef& instancia;
    const ReportDesign& desenho;
    /// Title of the preview's window.
    const char* titulo;
    /// In the order of the record set.
    std::span<const CampoImpresso> campos;
    /// A blank code stays empty; otherwise it is assigned, which fails.
    bool aceitaCodigoEmBranco;
};

FichaImpressa FichaParaTransporte();
FichaImpressa FichaParaInspecaoDoAnimal();

/// One record with the card's fields, filled from the grid's current row. Fails with -2147217887 where a
/// code is no number; a blank one passes on a card that accepts it.
RecordSetRef MontarRegistroDaFicha(const FichaImpressa& ficha, const MSFlexGrid& grade);

/// Ties the card's boxes to the fields of its record.
void VincularFicha(const FichaImpressa& ficha, Report& relatorio, const RecordSet& registro);

} // namespace kova::agenda
