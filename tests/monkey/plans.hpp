#pragma once

#include "tests/monkey/act.hpp"
#include "tests/monkey/words.hpp"

#include <deque>

namespace kova::monkey {

/// What a user sets out to do, as acts one after the other with the list in front: a booking from its
/// customer to "Salvar", a status, a repetition, something on paper. Chance fills in names, days and rows,
/// and what the application answers may well make the rest of it senseless. Who is careful chooses what goes
/// through.
std::deque<Act> PlanSomething(Chance& chance, const Words& words, bool isCareful);

} // namespace kova::monkey
