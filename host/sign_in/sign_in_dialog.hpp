#pragma once

#include "host/sign_in/sign_in_form.hpp"

#include <QDialog>

#include <optional>

class QCheckBox;

namespace kova::host {

/// Asks who is at the desk.
class SignInDialog : public QDialog {
public:
    struct Question {
        /// Of the window, and what the button says that leaves it.
        QString title{}, leave{};
        /// The shop's name, and why one is asked.
        QString shop{}, why{};
        std::vector<std::string> names{};
        /// Stands there at first.
        std::string name{};
        /// Whether the PIN will do, too.
        bool takesPin = false;
        /// Whether one may have this computer ask no more.
        bool mayKeep = false;
        /// False where nobody gets past it without signing in.
        bool mayLeave = true;
    };

    SignInDialog(const Question& question, SignInForm::Look look, QWidget* parent);

    /// Called once somebody has signed in, when the dialog has gone; `keeps` where this computer is to ask no
    /// more.
    std::function<void(const family::SignInAnswer&, bool keeps)> onEntered = [](const auto&, bool) {};

    void reject() override;

private:
    void AddHeading(const Question& question);
    void AddButtons(const Question& question);

    SignInForm* form_;
    QCheckBox* keep_;
    bool mayLeave_;
};

} // namespace kova::host
