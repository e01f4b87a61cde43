#pragma once

#include "registers/desk.hpp"
#include "registers/record_actions.hpp"

#include <QWidget>

#include <vector>

class QDialog;
class QListWidget;
class QPushButton;
class QStackedWidget;

namespace kova::registers {

class RegisterScreen;

/// "Cadastros": the names of the registers, and the screen of the one that is chosen. Screens are made when
/// they are first turned to, and keep what is typed in them.
class RegistersPage : public QWidget {
public:
    RegistersPage(Desk desk, QWidget* parent, RecordActions actions = UsualActions());
    ~RegistersPage() override;

    /// Where something is typed in any of them that was not saved: asks, one after the other. False where the
    /// user stays.
    bool MayLeave();
    /// Shows in every list what is stored now.
    void Refresh();

private:
    void LayOut(int widthOfNames);
    void AddShortcuts();
    QPushButton* FileButton(const QString& name, const QString& text, void (RegistersPage::*act)());
    void Import();
    void Export();
    void Open(QDialog& dialog);
    /// The name of the register on show.
    std::string_view CurrentName() const;
    void TurnTo(int row);
    /// To the register so many below, or above, in the list of them.
    void TurnBy(int step);
    RegisterScreen* Current() const;

    const Desk desk_;
    const RecordActions actions_;
    QListWidget* names_;
    QStackedWidget* pages_;
    /// By register; null until it is turned to.
    std::vector<RegisterScreen*> screens_;
};

} // namespace kova::registers
