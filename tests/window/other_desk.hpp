#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/data/engine/database.hpp"

#include <functional>
#include <memory>

namespace kova::window_test {

/// A colleague, Marcos, who works on the same shop at the computer BALCAO-2 by a connection of his own, at
/// 09:30 on 20/11/2026. What he cannot do fails the test.
class OtherDesk {
public:
    explicit OtherDesk(const std::string& database);

    /// Books a bath of 23:00 to 23:45 on 20/11/2026 for customer 10's animal 14 with the remark "Laço azul.".
    /// Answers its number.
    family::Key Books();
    void Changes(family::Key number, const std::function<void(family::AppointmentInput&)>& change);

private:
    std::shared_ptr<family::Database> database_;
};

} // namespace kova::window_test
