#pragma once

#include "agenda/contracts/reports.hpp"

namespace kova::agenda {

// The four report layouts: sections, controls, places, texts. Captions of company, title, subtitle and
// application are placeholders that printing replaces.

/// The day's appointments, three lines each.
const ReportDesign& DesenhoDedrListaDeAgendamentos();
/// The same for the driver: with address and codes, without the employee.
const ReportDesign& DesenhoDedrListaDeAgendamentosParaTransporte();
/// One appointment on a page.
const ReportDesign& DesenhoDedrFichaDoAgendamentoParaTransporte();
/// One animal's form, to be filled in by hand.
const ReportDesign& DesenhoDedrFichaDoAgendamentoParaInspecaoDoAnimal();

} // namespace kova::agenda
