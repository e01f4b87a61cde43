#include "host/sign_in/door.hpp"

#include "family/business/current_author.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/users/kept_sign_in.hpp"
#include "family/users/standing.hpp"
#include "family/users/who_enters.hpp"
#include "host/first_paint.hpp"
#include "host/session/session_user.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "host/sign_in/cover.hpp"
#include "host/sign_in/idle_watch.hpp"
#include "host/sign_in/sign_in_trial.hpp"
#include "host/sign_in/standing_watch.hpp"
#include "screens/run_alone.hpp"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace kova::host {

using family::SignInAnswer;
using family::SignInTry;

namespace {

std::vector<std::string> NamesOf(const std::vector<family::UserWhoEnters>& users)
{
    std::vector<std::string> names;
    for (const family::UserWhoEnters& user : users)
        names.push_back(user.name);
    return names;
}

/// What a key does, whatever window has the keyboard; null where it does nothing.
auto ActOf(const QKeyEvent& key, bool hasUsers) -> void (Door::*)()
{
    if (key.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier))
        return nullptr;
    if (key.key() == Qt::Key_U)
        return &Door::Change;
    if (key.key() == Qt::Key_L && hasUsers)
        return &Door::Lock;
    return nullptr;
}

} // namespace

Door::Door(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      hasUsers_(surroundings_.hasUsers),
      trial_(new SignInTrial(surroundings_.source, surroundings_.clock, this)),
      idle_(new IdleWatch(this)),
      standing_(new StandingWatch(surroundings_.source, this))
{
    if (hasUsers_) {
        atStart_ = family::OpenDatabase(surroundings_.source);
        idleMinutes_ = family::IdleMinutes(*atStart_);
    }
    idle_->onIdle = [this] { Lock(); };
    standing_->onChanged = [this](const family::Standing& now, const auto& before) { Hear(now, !before); };
}

Door::~Door() = default;

std::shared_ptr<family::Database> Door::Open() const
{
    return atStart_ ? atStart_ : family::OpenDatabase(surroundings_.source);
}

registers::Desk Door::OpenDesk() const
{
    return {Open(), [user = surroundings_.user, &clock = surroundings_.clock] {
                return family::CurrentAuthor(user, clock);
            }};
}

void Door::LookAgain()
{
    try {
        hasUsers_ = hasUsers_ || family::HasUsers(*Open());
    } catch (const family::DatabaseFailure&) {
        return;
    }
}

bool Door::Enter()
{
    if (!hasUsers_)
        return true;
    const auto database = Open();
    if (EnterBy(surroundings_.entry, *database) || EnterByKeptToken(*database))
        return true;
    const auto users = family::UsersWhoEnter(*database);
    const std::string last = surroundings_.kept.LastName(surroundings_.source);
    const bool isOne = users.size() == 1;
    bool hasEntered = false;
    SignInDialog dialog({.title = QStringLiteral("Entrar - Kovaris"),
                         .leave = QStringLiteral("Sair do &programa"),
                         .shop = QString::fromStdString(surroundings_.shop),
                         .why = QStringLiteral("Entre com o seu usuário desta loja."),
                         .names = NamesOf(users),
                         .name = last.empty() && isOne ? users.front().name : last,
                         .mayKeep = isOne},
                        Look(SignInTry::Kind::Password), nullptr);
    dialog.onEntered = [&](const SignInAnswer& answer, bool keeps) {
        hasEntered = true;
        LetIn(answer);
        Keep(answer.code, keeps);
    };
    screens::RunAlone(dialog);
    return hasEntered;
}

bool Door::EnterBy(const std::string& token, family::Database& database)
{
    if (token.empty())
        return false;
    const SignInAnswer answer = family::SignInByToken(database, token, surroundings_.clock);
    if (answer.IsDone())
        LetIn(answer);
    return answer.IsDone();
}

// What lets nobody in any more is not kept.
bool Door::EnterByKeptToken(family::Database& database)
{
    const std::string token = surroundings_.kept.Token(surroundings_.source);
    const bool isIn = EnterBy(token, database);
    if (!isIn && !token.empty())
        surroundings_.kept.SetToken(surroundings_.source, {});
    return isIn;
}

// Not to be able to is no reason to stay outside: the question comes again.
void Door::Keep(family::Key code, bool keeps) const
{
    if (!keeps)
        return;
    try {
        surroundings_.kept.SetToken(surroundings_.source, family::SignInToken(*Open(), code));
    } catch (const family::DatabaseFailure&) {
        return;
    }
}

std::vector<std::string> Door::Names() const
{
    try {
        return NamesOf(family::UsersWhoEnter(*Open()));
    } catch (const family::DatabaseFailure&) {
        return {};
    }
}

SignInForm::Look Door::Look(SignInTry::Kind kind)
{
    return [this, kind](const std::string& name, std::string secret, SignInForm::Tell tell) {
        trial_->Begin(name, std::move(secret), kind, std::move(tell));
    };
}

void Door::LetIn(const SignInAnswer& answer)
{
    hasSignedIn_ = true;
    surroundings_.user->Become(static_cast<Long>(answer.code), answer.name);
    surroundings_.kept.SetLastName(surroundings_.source, answer.name);
    rightsAtEntry_ = answer.rights;
    isAdministrator_ = answer.rights.contains(family::Right::AdministerUsers);
    if (window_ != nullptr)
        window_->TellUser(QString::fromStdString(answer.name));
    surroundings_.change.Tell();
    FollowUser();
}

void Door::Watch(MainWindow& window)
{
    window_ = &window;
    atStart_.reset();
    window.TellUser(QString::fromStdString(surroundings_.user->Name()));
    window.onTurned = [this] { standing_->Look(); };
    QCoreApplication::instance()->installEventFilter(this);
    surroundings_.change.Follow(*this, [this] { FollowIdleness(); });
    FollowIdleness();
    // The day does not wait for it.
    AfterFirstPaint(window, [door = QPointer(this)] {
        if (door)
            door->FollowUser();
    });
}

void Door::FollowUser()
{
    if (window_ != nullptr)
        standing_->Follow(surroundings_.user->Code());
}

bool Door::AreOthersThanAtEntry(const family::DeniedRights& denied) const
{
    return std::ranges::any_of(family::AllRights(), [&](const family::RightInfo& one) {
        return rightsAtEntry_.contains(one.right) == denied.contains(one.right);
    });
}

void Door::Hear(const family::Standing& now, bool isFirst)
{
    const bool hadUsers = std::exchange(hasUsers_, hasUsers_ || now.hasUsers);
    isAdministrator_ = hasUsers_ && !now.denied.contains(family::Right::AdministerUsers);
    idleMinutes_ = now.idleMinutes;
    FollowIdleness();
    if (!isFirst || hadUsers != hasUsers_ || (hasSignedIn_ && AreOthersThanAtEntry(now.denied)))
        surroundings_.change.Tell();
    if (hasUsers_ && !hasSignedIn_)
        LockFor(
            QStringLiteral("Esta loja passou a ter usuários: entre com o seu. O que está na tela continua "
                           "como está."),
            {});
    else if (hasUsers_ && !now.mayEnter)
        LockFor(QString::fromStdString(surroundings_.user->Name())
                    + QStringLiteral(" não entra mais nesta loja. Entre com outro usuário, ou peça a quem "
                                     "administra os usuários. O que está na tela continua como está."),
                {});
}

SignInDialog& Door::Ask(const SignInDialog::Question& question)
{
    dialog_ = new SignInDialog(question, Look(SignInTry::Kind::Either), window_);
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setWindowModality(Qt::ApplicationModal);
    dialog_->onEntered = [this](const SignInAnswer& answer, bool) {
        cover_.reset();
        LetIn(answer);
    };
    return *dialog_;
}

void Door::Change()
{
    LookAgain();
    if (!hasUsers_ || window_ == nullptr || dialog_ != nullptr)
        return;
    Ask({.title = QStringLiteral("Trocar usuário"),
         .leave = QStringLiteral("&Cancelar"),
         .shop = QString::fromStdString(surroundings_.shop),
         .why = QStringLiteral("Quem vai usar este posto agora? O que está na tela continua como está."),
         .names = Names(),
         .takesPin = true})
        .show();
}

void Door::Lock()
{
    LockFor(QStringLiteral("A tela está bloqueada. O que estava nela continua como estava, também para outro "
                           "usuário que entre agora."),
            surroundings_.user->Name());
}

void Door::LockFor(const QString& why, const std::string& name)
{
    if (!hasUsers_ || window_ == nullptr || cover_)
        return;
    delete dialog_;
    SignInDialog& dialog = Ask({.title = QStringLiteral("Bloqueado - Kovaris"),
                                .shop = QString::fromStdString(surroundings_.shop),
                                .why = why,
                                .names = Names(),
                                .name = name,
                                .takesPin = true,
                                .mayLeave = false});
    cover_ = std::make_unique<Cover>(dialog);
    dialog.show();
}

void Door::BeginWithUsers(family::Key code, const std::string& name)
{
    hasUsers_ = true;
    LetIn({.code = code, .name = name, .rights = {family::Right::AdministerUsers}});
}

std::string Door::SetIdleMinutes(int minutes)
{
    const registers::Desk desk = OpenDesk();
    std::string why = family::SetIdleMinutes(*desk.database, minutes, desk.author());
    if (why.empty())
        idleMinutes_ = minutes;
    FollowIdleness();
    return why;
}

bool Door::IsNeverAsked() const
{
    const std::string token = surroundings_.kept.Token(surroundings_.source);
    try {
        return !token.empty() && token == family::SignInToken(*Open(), surroundings_.user->Code());
    } catch (const family::DatabaseFailure&) {
        return false;
    }
}

// Whoever is never asked at this computer is not to be asked in the midst of the work.
void Door::FollowIdleness()
{
    const bool locks = hasUsers_ && window_ != nullptr && !IsNeverAsked();
    idle_->SetPatience(std::chrono::minutes(locks ? IdleMinutes() : 0));
}

// A shortcut of the window would be none where a form is open over it.
bool Door::eventFilter(QObject* object, QEvent* event)
{
    // Whoever turns to the program, and whatever window has closed over another: something may have changed.
    if (event->type() == QEvent::WindowActivate && object->isWidgetType())
        standing_->Look();
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    const auto act = ActOf(*static_cast<QKeyEvent*>(event), hasUsers_);
    if (act == nullptr)
        return QObject::eventFilter(object, event);
    QMetaObject::invokeMethod(
        this, [this, act] { (this->*act)(); }, Qt::QueuedConnection);
    return true;
}

} // namespace kova::host
