#include "host/sign_in/door.hpp"

#include "family/business/current_author.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/users/kept_sign_in.hpp"
#include "family/users/user_rights.hpp"
#include "family/users/who_enters.hpp"
#include "host/session/session_user.hpp"
#include "host/session/user_change.hpp"
#include "host/shell/main_window.hpp"
#include "host/sign_in/cover.hpp"
#include "host/sign_in/idle_watch.hpp"
#include "host/sign_in/sign_in_trial.hpp"
#include "screens/run_alone.hpp"

#include <QCoreApplication>
#include <QKeyEvent>

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

} // namespace

Door::Door(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      atStart_(family::OpenDatabase(surroundings_.source)),
      hasUsers_(family::HasUsers(*atStart_)),
      trial_(new SignInTrial(surroundings_.source, surroundings_.clock, this)),
      idle_(new IdleWatch(this))
{
    idle_->onIdle = [this] { Lock(); };
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
    surroundings_.user->Become(static_cast<Long>(answer.code), answer.name);
    surroundings_.kept.SetLastName(surroundings_.source, answer.name);
    isAdministrator_ = answer.rights.contains(family::Right::AdministerUsers);
    if (window_ != nullptr)
        window_->TellUser(QString::fromStdString(answer.name));
    surroundings_.change.Tell();
}

void Door::Watch(MainWindow& window)
{
    window_ = &window;
    atStart_.reset();
    window.TellUser(QString::fromStdString(surroundings_.user->Name()));
    QCoreApplication::instance()->installEventFilter(this);
    surroundings_.change.Follow(*this, [this] { FollowIdleness(); });
    FollowIdleness();
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
    if (!hasUsers_ || window_ == nullptr || cover_)
        return;
    delete dialog_;
    SignInDialog& dialog =
        Ask({.title = QStringLiteral("Bloqueado - Kovaris"),
             .shop = QString::fromStdString(surroundings_.shop),
             .why = QStringLiteral("A tela está bloqueada. O que estava nela continua como estava, também "
                                   "para outro usuário que entre agora."),
             .names = Names(),
             .name = surroundings_.user->Name(),
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

void Door::SetIdleMinutes(int minutes)
{
    surroundings_.kept.SetIdleMinutes(surroundings_.source, minutes);
    FollowIdleness();
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
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_U || key->modifiers() != (Qt::ControlModifier | Qt::ShiftModifier))
        return QObject::eventFilter(object, event);
    QMetaObject::invokeMethod(
        this, [this] { Change(); }, Qt::QueuedConnection);
    return true;
}

} // namespace kova::host
