#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/users/idle_lock.hpp"
#include "family/users/user_rights.hpp"
#include "host/sign_in/kept_entries.hpp"
#include "host/sign_in/sign_in_dialog.hpp"
#include "registers/desk.hpp"

#include <QObject>
#include <QPointer>

#include <memory>

namespace kova::family {
class Database;
struct Standing;
} // namespace kova::family

namespace kova::host {

class Cover;
class IdleWatch;
class MainWindow;
class SessionUser;
class SignInTrial;
class StandingWatch;
class UserChange;

/// Who gets at the shop's desk: asks at the start, lets another user take the place, and locks the window.
/// In a shop without users everybody is let in, and nobody is asked.
class Door : public QObject {
public:
    struct Surroundings {
        /// Where the shop lies, and its name; "" where it has none.
        std::string source, shop;
        KeptEntries kept;
        std::shared_ptr<SessionUser> user;
        /// Both must outlive the door.
        UserChange& change;
        const Clock& clock;
        /// By which whoever has just made the shop is let in; "" where somebody is asked.
        std::string entry = {};
        /// As far as is known; it is looked at again.
        bool hasUsers = false;
    };

    /// Fails with a DatabaseFailure.
    explicit Door(Surroundings surroundings);
    ~Door() override;

    bool HasUsers() const { return hasUsers_; }
    /// A shop gets its first user at any desk, or in its register. What cannot be read now stays as it was.
    void LookAgain();
    /// Whether the user who is at the desk administers the users, as far as this desk knows.
    bool IsAdministrator() const { return isAdministrator_; }
    /// A connection of its own to the shop, and whoever is at the desk. Fails with a DatabaseFailure.
    registers::Desk OpenDesk() const;
    const Clock& GetClock() const { return surroundings_.clock; }
    /// Asks who it is, where the shop has users and this computer does not keep the answer. False where the
    /// question is left. Fails with a DatabaseFailure.
    bool Enter();
    /// From then on Ctrl+Shift+U lets another take the place and Ctrl+Shift+L locks the window, over every
    /// window of the application; it is locked, too, when nobody is at it, and when whoever is there is no
    /// user of the shop any more. What other desks change of his rights is told to the areas. The window must
    /// outlive the door.
    void Watch(MainWindow& window);

    /// Another one takes the place; nothing on the screen is lost. Nothing happens where somebody is asked
    /// already.
    void Change();
    void Lock();

    /// The shop has its first user, who administers it and is at the desk from now on.
    void BeginWithUsers(family::Key code, const std::string& name);

    /// After which all desks of the shop are locked, as far as this one knows; 0 is never.
    int IdleMinutes() const { return idleMinutes_; }
    /// As family::SetIdleMinutes, by whoever is at the desk.
    std::string SetIdleMinutes(int minutes);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::shared_ptr<family::Database> Open() const;
    bool EnterBy(const std::string& token, family::Database& database);
    bool EnterByKeptToken(family::Database& database);
    /// Those whose names are proposed; none where the data cannot be read now.
    std::vector<std::string> Names() const;
    SignInForm::Look Look(family::SignInTry::Kind kind);
    SignInDialog& Ask(const SignInDialog::Question& question);
    void LetIn(const family::SignInAnswer& answer);
    void Keep(family::Key code, bool keeps) const;
    /// Whoever is at the desk is the one whom this computer knows, and the only one who enters. Not where the
    /// data cannot be read now.
    bool IsNeverAsked() const;
    void FollowIdleness();
    void FollowUser();
    bool AreOthersThanAtEntry(const family::DeniedRights& denied) const;
    void Hear(const family::Standing& now, bool isFirst);
    /// Covers everything, and asks who it is.
    void LockFor(const QString& why, const std::string& name);

    Surroundings surroundings_;
    /// Open until the window is watched: what is asked at the start is asked over one connection.
    std::shared_ptr<family::Database> atStart_;
    bool hasUsers_ = false, isAdministrator_ = false;
    family::Rights rightsAtEntry_;
    int idleMinutes_ = family::UsualIdleMinutes;
    SignInTrial* trial_;
    IdleWatch* idle_;
    StandingWatch* standing_;
    /// Somebody has; in a shop without users nobody does.
    bool hasSignedIn_ = false;
    MainWindow* window_ = nullptr;
    QPointer<SignInDialog> dialog_;
    std::unique_ptr<Cover> cover_;
};

} // namespace kova::host
