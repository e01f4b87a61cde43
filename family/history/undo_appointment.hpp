#pragma once

#include "family/history/undo.hpp"

/// What undo.cpp does with a line about an appointment that was changed or deleted, and of which nothing was
/// changed since as far as the audit tells.
namespace kova::family::history {

UndoPlan PlanUndoOfAppointment(Database& database, const Author& author, const Line& line);

/// Answers why nothing was undone; empty where it was.
std::string UndoInAppointment(Database& database, const Author& author, const Line& line);

} // namespace kova::family::history
