#pragma once

class QComboBox;

namespace kova::family {
class Database;
}

namespace kova::timetable {

/// Adds who is active, as the shop calls them, with their codes as data. What cannot be read adds nobody:
/// what is read next fails, too, and says why.
void AddActiveEmployees(QComboBox& box, family::Database& database);

} // namespace kova::timetable
