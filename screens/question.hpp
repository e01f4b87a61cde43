#pragma once

#include <QString>

class QWidget;

namespace kova::screens {

/// What becomes of what is typed and not saved.
enum class WhatOfChanges { Save, Discard, Stay };

/// Escape stays.
WhatOfChanges AskAboutChanges(QWidget& over, const QString& title);
/// Whether what is typed may be forgotten; "Não" is offered.
bool AskToDiscard(QWidget& over);
/// Whether to go on with what was typed into that row when the program ended without a word; Escape does.
bool AskToContinue(QWidget& over, const QString& row);
/// Whether to save although of something that is told; "Não" is offered.
bool AskToSave(QWidget& over, const QString& concern);
/// Whether that row may be removed; "Não" is offered.
bool AskToRemove(QWidget& over, const QString& one);

/// "Sim" or "Não"; "Não" is offered.
bool AskWhether(QWidget& over, const QString& question);

void ShowWarning(QWidget& over, const QString& text);

} // namespace kova::screens
