#pragma once

#include "agenda/contracts/reports.hpp"

#include <string>
#include <vector>

/// The words in which the layouts are written. Places and sizes are twips, fonts points.
namespace kova::agenda::layout {

ReportControlDesign Label(std::string name, std::string caption, Twips left, Twips top, Twips width,
                          Twips height, float fontSize = 8.25F);
ReportControlDesign TextBox(std::string name, std::string field, Twips left, Twips top, Twips width,
                            Twips height, float fontSize = 9.75F);
/// Black; without a height it is horizontal.
ReportControlDesign Line(std::string name, Twips left, Twips top, Twips width, Twips height = 0);

ReportControlDesign Bold(ReportControlDesign control);
ReportControlDesign Right(ReportControlDesign control);
ReportControlDesign Centered(ReportControlDesign control);
ReportControlDesign CanGrow(ReportControlDesign control);
/// A text on a grey band.
ReportControlDesign OnGrey(ReportControlDesign control);
/// A line in light grey.
ReportControlDesign Light(ReportControlDesign control);

/// A report with the margins of all layouts.
ReportDesign Report(std::string name, Twips width, std::vector<ReportSectionDesign> sections);

} // namespace kova::agenda::layout
