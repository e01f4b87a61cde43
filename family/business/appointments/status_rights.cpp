#include "family/business/appointments/status_rights.hpp"

#include "family/data/stores/appointment_status.hpp"
#include "family/users/user_rights.hpp"

namespace kova::family {

void RequireRightToStatus(Database& database, const Author& author, int from, int to)
{
    using namespace appointment_status;
    RequireRight(database, author, to == Cancelled ? Right::CancelAppointments : Right::ChangeAppointments);
    if (from == PreSaleGenerated && to != PreSaleGenerated)
        RequireRight(database, author, Right::UndoPreSales);
}

} // namespace kova::family
