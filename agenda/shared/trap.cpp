#include "agenda/shared/trap.hpp"

#include "agenda/contracts/foreign_failure.hpp"
#include "agenda/shared/modConstantes.hpp"
#include "agenda/shared/modMensagemDeErro.hpp"

#include <exception>
#include <string>

namespace kova::agenda {

namespace {

void Report(const Failure& failure, const char* tag, Integer Ponto)
{
    MensagemDeErro(failure.Number(), failure.Description(),
                   NomeDoExecutavel + Text(tag) + std::to_string(Ponto));
}

/// The failure in flight, also where it comes from the language's own library.
Failure Current()
{
    try {
        throw;
    } catch (const std::exception& error) {
        return AsFailure(error);
    }
}

} // namespace

void ReportTrapped(const char* tag, Integer Ponto) noexcept
{
    try {
        Report(Current(), tag, Ponto);
    } catch (const std::exception&) {
        // The error screen could not be shown: there is nobody left to tell.
    }
}

} // namespace kova::agenda
