#pragma once

#include "agenda/contracts/platform.hpp"

#include <string>
#include <vector>

namespace kova::reports {
struct Document;
}
namespace kova::toolkit {
class FormModel;
class MenuModel;
class ReportModel;
class WidgetCore;
struct KeyHelp;
} // namespace kova::toolkit

/// The lines that tell what forms and boxes did, whichever toolkit they did it on.
namespace kova::headless::lines {

std::string Shows(const toolkit::FormModel& form, ShowMode mode);
std::string Hides(const toolkit::FormModel& form);
std::string Unloads(const toolkit::FormModel& form);
std::string Repaints(const toolkit::FormModel& form);
std::string Focuses(const toolkit::WidgetCore& widget);
std::string PopsUp(const toolkit::MenuModel& parent, Twips x, Twips y);
std::string Keys(const Text& keys);
std::string Pause(Double seconds);
std::string Box(MessageKind kind, const Text& text, const Text& title, Reply reply);
std::string Unhandled(const Failure& failure);
std::string Report(const toolkit::ReportModel& report, const reports::Document& pages);
/// One line for the window and one for each key.
std::vector<std::string> Help(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys);

} // namespace kova::headless::lines
