#pragma once

#include "agenda/contracts/value.hpp"

class QWidget;

namespace kova {
enum class MessageKind;
enum class Reply;
} // namespace kova

namespace kova::qt {

/// Shows a box and waits for the answer. "OK", or "Sim" and "Não" with "Não" as the default; Escape and
/// the closing cross answer Ok or No.
Reply ShowMessageBox(QWidget* over, MessageKind kind, const Text& text, const Text& title);

} // namespace kova::qt
