#pragma once

#include "agenda/contracts/platform.hpp"
#include "host/sign_in/sign_in_form.hpp"

#include <QObject>

namespace kova::registers {
class BackgroundJob;
}

namespace kova::host {

/// Looks whether somebody may sign in to the shop at a source, over a connection of its own and in a thread
/// of its own: a password costs time on purpose, and a server may take its own. One at a time.
class SignInTrial : public QObject {
public:
    /// `clock` is asked from that thread.
    SignInTrial(std::string source, const Clock& clock, QObject* parent = nullptr);

    /// What prevents it technically is told as a refusal, too.
    void Begin(const std::string& name, std::string secret, family::SignInTry::Kind kind,
               SignInForm::Tell tell);

private:
    std::string source_;
    const Clock& clock_;
    registers::BackgroundJob* job_;
};

} // namespace kova::host
