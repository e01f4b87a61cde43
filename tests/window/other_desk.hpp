#pragma once

#include "family/business/appointments/appointment_input.hpp"
#include "family/data/audit/author.hpp"
#include "family/data/engine/database.hpp"

#include <functional>
#include <memory>

namespace kova::window_test {

/// A colleague, Marcos, who works on the same shop at another computer by a connection of his own, at 09:30
/// on 20/11/2026. What he cannot do fails the test.
class OtherDesk {
public:
    explicit OtherDesk(const std::string& database, const std::string& computer = "BALCAO-2");

    /// Books a bath on 20/11/2026 for customer 10's animal 14 with the remark "Laço azul.". Answers its
    /// number.
    family::Key Books(const std::string& from = "23:00", const std::string& until = "23:45");
    void Changes(family::Key number, const std::function<void(family::AppointmentInput&)>& change);
    void Deletes(family::Key number);

private:
    std::shared_ptr<family::Database> database_;
    const family::Author marcos_;
};

} // namespace kova::window_test
