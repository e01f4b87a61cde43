#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/data/engine/key.hpp"
#include "family/users/user_rights.hpp"
#include "history/history_page.hpp"
#include "registers/record_actions.hpp"

#include <QPointer>

#include <string>

class QAction;
class QWidget;

namespace kova::host {

class MainWindow;
class UserChange;

/// The history's tab, "Histórico", over a connection of its own to the shop at that source, which is opened
/// when the tab is turned to for the first time. Ctrl+H, an entry of the menu, and one behind "Mais..." of
/// every register lead to it.
class HistoryTab {
public:
    /// `user` and `clock` say who looks at it and undoes, and when. All must outlive the window.
    HistoryTab(std::string source, ObjectRef user, const Clock& clock, UserChange& change);

    void AddTo(MainWindow& window);
    /// Without the right to see the history the tab is not there, and its entry says why. To be told before
    /// the window is shown, and whenever it changes.
    void LookAtRights(const family::DeniedRights& denied);
    /// "Histórico" of a row, for each register.
    registers::RecordActions Actions();

private:
    QWidget* MakePage(QWidget& parent);
    void ShowRow(const std::string& table, family::Key key, const QString& called);

    std::string source_;
    ObjectRef user_;
    const Clock& clock_;
    UserChange& change_;
    MainWindow* window_ = nullptr;
    int tab_ = 0;
    QAction* entry_ = nullptr;
    /// Null before the page is made, and when it has gone.
    QPointer<history::HistoryPage> page_;
};

} // namespace kova::host
