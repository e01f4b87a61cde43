#include "host/session/newer_program.hpp"

#include "host/shell/main_window.hpp"
#include "system/program_path.hpp"

#include <utility>

namespace kova::host {

namespace {

constexpr int Minute = 60'000;

}

void TellOfNewerProgram(MainWindow& window)
{
    window.ShowNotice(
        QStringLiteral("programa"),
        QStringLiteral("Uma versão mais nova do programa foi instalada. Esta continua funcionando; feche-a e "
                       "abra o programa novamente quando for conveniente."));
}

NewerProgram::NewerProgram(Tell tell) : NewerProgram(std::move(tell), system::ProgramWasReplaced, Minute) { }

NewerProgram::NewerProgram(Tell tell, Look look, int milliseconds)
    : tell_(std::move(tell)), look_(std::move(look))
{
    timer_.setInterval(milliseconds);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
        if (!look_())
            return;
        timer_.stop();
        tell_();
    });
}

} // namespace kova::host
