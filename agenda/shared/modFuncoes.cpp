#include "agenda/shared/modFuncoes.hpp"

#include "agenda/shared/module_platform.hpp"

namespace kova::agenda {

namespace {

/// Tells the toolkit of the pause for as long as it lasts, also where an event ends it by a failure.
class AnnouncedPause {
public:
    explicit AnnouncedPause(Double seconds) { ThePlatform().Toolkit().PauseBegins(seconds); }
    ~AnnouncedPause() { ThePlatform().Toolkit().PauseEnds(); }
    AnnouncedPause(const AnnouncedPause&) = delete;
    AnnouncedPause& operator=(const AnnouncedPause&) = delete;
};

} // namespace

void Pausar(Double Segundos)
{
    const AnnouncedPause pausa(Segundos);
    const Double inicio = ThePlatform().Clock().Timer();
    while (ThePlatform().Clock().Timer() - inicio < Segundos)
        ThePlatform().Toolkit().ProcessPendingEvents();
}

} // namespace kova::agenda
