#pragma once

#include "agenda/contracts/platform.hpp"
#include "registers/record_actions.hpp"

#include <string>
#include <utility>

class QWidget;

namespace kova::registers {
class RegistersPage;
}

namespace kova::host {

class MainWindow;
class UserChange;

/// The registers' tab over a connection of its own to the shop at that source. It is opened when the tab is
/// turned to for the first time, so that the start does not wait for it.
class RegistersTab {
public:
    /// `user` and `clock` say who writes, and when. All must outlive the window.
    RegistersTab(std::string source, ObjectRef user, const Clock& clock, UserChange& change);

    void AddTo(MainWindow& window);
    /// More that can be done with rows, behind what is usual; to be told before the page is made.
    void Offer(registers::RecordActions actions) { more_ = std::move(actions); }
    /// Asks a shop that has no company for it, and answers its trade name: "" where the user leaves that for
    /// later. Fails with a DatabaseFailure.
    std::string AskForCompany();
    /// Asks where something is typed that was not saved. False where the user stays with it.
    bool MayLeave();

private:
    QWidget* MakePage(QWidget& parent);
    registers::Desk OpenDesk() const;

    std::string source_;
    ObjectRef user_;
    const Clock& clock_;
    UserChange& change_;
    registers::RecordActions more_;
    /// Null before the page is made.
    registers::RegistersPage* page_ = nullptr;
};

} // namespace kova::host
