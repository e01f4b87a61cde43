#include "family/data/stores/last_appointment.hpp"

#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

class LastAppointment : public KeptStatement {
public:
    explicit LastAppointment(Database& database)
        : statement_(
            (database.Session().prepare
                 << "select coalesce(max(numero), 0) from agendamento where codigo_do_animal = :animal",
             soci::into(number_), soci::use(animal_, "animal")))
    {
    }

    Key Of(Key animal)
    {
        animal_ = animal;
        number_ = 0;
        statement_.execute(true);
        return number_;
    }

private:
    Key animal_ = 0, number_ = 0;
    soci::statement statement_;
};

} // namespace

Key LastAppointmentOf(Database& database, Key animal)
{
    return database.With<LastAppointment>([&](LastAppointment& last) { return last.Of(animal); });
}

} // namespace kova::family
