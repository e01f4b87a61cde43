#pragma once

#include "family/users/user_rights.hpp"
#include "registers/desk.hpp"
#include "registers/record_actions.hpp"

#include <QWidget>

#include <vector>

class QBoxLayout;
class QDialog;
class QListWidget;
class QPushButton;
class QStackedWidget;

namespace kova::family::registers {
class Register;
}

namespace kova::registers {

class NamesPanel;
class RegisterScreen;

/// What a page has besides the usual registers.
struct RegistersChoice {
    /// What is offered behind "Mais...".
    RecordActions actions = UsualActions();
    /// Registers below the usual ones, which are there as long as `showsGuarded`; asked when the page is
    /// made, and when it is refreshed.
    std::vector<const family::registers::Register*> guarded{};
    std::function<bool()> showsGuarded = [] { return true; };
};

/// "Cadastros": the names of the registers, and the screen of the one that is chosen. Screens are made when
/// they are first turned to, and keep what is typed in them.
class RegistersPage : public QWidget {
public:
    RegistersPage(Desk desk, QWidget* parent, RegistersChoice choice = {});
    ~RegistersPage() override;

    /// Where something is typed in any of them that was not saved: asks, one after the other. False where the
    /// user stays.
    bool MayLeave();
    /// Shows in every list what is stored now, and the registers that the user may see now, and shuts what he
    /// may not do.
    void Refresh();

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void LayOut();
    void AddShortcuts();
    QPushButton* FileButton(const QString& name, const QString& text, void (RegistersPage::*act)());
    void Import();
    void Export();
    void Open(QDialog& dialog);
    /// The name of the register on show.
    std::string_view CurrentName() const;
    void TurnTo(int row);
    /// Whoever is at the desk may have other rights than before.
    void LookAtRights();
    /// To the register so many below, or above, in the list of them.
    void TurnBy(int step);
    /// Shows the guarded ones, or turns away from them.
    void ShowGuarded();
    /// Files come and go where the rights allow it; none comes from the guarded ones, or goes to them.
    void OfferFiles();
    RegisterScreen* Current() const;

    const Desk desk_;
    const RecordActions actions_;
    /// In the order of the list; from `guarded_` on they are not for everybody.
    std::vector<const family::registers::Register*> registers_;
    std::size_t guarded_;
    const std::function<bool()> showsGuarded_;
    family::DeniedRights denied_;
    QListWidget* names_;
    NamesPanel* panel_ = nullptr;
    QBoxLayout* layout_ = nullptr;
    QPushButton *import_ = nullptr, *export_ = nullptr;
    QStackedWidget* pages_;
    /// By register; null until it is turned to.
    std::vector<RegisterScreen*> screens_;
};

} // namespace kova::registers
