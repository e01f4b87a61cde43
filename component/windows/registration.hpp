#pragma once

#include "agenda/contracts/component_server.hpp"

#include <windows.h>

#include <functional>
#include <vector>

namespace kova::component {

/// Writes the classes under a key that has such: the class's name with its identifier, the identifier with
/// the library's path and the rule that each object is used in the thread that made it. Answers the system's
/// code; where it is not 0, what was written is taken back.
LSTATUS RegisterClasses(HKEY classesKey, const std::vector<ClassRegistration>& classes);

/// Takes everything out that RegisterClasses has written. What is not there is no failure.
LSTATUS UnregisterClasses(HKEY classesKey, const std::vector<ClassRegistration>& classes);

/// Writes for all users of the computer; where that is not allowed, for this one. `write` is handed the root
/// of either and answers the system's code. False where it fails.
bool ForAllElseForOne(const std::function<LSTATUS(HKEY root)>& write);

/// The classes in the system's own place for them. Taking out goes for all users and for this one.
bool RegisterForSystem(const std::vector<ClassRegistration>& classes);
bool UnregisterForSystem(const std::vector<ClassRegistration>& classes);

/// The same for this user alone, also where the classes may be written for all; what all have stays as it is.
bool RegisterForUser(const std::vector<ClassRegistration>& classes);
bool UnregisterForUser(const std::vector<ClassRegistration>& classes);

} // namespace kova::component
