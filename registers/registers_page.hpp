#pragma once

#include "registers/desk.hpp"
#include "registers/record_actions.hpp"

#include <QWidget>

#include <vector>

class QListWidget;
class QStackedWidget;

namespace kova::registers {

class RegisterScreen;

/// "Cadastros": the names of the registers, and the screen of the one that is chosen. Screens are made when
/// they are first turned to, and keep what is typed in them.
class RegistersPage : public QWidget {
public:
    RegistersPage(Desk desk, QWidget* parent, RecordActions actions = UsualActions());

    /// Where something is typed in any of them that was not saved: asks, one after the other. False where the
    /// user stays.
    bool MayLeave();

private:
    void AddShortcuts();
    void TurnTo(int row);
    RegisterScreen* Current() const;

    const Desk desk_;
    const RecordActions actions_;
    QListWidget* names_;
    QStackedWidget* pages_;
    /// By register; null until it is turned to.
    std::vector<RegisterScreen*> screens_;
};

} // namespace kova::registers
