#include "host/sign_in/sign_in_trial.hpp"

#include "family/data/sources/data_source.hpp"
#include "registers/importing/background_job.hpp"

#include <memory>

namespace kova::host {

using family::SignInAnswer;

SignInTrial::SignInTrial(std::string source, const Clock& clock, QObject* parent)
    : QObject(parent), source_(std::move(source)), clock_(clock), job_(new registers::BackgroundJob(this))
{
}

void SignInTrial::Begin(const std::string& name, std::string secret, family::SignInTry::Kind kind,
                        SignInForm::Tell tell)
{
    // One that was left before its answer came.
    if (job_->IsUnderWay()) {
        delete job_;
        job_ = new registers::BackgroundJob(this);
    }
    auto answer = std::make_shared<SignInAnswer>();
    auto typed = std::make_shared<family::Secret>(std::move(secret));
    const auto look = [this, name, typed, kind, answer](const std::stop_token&) {
        const auto database = family::OpenDatabase(source_);
        *answer = family::SignIn(*database, {name, *typed, kind}, clock_);
    };
    job_->Begin(look, [answer, tell = std::move(tell)](const std::string& failure) {
        tell(failure.empty() ? *answer
                             : SignInAnswer{.outcome = SignInAnswer::Outcome::Wrong, .text = failure});
    });
}

} // namespace kova::host
