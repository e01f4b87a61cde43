#pragma once

#include "agenda/contracts/reports.hpp"

namespace kova::agenda {

// The four report layouts: sections, controls, places, texts. Printing replaces the captions of company and
// application, and of the lists also those of title and subtitle: these are placeholders.

/// The day's appointments, three lines each.
const ReportDesign& DesenhoDedrListaDeAgendamentos();
/// The same for the driver, four lines each: with address and codes, without the employee.
const ReportDesign& DesenhoDedrListaDeAgendamentosParaTransporte();
/// One appointment on a page.
const ReportDesign& DesenhoDedrFichaDoAgendamentoParaTransporte();
/// One animal's form, to be filled in by hand.
const ReportDesign& DesenhoDedrFichaDoAgendamentoParaInspecaoDoAnimal();

} // namespace kova::agenda
