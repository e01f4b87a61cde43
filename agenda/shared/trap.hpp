#pragma once

#include "agenda/contracts/value.hpp"

#include <exception>
#include <type_traits>
#include <utility>

namespace kova::agenda {

/// Reports the failure in flight with the procedure's tag and checkpoint. A failure of the report
/// itself ends the procedure without a message.
void ReportTrapped(const char* tag, Integer Ponto) noexcept;

/// The trap of a procedure. `steps` is the procedure's body; it sets `Ponto` before each main step and
/// returns what the procedure answers. A failure ends the body, is reported once with the literal tag and the
/// checkpoint reached, and the caller of the procedure goes on: with the answer 0 or false, where there is
/// one. What the body did before stays done.
///
/// A tag is the place that a report names, the same one in all versions. Most name the procedure that they
/// stand in; some name another one, even of another form, and stay as they are: a comment there says "another
/// procedure's tag, on purpose".
template <class Steps> std::invoke_result_t<Steps> Trap(const char* tag, const Integer& Ponto, Steps&& steps)
{
    try {
        return std::forward<Steps>(steps)();
    } catch (const std::exception&) {
        ReportTrapped(tag, Ponto);
        return std::invoke_result_t<Steps>();
    }
}

/// The same for a procedure whose caller goes on with another answer after a failure.
template <class Answer, class Steps>
[[nodiscard]] Answer Trap(const char* tag, const Integer& Ponto, Answer afterFailure, Steps&& steps)
{
    try {
        return std::forward<Steps>(steps)();
    } catch (const std::exception&) {
        ReportTrapped(tag, Ponto);
        return afterFailure;
    }
}

} // namespace kova::agenda
