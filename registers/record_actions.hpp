#pragma once

#include "family/data/engine/key.hpp"
#include "family/users/rights.hpp"
#include "registers/desk.hpp"

#include <QString>

#include <functional>
#include <string_view>
#include <vector>

class QWidget;

namespace kova::registers {

/// What an action is done with: the stored row on show, of which nothing is typed that was not saved.
struct ActionTarget {
    /// Dialogs open over it.
    QWidget& over;
    const Desk& desk;
    family::Key key;
};

/// What is shown after an action.
struct ActionResult {
    /// The row that the form shows from then on, read anew; 0 for the form of a new one.
    family::Key key;
    /// What was done, for the line below the form; may be empty.
    QString told{};
};

/// What can be done with a row of a register beyond saving and removing it: an entry of the menu behind
/// "Mais...", which only registers with such actions have.
struct RecordAction {
    /// The register's name in the command line: "clientes".
    std::string_view registerName;
    /// With "&" before a letter that no other entry of the register has.
    QString text;
    /// Runs where the user has picked it, after asking what becomes of unsaved changes. A DatabaseFailure
    /// that comes out of it is shown.
    std::function<ActionResult(const ActionTarget& target)> run;
    /// It is offered to whoever has one of these; to everybody where there are none.
    std::vector<family::Right> rights{};
};

using RecordActions = std::vector<RecordAction>;

/// The actions of all registers, in the order of their entries. One more action is one more element there,
/// with its dialog in files of its own; no screen has to know of it.
RecordActions UsualActions();

} // namespace kova::registers
