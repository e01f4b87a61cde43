#include "timetable/employees.hpp"

#include "agenda/contracts/failure.hpp"
#include "family/business/combo_selection.hpp"

#include <QComboBox>

namespace kova::timetable {

void AddActiveEmployees(QComboBox& box, family::Database& database)
{
    try {
        for (const family::ComboRow& employee : family::SelectEmployees(database, 0))
            box.addItem(QString::fromStdString(employee.text), static_cast<qlonglong>(employee.key));
    } catch (const Failure&) {
        // What is read next fails, too.
    }
}

} // namespace kova::timetable
