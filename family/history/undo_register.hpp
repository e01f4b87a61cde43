#pragma once

#include "family/history/undo.hpp"

/// The same as undo_appointment.hpp about a row of a register.
namespace kova::family::history {

UndoPlan PlanUndoInRegister(Database& database, const Author& author, const Line& line);

/// Answers why nothing was undone; empty where it was.
std::string UndoInRegister(Database& database, const Author& author, const Line& line);

} // namespace kova::family::history
