#pragma once

#include "agenda/contracts/value.hpp"

#include <exception>
#include <utility>

namespace kova::agenda {

/// Reports the failure in flight with the procedure's tag and checkpoint. A failure of the report
/// itself ends the procedure without a message.
void ReportTrapped(const char* tag, Integer Ponto) noexcept;

/// The trap of a procedure. `steps` is the procedure's body; it sets `Ponto` before each main step. A
/// failure ends the body, is reported once with the literal tag and the checkpoint reached, and the
/// caller of the procedure goes on. What the body did before stays done.
template <class Steps> void Trap(const char* tag, const Integer& Ponto, Steps&& steps)
{
    try {
        std::forward<Steps>(steps)();
    } catch (const std::exception&) {
        ReportTrapped(tag, Ponto);
    }
}

} // namespace kova::agenda
